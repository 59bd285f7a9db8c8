#include "support/iconfiles.h"
#include "support/paintcounter.h"
#include "support/panelscale.h"
#include "support/testcase.h"

#include <ActiveVectorButton>

#include <QBoxLayout>
#include <QPointer>
#include <QTest>

#include <limits>
#include <stdexcept>

using namespace vexo::hox::qt::ui;

namespace {

const double NOT_A_NUMBER = std::numeric_limits<double>::quiet_NaN();
const QString DEFAULT = QLatin1String(ActiveButton::DEFAULT_STATE_NAME);

void change(ActiveVectorButton *button, const QByteArray &by, double width, double height)
{
    if (by == "width")
        button->setMmIconWidth(width);
    else if (by == "height")
        button->setMmIconHeight(height);
    else if (by == "both")
        button->setMmIconSize(QSizeF(width, height));
    else
        button->setPxIconSize(QSize(int(width), int(height)));
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
            [this](double w, double h) { calls += QStringLiteral("%1 x %2").arg(w).arg(h); });
    }
    QIcon compute(const QString &path) override
    {
        calls += QStringLiteral("render");
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
    void negativeSizeIsRefused_data();
    void negativeSizeIsRefused();
    void pixelsAreKeptInMillimetres();
    void scaleIsTakenUpWithAnUpdate();
    void changeReachesLayoutAndScreen();
    void mayBeDeletedInSizeChanged();

private:
    const IconFiles m_files;
};

void TestActiveVectorButton::tellsAndRendersItsSize_data()
{
    QTest::addColumn<QByteArray>("by"); // from 10 x 10 mm, on a panel of 10 x 20 px/mm
    QTest::addColumn<QSizeF>("size");
    QTest::addColumn<QSize>("px");
    QTest::addColumn<QString>("calls");
    const QByteArray w("width");
    const QByteArray h("height");
    const QByteArray b("both");
    const QByteArray px;
    QTest::newRow("width, cut") << w << QSizeF(1.29, 0) << QSize(12, 200) << "1.29 x 10, render";
    QTest::newRow("height, cut") << h << QSizeF(0, 1.29) << QSize(100, 25) << "10 x 1.29, render";
    QTest::newRow("both, cut") << b << QSizeF(1.29, 2) << QSize(12, 40) << "render, 1.29 x 2";
    QTest::newRow("px") << px << QSizeF(50, 50) << QSize(50, 50) << "5 x 2.5, render";
    QTest::newRow("width follows") << w << QSizeF(0, 0) << QSize(200, 200) << "0 x 10, render";
    QTest::newRow("height follows") << b << QSizeF(4, 0) << QSize(40, 40) << "render, 4 x 0";
    QTest::newRow("no icon") << b << QSizeF(0, 0) << QSize(0, 0) << "render, 0 x 0";
    QTest::newRow("same width") << w << QSizeF(10, 0) << QSize() << "";
    QTest::newRow("same height") << h << QSizeF(0, 10) << QSize() << "";
    QTest::newRow("same size") << b << QSizeF(10, 10) << QSize() << "";
    QTest::newRow("same px") << px << QSizeF(100, 200) << QSize() << "";
    QTest::newRow("negative px") << px << QSizeF(50, -1) << QSize() << "";
}

void TestActiveVectorButton::tellsAndRendersItsSize()
{
    QFETCH(QByteArray, by);
    QFETCH(QSizeF, size);
    QFETCH(QSize, px);
    const PanelScale scale(10, 20);
    Hooked button;
    button.addIcon(DEFAULT, m_files.svg(Qt::red, QSize(20, 10)));
    QCOMPARE(button.pxIconSize(), QSize(100, 200));
    button.calls.clear();
    change(&button, by, size.width(), size.height());
    QTEST(button.calls.join(QStringLiteral(", ")), "calls");
    QCOMPARE(button.pxIconSize(), px.isValid() ? px : QSize(100, 200));
    QCOMPARE(button.minimumSizeHint(), px.isValid() ? px : QSize(0, 0)); // until a size is set
    if (px.isEmpty())
        QCOMPARE(button.icon().isNull(), px.isValid());
    else
        QCOMPARE(button.icon().availableSizes(), QList<QSize>{ px });
}

void TestActiveVectorButton::negativeSizeIsRefused_data()
{
    QTest::addColumn<QByteArray>("by");
    QTest::addColumn<double>("width");
    QTest::addColumn<double>("height");
    QTest::addColumn<QByteArray>("what");
    const QByteArray width("width");
    const QByteArray height("height");
    const QByteArray both("both");
    const QByteArray parameter("size parameter");
    QTest::newRow("width") << width << -0.1 << 0.0 << width;
    QTest::newRow("height") << height << 0.0 << -0.1 << height;
    QTest::newRow("both, width") << both << -1.0 << 5.0 << parameter;
    QTest::newRow("both, height") << both << 5.0 << -1.0 << parameter;
    QTest::newRow("NaN") << both << 5.0 << NOT_A_NUMBER << parameter;
    QTest::newRow("width NaN") << width << NOT_A_NUMBER << 0.0 << width;
    QTest::newRow("height NaN") << height << 0.0 << NOT_A_NUMBER << height;
}

void TestActiveVectorButton::negativeSizeIsRefused()
{
    QFETCH(QByteArray, by);
    QFETCH(double, width);
    QFETCH(double, height);
    QFETCH(QByteArray, what);
    const PanelScale scale(10, 20);
    Hooked button;
    button.setMmIconWidth(3);
    button.setMmIconHeight(4);
    button.calls.clear();
    QByteArray text;
    try {
        change(&button, by, width, height);
    } catch (const std::out_of_range &error) {
        text = error.what();
    }
    QCOMPARE(text, "Negative image " + what + " is impossible!");
    QCOMPARE(mmOf(button), QSizeF(3, 4));
    QCOMPARE(button.pxIconSize(), QSize(30, 80));
    QCOMPARE(button.calls, QStringList());
}

void TestActiveVectorButton::pixelsAreKeptInMillimetres()
{
    const PanelScale scale(7.3, 11.7);
    ActiveVectorButton button;
    button.addIcon(DEFAULT, m_files.svg(Qt::red));
    for (int px = 1; px < 100; ++px) {
        button.setPxIconSize(QSize(px, px));
        const QSize lost = QSize(px, px) - button.pxIconSize();
        QVERIFY2(lost.width() == 0 || lost.width() == 1, qPrintable(QString::number(px)));
        QVERIFY2(lost.height() == 0 || lost.height() == 1, qPrintable(QString::number(px)));
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
    QCOMPARE(layout.minimumSize().width(), 400);
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
        change(button, by, 2, 2);
        QVERIFY(!button);
    }
}

QTEST_MAIN(TestActiveVectorButton)
#include "tst_activevectorbutton.moc"
