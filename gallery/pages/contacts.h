#pragma once
// SPDX-License-Identifier: MIT

#include <QAbstractListModel>
#include <QVector>

/// The address book of the gallery: 300 rows in alphabetical order. Most are names, some have a
/// check box or a tick box, and after nine of them comes the volume of the last one.
class Contacts : public QAbstractListModel
{
public:
    enum Role { VolumeRole = Qt::UserRole };

    Contacts();

    int rowCount(const QModelIndex &parent = QModelIndex()) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    Qt::ItemFlags flags(const QModelIndex &index) const override;
    bool setData(const QModelIndex &index, const QVariant &value, int role) override;

private:
    struct Row
    {
        int type;
        QString text;
        bool is_checked = false;
        int volume = 60;
    };

    QVector<Row> m_rows;
};
