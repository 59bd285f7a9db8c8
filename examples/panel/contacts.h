#pragma once
// SPDX-License-Identifier: MIT

#include <QStandardItemModel>

/// Three hundred persons, sorted, each with the number of a telephone.
class Contacts : public QStandardItemModel
{
public:
    Contacts();
};
