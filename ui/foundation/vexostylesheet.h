#pragma once
// SPDX-License-Identifier: MIT

#include "ui/hoxqui_export.h"

#include <QString>
#include <QStringList>

namespace vexo::hox::qt::ui {

/// Reads stylesheet files and gives their joined text to the application. The library brings
/// ":/css/vexo-AAL.qs" and ":/css/hoxq.qs". Construct one after the application object; the object
/// need not be kept. Both give their sizes in pixels made for 11 px/mm; what is wrong on other
/// panels ":/sheets/controls.qs" of libhoxqpanel has in millimetres, and Panel::setUp() applies all
/// three.
class HOXQUI_EXPORT VexoStylesheet
{
public:
    /// Reads the file \a name and, if \a apply, calls set().
    explicit VexoStylesheet(const QString &name, bool apply = true);
    /// Reads the files in list order and, if \a apply, calls set(). Where two rules weigh the same,
    /// the later file wins, so the application's own comes last.
    explicit VexoStylesheet(const QStringList &names, bool apply = true);

    /// Appends the text of the file \a name, a full resource or file path or one in a search path.
    /// A file that does not exist is named in a warning; one that cannot be opened adds nothing.
    /// Neither does one that is hostile: no regular file, more than 131,072 characters, hundreds of
    /// selectors times declarations in one rule, or so malformed that its rules cannot be told
    /// apart. Nothing is shown before set().
    void setStylesheet(const QString &name);
    /// Appends rules that stand in no file. Nothing is shown before set().
    void addText(const QString &rules);
    /// Replaces the application's stylesheet by all that was read, and makes fonts and colours of
    /// a stylesheet reach child widgets (Qt::AA_UseStyleSheetPropagationInWidgetStyles). Without an
    /// application object only the attribute is set.
    ///
    /// Another sheet, as for the night, is put in place faster than by
    /// QApplication::setStyleSheet(), which styles each widget once per level of its depth: here
    /// each is styled once, and hears of it by one QEvent::StyleChange. QApplication::style() may
    /// be another object afterwards. Where the application has fonts of classes, widgets with a
    /// QWidget::setStyle() of their own or many with own sheets, it is done the toolkit's way.
    void set();

private:
    QString m_stylesheet;
};

} // namespace vexo::hox::qt::ui
