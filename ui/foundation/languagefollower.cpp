// SPDX-License-Identifier: MIT
#include "ui/foundation/languagefollower_p.h"

#include <QEvent>
#include <QVariant>
#include <QWidget>

namespace vexo::hox::qt::ui {

namespace {

// A child of its widget, which hands on that the language has changed.
class LanguageFollower : public QObject
{
public:
    LanguageFollower(QWidget *widget, const char *property, QString (*text)())
        : QObject(widget)
        , m_property(property)
        , m_text(text)
        , m_given(text())
    {
        widget->setProperty(property, m_given);
    }

    bool event(QEvent *event) override
    {
        if (event->type() == QEvent::LanguageChange)
            translate();
        return QObject::event(event);
    }

private:
    void translate()
    {
        const bool is_ours = parent()->property(m_property) == m_given;
        m_given = m_text();
        if (is_ours)
            parent()->setProperty(m_property, m_given);
    }

    const char *const m_property;
    QString (*const m_text)();
    QString m_given;
};

} // namespace

void followLanguage(QWidget *widget, const char *property, QString (*text)())
{
    new LanguageFollower(widget, property, text);
}

} // namespace vexo::hox::qt::ui
