// SPDX-License-Identifier: MIT
#include "ui/input/fieldlook_p.h"

#include "ui/foundation/pixels_p.h"
#include "ui/painting/textrun_p.h"

namespace vexo::hox::qt::ui {

Qt::Alignment FieldLook::alignment() const
{
    return (is_centered ? Qt::AlignHCenter : Qt::AlignLeft) | Qt::AlignVCenter;
}

QRectF FieldLook::textRect(const TextRun &run, std::optional<int> placeholder_width) const
{
    const double inset = corner + margin.x();
    const int middle = size.width() / 2 - run.advance() / 2;
    double left = (icon_end ? *icon_end : inset) + offset;
    if (is_centered) {
        const int behind_cursor = has_cursor ? (cursor.width() + indent) / 2 : 0;
        const int behind_text = placeholder_width ? (indent + *placeholder_width) / 2 : 0;
        left = middle - behind_cursor - behind_text;
    } else if (icon_start) {
        left = leftBeforeIcon(run, placeholder_width.value_or(0));
    } else if (run.isTurned()) {
        left = qMin(left, size.width() - inset - run.advance());
    }
    return QRectF(left, margin.y(), run.advance(), size.height() - 2 * margin.y());
}

// The place of the cursor stays free, so that nothing moves as it blinks.
double FieldLook::leftBeforeIcon(const TextRun &run, int placeholder_width) const
{
    const int behind = indent + qMax(placeholder_width, cursor.width());
    const double left = *icon_start - offset - behind - run.advance();
    return run.isTurned() ? left : qMax(left, corner + margin.x());
}

int FieldLook::cursorX(const QRectF &text_rect) const
{
    return truncated(text_rect.right()) + indent;
}

} // namespace vexo::hox::qt::ui
