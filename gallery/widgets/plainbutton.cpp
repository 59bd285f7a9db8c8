// SPDX-License-Identifier: MIT
#include "gallery/widgets/plainbutton.h"

#include <QStyleFactory>

#include <memory>

const QStyle &plainStyle()
{
    static const std::unique_ptr<QStyle> style(QStyleFactory::create("fusion"));
    return *style;
}
