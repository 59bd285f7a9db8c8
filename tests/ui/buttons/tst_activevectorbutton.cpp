// SPDX-License-Identifier: MIT
#include "support/iconfiles.h"
#include "support/paintcounter.h"
#include "support/panelscale.h"
#include "support/testcase.h"

#include <ActiveVectorButton>

#include <QBoxLayout>
#include <QPointer>

#include <stdexcept>

using namespace vexo::hox::qt::ui;

namespace {

const QString DEFAULT = QLatin1String(ActiveButton::DEFAULT_STATE_NAME);

void change(ActiveVectorButton *button, const QString &by, const QSizeF &size)
{
    if (by == "width")
        button->setMmIconWidth(size.width());
    else if (by == "height")
        button->setMmIconHeight(size.height());
    else if (by == "both")
        button->setMmIconSize(size);
    else
        button->setPxIconSize(size.toSize());
}

QSizeF mmOf(const ActiveVectorButton &button)
{
    return QSizeF(button.mmIconWidth(), button.mmIconHeight());
}

/// Notes renderings and size changes in their order.
class Hooked : public ActiveVectorButton
{
public:
    Hooked()
    {
        connect(this, &ActiveVectorButton::sizeChanged, this,
            [this](double w, double h) { calls += QString("%1 x %2").arg(w).arg(h); });
    }
    QIcon compute(const QString &path) override
    {
        calls += "render";
        return ActiveVectorButton::compute(path);
    }
    QStringList calls;
};

} // namespace

class TestActiveVectorButton : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void tellsAndRendersItsSize_data();
    void tellsAndRendersItsSize();
    void pixelsAreKeptInMillimetres();
    void scaleIsTakenUpWithAnUpdate();
    void changeReachesLayoutAndScreen();
    void mayBeDeletedInSizeChanged();

private:
    IconFiles m_files;
};

void TestActiveVectorButton::tellsAndRendersItsSize_data()
{
    const QSize kept;
    QTest::addColumn<QString>("by"); // from 10 x 10 mm, on a panel of 10 x 20 px/mm
    QTest::addColumn<QSizeF>("size");
    QTest::addColumn<QSize>("px");
    QTest::addColumn<QString>("calls");
    QTest::newRow("width") << "width" << QSizeF(1.29, 0) << QSize(12, 200) << "1.29 x 10, render";
    QTest::newRow("height") << "height" << QSizeF(0, 1.29) << QSize(100, 25) << "10 x 1.29, render";
    QTest::newRow("both") << "both" << QSizeF(1.29, 2) << QSize(12, 40) << "render, 1.29 x 2";
    QTest::newRow("px") << "px" << QSizeF(50, 50) << QSize(50, 50) << "5 x 2.5, render";
    QTest::newRow("no width") << "width" << QSizeF(0, 0) << QSize(200, 200) << "0 x 10, render";
    QTest::newRow("no height") << "both" << QSizeF(4, 0) << QSize(40, 40) << "render, 4 x 0";
    QTest::newRow("no icon") << "both" << QSizeF(0, 0) << QSize(0, 0) << "render, 0 x 0";
    QTest::newRow("same width") << "width" << QSizeF(10, 0) << kept << "";
    QTest::newRow("same height") << "height" << QSizeF(0, 10) << kept << "";
    QTest::newRow("same size") << "both" << QSizeF(10, 10) << kept << "";
    QTest::newRow("same px") << "px" << QSizeF(100, 200) << kept << "";
    QTest::newRow("-px") << "px" << QSizeF(50, -1) << kept << "";
    const QString width_error = "Negative image width is impossible!";
    const QString height_error = "Negative image height is impossible!";
    const QString size_error = "Negative image size parameter is impossible!";
    QTest::newRow("-width") << "width" << QSizeF(-0.1, 0) << kept << width_error;
    QTest::newRow("height NaN") << "height" << QSizeF(0, qQNaN()) << kept << height_error;
    QTest::newRow("both, width") << "both" << QSizeF(-1, 5) << kept << size_error;
    QTest::newRow("both, height NaN") << "both" << QSizeF(5, qQNaN()) << kept << size_error;
}

