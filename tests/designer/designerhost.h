#pragma once
// SPDX-License-Identifier: MIT

#include <QVariant>
#include <QWidget>
#include <QtDesigner/QDesignerFormWindowManagerInterface>

class QDesignerFormEditorInterface;
class QDesignerFormWindowInterface;

/// Qt Designer without its window: the widget box with the plugin, a form, and what a user does to
/// them.
class DesignerHost
{
public:
    using Action = QDesignerFormWindowManagerInterface::Action;

    DesignerHost();
    ~DesignerHost();
    DesignerHost(const DesignerHost &) = delete;
    DesignerHost &operator=(const DesignerHost &) = delete;

    /// The names in the widget box, of the plugin's categories.
    QStringList offered() const;
    void open(const QString &form);
    void openEmpty();
    QString saved() const;
    /// Puts a widget of the box onto the form and returns it.
    QWidget *add(const QString &name);
    /// What Designer edits under \a object_name; null if nothing.
    QWidget *find(const QString &object_name) const;
    /// As the property editor does. False if there is no such property.
    bool set(QWidget *widget, const QString &property, const QVariant &value);
    void select(QWidget *widget);
    void trigger(Action action);
    void undo();

private:
    QString domXml(const QString &name) const;

    QWidget m_top;
    QDesignerFormEditorInterface *m_core = nullptr;
    QDesignerFormWindowInterface *m_form = nullptr;
};
