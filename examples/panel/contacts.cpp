// SPDX-License-Identifier: MIT
#include "contacts.h"

#include <RowList>

using vexo::hox::qt::ui::RowList;

Contacts::Contacts()
{
    const QStringList families{ "Abel", "Albers", "Anders", "Baker", "Berg", "Brandt", "Castro",
        "Clarke", "Cruz", "Dahl", "Decker", "Dunn", "Ebert", "Ellis", "Engel", "Farkas", "Frank",
        "Fuchs", "Gomez", "Graf", "Hahn", "Hoffmann", "Huber", "Iversen", "Ilic", "Jacobs", "Jung",
        "Kaiser", "Klein", "Kovac", "Larsen", "Lehmann", "Lorenz", "Maier", "Moreau", "Nagel",
        "Nielsen", "Ortiz", "Otto", "Perez", "Pohl", "Quast", "Reuter", "Romano", "Sauer", "Simon",
        "Stein", "Thoma", "Turner", "Ulrich", "Vega", "Voss", "Walter", "Weber", "Winter",
        "Xenakis", "Yildiz", "York", "Zander", "Zimmer" };
    const QStringList first_names{ "Anna", "David", "Julia", "Martin", "Sophie" };
    int number = 100;
    for (const QString &family : families) {
        for (const QString &name : first_names) {
            auto *person = new QStandardItem(family + ", " + name);
            person->setData(QString::number(++number), RowList::SecondTextRole);
            person->setData(RowList::UserRow, RowList::RowTypeRole); // one of the screen's own
            appendRow(person);
        }
    }
    sort(0);
}
