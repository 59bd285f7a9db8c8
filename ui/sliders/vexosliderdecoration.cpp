// SPDX-License-Identifier: MIT
#include "ui/sliders/vexosliderdecoration.h"

#include "ui/foundation/accessible_p.h"
#include "ui/foundation/cachedvectoricon.h"
#include "ui/foundation/panelfont_p.h"
#include "ui/foundation/plainlabel_p.h"
#include "ui/foundation/tightlayout_p.h"
#include "ui/painting/iconpixmap_p.h"
#include "ui/sliders/vexoslider.h"
#include "ui/text/scaledisplaywidget.h"

#include <QGridLayout>
#include <QLabel>

#include <stdexcept>

namespace vexo::hox::qt::ui {

namespace {

constexpr float HORIZONTAL_LENGTH_MM = 56;
constexpr double THICKNESS_MM = 6.5;
constexpr double WIDE_GAP_IMAGE_MM = 4.7;

struct Cell
{
    int row;
    int column;
};

// By style: slider, scale, minimum image, maximum image, unit.
constexpr Cell CELLS[][5] = {
    { { 0, 1 }, {}, { 0, 0 }, { 0, 2 }, { 0, 2 } }, // HorizontalWithoutScale
    { { 1, 1 }, { 0, 1 }, { 1, 0 }, { 1, 2 }, { 1, 2 } }, // HorizontalWithScale
    { { 1, 0 }, {}, { 2, 0 }, { 0, 0 }, { 0, 0 } }, // VerticalWithoutScale
    { { 1, 1 }, { 1, 0 }, { 2, 1 }, { 0, 1 }, { 0, 1 } }, // VerticalWithScale
};

void refuseNegative(double mm)
{
    if (!isMeasure(mm))
        throw std::out_of_range("Negative measurements are impossible!");
}

// The toolkit may be walking over all widgets and setting properties from a stylesheet: what goes
// is no child any more, but deleted only after that. Without a parent it would become a window.
void takeOutAndDeleteLater(QWidget *widget)
{
    if (!widget)
        return;
    auto *last_parent = new QWidget;
    widget->setParent(last_parent);
    last_parent->deleteLater();
}

} // namespace

VexoSliderDecoration::VexoSliderDecoration(
    QWidget *parent, SliderDecorationStyle style, VexoSlider *slider)
    : QWidget(parent)
    , m_scaling(ScalingInfo::inst())
    , m_min_icon_label(showPlain(new IconLabel(this)))
    , m_max_icon_label(showPlain(new IconLabel(this)))
    , m_style(style)
{
    m_min_icon_label->setObjectName(QStringLiteral("vexoSliderDecorationMinIconLabel"));
    m_max_icon_label->setObjectName(QStringLiteral("vexoSliderDecorationMaxIconLabel"));
    setGridLayout();
    setSliderWidget(slider);
    qRegisterMetaType<SliderDecorationStyle>("SliderDecorationStyle");
}

void VexoSliderDecoration::setDecoStyle(SliderDecorationStyle style)
{
    m_style = style;
    clearArrangement();
    setGridLayout();
    setSliderWidget(m_slider);
    if (!m_unit.isEmpty())
        setSliderUnit(m_unit);
    if (!m_min_image_file.isEmpty())
        setMinImage(m_min_image_file, m_min_image_width_mm, m_min_image_height_mm);
    if (!m_max_image_file.isEmpty())
        setMaxImage(m_max_image_file, m_max_image_width_mm, m_max_image_height_mm);
}

void VexoSliderDecoration::setMinImage(const QString &file, double width_mm, double height_mm)
{
    if (width_mm > 0)
        m_min_image_width_mm = width_mm;
    if (height_mm > 0)
        m_min_image_height_mm = height_mm;
    CachedVectorIcon icon(file, QSizeF(m_min_image_width_mm, m_min_image_height_mm));
    m_min_icon_label->setPixmap(icon.toPixmap());
    m_min_image_file = file;
    showMinImage();
    if (m_max_container)
        showMaxImage();
}

void VexoSliderDecoration::setMaxImage(const QString &file, double width_mm, double height_mm)
{
    if (width_mm > 0)
        m_max_image_width_mm = width_mm;
    if (height_mm > 0)
        m_max_image_height_mm = height_mm;
    const CachedVectorIcon icon(file, QSizeF(m_max_image_width_mm, m_max_image_height_mm));
    const QSize largest_px(999, 999);
    const QSize px(truncated(icon.pxWidth()), truncated(icon.pxHeight()));
    m_max_icon_label->setPixmap(iconPixmap(icon, px.boundedTo(largest_px), sharpestRatio()));
    m_max_image_file = file;
    showMaxImage();
    if (m_min_container)
        showMinImage();
}

void VexoSliderDecoration::setMaxImageWidthMM(double mm)
{
    refuseNegative(mm);
    m_max_image_width_mm = mm;
    setMaxImage(m_max_image_file, mm, 0.0);
}

void VexoSliderDecoration::setMinImageWidthMM(double mm)
{
    refuseNegative(mm);
    m_min_image_width_mm = mm;
    setMinImage(m_min_image_file, mm, 0.0);
}

void VexoSliderDecoration::setMaxImageHeightMM(double mm)
{
    refuseNegative(mm);
    m_max_image_height_mm = mm;
    setMaxImage(m_max_image_file, 0.0, mm);
}

void VexoSliderDecoration::setMinImageHeightMM(double mm)
{
    refuseNegative(mm);
    m_min_image_height_mm = mm;
    setMinImage(m_min_image_file, 0.0, mm);
}

void VexoSliderDecoration::setGridLayout()
{
    delete m_layout;
    m_unit_spacer = nullptr;
    m_layout = new QGridLayout(this);
    tighten(m_layout);
    // Room that is left over is behind all cells: unit and images stay at the slider.
    if (isHorizontal())
        m_layout->setColumnStretch(3, 1);
    else if (isVertical())
        m_layout->setRowStretch(3, 1);
}

void VexoSliderDecoration::setSliderWidget(VexoSlider *slider)
{
    if (!slider)
        return;
    if (m_slider && m_slider != slider) {
        followDescription(m_slider, m_unit, QString());
        m_layout->removeWidget(m_slider);
        m_slider->hide();
    }
    m_slider = slider;
    slider->finishSliderConfiguration();
    if (!m_slider) // deleted in valueChanged()
        return;
    followDescription(slider, QString(), m_unit);
    sizeSlider();
    addScale();
    // Level it stays at the left, where its scale begins.
    add(Item::Slider, slider, isVertical() ? Qt::AlignHCenter : Qt::Alignment());
}

void VexoSliderDecoration::addFromForm(QWidget *slider)
{
    setSliderWidget(qobject_cast<VexoSlider *>(slider));
}

void VexoSliderDecoration::setSliderUnit(const QString &unit)
{
    clearUnit();
    if (m_slider)
        followDescription(m_slider, m_unit, unit);
    m_unit = unit;
    m_unit_label = plainLabel();
    m_unit_label->setText(unit);
    m_unit_label->setObjectName(QStringLiteral("vexoSliderDecorationUnitLabel"));
    m_unit_label->setFont(panelFont(9.0, QFont::Medium));
    m_unit_label->setStyleSheet(QStringLiteral("color: rgb(160, 160, 160);"));
    m_unit_label->setSizePolicy(QSizePolicy::Minimum, QSizePolicy::Minimum);
    const QSize px = pxSize(*m_scaling, QSizeF(7.2, 7.2));
    m_unit_spacer = new QSpacerItem(widgetPx(px.width()), widgetPx(px.height()));
    m_layout->addItem(m_unit_spacer, 1, 0, 1, 1, Qt::AlignCenter);
    add(Item::Unit, m_unit_label, Qt::AlignCenter);
}

void VexoSliderDecoration::setScaleText(const QStringList &texts)
{
    if (!m_scale)
        return;
    m_scale_texts = texts;
    m_scale->setScaleText(texts);
    m_scale->update();
}

void VexoSliderDecoration::layoutHorizontalImageWidget(QWidget *container, QLabel *label)
{
    if (!container || !label)
        return;
    auto *inner = new QWidget;
    auto *row = new QHBoxLayout(container);
    tighten(row);
    addWithGap(row, inner, label == m_max_icon_label);
    auto *column = new QVBoxLayout(inner);
    tighten(column);
    addShifted(column, label);
}

void VexoSliderDecoration::layoutVerticalImageWidget(QWidget *container, QLabel *label)
{
    if (!container || !label)
        return;
    auto *inner = new QWidget;
    auto *column = new QVBoxLayout(container);
    tighten(column);
    addWithGap(column, inner, label != m_max_icon_label);
    auto *row = new QHBoxLayout(inner);
    tighten(row, 2);
    addShifted(row, label);
}

bool VexoSliderDecoration::isHorizontal() const
{
    return m_style == HorizontalWithoutScale || m_style == HorizontalWithScale;
}

bool VexoSliderDecoration::isVertical() const
{
    return m_style == VerticalWithoutScale || m_style == VerticalWithScale;
}

float VexoSliderDecoration::lengthMM() const
{
    return isHorizontal() ? HORIZONTAL_LENGTH_MM : float(m_scaling->m_size_mm.height() - 37.0);
}

void VexoSliderDecoration::add(Item item, QWidget *widget, Qt::Alignment alignment)
{
    const Cell cell = isHorizontal() || isVertical() ? CELLS[m_style][int(item)] : Cell();
    m_layout->addWidget(widget, cell.row, cell.column, alignment);
}

void VexoSliderDecoration::sizeSlider()
{
    const int thickness_px
        = widgetPx(isHorizontal() ? pxY(*m_scaling, THICKNESS_MM) : pxX(*m_scaling, THICKNESS_MM));
    const double length_mm = double(lengthMM());
    if (isHorizontal()) {
        m_slider->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
        m_slider->setFixedSize(widgetPx(pxX(*m_scaling, length_mm)), thickness_px);
    } else if (isVertical()) {
        m_slider->setSizePolicy(QSizePolicy::MinimumExpanding, QSizePolicy::Fixed);
        m_slider->setFixedSize(thickness_px, widgetPx(pxY(*m_scaling, length_mm)));
    }
}

void VexoSliderDecoration::addScale()
{
    takeOutAndDeleteLater(m_scale);
    m_scale = nullptr;
    if (m_style != HorizontalWithScale && m_style != VerticalWithScale)
        return;
    m_scale = new ScaleDisplayWidget(
        isHorizontal() ? Qt::Horizontal : Qt::Vertical, lengthMM(), nullptr);
    m_scale->setScaleText(m_scale_texts);
    add(Item::Scale, m_scale, Qt::AlignCenter);
}

void VexoSliderDecoration::clearArrangement()
{
    m_min_icon_label->setParent(this); // not to go with their containers
    m_max_icon_label->setParent(this);
    clearUnit();
    for (QWidget *widget : { m_min_container.data(), m_max_container.data() })
        takeOutAndDeleteLater(widget);
    m_min_container = nullptr;
    m_max_container = nullptr;
    takeOutAndDeleteLater(m_scale);
    m_scale = nullptr;
}

void VexoSliderDecoration::clearUnit()
{
    takeOutAndDeleteLater(m_unit_label);
    m_unit_label = nullptr;
    if (m_unit_spacer)
        m_layout->removeItem(m_unit_spacer);
    delete m_unit_spacer;
    m_unit_spacer = nullptr;
}

void VexoSliderDecoration::showMinImage()
{
    placeImage(Item::MinImage, m_min_icon_label, &m_min_container);
}

void VexoSliderDecoration::showMaxImage()
{
    placeImage(Item::MaxImage, m_max_icon_label, &m_max_container);
}

void VexoSliderDecoration::placeImage(Item item, QLabel *label, QPointer<QWidget> *container)
{
    auto *fresh = new QWidget;
    label->setSizePolicy(QSizePolicy::Minimum, QSizePolicy::Minimum);
    if (isHorizontal())
        layoutHorizontalImageWidget(fresh, label);
    else if (isVertical())
        layoutVerticalImageWidget(fresh, label);
    else
        label->setParent(this); // not to go with its container
    takeOutAndDeleteLater(*container);
    *container = fresh;
    add(item, fresh, Qt::AlignCenter);
}

// The gap lies between the image and the slider.
void VexoSliderDecoration::addWithGap(
    QBoxLayout *layout, QWidget *inner, bool gap_comes_first) const
{
    const int gap_px = widgetPx(pxY(*m_scaling, hasWideGap() ? 2.15 : 0.15));
    if (gap_comes_first)
        layout->addSpacing(gap_px);
    layout->addWidget(inner, 0, Qt::AlignCenter);
    if (!gap_comes_first)
        layout->addSpacing(gap_px);
}

// All is centred, so behind the label an offset shifts it back, as a negative one in front would:
// that would make the layout smaller than the label and cut it.
void VexoSliderDecoration::addShifted(QBoxLayout *layout, QLabel *label) const
{
    const int offset_px = offsetPx();
    layout->addSpacing(qMax(0, offset_px));
    layout->addWidget(label, 0, Qt::AlignCenter);
    layout->addSpacing(qMax(0, -offset_px));
}

bool VexoSliderDecoration::hasWideGap() const
{
    return m_min_image_height_mm == WIDE_GAP_IMAGE_MM || m_min_image_width_mm == WIDE_GAP_IMAGE_MM;
}

int VexoSliderDecoration::offsetPx() const
{
    if (!hasWideGap())
        return 0;
    const float higher_mm = float(m_max_image_height_mm - m_min_image_height_mm);
    return truncated(double(m_scaling->mm2px_X(higher_mm) * 0.5F - m_scaling->mm2px_X(1.5F)));
}

} // namespace vexo::hox::qt::ui
