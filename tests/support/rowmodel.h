#pragma once
// SPDX-License-Identifier: MIT

#include <RowList>

#include <QAbstractListModel>
#include <QVector>

/// Rows of a list, of all types.
class RowModel : public QAbstractListModel
{
public:
    using List = vexo::hox::qt::ui::RowList;

    struct Entry
    {
        QString text;
        int type = List::ActionRow;
        bool is_checked = false;
        bool is_enabled = true;
    };

    explicit RowModel(int count = 0) { insert(0, entries(count)); }

    static QVector<Entry> entries(int count, int type = List::ActionRow)
    {
        static int number = 0;
        QVector<Entry> entries(count);
        for (Entry &entry : entries) {
            entry.text = QStringLiteral("Entry %1").arg(number++);
            entry.type = type;
        }
        return entries;
    }

    int rowCount(const QModelIndex &parent = QModelIndex()) const override
    {
        return parent.isValid() ? 0 : m_entries.size();
    }

    QVariant data(const QModelIndex &index, int role) const override
    {
        const Entry &entry = m_entries.at(index.row());
        switch (role) {
        case Qt::DisplayRole:
            return entry.text;
        case Qt::CheckStateRole:
            return entry.is_checked ? Qt::Checked : Qt::Unchecked;
        case List::RowTypeRole:
            return entry.type;
        default:
            return QVariant();
        }
    }

    Qt::ItemFlags flags(const QModelIndex &index) const override
    {
        if (!index.isValid())
            return Qt::NoItemFlags;
        const auto enabled
            = m_entries.at(index.row()).is_enabled ? Qt::ItemIsEnabled : Qt::NoItemFlags;
        return enabled | Qt::ItemIsUserCheckable;
    }

    bool setData(const QModelIndex &index, const QVariant &value, int role) override
    {
        if (role != Qt::CheckStateRole || is_refusing)
            return false;
        m_entries[index.row()].is_checked = value == Qt::Checked;
        Q_EMIT dataChanged(index, index);
        return true;
    }

    const Entry &at(int row) const { return m_entries.at(row); }

    void set(int row, const Entry &entry)
    {
        m_entries[row] = entry;
        Q_EMIT dataChanged(index(row), index(row));
    }

    void insert(int row, const QVector<Entry> &entries)
    {
        if (entries.isEmpty())
            return;
        beginInsertRows(QModelIndex(), row, row + entries.size() - 1);
        m_entries = m_entries.mid(0, row) + entries + m_entries.mid(row);
        endInsertRows();
    }

    void remove(int row, int count)
    {
        beginRemoveRows(QModelIndex(), row, row + count - 1);
        m_entries.remove(row, count);
        endRemoveRows();
    }

    /// To where it is before \a before.
    void move(int row, int before)
    {
        if (!beginMoveRows(QModelIndex(), row, row, QModelIndex(), before))
            return;
        m_entries.move(row, before > row ? before - 1 : before);
        endMoveRows();
    }

    void turnRound()
    {
        Q_EMIT layoutAboutToBeChanged();
        std::reverse(m_entries.begin(), m_entries.end());
        for (const QModelIndex &index : persistentIndexList())
            changePersistentIndex(index, this->index(m_entries.size() - 1 - index.row()));
        Q_EMIT layoutChanged();
    }

    void reset(const QVector<Entry> &entries)
    {
        beginResetModel();
        m_entries = entries;
        endResetModel();
    }

    bool is_refusing = false; // to be checked

private:
    QVector<Entry> m_entries;
};