void TestActiveVectorButton::tellsAndRendersItsSize()
{
    QFETCH(QString, by);
    QFETCH(QSizeF, size);
    QFETCH(QSize, px);
    const PanelScale scale(10, 20);
    Hooked button;
    button.addIcon(DEFAULT, m_files.svg(Qt::red, QSize(20, 10)));
    button.calls.clear();
    try {
        change(&button, by, size);
    } catch (const std::out_of_range &error) {
        button.calls += QString::fromLatin1(error.what());
    }
    QTEST(button.calls.join(", "), "calls");
    QCOMPARE(mmOf(button) == QSizeF(10, 10), !px.isValid());
    QCOMPARE(button.pxIconSize(), px.isValid() ? px : QSize(100, 200));
    QCOMPARE(button.minimumSizeHint(), px.isValid() ? px : QSize(0, 0)); // until a size is set
    const QList<QSize> sizes = { button.pxIconSize() };
    QCOMPARE(button.icon().availableSizes(), sizes.first().isEmpty() ? QList<QSize>() : sizes);
}

void TestActiveVectorButton::pixelsAreKeptInMillimetres()
{
    const PanelScale scale(7.3, 11.7);
    ActiveVectorButton button;
    button.addIcon(DEFAULT, m_files.svg(Qt::red));
    for (int px = 1; px < 100; ++px) {
        button.setPxIconSize(QSize(px, px));
        const QSize lost = QSize(px, px) - button.pxIconSize();
        QVERIFY(QRect(0, 0, 2, 2).contains(lost.width(), lost.height()));
        QCOMPARE(button.minimumSizeHint(), button.pxIconSize());
    }
}

void TestActiveVectorButton::scaleIsTakenUpWithAnUpdate()
{
    const PanelScale scale(10, 20);
    ActiveVectorButton button;
    button.addIcon(DEFAULT, m_files.svg(Qt::red));
    const PanelScale other_scale(5, 6);
    button.setMmIconSize(QSizeF(10, 10)); // what it has
    button.setPxIconSize(QSize(100, 200)); // too, although the mm no longer correspond to it
    QCOMPARE(mmOf(button), QSizeF(10, 10));
    button.updateSizeCalculations();
    QCOMPARE(button.pxIconSize(), QSize(50, 60));
    QCOMPARE(button.minimumSizeHint(), QSize(50, 60));
}

void TestActiveVectorButton::changeReachesLayoutAndScreen()
{
    const PanelScale scale(10, 20);
    QWidget window;
    QHBoxLayout layout(new QWidget(&window));
    layout.setContentsMargins(0, 0, 0, 0);
    auto *button = new ActiveVectorButton; // without a state whose icon would change
    layout.addWidget(button);
    PaintCounter paints;
    paints.watch(button);
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    QVERIFY(paints.take(button) > 0);
    QVERIFY(layout.minimumSize().width() < 400);
    button->setMmIconWidth(40);
    button->setMmIconHeight(4);
    QCOMPARE(layout.minimumSize(), QSize(400, 80));
    button->setMmIconSize(QSizeF(50, 5));
    QCOMPARE(layout.minimumSize(), QSize(500, 100));
    paints.take(button);
    button->updateSizeCalculations();
    QCOMPARE(paints.take(button), 1);
}

void TestActiveVectorButton::mayBeDeletedInSizeChanged()
{
    for (const char *by : { "width", "height", "both", "px" }) {
        const QPointer<ActiveVectorButton> button = new ActiveVectorButton;
        button->addIcon(DEFAULT, m_files.svg(Qt::red));
        connect(button, &ActiveVectorButton::sizeChanged, this, [button] { delete button; });
        change(button, QLatin1String(by), QSizeF(2, 2));
        QVERIFY(!button);
    }
}

QTEST_MAIN(TestActiveVectorButton)
#include "tst_activevectorbutton.moc"
