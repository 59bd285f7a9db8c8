// SPDX-License-Identifier: MIT
#include <OnScreenKeyboard>
#include <PanelTranslations>
#include <VexoNumericButton>

#include <QApplication>

#include <cstdio>

using namespace vexo::hox::qt;

/// texts [LOCALE]: where the catalogues are, the language, and a text of each library.
int main(int argc, char **argv)
{
    const QApplication application(argc, argv);
    const QString locale = QApplication::arguments().value(1);
    panel::PanelTranslations::setLocale(locale.isEmpty() ? QLocale() : QLocale(locale));
    const ui::VexoNumericButton number;
    const panel::OnScreenKeyboard keyboard;
    std::printf("%s\n%s\n%s\n%s\n", qPrintable(panel::PanelTranslations::folder()),
        qPrintable(panel::PanelTranslations::language()), qPrintable(keyboard.accessibleName()),
        qPrintable(
            number.findChild<QWidget *>(QStringLiteral("decreaseButton"))->accessibleName()));
}
