#pragma once
// SPDX-License-Identifier: MIT

#include "panel/hoxqpanel_export.h"

#include <QLocale>
#include <QString>

namespace vexo::hox::qt::panel {

/// The language of what the libraries themselves show and say: what the keys of a keyboard, the
/// arrows of a list or the minus of a number are called to assistive technology, what an update
/// shows, what the ScreenDoctor finds. These texts are written in English; for another language
/// there is a catalogue, "hoxqui_de.qm" say, which is found wherever the installed tree lies.
///
/// The catalogue is a translator of the application; one that the application installs later comes
/// first. To install it in your own way, load "hoxqui" from folder() into a QTranslator.
class HOXQPANEL_EXPORT PanelTranslations
{
public:
    PanelTranslations() = delete;

    /// Takes the first of the languages in which \a locale wants texts (QLocale::uiLanguages())
    /// that there is a catalogue for; English without any. Texts of widgets that are there change
    /// with the next turn of the event loop, when QEvent::LanguageChange comes to them; those that
    /// the application has set stay. Where the language is the same nothing happens. Ignored
    /// without an application object, and forgotten with it. The default is that of QLocale(),
    /// which is the system's unless the application has set another.
    static void setLocale(const QLocale &locale = QLocale());
    /// The code of the language in use, such as "de"; "en" at first.
    static QString language();
    /// The folder of the catalogues, absolute: the one that HOXQUI_TRANSLATIONS names, if it does;
    /// share/hoxqui/translations of the tree in which this library lies; or else "translations"
    /// beside the library.
    static QString folder();
};

} // namespace vexo::hox::qt::panel
