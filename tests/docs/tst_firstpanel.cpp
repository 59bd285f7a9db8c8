// SPDX-License-Identifier: MIT
#define main runFirstPanel
#include "examples/first-panel/main.cpp"
#undef main

#include "support/find.h"
#include "support/testcase.h"

#include <VexoColors>

#include <QWindow>

#include <cmath>

namespace {

/// The example on a panel of \a panel_in_mm.
struct Shown
{
    Shown(double px_per_mm, const QSizeF &panel_in_mm)
    {
        PanelOptions options;
        options.px = (panel_in_mm * px_per_mm).toSize();
        options.mm = panel_in_mm;
        Panel::setUp(*qApp, options);
        pages.resize(*options.px);
        addSettings(&pages);
        addPinEntry(&pages);
        pages.layout()->setSizeConstraint(QLayout::SetNoConstraint); // the panel's size, whatever
        pages.show();
        QApplication::setActiveWindow(&pages); // some grounds are those of an active window
        is_exposed = QTest::qWaitForWindowExposed(&pages);
    }

    QColor colorAt(double x_mm, double y_mm)
    {
        const ScalingInfo &scaling = *ScalingInfo::inst();
        return pages.grab().toImage().pixelColor(
            int(scaling.mm2px_X(float(x_mm))), int(scaling.mm2px_Y(float(y_mm))));
    }

    /// A tap through the window, as a finger does it.
    void tap(QWidget *widget)
    {
        const QPoint at = widget->mapTo(&pages, widget->rect().center());
        QTest::mouseClick(pages.windowHandle(), Qt::LeftButton, Qt::NoModifier, at);
    }

    void type(const QString &digits)
    {
        for (const QChar digit : digits)
            tap(byText<VexoKeyboardButton>(pages, digit));
    }

    QStackedWidget pages;
    bool is_exposed = false;
};

/// Where all visible widgets of the current page lie, mm in the window.
QVector<QRectF> placesIn(const Shown &shown)
{
    const ScalingInfo &scaling = *ScalingInfo::inst();
    QVector<QRectF> places;
    for (const QWidget *widget : shown.pages.findChildren<QWidget *>()) {
        if (!widget->isVisible())
            continue;
        const QRectF px(widget->mapTo(&shown.pages, QPoint()), widget->size());
        const QSizeF density = scaling.mm2px(QSizeF(1, 1));
        places += QTransform::fromScale(1 / density.width(), 1 / density.height()).mapRect(px);
    }
    return places;
}

double farthest(const QRectF &a, const QRectF &b)
{
    return qMax(qMax(std::abs(a.left() - b.left()), std::abs(a.top() - b.top())),
        qMax(std::abs(a.right() - b.right()), std::abs(a.bottom() - b.bottom())));
}

} // namespace

class TestFirstPanel : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void keepsItsPlacesInMillimetres();
    void cutsNothing_data();
    void cutsNothing();
    void standsOnItsGrounds_data() { cutsNothing_data(); }
    void standsOnItsGrounds();
    void tapLeadsToThePinAndBack();
    void wrongPinStays();
};

// The rows add up whole pixels and rulers of two, so that the last ones differ by a millimetre.
void TestFirstPanel::keepsItsPlacesInMillimetres()
{
    for (const int page : { 0, 1 }) {
        QVector<QRectF> first;
        for (const double px_per_mm : { 5, 8, 12 }) {
            Shown shown(px_per_mm, { 160, 96 });
            shown.pages.setCurrentIndex(page);
            const QVector<QRectF> places = placesIn(shown);
            if (first.isEmpty())
                first = places;
            QCOMPARE(places.size(), first.size());
            for (int i = 0; i < places.size(); ++i)
                QVERIFY2(farthest(places.at(i), first.at(i)) < 1.6, QByteArray::number(i));
        }
    }
}

void TestFirstPanel::cutsNothing_data()
{
    QTest::addColumn<double>("px_per_mm");
    QTest::addColumn<QSizeF>("panel_in_mm");
    QTest::newRow("5 px/mm") << 5.0 << QSizeF(160, 96);
    QTest::newRow("8 px/mm") << 8.0 << QSizeF(160, 100);
    QTest::newRow("12 px/mm") << 12.0 << QSizeF(160, 100);
}

void TestFirstPanel::cutsNothing()
{
    QFETCH(double, px_per_mm);
    QFETCH(QSizeF, panel_in_mm);
    Shown shown(px_per_mm, panel_in_mm);
    for (const QWidget *widget : shown.pages.findChildren<QWidget *>()) {
        shown.pages.setCurrentIndex(shown.pages.widget(0)->isAncestorOf(widget) ? 0 : 1);
        if (!widget->isVisible() || widget->parentWidget() == &shown.pages)
            continue;
        QVERIFY2(widget->parentWidget()->rect().contains(widget->geometry()),
            widget->metaObject()->className());
    }
    for (const QLabel *label : shown.pages.findChildren<QLabel *>())
        QVERIFY2(label->sizeHint().width() <= label->width(), qPrintable(label->text()));
    for (const auto *key : shown.pages.findChildren<VexoKeyboardButton *>()) {
        QFont font = key->font();
        font.setPixelSize(int(ScalingInfo::inst()->pt2px_Y(13)));
        QVERIFY2(QFontMetrics(font).horizontalAdvance(key->text()) + 4 < key->width(),
            qPrintable(key->text()));
    }
}

void TestFirstPanel::standsOnItsGrounds()
{
    QFETCH(double, px_per_mm);
    QFETCH(QSizeF, panel_in_mm);
    Shown shown(px_per_mm, panel_in_mm);
    QCOMPARE(shown.colorAt(80, 5), VexoColors::C0); // beside the headline
    QCOMPARE(shown.colorAt(80, 15), VexoColors::C1); // a row
    QCOMPARE(shown.colorAt(80, 35), VexoColors::C1); // the container of the slider
    QCOMPARE(shown.colorAt(80, 90), VexoColors::C0); // below the list
    shown.pages.setCurrentIndex(1);
    QCOMPARE(shown.colorAt(10, 10), VexoColors::C6);
}

void TestFirstPanel::tapLeadsToThePinAndBack()
{
    Shown shown(8, { 160, 100 });
    QVERIFY(shown.is_exposed);
    shown.tap(byText<VexoFunctionButton>(shown.pages, "Service"));
    QTRY_COMPARE(shown.pages.currentIndex(), 1);
    shown.type("2026");
    QCOMPARE(shown.pages.currentIndex(), 0);
    shown.tap(byText<VexoFunctionButton>(shown.pages, "Service"));
    QTRY_COMPARE(shown.pages.currentIndex(), 1);
    shown.tap(byText<VexoKeyboardButton>(shown.pages, "Back"));
    QCOMPARE(shown.pages.currentIndex(), 0);
}

void TestFirstPanel::wrongPinStays()
{
    Shown shown(8, { 160, 100 });
    QVERIFY(shown.is_exposed);
    shown.pages.setCurrentIndex(1);
    const auto *field = shown.pages.findChild<VexoLineEdit *>();
    shown.type("20");
    QCOMPARE(field->text(), QString("20"));
    shown.tap(byText<VexoKeyboardButton>(shown.pages, "Clear"));
    QCOMPARE(field->text(), QString());
    shown.type("2025");
    QCOMPARE(field->text(), QString());
    QCOMPARE(shown.pages.currentIndex(), 1);
    shown.type("2026");
    QCOMPARE(shown.pages.currentIndex(), 0);
}

QTEST_MAIN(TestFirstPanel)
#include "tst_firstpanel.moc"
