// SPDX-License-Identifier: MIT
//! [page]
#include <RowList>
#include <VexoRuler>
#include <VexoVerticalButtonScrollArea>

#include <QBoxLayout>
#include <QStringListModel>

#include <functional>

using namespace vexo::hox::qt::ui;

// Thousands of names between rulers, beside a bar whose letters jump to the first one.
RowList *createContacts(
    QBoxLayout *place, const QStringList &names, std::function<void(const QString &)> call)
{
    auto *list = new RowList;
    auto *bar = new VexoVerticalButtonScrollArea;
    place->addWidget(list);
    place->addWidget(bar);
    list->setSeparatorFactory([] { return new VexoRuler; });
    list->setModel(new QStringListModel(names, list));
    list->connectJumpBar(bar);
    QObject::connect(list, &RowList::clicked, list,
        [call](const QModelIndex &index) { call(index.data().toString()); });
    return list;
}
//! [page]
