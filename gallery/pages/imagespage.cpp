// SPDX-License-Identifier: MIT
#include "gallery/pages/imagespage.h"

#include "gallery/measures.h"
#include "gallery/widgets/tilelayout.h"

#include <CachedVectorIcon>
#include <VexoColors>

#include <QImageReader>
#include <QLabel>
#include <QPainter>
#include <QRegularExpression>
#include <QVBoxLayout>

using namespace vexo::hox::qt::ui;

namespace {

const QSizeF room(0.4, 3); // mm, around an image on its ground

QStringList keyImages()
{
    return { ":/XSvg", ":/VexoIconGeneralPlusSvg", ":/VexoIconGeneralEnter",
        ":/VexoIconGeneralEnterC0", ":/VexoIconGeneralShift", ":/VexoIconGeneralShiftC0",
        ":/VexoIconGeneralReset", ":/VexoIconGeneralResetC0", ":/VexoIconGeneralInfoSvg",
        ":/VexoIconGeneralTickSvg", ":/arrowListLeftSvg", ":/arrowListRightSvg", ":/generalmenuSvg",
        ":/widgetimages/back.svg", ":/widgetimages/forward.svg", ":/widgetimages/VexoIconEmpty.svg",
        ":/widgetimages/VexoIconGeneralArrowListRight_44px_C0.svg",
        ":/widgetimages/VexoIconGeneralArrowListRight_44px_C3.svg",
        ":/widgetimages/VexoIconGeneralArrowListRight_44px_RGB220.svg" };
}

QStringList roundImages()
{
    return { ":/widgetimages/Checkbox_Blank.svg", ":/widgetimages/RoundButton_S_Tick_Active.svg",
        ":/widgetimages/RoundButton_S_Tick_Inactive.svg",
        ":/widgetimages/RoundButton_S_Tick_Pressed.svg",
        ":/widgetimages/RoundButton_S_X_Active.svg", ":/widgetimages/RoundButton_S_X_Pressed.svg",
        ":/widgetimages/Icons_Round_Small/RoundButton_S_Minus_Active.svg",
        ":/widgetimages/Icons_Round_Small/RoundButton_S_Minus_Inactive.svg",
        ":/widgetimages/Icons_Round_Small/RoundButton_S_Minus_Pressed.svg",
        ":/widgetimages/Icons_Round_Small/RoundButton_S_Plus_Active.svg",
        ":/widgetimages/Icons_Round_Small/RoundButton_S_Plus_Inactive.svg",
        ":/widgetimages/Icons_Round_Small/RoundButton_S_Plus_Pressed.svg" };
}

QStringList indicatorImages()
{
    return { ":/cb_checked", ":/cb_unchecked", ":/rb_checked", ":/rb_unchecked", ":/knob_shadow" };
}

QStringList largeImages()
{
    return { ":/widgetimages/vexo.svg", ":/widgetimages/vexo-inverted.png",
        ":/widgetimages/Boot/BootScreen.svg", ":/widgetimages/Boot/UpdateScreen.svg" };
}

// Pixel for pixel, the only size at which a bitmap is crisp. Null if it is larger than the box or
// no bitmap.
QPixmap bitmapAtItsSize(const QString &path, const QSize &box)
{
    QImageReader reader(path);
    const QSize natural = reader.size();
    const bool fits = natural.width() <= box.width() && natural.height() <= box.height();
    return fits && reader.format() == "png" ? QPixmap::fromImageReader(&reader) : QPixmap();
}

// As large as the box allows, in the proportions of the image.
QPixmap renderImage(const QString &path, const QSizeF &box_in_mm)
{
    const QSize box = mmSize(box_in_mm.width(), box_in_mm.height());
    const QPixmap bitmap = bitmapAtItsSize(path, box);
    if (!bitmap.isNull())
        return bitmap;
    CachedVectorIcon icon(path);
    icon.setMmHeight(float(box_in_mm.height()));
    if (icon.pxWidth() <= box.width())
        return icon.toPixmap();
    CachedVectorIcon wide(path);
    wide.setMmWidth(float(box_in_mm.width()));
    return wide.toPixmap();
}

// One image on white, on the ground of buttons, and on the ground of pressed ones.
class GroundStrip : public QWidget
{
public:
    GroundStrip(const QString &path, const QSizeF &box_in_mm)
        : m_image(renderImage(path, box_in_mm))
    {
        setFixedHeight(mmY(box_in_mm.height() + room.height()));
        setAccessibleName(path);
    }

protected:
    void paintEvent(QPaintEvent *) override
    {
        QPainter painter(this);
        painter.setPen(VexoColors::C13);
        const QColor grounds[]{ VexoColors::C0, VexoColors::C1, VexoColors::C4 };
        for (int i = 0; i < 3; ++i) {
            const QRect ground(
                QPoint(width() * i / 3, 0), QPoint(width() * (i + 1) / 3 - 1, height() - 1));
            painter.fillRect(ground, grounds[i]);
            const QSize margin = (ground.size() - m_image.size() / m_image.devicePixelRatio()) / 2;
            painter.drawPixmap(ground.topLeft() + QPoint(margin.width(), margin.height()), m_image);
        }
        painter.drawRect(rect().adjusted(0, 0, -1, -1));
    }

private:
    QPixmap m_image;
};

// A path has no blanks to wrap at: lets it wrap after each slash and underscore and between words.
QString wrappable(QString path)
{
    static const QRegularExpression seam("(?<=[/_])|(?<=[a-z])(?=[A-Z])");
    return path.replace(seam, QString(QChar(0x200b)));
}

} // namespace

ImagesPage::ImagesPage()
    : Page("Images",
        "The forty images of the library under their resource paths, on C0, C1 and C4. Some are "
        "meant for dark ground and do not show on light.")
{
    addSheet("Keys and lists", { 10, 8 }, keyImages());
    addSheet("Round buttons", { 10, 8 }, roundImages());
    addSheet("Indicators", { 10, 9 }, indicatorImages());
    addSheet("Logo and boot screens", { 29, 16 }, largeImages());
}

void ImagesPage::addSheet(const QString &heading, const QSizeF &box_in_mm, const QStringList &paths)
{
    addSection(heading);
    const double ground_in_mm = box_in_mm.width() + room.width();
    auto *sheet = new TileLayout(mmX(3 * ground_in_mm), mmSize(4, 5));
    for (const QString &path : paths) {
        auto *tile = new QVBoxLayout;
        tile->setSpacing(mmY(1));
        tile->addWidget(new GroundStrip(path, box_in_mm));
        tile->addWidget(createText(wrappable(path)), 1, Qt::AlignTop);
        sheet->addLayout(tile);
    }
    addBlock(sheet);
}
