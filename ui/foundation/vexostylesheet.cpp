#include "ui/foundation/vexostylesheet.h"

#include <QApplication>
#include <QDebug>
#include <QFile>
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
    QFile file(name);
    if (!file.exists()) {
        qWarning() << "Stylesheet " << name << " does not exist!";
        return;
    }
    if (file.open(QIODevice::ReadOnly))
        m_stylesheet += QTextStream(&file).readAll();
}

void VexoStylesheet::addText(const QString &rules)
{
    m_stylesheet += rules;
}

void VexoStylesheet::set()
{
    QCoreApplication::setAttribute(Qt::AA_UseStyleSheetPropagationInWidgetStyles, true);
    if (auto *application = qobject_cast<QApplication *>(QCoreApplication::instance()))
        application->setStyleSheet(m_stylesheet);
}

} // namespace vexo::hox::qt::ui
