// SPDX-License-Identifier: MIT
#include "ui/foundation/vexostylesheet.h"

#include "ui/files/cssguard_p.h"
#include "ui/files/inputfile_p.h"
#include "ui/foundation/sheetchange_p.h"

#include <QApplication>
#include <QDebug>
#include <QTextStream>

namespace vexo::hox::qt::ui {

VexoStylesheet::VexoStylesheet(const QString &name, bool apply)
    : VexoStylesheet(QStringList(name), apply)
{
}

VexoStylesheet::VexoStylesheet(const QStringList &names, bool apply)
{
    for (const QString &name : names)
        setStylesheet(name);
    if (apply)
        set();
}

void VexoStylesheet::setStylesheet(const QString &name)
{
    const int max_bytes = 1 << 18;
    InputFile file(name, max_bytes);
    if (!file.exists()) {
        qWarning() << "Stylesheet " << name << " does not exist!";
        return;
    }
    const QString text = QTextStream(file.read()).readAll();
    if (file.isResource() || selectorsOfHarmlessCss(text))
        m_stylesheet += text;
}

void VexoStylesheet::addText(const QString &rules)
{
    m_stylesheet += rules;
}

void VexoStylesheet::set()
{
    QCoreApplication::setAttribute(Qt::AA_UseStyleSheetPropagationInWidgetStyles, true);
    if (qobject_cast<QApplication *>(QCoreApplication::instance()))
        changeSheet(m_stylesheet);
}

} // namespace vexo::hox::qt::ui
