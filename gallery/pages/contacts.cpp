// SPDX-License-Identifier: MIT
#include "gallery/pages/contacts.h"

#include <RowList>

using vexo::hox::qt::ui::RowList;

namespace {

// Numbers first, then five persons of each family.
QStringList names()
{
    QStringList names{ "1st floor, kitchen", "1st floor, office", "2nd floor, laboratory",
        "2nd floor, office", "24-hour service", "3rd floor, archive", "3rd floor, hall",
        "4th floor, roof door", "8 to 8 pharmacy", "9th Street gate" };
    const QStringList first_names{ "Ada", "Ben", "Clara", "Dario", "Eva", "Finn", "Greta", "Hugo",
        "Ines", "Jonas", "Leo", "Mia", "Nora", "Paul", "Zoe" };
    const QStringList families{ "Adler", "Arnold", "Bauer", "Brooks", "Carter", "Cohen", "Diaz",
        "Dubois", "Ekberg", "Evans", "Fischer", "Fontaine", "Garcia", "Gruber", "Hansen", "Hughes",
        "Ibrahim", "Ivanova", "Jansen", "Jones", "Keller", "Kowalski", "Lang", "Lopez", "Martin",
        "Meyer", "Nguyen", "Novak", "Okafor", "Olsen", "Park", "Peeters", "Quandt", "Quinn",
        "Rossi", "Ryan", "Schmidt", "Silva", "Tanaka", "Thomas", "Ueda", "Urban", "Varga", "Vogel",
        "Wagner", "Wong", "Xavier", "Xu", "Yilmaz", "Young", "Zeman", "Ziegler" };
    for (int family = 0; family < families.size(); ++family)
        for (int person = family % 3; person < first_names.size(); person += 3)
            names += families.at(family) + ", " + first_names.at(person);
    return names;
}

const int names_per_volume = 9;

} // namespace

Contacts::Contacts()
{
    const QStringList all = names();
    for (int i = 0; i < all.size(); ++i) {
        const int place = i % names_per_volume;
        if (place == 2)
            m_rows += { RowList::CheckboxRow, all.at(i) + ": mute" };
        else if (place == 5)
            m_rows += { RowList::TickAgreementRow, all.at(i) + ": accept the call" };
        else
            m_rows += { RowList::ActionRow, all.at(i) };
        if (place == names_per_volume - 1)
            m_rows += { RowList::UserRow, all.at(i) };
    }
}

int Contacts::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : m_rows.size();
}

QVariant Contacts::data(const QModelIndex &index, int role) const
{
    const Row &row = m_rows.at(index.row());
    switch (role) {
    case Qt::DisplayRole:
        return row.text;
    case Qt::CheckStateRole:
        return row.is_checked ? Qt::Checked : Qt::Unchecked;
    case RowList::RowTypeRole:
        return row.type;
    case VolumeRole:
        return row.volume;
    default:
        return QVariant();
    }
}

Qt::ItemFlags Contacts::flags(const QModelIndex &index) const
{
    return QAbstractListModel::flags(index) | Qt::ItemIsUserCheckable;
}

bool Contacts::setData(const QModelIndex &index, const QVariant &value, int role)
{
    Row &row = m_rows[index.row()];
    if (role == Qt::CheckStateRole)
        row.is_checked = value == Qt::Checked;
    else if (role == VolumeRole)
        row.volume = value.toInt();
    else
        return false;
    Q_EMIT dataChanged(index, index, { role });
    return true;
}
