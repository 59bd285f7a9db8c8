#pragma once
// SPDX-License-Identifier: MIT

#include <VexoKeyboardButton>

#include <QTest>

/// The visible key that bears the text or the accessible name.
inline vexo::hox::qt::ui::VexoKeyboardButton *findKey(const QWidget &page, const QString &label)
{
    const auto keys = page.findChildren<vexo::hox::qt::ui::VexoKeyboardButton *>();
    for (auto *key : keys) {
        if (!key->isHidden() && (key->text() == label || key->accessibleName() == label))
            return key;
    }
    return nullptr;
}

/// Clicks the keys, given by their labels with blanks between them.
inline void clickKeys(const QWidget &page, const QString &labels)
{
    const QStringList list = labels.split(QLatin1Char(' '));
    for (const QString &label : list) {
        QWidget *key = findKey(page, label);
        QVERIFY2(key, qPrintable(label));
        QTest::mouseClick(key, Qt::LeftButton);
    }
}
