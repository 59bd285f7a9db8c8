#pragma once
// SPDX-License-Identifier: MIT

#include "gallery/widgets/keyboard.h"
#include "support/find.h"

#include <VexoKeyboardButton>

#include <QTest>

/// Clicks the keys, given by their labels with blanks between them.
inline void clickKeys(const QWidget &keyboard, const QString &labels)
{
    const QStringList list = labels.split(QLatin1Char(' '));
    for (const QString &label : list) {
        Keyboard::Key *key = byText<Keyboard::Key>(keyboard, label);
        QVERIFY2(key, qPrintable(label));
        QTest::mouseClick(key, Qt::LeftButton);
    }
}
