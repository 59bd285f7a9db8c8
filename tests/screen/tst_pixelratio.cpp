// SPDX-License-Identifier: MIT
// Runs at several device pixel ratios, see tests/CMakeLists.txt.
#include "support/iconfiles.h"
#include "support/onscreen.h"
#include "support/panelscale.h"
#include "support/testcase.h"

#include <CachedVectorIcon>
#include <Panel>
#include <RotationPixmap>
#include <VexoCenteredVectorButton>
#include <VexoDesignVectorButton>
#include <VexoFunctionButton>
#include <VexoHorizontalTextIconButton>
#include <VexoIconButton>
#include <VexoImageHeadline>
#include <VexoKeyboardButton>
#include <VexoLineEdit>
#include <VexoLogoLabel>
#include <VexoPushButton>
#include <VexoSliderDecoration>

#include <QPushButton>
#include <QSvgRenderer>

using namespace vexo::hox::qt::panel;
using namespace vexo::hox::qt::ui;

namespace {

const QSizeF ICON_MM(2.5, 1.5); // 25 x 30 px
const QSize ICON_PX(25, 30);
const QPoint ODD_PLACE(11, 7); // on no whole pixel of a screen at 1.25 and 1.5
const QString ARROW = ":/widgetimages/VexoIconGeneralArrowListRight_44px_C3.svg";
const QString DEFAULT = QLatin1String(ActiveButton::DEFAULT_STATE_NAME);

double ratio()
{
    return qApp->devicePixelRatio();
}

/// Whole pixels of the screen, so that none is cut wherever a widget stands.
QSize onScreen(const QSize &px)
{
    return QSize(int(px.width() * ratio()), int(px.height() * ratio()));
}

/// Stripes that are no more than a grey at a ratio of 1, and ends that show whether one is missing.
QByteArray stripes()
{
    QByteArray svg = "<svg xmlns='http://www.w3.org/2000/svg' viewBox='0 0 50 60'>"
                     "<path d='M0 0H50V60H0z' fill='#ffff00'/><path d='";
    for (int x = 0; x < 50; x += 2)
        svg += "M" + QByteArray::number(x) + " 0h1V40h-1z";
    return svg + "' fill='#0000ff'/><path d='M0 60L50 40V60z' fill='#ff0000'/></svg>";
}

QImage rendered(const QByteArray &svg, const QSize &px)
{
    QImage image(px, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    QSvgRenderer(svg).render(&painter);
    return image;
}

QImage inverted(QImage image)
{
    image.invertPixels(QImage::InvertRgb);
    return image;
}

QImage onGround(const QImage &image, const QColor &ground)
{
    QImage result(image.size(), QImage::Format_RGB32);
    result.fill(ground);
    QPainter(&result).drawImage(0, 0, image);
    return result;
}

bool isAt(const QImage &picture, const QImage &part, const QPoint &place)
{
    for (int y = 0; y < part.height(); ++y) {
        const auto *row = reinterpret_cast<const QRgb *>(picture.constScanLine(place.y() + y));
        const auto *wanted = reinterpret_cast<const QRgb *>(part.constScanLine(y));
        for (int x = 0; x < part.width(); ++x) {
            if (differ(row[place.x() + x], wanted[x], 3)) // of blends
                return false;
        }
    }
    return true;
}

/// Where \a part stands in \a picture, pixel for pixel.
QVector<QPoint> placesOf(const QImage &part, const QImage &picture)
{
    QVector<QPoint> places;
    for (int y = 0; y + part.height() <= picture.height(); ++y) {
        for (int x = 0; x + part.width() <= picture.width(); ++x) {
            if (isAt(picture, part, QPoint(x, y)))
                places.append(QPoint(x, y));
        }
    }
    return places;
}

/// A window on white with \a widget at the odd place.
class Window
{
public:
    explicit Window(QWidget *widget)
    {
        m_window.setPalette(QColor(Qt::white));
        widget->setParent(&m_window);
        widget->resize(widget->sizeHint().expandedTo(QSize(150, 70)));
        widget->move(ODD_PLACE);
        m_window.resize(widget->size() + QSize(30, 30));
        m_window.show();
        settle();
    }

    QWidget &widget() { return m_window; }
    QImage picture() { return m_window.grab().toImage().convertToFormat(QImage::Format_RGB32); }

private:
    QWidget m_window;
};

using Make = std::function<QWidget *(const QString &file)>;

/// A new Widget, to which \a show gives the image of a file.
template <typename Widget, typename Show>
Make made(Show show)
{
    return [show](const QString &file) {
        auto *widget = new Widget;
        show(widget, file);
        return widget;
    };
}

/// Of a button with states, in its state DEFAULT.
const auto SHOW_ICON = [](auto *button, const QString &file) {
    button->setMmIconSize(ICON_MM);
    button->addIcon(DEFAULT, file);
};

const auto SHOW_IMAGE
    = [](VexoImageHeadline *line, const QString &file) { line->setSvgImage(file, ICON_MM); };

const auto SHOW_STANDARD_IMAGE = [](VexoPushButton *button, const QString &file) {
    button->setSvgImage(file, ICON_MM, Standard);
};

void row(const char *name, const Make &make, const QSize &px = ICON_PX)
{
    QTest::newRow(name) << make << px << (strstr(name, "inverse") != nullptr);
}

void addButtons()
{
    row("icon button", made<VexoIconButton>(SHOW_ICON));
    row("icon button, inverse", made<VexoIconButton>([](auto *button, const QString &file) {
        SHOW_ICON(button, file);
        button->createMissingInverseIcons();
        button->setDown(true);
    }));
    row("tile", made<VexoDesignVectorButton>(SHOW_ICON));
    row("centred tile", made<VexoCenteredVectorButton>([](auto *tile, const QString &file) {
        tile->setIconSizeInMm(2.5);
        tile->addIcon(DEFAULT, file);
    }),
        QSize(25, 50));
    row("key", made<VexoKeyboardButton>([](auto *key, const QString &file) {
        key->setCommonIconSizeMM(ICON_MM);
        key->addIcon(DEFAULT, file);
    }));
    row("push button", made<VexoPushButton>(SHOW_STANDARD_IMAGE));
}

} // namespace

Q_DECLARE_METATYPE(Make)

class TestPixelRatio : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void imagesAreSharp_data();
    void imagesAreSharp();
    void bitmapsShowThePixelsTheyHave_data();
    void bitmapsShowThePixelsTheyHave();
    void smallBitmapsKeepTheirSize();
    void blinkLeavesNoGhost();
    void arrowIsSharp();
    void logoIsSharp();
    void dotsAreRound();
    void capsHaveAllTheirEdges();

private:
    const PanelScale m_scale{ 10, 20 };
    const IconFiles m_files;
};

