// SPDX-License-Identifier: MIT
#include "panelwindow.h"

#include "camerascreen.h"
#include "contactsscreen.h"
#include "infoscreen.h"
#include "pinscreen.h"
#include "settingsscreen.h"
#include "startscreen.h"
#include "updatescreen.h"

#include <MmStylesheet>
#include <PageStack>
#include <PanelDialog>
#include <PanelDimmer>
#include <PanelNotice>
#include <PanelTranslations>

#include <QApplication>

using namespace vexo::hox::qt::panel;

namespace {

const int seconds_until_dimmed = 120;

} // namespace

PanelWindow::PanelWindow()
    : m_stack(new PageStack(this))
    , m_notice(new PanelNotice(Qt::BottomEdge, this))
    , m_dimmer(new PanelDimmer(seconds_until_dimmed, this))
{
    setWindowTitle("Panel");
    setNight(false);
    setLanguage(QLocale().language() == QLocale::German ? "de" : "en");
    addScreens();
    m_stack->open("start");
}

PanelWindow::~PanelWindow() = default;

QStringList PanelWindow::screens()
{
    return { "start", "contacts", "camera", "settings", "info", "pin", "update" };
}

// The start comes up at each touch of "back", so it is kept; the others cost nothing while they
// are not seen.
void PanelWindow::addScreens()
{
    m_stack->addPage("start", [this] { return new StartScreen(this); });
    const auto add = [this](const QString &name, const PageStack::Make &make) {
        m_stack->addPage(name, make, PageStack::Dropped);
    };
    add("contacts", [this] { return new ContactsScreen(this); });
    add("camera", [this] { return new CameraScreen(this); });
    add("settings", [this] { return new SettingsScreen(this); });
    add("info", [this] { return new InfoScreen(this); });
    add("pin", [this] { return new PinScreen(this); });
    add("update", [this] { return new UpdateScreen(this); });
}

void PanelWindow::tell(const QString &text)
{
    m_notice->tell(text);
}

PanelDialog *PanelWindow::ask(const QString &question)
{
    auto *dialog = new PanelDialog(question, this);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setBackgroundColor(m_look->surface);
    dialog->setTextColor(m_look->ink);
    return dialog;
}

void PanelWindow::setNight(bool is_night)
{
    const Look *look = is_night ? &Look::night() : &Look::day();
    if (look == m_look)
        return;
    m_look = look;
    const auto ready = is_night ? MmStylesheet::Night : MmStylesheet::Day;
    QApplication::setPalette(MmStylesheet::palette(ready));
    m_sheet = std::make_unique<MmStylesheet>(MmStylesheet::files(ready));
    m_sheet->addText("vexo--hox--qt--ui--VexoLineEdit { background: transparent; }");
    m_sheet->set();
    setGround(this, look->ground);
    m_notice->setBackgroundColor(look->pressed);
    m_notice->setTextColor(look->pressed_ink);
    Q_EMIT changed();
}

void PanelWindow::setLanguage(const QString &code)
{
    if (code == m_language)
        return;
    m_language = code;
    PanelTranslations::setLocale(QLocale(code)); // what the libraries themselves say
    QCoreApplication::removeTranslator(&m_translator);
    if (code == "de" && m_translator.load(":/panel/panel_de.qm"))
        QCoreApplication::installTranslator(&m_translator);
    setLocale(QLocale(code)); // of dates, on all screens
    Q_EMIT changed();
}

void PanelWindow::follow(QObject *context, const std::function<void()> &show)
{
    show();
    connect(this, &PanelWindow::changed, context, show);
}

void PanelWindow::resizeEvent(QResizeEvent *)
{
    m_stack->setGeometry(rect());
}
