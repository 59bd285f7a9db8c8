#pragma once
// SPDX-License-Identifier: MIT

#include "gallery/page.h"

class QSizeF;
class QStringList;

/// Contact sheet of the library's images, rendered by CachedVectorIcon on three grounds.
class ImagesPage : public Page
{
public:
    ImagesPage();

private:
    void addSheet(const QString &heading, const QSizeF &box_in_mm, const QStringList &paths);
};
