// SPDX-License-Identifier: MIT
#include "support/onscreen.h"
#include "support/propertywalk.h"
#include "support/testcase.h"
#include "ui/buttons/vexocenteredvectorbutton.h"
#include "ui/buttons/vexofunctionbutton.h"
#include "ui/buttons/vexoiconbutton.h"
#include "ui/input/vexolineedit.h"
#include "ui/scrolling/vexoverticalbuttonscrollarea.h"
#include "ui/scrolling/vexoverticalscrollarea.h"
#include "ui/text/vexohorizontallabelwidget.h"

#include <QAction>
#include <QMetaProperty>
#include <QPointer>

using namespace vexo::hox::qt::ui;

class TestDeletions : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void anyPartMayGo_data();
    void anyPartMayGo();
    void partThatWentIsNull();
    void columnOfAJumpBarMayGo();
    void boxOfARowMayGo();
    void tileMayGoAsItsIconChanges();
    void actionAtASideMayGo_data();
    void actionAtASideMayGo();
    void jumpBarMayGoInItsLetter();
};

namespace {

// Those with names; the toolkit's own are none of an application's business.
QWidgetList partsOf(const QWidget *widget)
{
    QWidgetList parts;
    for (QWidget *part : widget->findChildren<QWidget *>()) {
        if (!part->objectName().isEmpty() && !part->objectName().startsWith("qt_"))
            parts += part;
    }
    return parts;
}

void changeAll(QWidget *widget)
{
    const QMetaObject *meta = widget->metaObject();
    for (int i = meta->propertyOffset(); i < meta->propertyCount(); ++i) {
        const QMetaProperty property = meta->property(i);
        property.write(widget, otherValue(property, property.read(widget), 3));
    }
    widget->resize(200, 150);
    widget->setEnabled(false);
    widget->setEnabled(true);
    QTest::mouseClick(widget, Qt::LeftButton);
    widget->hide();
    widget->show();
}

} // namespace

void TestDeletions::anyPartMayGo_data()
{
    // They hand out none of their parts, or but one.
    const QByteArrayList closed{ "VexoImageHeadline", "VexoLabeledContainer", "VexoNumericButton",
        "VexoSliderDecoration", "VexoVerticalButtonScrollArea" };
    QTest::addColumn<const WalkedClass *>("walked");
    for (const WalkedClass &walked : walkedClasses()) {
        if (!closed.contains(walked.name))
            QTest::newRow(walked.name) << &walked;
    }
}

void TestDeletions::anyPartMayGo()
{
    QFETCH(const WalkedClass *, walked);
    for (int i = 0;; ++i) {
        QWidget window;
        window.resize(400, 300);
        QWidget *widget = walked->make(&window);
        widget->setWindowFlags(Qt::Widget);
        widget->resize(300, 200);
        window.show();
        settle();
        const QWidgetList parts = partsOf(widget);
        if (i >= parts.size())
            return;
        const QByteArray name = parts.at(i)->objectName().toUtf8();
        delete parts.at(i);
        changeAll(widget);
        settle();
        QVERIFY2(wrongPixels(window).isEmpty(), name);
    }
}

void TestDeletions::partThatWentIsNull()
{
    VexoCenteredVectorButton tile;
    delete tile.getButtonInstance();
    QCOMPARE(tile.getButtonInstance(), nullptr);
    qDeleteAll(tile.findChildren<QLabel *>());
    tile.setText("gone");
    tile.setSubtext("gone");
    QCOMPARE(tile.text() + tile.subtext(), QString());
    VexoFunctionButton row;
    delete row.getLabelInstance();
    QCOMPARE(row.getLabelInstance(), nullptr);
    row.setText("gone");
    QCOMPARE(row.text(), QString());
    VexoHorizontalLabelWidget labels;
    delete labels.leftLabel();
    QCOMPARE(labels.leftLabel(), nullptr);
    labels.setRightLabelText("there");
    QCOMPARE(labels.rightLabel()->text(), "there");
}

void TestDeletions::columnOfAJumpBarMayGo()
{
    for (const bool is_area : { true, false }) { // or its content
        QWidget window;
        VexoVerticalButtonScrollArea bar(&window);
        if (is_area)
            delete bar.verticalScrollArea();
        else
            delete bar.verticalScrollArea()->takeWidget();
        QCOMPARE(bar.verticalScrollArea() == nullptr, is_area);
        changeAll(&bar);
        bar.setButtonConnection(&bar, [] {});
        bar.findChild<QAbstractButton *>("downButton")->click();
        QVERIFY(!bar.findChild<QAbstractButton *>("letterButton"));
    }
}

void TestDeletions::boxOfARowMayGo()
{
    QWidget window;
    VexoFunctionButton row(&window);
    const QSignalSpy clicks(&row, &QAbstractButton::clicked);
    delete row.getButtonInstance();
    QTest::mouseClick(&row, Qt::LeftButton);
    QCOMPARE(clicks.size(), 0);
}

void TestDeletions::tileMayGoAsItsIconChanges()
{
    const QPointer<VexoCenteredVectorButton> tile = new VexoCenteredVectorButton;
    connect(tile->getButtonInstance(), &ActiveVectorButton::sizeChanged, [=] { delete tile; });
    tile->setIconSizeInMm(5);
    QVERIFY(!tile);
}

void TestDeletions::actionAtASideMayGo_data()
{
    QTest::addColumn<bool>("is_leading");
    QTest::addColumn<int>("index"); // of what is deleted; 2: the widget that both show
    for (const bool is_leading : { true, false }) {
        for (int index = 0; index < 3; ++index)
            QTest::addRow("%s, %d", is_leading ? "leading" : "trailing", index)
                << is_leading << index;
    }
}

void TestDeletions::actionAtASideMayGo()
{
    QFETCH(bool, is_leading);
    QFETCH(int, index);
    QWidget window;
    VexoLineEdit field(&window);
    for (int i = 0; i < 2; ++i) {
        if (is_leading)
            field.enableLeadingLabelAction();
        else
            field.enableTrailingButtonAction();
    }
    window.show();
    settle();
    if (index < 2)
        delete field.actions().at(index);
    else if (is_leading)
        delete field.findChild<QLabel *>();
    else
        delete field.findChild<VexoIconButton *>();
    QVERIFY(field.sizeHint().isValid());
    field.resize(200, field.height());
    field.setMmLeadingIconSize(QSizeF(3, 3));
    field.setTrailingIcon(QIcon());
    settle();
    QCOMPARE(wrongPixels(window), QRect());
    qDeleteAll(field.actions());
    QVERIFY(field.sizeHint().isValid());
}

// A tap that the real scroller of the bar sees.
void TestDeletions::jumpBarMayGoInItsLetter()
{
    QWidget window;
    window.resize(100, 400);
    const QPointer<VexoVerticalButtonScrollArea> bar = new VexoVerticalButtonScrollArea(&window);
    bar->resize(60, 400);
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    settle();
    bar->setButtonConnection(&window, [bar] { bar->deleteLater(); });
    QTest::mouseClick(window.windowHandle(), Qt::LeftButton, Qt::NoModifier, QPoint(30, 150));
    QTRY_VERIFY(!bar);
    settle();
}

QTEST_MAIN(TestDeletions)
#include "tst_deletions.moc"
