#pragma once
// SPDX-License-Identifier: MIT

#include "ui/buttons/pushbutton/labellines_p.h"
#include "ui/buttons/pushbutton/placement_p.h"

#include <QColor>
#include <QFont>
#include <QString>

#include <memory>

namespace vexo::hox::qt::ui {

/// What a button says, and how.
struct TextContent
{
    QString label;
    QString right_text;
    QFont font;
    QColor ink;
    Qt::Alignment alignment; // of each text
    int margin = 0; // px, at the sides of each text
};

/// The label of a button, on two lines where it does not fit on one, and a second text at its right
/// end; each is measured and laid out once.
class ButtonTexts
{
public:
    bool hasTwoLines(const TextContent &content, int width_px);
    /// Draws at \a whole, within its margins, in a button of \a size px. \a painter has the font of
    /// \a content.
    void draw(
        QPainter *painter, const TextContent &content, const QSize &size, const TextPlace &whole);

private:
    void drawTwoLines(
        QPainter *painter, const TextPlace &place, int middle_px, Qt::Alignment alignment);
    void drawText(QPainter *painter, std::unique_ptr<TextBlock> *block, const QString &text,
        const TextPlace &place, Qt::Alignment alignment);

    LabelLines m_lines;
    // Made when they are drawn.
    std::unique_ptr<TextBlock> m_wrapped_text; // label, or a second line that is too long
    std::unique_ptr<TextBlock> m_first_line;
    std::unique_ptr<TextBlock> m_second_line;
    std::unique_ptr<TextBlock> m_right_text;
};

} // namespace vexo::hox::qt::ui
