#pragma once
// SPDX-License-Identifier: MIT

#include <QHash>
#include <QPixmap>
#include <QPointer>
#include <QWidget>

namespace vexo::hox::qt::ui {

/// The prints of all widgets. Whenever they have grown by 1 MiB, those of widgets out of sight are
/// dropped: so a list that scrolls by leaves no more behind, and what is seen never needs to be
/// drawn twice. They are kept apart from the toolkit's pixmap cache, from which the rows of a long
/// list would throw the icons out.
class RenderingCache
{
public:
    using Key = quint64; // 0 is none

    static RenderingCache &inst();

    /// False once it was dropped.
    bool find(Key key, QPixmap *print) const;
    /// \a owner, which may be null, shows \a print.
    Key insert(const QPixmap &print, const QWidget *owner);
    void remove(Key key);
    /// Of all prints.
    qint64 bytes() const { return m_bytes; }

private:
    struct Entry
    {
        QPixmap print;
        QPointer<const QWidget> owner;
    };

    void sweep();

    QHash<Key, Entry> m_entries;
    Key m_last = 0;
    qint64 m_bytes = 0;
    qint64 m_swept_bytes = 0; // what the last sweep left
};

} // namespace vexo::hox::qt::ui
