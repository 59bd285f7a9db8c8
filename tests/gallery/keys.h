#pragma once
// SPDX-License-Identifier: MIT

#include "gallery/widgets/keyboard.h"

#include <VexoKeyboardButton>

#include <QTest>

/// The visible key that bears the text or the accessible name.
inline Keyboard::Key *findKey(const QWidget &keyboard, const QString &label)
{
    const auto keys = keyboard.findChildren<Keyboard::Key *>();
    for (Keyboard::Key *key : keys) {
        if (!key->isHidden() && (key->text() == label || key->accessibleName() == label))
            return key;
    }
    return nullptr;
}

/// Clicks the keys, given by their labels with blanks between them.
inline void clickKeys(const QWidget &keyboard, const QString &labels)
{
    const QStringList list = labels.split(QLatin1Char(' '));
    for (const QString &label : list) {
        Keyboard::Key *key = findKey(keyboard, label);
        QVERIFY2(key, qPrintable(label));
        QTest::mouseClick(key, Qt::LeftButton);
    }
}
