#pragma once
// SPDX-License-Identifier: MIT

#include "parts.h"

#include <QTranslator>
#include <QWidget>

#include <functional>
#include <memory>

namespace vexo::hox::qt::panel {
class MmStylesheet;
class PageStack;
class PanelDialog;
class PanelDimmer;
class PanelNotice;
} // namespace vexo::hox::qt::panel

/// The whole panel: its screens and the way between them, and what they share.
class PanelWindow : public QWidget
{
    Q_OBJECT

public:
    PanelWindow();
    ~PanelWindow() override;

    /// Names of the screens for stack()->open(), in the order of a visit.
    static QStringList screens();

    vexo::hox::qt::panel::PageStack *stack() const { return m_stack; }
    vexo::hox::qt::panel::PanelDimmer *dimmer() const { return m_dimmer; }
    /// Comes and goes at the lower edge.
    void tell(const QString &text);
    /// A question in the colours of now, deleted when it is answered; open() it.
    vexo::hox::qt::panel::PanelDialog *ask(const QString &question);
    /// The button of a question that does what it asks for.
    void addMainButton(vexo::hox::qt::panel::PanelDialog *dialog, const QString &text) const;

    const Look &look() const { return *m_look; }
    bool isNight() const { return m_look == &Look::night(); }
    void setNight(bool is_night);

    /// "de", or "en", which is what the texts are written in.
    QString language() const { return m_language; }
    void setLanguage(const QString &code);

    /// Calls \a show now, and again whenever the look or the language has changed, as long as
    /// \a context lives.
    void follow(QObject *context, const std::function<void()> &show);

Q_SIGNALS:
    /// The look or the language is another one.
    void changed();

protected:
    void resizeEvent(QResizeEvent *event) override;

private:
    void addScreens();

    const Look *m_look = nullptr;
    QString m_language;
    QTranslator m_translator;
    std::unique_ptr<vexo::hox::qt::panel::MmStylesheet> m_sheet;
    vexo::hox::qt::panel::PageStack *const m_stack;
    vexo::hox::qt::panel::PanelNotice *const m_notice;
    vexo::hox::qt::panel::PanelDimmer *const m_dimmer;
};
