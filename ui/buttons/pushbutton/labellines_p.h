#pragma once
// SPDX-License-Identifier: MIT

#include <QFont>
#include <QString>

class QFontMetrics;

namespace vexo::hox::qt::ui {

/// The beginning of \a text that is not wider than \a width_px, cut after any character.
QString fittingBeginning(const QFontMetrics &metrics, const QString &text, double width_px);

/// The label of a button on one line, or split into two, beside a second text at the right.
class LabelLines
{
public:
    /// Measures both texts. Called before the rest each time that these are used, since neither
    /// texts nor font tell of a change; does nothing without one.
    void measure(const QString &label, const QString &right_text, const QFont &font);
    /// Whether the label fills what three margins and the second text leave of \a width_px.
    bool areTwo(int width_px, int margin_px) const;
    int rightTextAdvance() const { return m_right_advance_px; }

    /// Makes a first line of what fits into \a width_px and a second one of the rest.
    void split(double width_px);
    const QString &first() const { return m_first; }
    const QString &second() const { return m_second; }
    /// Whether the second line was measured to fit on one.
    bool isSecondFitting() const { return m_is_second_fitting; }

private:
    QString m_label;
    QString m_right_text;
    QFont m_font;
    int m_label_px = -1; // not measured yet
    int m_right_px = 0;
    int m_right_advance_px = 0;
    double m_split_px = -1; // width for which it is split
    QString m_first;
    QString m_second;
    bool m_is_second_fitting = true;
};

} // namespace vexo::hox::qt::ui
