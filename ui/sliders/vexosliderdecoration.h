#pragma once
// SPDX-License-Identifier: MIT

#include "ui/hoxqui_export.h"

#include <QPointer>
#include <QSizeF>
#include <QStringList>
#include <QWidget>

class QBoxLayout;
class QGridLayout;
class QLabel;
class QSpacerItem;

namespace vexo::hox::qt::ui {

class ScaleDisplayWidget;
class ScalingInfo;
class VexoSlider;

/// A slider with an image at each end, a unit and, in two of the four styles, a scale. The slider
/// is 56 mm long and 6.5 mm high, an upright one 6.5 mm wide and as long as the panel is high less
/// 37 mm. Its orientation is left as it is; give it the one of the style.
///
/// Level, the minimum image is left and the maximum image right of the slider; upright, the maximum
/// image is on top. The unit stands where the maximum image does, so use one of the two.
///
/// In a row that is wider all lies at the left, in a column that is higher at the top.
///
/// What is set again replaces what was there. A rebuilt arrangement shows with the next layout.
class HOXQUI_EXPORT VexoSliderDecoration : public QWidget
{
    Q_OBJECT

    /// Default HorizontalWithoutScale. A change rebuilds the arrangement; the labels of the scale
    /// stay, the slider moves back to its setValue(). With an unknown value everything lies in one
    /// cell, nothing is sized and the images do not show.
    Q_PROPERTY(SliderDecorationStyle m_style READ decoStyle WRITE setDecoStyle)
    /// SVG or bitmap file at the minimum end, rendered at the measures below. Default none.
    Q_PROPERTY(QString m_min_image_file READ getMinImageFile WRITE setMinImage)
    /// SVG or bitmap file at the maximum end, rendered at the measures below. Default none.
    Q_PROPERTY(QString m_max_image_file READ getMaxImageFile WRITE setMaxImage)
    /// mm. Default 0, from the height and the aspect ratio of the image; both 0 shows none. A
    /// negative measure throws std::out_of_range "Negative measurements are impossible!", nothing
    /// has changed then; the same holds for the three below.
    Q_PROPERTY(double m_max_image_width_in_mm READ getMaxImageWidthMM WRITE setMaxImageWidthMM)
    /// mm. Default 0. Exactly 4.7 widens the gap between both images and the slider from 0.15 to
    /// 2.15 mm and shifts both images, level to the top and upright to the left.
    Q_PROPERTY(double m_min_image_width_in_mm READ getMinImageWidthMM WRITE setMinImageWidthMM)
    /// mm. Default 0.
    Q_PROPERTY(double m_max_image_height_in_mm READ getMaxImageHeightMM WRITE setMaxImageHeightMM)
    /// mm. Default 0. 4.7 acts as it does for the width.
    Q_PROPERTY(double m_min_image_height_in_mm READ getMinImageHeightMM WRITE setMinImageHeightMM)

public:
    enum SliderDecorationStyle : int {
        HorizontalWithoutScale,
        HorizontalWithScale,
        VerticalWithoutScale,
        VerticalWithScale
    };
    Q_ENUM(SliderDecorationStyle)

    /// \a slider may be null, see setSliderWidget().
    explicit VexoSliderDecoration(QWidget *parent = nullptr,
        SliderDecorationStyle style = HorizontalWithoutScale, VexoSlider *slider = nullptr);

    SliderDecorationStyle decoStyle() const { return m_style; }
    void setDecoStyle(SliderDecorationStyle style);
    QString getMinImageFile() const { return m_min_image_file; }
    /// Measures in mm; 0 and less keeps the one that is held.
    void setMinImage(const QString &file, double width_mm = 0, double height_mm = 0);
    QString getMaxImageFile() const { return m_max_image_file; }
    /// As setMinImage().
    void setMaxImage(const QString &file, double width_mm = 0, double height_mm = 0);
    double getMaxImageWidthMM() const { return m_max_image_width_mm; }
    void setMaxImageWidthMM(double mm);
    double getMinImageWidthMM() const { return m_min_image_width_mm; }
    void setMinImageWidthMM(double mm);
    double getMaxImageHeightMM() const { return m_max_image_height_mm; }
    void setMaxImageHeightMM(double mm);
    double getMinImageHeightMM() const { return m_min_image_height_mm; }
    void setMinImageHeightMM(double mm);

    /// Gives the widget a new, empty grid. Called by the constructor and setDecoStyle().
    void setGridLayout();
    /// Finishes the configuration of \a slider, sizes it and makes it a child. Null is ignored. A
    /// slider set before is hidden; it stays a child until it is given another parent.
    void setSliderWidget(VexoSlider *slider);
    /// setSliderWidget() for a VexoSlider. Forms call it for each child of the decoration; another
    /// widget and null are ignored.
    Q_INVOKABLE void addFromForm(QWidget *slider);
    /// Adds \a unit in 9 pt, and describes the slider with it for assistive technology.
    void setSliderUnit(const QString &unit);
    /// The labels of the scale from start to end. Ignored while there is no scale: in a style
    /// without one or before a slider is set.
    void setScaleText(const QStringList &texts);

    /// Arranges the end image \a label in \a container, which has no layout yet, for a level
    /// slider.
    void layoutHorizontalImageWidget(QWidget *container, QLabel *label);
    /// The same for an upright slider.
    void layoutVerticalImageWidget(QWidget *container, QLabel *label);

private:
    enum class Item { Slider, Scale, MinImage, MaxImage, Unit };

    bool isHorizontal() const;
    bool isVertical() const;
    float lengthMM() const;
    void add(Item item, QWidget *widget, Qt::Alignment alignment = Qt::Alignment());
    void addScale();
    void sizeSlider();
    void clearArrangement();
    void clearUnit();
    void showMinImage();
    void showMaxImage();
    void placeImage(Item item, QLabel *label, QPointer<QWidget> *container);
    void addWithGap(QBoxLayout *layout, QWidget *inner, bool gap_comes_first) const;
    void addShifted(QBoxLayout *layout, QLabel *label) const;
    bool hasWideGap() const;
    int offsetPx() const;

    const ScalingInfo *const m_scaling;
    QPointer<VexoSlider> m_slider;
    QLabel *const m_min_icon_label;
    QLabel *const m_max_icon_label;
    QPointer<ScaleDisplayWidget> m_scale;
    QGridLayout *m_layout = nullptr;
    QString m_unit;
    SliderDecorationStyle m_style;
    QString m_min_image_file;
    QString m_max_image_file;
    double m_min_image_width_mm = 0;
    double m_min_image_height_mm = 0;
    double m_max_image_width_mm = 0;
    double m_max_image_height_mm = 0;
    QStringList m_scale_texts;
    QPointer<QWidget> m_min_container;
    QPointer<QWidget> m_max_container;
    QPointer<QLabel> m_unit_label;
    QSpacerItem *m_unit_spacer = nullptr; // goes with the grid
};

} // namespace vexo::hox::qt::ui
