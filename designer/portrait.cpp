// SPDX-License-Identifier: MIT
#include "designer/portrait.h"

#include "designer/formclass.h"
#include "designer/formtext.h"

#include <ScalingInfo>
#include <VexoColors>

#include <QPalette>
#include <QPixmap>

using namespace vexo::hox::qt::ui;

namespace {

/// Widgets that are made while it lives are as large as on a panel of 11 px/mm, whatever the
/// screen is.
class PanelDensity
{
public:
    PanelDensity() { set(QSize(1100, 1100), QSizeF(100, 100)); }
    ~PanelDensity() { set(m_px, m_mm); }
    PanelDensity(const PanelDensity &) = delete;
    PanelDensity &operator=(const PanelDensity &) = delete;

private:
    void set(const QSize &px, const QSizeF &mm)
    {
        m_scaling->m_size_mm = mm;
        m_scaling->setPixels(px);
    }

    ScalingInfo *const m_scaling = ScalingInfo::inst();
    const QSize m_px = m_scaling->m_pixels;
    const QSizeF m_mm = m_scaling->m_size_mm;
};

QPixmap photograph(const FormClass &portrayed)
{
    const PanelDensity density;
    const int side_px = int(ScalingInfo::inst()->mm2px_X(float(portrayed.side_mm)));
    QWidget studio;
    studio.resize(side_px, side_px);
    studio.setPalette(QPalette(VexoColors::C6, VexoColors::C6));
    QWidget *widget = portrayed.make(&studio);
    setProperties(widget, portrayed.first);
    setProperties(widget, portrayed.pose);
    if (portrayed.dress)
        portrayed.dress(widget);
    widget->resize(firstSize(portrayed).boundedTo(studio.size()));
    widget->move((side_px - widget->width()) / 2, (side_px - widget->height()) / 2);
    return studio.grab();
}

} // namespace

QIcon portrait(const FormClass &portrayed)
{
    QIcon icon;
    const QPixmap large = photograph(portrayed);
    for (const int px : { 22, 24, 32, 48 })
        icon.addPixmap(large.scaled(px, px, Qt::KeepAspectRatio, Qt::SmoothTransformation));
    return icon;
}