void TestPixelRatio::imagesAreSharp_data()
{
    QTest::addColumn<Make>("make");
    QTest::addColumn<QSize>("px");
    QTest::addColumn<bool>("inverse");
    addButtons();
    row("row of two texts",
        made<VexoHorizontalTextIconButton>([](auto *button, const QString &file) {
            button->setLeftSideTextPercentWidth(30);
            button->setRightSideTextPercentWidth(30);
            button->setDefaultImage(CachedVectorIcon(file, ICON_MM).toPixmap());
        }));
    row("headline", made<VexoImageHeadline>(SHOW_IMAGE));
    row("leading icon", made<VexoLineEdit>([](auto *field, const QString &file) {
        field->setMmLeadingIconSize(ICON_MM);
        field->setLeadingIcon(CachedVectorIcon(file, ICON_MM));
        field->enableLeadingLabelAction();
    }));
    row("trailing icon", made<VexoLineEdit>([](auto *field, const QString &file) {
        field->setMmTrailingIconSize(ICON_MM);
        field->setTrailingIcon(CachedVectorIcon(file, ICON_MM));
        field->enableTrailingButtonAction();
    }));
    row("least of a slider", made<VexoSliderDecoration>([](auto *decoration, const QString &file) {
        decoration->setMinImage(file, ICON_MM.width(), ICON_MM.height());
    }));
    row("most of a slider", made<VexoSliderDecoration>([](auto *decoration, const QString &file) {
        decoration->setMaxImage(file, ICON_MM.width(), ICON_MM.height());
    }));
    if (ratio() == 2) // between whole pixels the toolkit leaves one out
        row("stock button", made<QPushButton>([](auto *button, const QString &file) {
            button->setIcon(CachedVectorIcon(file, ICON_MM));
            button->setIconSize(ICON_PX);
        }));
    row("busy sign", made<QLabel>([](auto *label, const QString &file) {
        RotationPixmap rotation({ file }, 5, 3); // whole mm: 50 x 60 px
        rotation.wait();
        label->setPixmap(rotation.rotate());
    }),
        QSize(50, 60));
}

