// SPDX-License-Identifier: MIT
#include "designer/designerhost.h"

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QUndoStack>
#include <QtDesigner/QDesignerComponents>
#include <QtDesigner/QDesignerFormEditorInterface>
#include <QtDesigner/QDesignerFormWindowCursorInterface>
#include <QtDesigner/QDesignerFormWindowInterface>
#include <QtDesigner/QDesignerIntegration>
#include <QtDesigner/QDesignerPropertyEditorInterface>
#include <QtDesigner/QDesignerPropertySheetExtension>
#include <QtDesigner/QDesignerWidgetBoxInterface>
#include <QtDesigner/QExtensionManager>

DesignerHost::DesignerHost()
{
    const QStringList paths = QCoreApplication::libraryPaths();
    // Alone, whatever other plugins the machine has.
    QCoreApplication::setLibraryPaths({ QStringLiteral(HOXQ_PLUGINS) });
    m_core = QDesignerComponents::createFormEditor(&m_top);
    QDesignerComponents::initializeResources();
    m_core->setTopLevel(&m_top);
    m_core->setWidgetBox(QDesignerComponents::createWidgetBox(m_core, &m_top));
    m_core->setPropertyEditor(QDesignerComponents::createPropertyEditor(m_core, &m_top));
    new QDesignerIntegration(m_core, &m_top);
    QDesignerComponents::initializePlugins(m_core);
    QCoreApplication::setLibraryPaths(paths);
    openEmpty();
}

// In this order: what is left of the form asks the editor.
DesignerHost::~DesignerHost()
{
    delete m_form;
    delete m_core->propertyEditor();
    delete m_core->widgetBox();
    delete m_core;
}

QStringList DesignerHost::offered() const
{
    QStringList names;
    const QDesignerWidgetBoxInterface *box = m_core->widgetBox();
    for (int i = 0; i < box->categoryCount(); ++i) {
        const auto category = box->category(i);
        for (int j = 0;
             category.name().startsWith(QLatin1String("HoxqUi")) && j < category.widgetCount(); ++j)
            names += category.widget(j).name();
    }
    return names;
}

void DesignerHost::open(const QString &form)
{
    delete m_form;
    m_form = m_core->formWindowManager()->createFormWindow(&m_top);
    m_form->setContents(form);
    m_form->resize(800, 600);
    m_core->formWindowManager()->setActiveFormWindow(m_form);
    m_top.show();
    QCoreApplication::processEvents();
}

void DesignerHost::openEmpty()
{
    open(QStringLiteral(
        R"(<ui version="4.0"><class>Form</class><widget class="QWidget" name="Form"/></ui>)"));
}

QString DesignerHost::saved() const
{
    return m_form->contents();
}

QWidget *DesignerHost::find(const QString &object_name) const
{
    return m_form->findChild<QWidget *>(object_name);
}

QWidget *DesignerHost::add(const QString &name)
{
    select(m_form->mainContainer());
    QString copied = domXml(name); // a form; what is copied are the children of its widget
    copied.insert(
        copied.indexOf(QLatin1String("<widget")), QLatin1String("<widget class=\"QWidget\">"));
    copied.insert(copied.lastIndexOf(QLatin1String("</widget>")), QLatin1String("</widget>"));
    QGuiApplication::clipboard()->setText(copied);
    QCoreApplication::processEvents(); // enables the action
    trigger(QDesignerFormWindowManagerInterface::PasteAction);
    return m_form->cursor()->selectedWidget(0);
}

bool DesignerHost::set(QWidget *widget, const QString &property, const QVariant &value)
{
    auto *sheet
        = qt_extension<QDesignerPropertySheetExtension *>(m_core->extensionManager(), widget);
    const int index = sheet ? sheet->indexOf(property) : -1;
    if (index < 0)
        return false;
    sheet->setProperty(index, value);
    sheet->setChanged(index, true);
    return true;
}

void DesignerHost::select(QWidget *widget)
{
    m_form->clearSelection();
    m_form->selectWidget(widget);
}

void DesignerHost::trigger(Action action)
{
    m_core->formWindowManager()->action(action)->trigger();
    QCoreApplication::processEvents();
}

void DesignerHost::undo()
{
    m_form->commandHistory()->undo();
    QCoreApplication::processEvents();
}

QString DesignerHost::domXml(const QString &name) const
{
    const QDesignerWidgetBoxInterface *box = m_core->widgetBox();
    for (int i = 0; i < box->categoryCount(); ++i) {
        const auto category = box->category(i);
        for (int j = 0; j < category.widgetCount(); ++j) {
            if (category.widget(j).name() == name)
                return category.widget(j).domXml();
        }
    }
    return QString();
}
