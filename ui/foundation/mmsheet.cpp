// SPDX-License-Identifier: MIT
#include "ui/foundation/mmsheet_p.h"

#include "ui/foundation/pixels_p.h"

namespace vexo::hox::qt::ui {

namespace {

// The colours of the panel's sheets.
const char *const filled = "#b4c800";
const char *const empty = "#c8c8c8";
const char *const off = "#dcdcdc";

const char *const from_the_right = "[layoutDirection=\"1\"]";

// The rules of sliders of one direction.
class SliderRules
{
public:
    SliderRules(const ScalingInfo &scaling, bool is_level)
        : m_scaling(scaling)
        , m_is_level(is_level)
        , m_handle(along(6.4))
    {
    }

    QString text() const
    {
        return rule("", "", either("height: %1px", "width: %1px").arg(across(6.5)))
            + rule("::groove", "",
                either("height: %1px; border: none", "width: %1px; border: none").arg(across(1)))
            + handle() + pages();
    }

    // The first and the last mark of a scale are 3 mm from its ends: to them must the middle of the
    // handle get. A scale is 10 px longer than its slider; both begin at the left, or have the same
    // middle when upright. The handle keeps off the padding.
    QString besideScale() const
    {
        const int surplus = m_is_level ? 0 : 10;
        SliderRules rules = *this;
        rules.m_scope = QStringLiteral("vexo--hox--qt--ui--VexoSliderDecoration[m_style=\"%1\"] ")
                            .arg(either("HorizontalWithScale", "VerticalWithScale"));
        rules.m_handle = qMax(1, 2 * (along(3) - surplus / 2));
        return rules.rule("::groove", "", QStringLiteral("padding-bottom: %1px").arg(surplus))
            + rules.rule("::handle", "", rules.handleSize());
    }

private:
    int along(double mm) const
    {
        return qMax(1, m_is_level ? pxX(m_scaling, mm) : pxY(m_scaling, mm));
    }

    int across(double mm) const
    {
        return qMax(1, m_is_level ? pxY(m_scaling, mm) : pxX(m_scaling, mm));
    }

    QString either(const char *level, const char *upright) const
    {
        return QLatin1String(m_is_level ? level : upright);
    }

    QString rule(const char *part, const char *state, const QString &declarations,
        const char *condition = "") const
    {
        return QStringLiteral("%1QSlider%2%3:%4%5 { %6; }\n")
            .arg(m_scope, QLatin1String(condition), QLatin1String(part),
                either("horizontal", "vertical"), QLatin1String(state), declarations);
    }

    QString handle() const
    {
        return rule("::handle", "",
                   handleSize()
                       + QStringLiteral("; margin: %1; background: white; border: %2px solid %3")
                             .arg(either("-%1px 0", "0 -%1px").arg(across(2.7)))
                             .arg(border())
                             .arg(QLatin1String(filled)))
            + rule("::handle", ":disabled",
                QStringLiteral("border-color: %1").arg(QLatin1String(empty)));
    }

    int border() const { return qMax(1, qMin(along(0.4), across(0.4))); }

    // Its border is inside.
    QString handleSize() const
    {
        const QSize radius = handleRadius(across(1) + 2 * across(2.7));
        return either(
            "width: %1px; border-radius: %2px %3px", "height: %1px; border-radius: %3px %2px")
            .arg(qMax(1, m_handle - 2 * border()))
            .arg(radius.width())
            .arg(radius.height());
    }

    // Along and across: of a circle, or of a pill where the handle is narrower than wide. More than
    // half of a side would make it square.
    QSize handleRadius(int width) const
    {
        const float pixel_ratio = m_is_level ? m_scaling.m_xy_ratio : 1 / m_scaling.m_xy_ratio;
        const int half = m_handle / 2;
        return QSize(half, qMin(width / 2, truncated(double(float(half) * pixel_ratio))));
    }

    // A level slider has its minimum at the left, an upright one at the bottom.
    QString pages() const
    {
        if (!m_is_level)
            return page("::add-page", filled, empty) + page("::sub-page", empty, off);
        return page("::sub-page", filled, empty) + page("::add-page", empty, off)
            + page("::sub-page", empty, off, from_the_right)
            + page("::add-page", filled, empty, from_the_right);
    }

    // The states outweigh the panel's sheets, whose pages bear one that the toolkit does not know.
    QString page(const char *part, const char *enabled, const char *disabled,
        const char *condition = "") const
    {
        const QString form = QStringLiteral("background: %1; border-radius: %2px");
        const int radius = across(1) / 2;
        return rule(part, ":enabled", form.arg(QLatin1String(enabled)).arg(radius), condition)
            + rule(part, ":disabled", form.arg(QLatin1String(disabled)).arg(radius), condition);
    }

    const ScalingInfo &m_scaling;
    bool m_is_level;
    QString m_scope; // selectors in front of QSlider
    int m_handle; // along its way, with border, px
};

// Stretched, since a plain image is never drawn larger than it is.
QString indicator(const char *widget, const char *images, const QSize &px, int spacing)
{
    return QStringLiteral(
        "%1 { spacing: %3px; }\n"
        "%1::indicator { width: %4px; height: %5px; }\n"
        "%1::indicator:checked { image: none; border-image: url(:/%2_checked); }\n"
        "%1::indicator:unchecked { image: none; border-image: url(:/%2_unchecked); }\n")
        .arg(QLatin1String(widget), QLatin1String(images))
        .arg(spacing)
        .arg(px.width())
        .arg(px.height());
}

// As large as the images are on a panel of 11 px/mm, for which they were made.
QString indicators(const ScalingInfo &scaling)
{
    const auto size = [&](double width, double height) {
        return pxSize(scaling, QSizeF(width, height)).expandedTo(QSize(1, 1));
    };
    const int spacing = pxX(scaling, 1.5);
    return indicator("QCheckBox", "cb", size(7.1, 4), spacing)
        + indicator("QRadioButton", "rb", size(3.65, 3.83), spacing);
}

} // namespace

QString mmSheetText(const ScalingInfo &scaling)
{
    const SliderRules level(scaling, true);
    const SliderRules upright(scaling, false);
    return QStringLiteral("QFrame:window { background: palette(window); }\n") + level.text()
        + level.besideScale() + upright.text() + upright.besideScale() + indicators(scaling);
}

} // namespace vexo::hox::qt::ui
