// SPDX-License-Identifier: MIT
//! [page]
#include <PanelTranslations>

#include <QCoreApplication>
#include <QTranslator>

using vexo::hox::qt::panel::PanelTranslations;

// The texts of the libraries and those of the application, at the start and whenever the user
// chooses another language.
void setLanguage(const QLocale &locale, QTranslator *own)
{
    PanelTranslations::setLocale(locale);
    QCoreApplication::removeTranslator(own);
    if (own->load(locale, "application", "_", ":/translations"))
        QCoreApplication::installTranslator(own);
}
//! [page]