void TestPixelRatio::imagesAreSharp()
{
    QFETCH(Make, make);
    QFETCH(QSize, px);
    QFETCH(bool, inverse);
    const QImage vector = rendered(stripes(), onScreen(px));
    Window window(make(m_files.write("stripes.svg", stripes())));
    const QImage wanted
        = (inverse ? inverted(vector) : vector).convertToFormat(QImage::Format_RGB32);
    const QVector<QPoint> places = placesOf(wanted, window.picture());
    QCOMPARE(places.size(), 1);
}

void TestPixelRatio::bitmapsShowThePixelsTheyHave_data()
{
    QTest::addColumn<Make>("make");
    QTest::newRow("icon button") << made<VexoIconButton>(SHOW_ICON);
    QTest::newRow("headline") << made<VexoImageHeadline>(SHOW_IMAGE);
    QTest::newRow("push button") << made<VexoPushButton>(SHOW_STANDARD_IMAGE);
}

void TestPixelRatio::bitmapsShowThePixelsTheyHave()
{
    QFETCH(Make, make);
    const QString file = m_files.path("stripes.png");
    const QImage large = rendered(stripes(), QSize(100, 120));
    QVERIFY(large.save(file));
    Window window(make(file));
    const QImage wanted
        = large.scaled(onScreen(ICON_PX), Qt::IgnoreAspectRatio, Qt::SmoothTransformation)
              .convertToFormat(QImage::Format_RGB32);
    QCOMPARE(placesOf(wanted, window.picture()).size(), 1);
}

/// An icon that has no more pixels is not made smaller than on another screen.
void TestPixelRatio::smallBitmapsKeepTheirSize()
{
    QPixmap red(20, 20);
    red.fill(Qt::red);
    auto *button = new VexoIconButton;
    button->setPxIconSize(ICON_PX);
    button->setIcon(QIcon(red));
    Window window(button);
    const QRect box = boxOf(window.picture(), Qt::red);
    const int px = qRound(20 * ratio());
    QVERIFY2(qAbs(box.width() - px) <= 1 && qAbs(box.height() - px) <= 1,
        qPrintable(QString("%1 x %2").arg(box.width()).arg(box.height())));
}

void TestPixelRatio::blinkLeavesNoGhost()
{
    auto *button = new VexoIconButton;
    button->setMmIconSize(ICON_MM);
    button->addIcon(DEFAULT, m_files.svg(Qt::red));
    button->addIcon("other", m_files.svg(Qt::green));
    Window window(button);
    window.widget().resize(500, 300); // the screen tells only its first 500 x 300 pixels
    for (int x = 0; x < 4; ++x) {
        button->move(x, x);
        button->blink(DEFAULT, "other");
        for (int tick = 0; tick < 2; ++tick) {
            settle();
            const QImage shown = shownOnScreen(window.widget());
            QVERIFY(!boxOf(shown, tick ? Qt::green : Qt::red).isEmpty());
            QCOMPARE(shown, window.picture().copy(shown.rect()));
            button->timerEvent();
        }
    }
}

