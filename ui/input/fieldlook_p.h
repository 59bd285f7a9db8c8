#pragma once
// SPDX-License-Identifier: MIT

#include <QColor>
#include <QFont>
#include <QPen>
#include <QRectF>
#include <QString>
#include <QVector>

#include <optional>

namespace vexo::hox::qt::ui {

class ScalingInfo;
class TextRun;

/// What a field shows in its frame and where it lies, px: the text, behind it the cursor, and in
/// the place of the cursor what is left of the placeholder; or dots, and nothing else.
struct FieldLook
{
    QString text;
    QFont font;
    bool is_secret = false; // dots
    bool tells_length = true; // else not even those

    QSize size; // of the field
    QPointF margin;
    double corner = 0; // width of a corner of the frame
    double dots_left = 0; // free at both ends of the dots
    int indent = 0; // from the text to the cursor
    int offset = 0; // of a text that is not centred
    std::optional<int> icon_end; // right of the leading icon, if there is one at the left
    std::optional<int> icon_start; // left of the leading icon, if there is one at the right
    bool is_centered = false;
    bool has_centered_dots = true;

    QColor ink;
    QColor placeholder;
    QPen outline; // of dots
    QPen cursor;
    bool has_cursor = false;
    int cursor_top = 0;
    int cursor_bottom = 0;

    Qt::Alignment alignment() const;
    /// One that runs from right to left and is too long keeps its beginning in sight. A placeholder
    /// that is shown takes \a placeholder_width. With the leading icon at the right all of it ends
    /// there.
    QRectF textRect(const TextRun &run, std::optional<int> placeholder_width) const;
    int cursorX(const QRectF &text_rect) const;
    QLine cursorLine(int x) const { return QLine(x, cursor_top, x, cursor_bottom); }

private:
    double leftBeforeIcon(const TextRun &run, int placeholder_width) const;
};

} // namespace vexo::hox::qt::ui
