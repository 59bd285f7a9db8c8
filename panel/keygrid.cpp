// SPDX-License-Identifier: MIT
#include "panel/keygrid_p.h"

#include "panel/mm_p.h"

#include <ScalingInfo>
#include <VexoKeyboardButton>

#include <algorithm>
#include <limits>
#include <utility>

namespace vexo::hox::qt::panel {

namespace {

const double largest_pitch_mm = 19; // of a keyboard for ten fingers
const double largest_gap = 0.12; // of a letter with its gap
const double image_mm = 5.4;
const double letter_pt = 15;
const double label_pt = 9;
const double language_pt = 8;
const double roomy_pitch_mm = 8; // from here on all sizes fit
const double roomy_row_mm = 9; // likewise, from top to top

double rowWidth(const KeyboardRow &row)
{
    double width = 0;
    for (const KeyboardKey &key : row)
        width += key.width;
    return width;
}

double widestOf(const KeyboardRows &rows)
{
    double widest = 1;
    for (const KeyboardRow &row : rows)
        widest = qMax(widest, rowWidth(row));
    return widest;
}

bool fillsRow(const KeyboardRow &row)
{
    return std::any_of(row.begin(), row.end(), [](const KeyboardKey &key) { return key.fills; });
}

int distance(const QRect &rect, const QPoint &place)
{
    const int dx = qMax(0, qMax(rect.left() - place.x(), place.x() - rect.right()));
    const int dy = qMax(0, qMax(rect.top() - place.y(), place.y() - rect.bottom()));
    return qMax(dx, dy);
}

} // namespace

KeyGrid::KeyGrid(Make make)
    : m_make(std::move(make))
{
}

void KeyGrid::show(
    const KeyboardRows &rows, const std::function<QString(const KeyboardKey &)> &label)
{
    std::vector<Cap> before;
    before.swap(m_caps);
    m_columns = widestOf(rows);
    m_row_count = int(rows.size());
    std::map<int, std::size_t> taken;
    for (int i = 0; i < m_row_count; ++i)
        addRow(rows[std::size_t(i)], i, m_columns);
    for (Cap &cap : m_caps) {
        cap.button = take(cap.key.function, &taken);
        cap.button->setText(label(cap.key));
    }
    for (const Cap &cap : before)
        cap.button->setVisible(find(cap.button));
    for (const Cap &cap : m_caps)
        cap.button->show();
}

void KeyGrid::forget(const QObject *button)
{
    const auto is_it = [button](const Button *made) { return made == button; };
    for (auto &[function, buttons] : m_made)
        buttons.erase(std::remove_if(buttons.begin(), buttons.end(), is_it), buttons.end());
    const auto bears = [&](const Cap &cap) { return is_it(cap.button); };
    m_caps.erase(std::remove_if(m_caps.begin(), m_caps.end(), bears), m_caps.end());
}

void KeyGrid::forEach(const std::function<void(Button *, int)> &visit) const
{
    for (const auto &[function, buttons] : m_made) {
        for (Button *button : buttons)
            visit(button, function);
    }
}

void KeyGrid::addRow(const KeyboardRow &row, int index, double columns)
{
    const double rest = columns - rowWidth(row);
    double left = fillsRow(row) ? 0 : rest / 2;
    for (const KeyboardKey &key : row) {
        const double width = key.width + (key.fills ? rest : 0);
        m_caps.push_back({ key, nullptr, index, left, width });
        left += width;
    }
}

KeyGrid::Button *KeyGrid::take(KeyboardKey::Function function, std::map<int, std::size_t> *taken)
{
    std::vector<Button *> &made = m_made[function];
    const std::size_t index = (*taken)[function]++;
    if (index == made.size()) {
        made.push_back(m_make(function));
        if (m_image_mm > 0)
            sizeImage(made.back());
    }
    return made[index];
}

void KeyGrid::place(const QRect &px)
{
    if (m_caps.empty() || px.isEmpty())
        return;
    const double widest = mmX(largest_pitch_mm);
    const int full_gap = mmX(GAP_MM);
    m_pitch = qMin(widest, (px.width() + full_gap) / m_columns);
    const int gap_x = qMin(full_gap, int(m_pitch * largest_gap));
    m_pitch = qMin(widest, (px.width() + gap_x) / m_columns);
    const double line = double(px.height()) / m_row_count;
    const int gap_y = qMin(mmY(GAP_MM), int(line * largest_gap));
    m_row_pitch = double(px.height() + gap_y) / m_row_count;
    const int x = px.left() + int((px.width() + gap_x - m_pitch * m_columns) / 2);
    setImageSize();
    for (const Cap &cap : m_caps) {
        const int left = x + qRound(cap.left * m_pitch);
        const int right = x + qRound((cap.left + cap.width) * m_pitch) - gap_x;
        const int top = px.top() + qRound(cap.row * m_row_pitch);
        const int bottom = px.top() + qRound((cap.row + 1) * m_row_pitch) - gap_y;
        cap.button->setGeometry(left, top, right - left, bottom - top);
        setTextSize(cap);
    }
}

// How much smaller than usual what lies on a key of \a width letters is.
double KeyGrid::fitting(double width) const
{
    const ui::ScalingInfo &scaling = *ui::ScalingInfo::inst();
    const double pitch_mm = double(scaling.px2mm_X(float(m_pitch * qMin(1.0, width))));
    const double row_mm = double(scaling.px2mm_Y(float(m_row_pitch)));
    const double least = 0.3; // of a keyboard that has not got its size
    return qBound(least, qMin(pitch_mm / roomy_pitch_mm, row_mm / roomy_row_mm), 1.0);
}

void KeyGrid::setTextSize(const Cap &cap) const
{
    const bool is_letter = cap.button->text().size() < 2;
    const double pt = cap.key.function == KeyboardKey::Space ? language_pt
        : is_letter                                          ? letter_pt
                                                             : label_pt;
    const double fitting_pt = pt * fitting(cap.width);
    if (!qFuzzyCompare(cap.button->buttonTextFontSizeInPt(), fitting_pt))
        cap.button->setButtonTextFontSizeInPt(fitting_pt);
}

void KeyGrid::setImageSize()
{
    const double mm = image_mm * fitting(1);
    if (qFuzzyCompare(mm, m_image_mm))
        return;
    m_image_mm = mm;
    forEach([this](Button *button, int) { sizeImage(button); });
}

void KeyGrid::sizeImage(Button *button) const
{
    if (!button->hasState(QLatin1String(Button::DEFAULT_STATE_NAME)))
        return;
    button->setCommonIconSizeMM(QSizeF(0, m_image_mm));
    button->rerenderAll(false);
}

const KeyboardKey *KeyGrid::find(const QObject *button) const
{
    for (const Cap &cap : m_caps) {
        if (cap.button == button)
            return &cap.key;
    }
    return nullptr;
}

KeyGrid::Button *KeyGrid::nearest(const QPoint &place) const
{
    Button *nearest = nullptr;
    int least = qRound(m_pitch / 2) + 1;
    for (const Cap &cap : m_caps) {
        const int away = distance(cap.button->geometry(), place);
        if (away < least) {
            least = away;
            nearest = cap.button;
        }
    }
    return nearest;
}

KeyGrid::Button *KeyGrid::button(KeyboardKey::Function function) const
{
    for (const Cap &cap : m_caps) {
        if (cap.key.function == function)
            return cap.button;
    }
    return nullptr;
}

} // namespace vexo::hox::qt::panel
