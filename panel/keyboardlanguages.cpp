// SPDX-License-Identifier: MIT
#include "panel/keyboardlanguages_p.h"

#include <algorithm>

namespace vexo::hox::qt::panel {

namespace {

int indexOf(const std::vector<KeyboardLayout> &layouts, const QString &code)
{
    const auto found = std::find_if(layouts.begin(), layouts.end(),
        [&](const KeyboardLayout &layout) { return layout.code == code; });
    return found == layouts.end() ? -1 : int(found - layouts.begin());
}

bool isLatin(const KeyboardLayout &layout)
{
    const KeyboardRows rows = layout.layers.value(KeyboardLayout::lowerLayer());
    for (const KeyboardRow &row : rows) {
        for (const KeyboardKey &key : row) {
            if (!key.text.isEmpty() && key.text.at(0).isLetter())
                return key.text.at(0).script() == QChar::Script_Latin;
        }
    }
    return true;
}

} // namespace

QStringList KeyboardLanguages::codes() const
{
    QStringList codes;
    for (const KeyboardLayout &layout : m_layouts)
        codes += layout.code;
    return codes;
}

void KeyboardLanguages::offer(const QStringList &codes)
{
    std::vector<KeyboardLayout> layouts;
    for (const QString &code : codes) {
        const int known = indexOf(m_layouts, code);
        if (indexOf(layouts, code) >= 0)
            continue;
        if (known >= 0)
            layouts.push_back(m_layouts[std::size_t(known)]);
        else if (KeyboardLayout::builtInLanguages().contains(code))
            layouts.push_back(KeyboardLayout::builtIn(code));
    }
    if (layouts.empty())
        layouts.push_back(KeyboardLayout::builtIn(QStringLiteral("en")));
    m_layouts = layouts;
    m_code = m_layouts.front().code;
}

void KeyboardLanguages::add(const KeyboardLayout &layout)
{
    const int same = indexOf(m_layouts, layout.code);
    if (same < 0)
        m_layouts.push_back(layout);
    else
        m_layouts[std::size_t(same)] = layout;
}

bool KeyboardLanguages::choose(const QString &code)
{
    if (code == m_code || indexOf(m_layouts, code) < 0)
        return false;
    m_code = code;
    return true;
}

std::vector<KeyboardLayout> KeyboardLanguages::usable(Qt::InputMethodHints hints) const
{
    if (!(hints & (Qt::ImhLatinOnly | Qt::ImhEmailCharactersOnly | Qt::ImhUrlCharactersOnly)))
        return m_layouts;
    std::vector<KeyboardLayout> usable;
    std::copy_if(m_layouts.begin(), m_layouts.end(), std::back_inserter(usable), isLatin);
    if (usable.empty())
        usable.push_back(KeyboardLayout::builtIn(QStringLiteral("en")));
    return usable;
}

KeyboardLayout KeyboardLanguages::shown(Qt::InputMethodHints hints) const
{
    const std::vector<KeyboardLayout> layouts = usable(hints);
    return layouts[std::size_t(qMax(0, indexOf(layouts, m_code)))];
}

QString KeyboardLanguages::next(Qt::InputMethodHints hints, int step) const
{
    const std::vector<KeyboardLayout> layouts = usable(hints);
    const int count = int(layouts.size());
    const int index = qMax(0, indexOf(layouts, m_code)) + step + count;
    return layouts[std::size_t(index % count)].code;
}

} // namespace vexo::hox::qt::panel
