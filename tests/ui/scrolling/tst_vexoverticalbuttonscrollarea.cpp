// SPDX-License-Identifier: MIT
#include "support/panelscale.h"
#include "support/testcase.h"

#include <VexoVerticalButtonScrollArea>
#include <VexoVerticalScrollArea>

#include <QPushButton>
#include <QScrollBar>

using namespace vexo::hox::qt::ui;

using Type = VexoVerticalButtonScrollArea::VexoVerticalButtonScrollAreaType;

namespace {

QString lettersOf(const VexoVerticalButtonScrollArea &bar)
{
    QString letters;
    const auto buttons = bar.findChildren<QPushButton *>("letterButton");
    for (const QPushButton *button : buttons)
        letters += button->text();
    return letters;
}

QPushButton *buttonOf(const VexoVerticalButtonScrollArea &bar, const char *name)
{
    return bar.findChild<QPushButton *>(QLatin1String(name));
}

} // namespace

class TestVexoVerticalButtonScrollArea : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void holdsTheButtonsOfItsType_data();
    void holdsTheButtonsOfItsType();
    void pagesWithinItsEnds();
    void buttonsAreAsLargeOnEachPanel();
    void handlersGoWithButtonsAndReceiver();
    void handlerMayChangeTheType();
};

void TestVexoVerticalButtonScrollArea::holdsTheButtonsOfItsType_data()
{
    QTest::addColumn<Type>("type");
    QTest::addColumn<QString>("letters");
    const QString alphabet = "ABCDEFGHIJKLMNOPQRSTUVWXYZ";
    QTest::newRow("none") << Type::None << QString();
    QTest::newRow("letters") << Type::Alphabetic << alphabet;
    QTest::newRow("digits") << Type::Numbers << "0123456789";
    QTest::newRow("hash") << Type::AlphabeticWithHash << QLatin1Char('#') + alphabet;
}

void TestVexoVerticalButtonScrollArea::holdsTheButtonsOfItsType()
{
    QFETCH(Type, type);
    QFETCH(QString, letters);
    const VexoVerticalButtonScrollArea built(nullptr, type);
    QCOMPARE(lettersOf(built), letters);
    QWidget window;
    VexoVerticalButtonScrollArea changed(&window);
    QVERIFY(changed.setProperty("m_type", QVariant::fromValue(type)));
    QCOMPARE(lettersOf(changed), letters);
    changed.resize(changed.width(), 600);
    window.show();
    QCOMPARE(changed.width(), 60);
    QCOMPARE(buttonOf(changed, "upButton")->geometry(), QRect(0, 0, 60, 60));
    QCOMPARE(buttonOf(changed, "downButton")->geometry(), QRect(0, 540, 60, 60));
    QCOMPARE(changed.verticalScrollArea()->widget()->height(), qMax(480, 60 * letters.size()));
    changed.setNavigationButtonVisibility(false);
    QVERIFY(!buttonOf(changed, "upButton")->isVisible());
    QVERIFY(!buttonOf(changed, "downButton")->isVisible());
}

void TestVexoVerticalButtonScrollArea::pagesWithinItsEnds()
{
    QWidget window;
    VexoVerticalButtonScrollArea bar(&window);
    bar.resize(60, 600);
    window.show();
    QScrollBar *scrolled = bar.verticalScrollArea()->verticalScrollBar();
    scrolled->setValue(scrolled->maximum() - 200);
    QVector<int> left_px;
    for (const char *name : { "downButton", "downButton", "downButton", "upButton" }) {
        buttonOf(bar, name)->click();
        left_px += scrolled->maximum() - scrolled->value();
    }
    QCOMPARE(left_px, (QVector<int>{ 50, 0, 0, 150 }));
}

void TestVexoVerticalButtonScrollArea::buttonsAreAsLargeOnEachPanel()
{
    const PanelScale scale(5, 10);
    QWidget window;
    VexoVerticalButtonScrollArea bar(&window);
    bar.setMmButtonSize(QSizeF(10, 8));
    bar.addButton("#");
    bar.setMmButtonSize(QSizeF(-1, 8));
    bar.setMmButtonSize(QSizeF(qQNaN(), 8));
    bar.resize(bar.width(), 600);
    window.show();
    QCOMPARE(bar.width(), 50);
    const auto buttons = bar.findChildren<QPushButton *>();
    QCOMPARE(buttons.size(), 29);
    for (const QPushButton *button : buttons)
        QCOMPARE(button->size(), QSize(50, 80));
    QCOMPARE(buttonOf(bar, "upButton")->iconSize(), QSize(20, 40));
    buttonOf(bar, "downButton")->click();
    QCOMPARE(bar.verticalScrollArea()->verticalScrollBar()->value(), 200);
    bar.setMmButtonSize(QSizeF(0, 8));
    QCOMPARE(bar.width(), 60);
    QCOMPARE(buttonOf(bar, "letterButton")->size(), QSize(60, 60));
    QCOMPARE(buttonOf(bar, "upButton")->iconSize(), QPushButton().iconSize());
}

void TestVexoVerticalButtonScrollArea::handlersGoWithButtonsAndReceiver()
{
    VexoVerticalButtonScrollArea bar;
    QString log;
    auto receiver = std::make_unique<QObject>();
    bar.setButtonConnection(receiver.get(), [&] { log += QLatin1Char('a'); });
    bar.setButtonConnection(this, [&] { log += qobject_cast<QPushButton *>(sender())->text(); });
    bar.setButtonConnection(nullptr, [&] { log += QLatin1Char('x'); });
    bar.setButtonConnection(this, nullptr);
    buttonOf(bar, "letterButton")->click();
    QCOMPARE(log, "aA");
    receiver.reset();
    buttonOf(bar, "letterButton")->click();
    QCOMPARE(log, "aAA");
    bar.setType(Type::Alphabetic); // the same
    buttonOf(bar, "letterButton")->click();
    QCOMPARE(log, "aAAA");
    bar.setType(Type::Numbers);
    buttonOf(bar, "letterButton")->click();
    QCOMPARE(log, "aAAA");
}

void TestVexoVerticalButtonScrollArea::handlerMayChangeTheType()
{
    VexoVerticalButtonScrollArea bar;
    bar.setButtonConnection(&bar, [&] { bar.setType(Type::Numbers); });
    QTest::mouseClick(buttonOf(bar, "letterButton"), Qt::LeftButton);
    QCOMPARE(lettersOf(bar), "0123456789");
}

QTEST_MAIN(TestVexoVerticalButtonScrollArea)
#include "tst_vexoverticalbuttonscrollarea.moc"
