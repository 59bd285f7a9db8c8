#include "ui/foundation/mmsheet_p.h"

#include "ui/foundation/pixels_p.h"

namespace vexo::hox::qt::ui {

namespace {

// The colours of the panel's sheets.
const char *const filled = "#b4c800";
const char *const empty = "#c8c8c8";
const char *const off = "#dcdcdc";

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

    // The first and the last mark of a scale are 3 mm from its ends: to them must the middle of the
    // handle get. A scale is 10 px longer than its slider; both begin at the left, or have the same
    // middle when upright.
    SliderRules besideScale() const
    {
        const int surplus = m_is_level ? 0 : 10;
        SliderRules rules = *this;
        rules.m_scope = QStringLiteral("vexo--hox--qt--ui--VexoSliderDecoration[m_style=\"%1\"] ")
                            .arg(either("HorizontalWithScale", "VerticalWithScale"));
        rules.m_handle = qMax(1, 2 * (along(3) - surplus / 2));
        rules.m_end = surplus;
        return rules;
    }

    QString text() const
    {
        return rule("", "", either("height: %1px", "width: %1px").arg(across(6.5))) + groove()
            + handle() + pages();
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

    // The handle keeps off the padding.
    QString groove() const
    {
        return rule("::groove", "",
            either("border: none; height: %1px; padding: 0 %2px 0 0",
                "border: none; width: %1px; padding: 0 0 %2px 0")
                .arg(across(1))
                .arg(m_end));
    }

    // Reaches over the groove by its margin and has its border inside.
    QString handle() const
    {
        const int border = qMax(1, qMin(along(0.4), across(0.4)));
        const int over = across(2.7);
        const QString form = either("width: %1px; margin: -%2px 0; border-radius: %3px %4px",
            "height: %1px; margin: 0 -%2px; border-radius: %4px %3px");
        const QSize radius = handleRadius(across(1) + 2 * over);
        const QString size = form.arg(qMax(1, m_handle - 2 * border))
                                 .arg(over)
                                 .arg(radius.width())
                                 .arg(radius.height());
        const QString look = QStringLiteral("; background: white; border: %1px solid ").arg(border);
        return rule("::handle", ":enabled", size + look + QLatin1String(filled))
            + rule("::handle", ":disabled", size + look + QLatin1String(empty));
    }

    // Along and across: of a circle, or of a pill where the handle is narrower than wide. More than
    // half of a side would make it square.
    QSize handleRadius(int width) const
    {
        const float pixel_ratio = m_is_level ? m_scaling.m_xy_ratio : 1 / m_scaling.m_xy_ratio;
        const int half = m_handle / 2;
        return QSize(half, qMin(width / 2, truncated(double(float(half) * pixel_ratio))));
    }

    // A level slider has its minimum at the left, an upright one at the bottom. The states outweigh
    // the panel's sheets, whose pages bear one that the toolkit does not know.
    QString pages() const
    {
        const char *const low = m_is_level ? "::sub-page" : "::add-page";
        const char *const high = m_is_level ? "::add-page" : "::sub-page";
        const QString low_ends = either("border-top-left-radius: %1px; border-top-right-radius: 0; "
                                        "border-bottom-left-radius: %1px; "
                                        "border-bottom-right-radius: 0",
            "border-top-left-radius: 0; border-top-right-radius: 0; "
            "border-bottom-left-radius: %1px; border-bottom-right-radius: %1px");
        const QString high_ends = either("border-top-left-radius: 0; "
                                         "border-top-right-radius: %1px; "
                                         "border-bottom-left-radius: 0; "
                                         "border-bottom-right-radius: %1px",
            "border-top-left-radius: %1px; border-top-right-radius: %1px; "
            "border-bottom-left-radius: 0; border-bottom-right-radius: 0");
        return page(low, ":enabled", filled, low_ends) + page(low, ":disabled", empty, low_ends)
            + page(high, ":enabled", empty, high_ends) + page(high, ":disabled", off, high_ends)
            + (m_is_level ? mirroredPages() : QString());
    }

    QString page(const char *part, const char *state, const char *color, const QString &ends) const
    {
        return rule(part, state,
            QStringLiteral("background: %1; ").arg(QLatin1String(color)) + ends.arg(across(1) / 2));
    }

    // From right to left the minimum is at the right, but the pages keep their sides.
    QString mirroredPages() const
    {
        const auto mirrored = [this](const char *part, const char *state, const char *color) {
            return rule(part, state, QStringLiteral("background: %1").arg(QLatin1String(color)),
                "[layoutDirection=\"1\"]");
        };
        return mirrored("::sub-page", ":enabled", empty) + mirrored("::sub-page", ":disabled", off)
            + mirrored("::add-page", ":enabled", filled)
            + mirrored("::add-page", ":disabled", empty);
    }

    const ScalingInfo &m_scaling;
    bool m_is_level;
    QString m_scope; // selectors in front of QSlider
    int m_handle; // along its way, with border, px
    int m_end = 0; // of the groove behind the last place of the handle, px
};

// Stretched, since a plain image is never drawn larger than it is.
QString indicator(const char *widget, const char *images, const QSize &px, int spacing)
{
    return QStringLiteral(
        "%1 { spacing: %3px; }\n"
        "%1::indicator { width: %4px; height: %5px; }\n"
        "%1::indicator:checked { image: none; border-image: url(:/%2_checked); }\n"
        "%1::indicator:unchecked { image: none; "
        "border-image: url(:/%2_unchecked); }\n")
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
        + upright.text() + level.besideScale().text() + upright.besideScale().text()
        + indicators(scaling);
}

} // namespace vexo::hox::qt::ui