void TestPixelRatio::arrowIsSharp()
{
    Window window(new VexoFunctionButton(nullptr, VexoFunctionButton::ActionType));
    const QSize px = CachedVectorIcon(ARROW, VexoFunctionButton::ICON_SIZE).toPixmap().size();
    QFile file(ARROW);
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QImage picture = window.picture();
    const QPoint ground = (ODD_PLACE + QPoint(3, 3)) * ratio();
    const QImage arrow = onGround(rendered(file.readAll(), px), picture.pixelColor(ground));
    QCOMPARE(placesOf(arrow, picture).size(), 1);
}

/// Its stripes, two to a pixel of the image, are seen where the screen has more.
void TestPixelRatio::logoIsSharp()
{
    const PanelScale scale(10, 10);
    const QByteArray svg = stripes().replace("<svg ", "<svg width='25' height='30' ");
    const QString file = m_files.write("logo.svg", svg);
    Window window(new VexoLogoLabel(nullptr, 2.5, 25, 30, QImage::Format_RGB32, file));
    const QRect inside(ODD_PLACE + QPoint(2, 5), QSize(20, 1));
    const QRect stripes_px(inside.topLeft() * ratio(), QSize(int(20 * ratio()), 1));
    QCOMPARE(spread(window.picture().copy(stripes_px)) > 6, ratio() > 1); // of blue
}

/// Each dot is one that a painter draws there.
void TestPixelRatio::dotsAreRound()
{
    const PanelScale scale(8, 8); // dots of 12 px, 20 px apart, on whole px
    auto *field = new VexoLineEdit;
    field->setDrawPasswordSecured(true);
    field->setDrawSecuredCentered(false);
    field->setTextColor(Qt::black);
    field->setBorderColor(Qt::red);
    field->setBackgroundColor(Qt::white);
    field->setText("1234");
    Window window(field);
    const QImage picture = window.picture();
    const double line_px = 0.176 * 8;
    const QPointF first = ODD_PLACE + QPointF(30, field->height() / 2 - 6);
    for (int dot = 0; dot < 4; ++dot) {
        QImage wanted(picture.size(), QImage::Format_RGB32);
        wanted.fill(Qt::white);
        QPainter painter(&wanted);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.scale(ratio(), ratio());
        painter.setPen(QPen(Qt::red, line_px));
        painter.setBrush(Qt::black);
        const QRectF place(first + QPointF(dot * 20, 0), QSizeF(12, 12));
        painter.drawEllipse(place);
        const QPointF corner = place.topLeft() * ratio();
        const QRect cell(
            QPoint(int(corner.x()) - 2, int(corner.y()) - 2), QSize(1, 1) * int(12 * ratio() + 6));
        QVERIFY2(
            isAt(picture, wanted.copy(cell), cell.topLeft()), qPrintable(QString::number(dot)));
    }
}

/// The outline lies on a key's edges; half a pixel of the screen may not be cut from one of them.
void TestPixelRatio::capsHaveAllTheirEdges()
{
    const PanelScale scale(8, 8);
    for (int offset = 0; offset < 4; ++offset) {
        auto *button = new VexoKeyboardButton;
        button->setBorderColor(Qt::black);
        button->setStandardBorderDrawingDisabled(false);
        Window window(button);
        button->resize(80 + offset, button->height());
        button->move(ODD_PLACE + QPoint(offset, offset));
        const QImage picture = window.picture();
        const QRect edges
            = QRectF(QPointF(button->pos()) * ratio(), QSizeF(button->size()) * ratio()).toRect();
        QSet<int> inks;
        const QPoint middle = edges.center();
        for (const QPoint &edge :
            { QPoint(edges.left(), middle.y()), QPoint(edges.right(), middle.y()),
                QPoint(middle.x(), edges.top()), QPoint(middle.x(), edges.bottom()) })
            inks.insert((picture.pixelColor(edge).value() + 4) / 8);
        QCOMPARE(inks.size(), 1);
        QVERIFY2(*inks.cbegin() * 8 < 160, qPrintable(QString::number(*inks.cbegin())));
    }
}

int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    PanelOptions options;
    options.px = QSize(1000, 1000); // a scale that needs no warning
    options.mm = QSizeF(100, 100);
    options.sheets.clear();
    Panel::setUp(application, options);
    TestPixelRatio test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_pixelratio.moc"
