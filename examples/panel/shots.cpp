// SPDX-License-Identifier: MIT
#include "shots.h"

#include "camerascreen.h"
#include "contactsscreen.h"

#include <PageStack>
#include <PanelDialog>
#include <PanelDimmer>
#include <VexoLineEdit>

#include <QApplication>
#include <QDir>

#include <cstdio>
#include <stdexcept>

using namespace vexo::hox::qt::panel;
using vexo::hox::qt::ui::VexoLineEdit;

namespace {

class Album
{
public:
    Album(PanelWindow *panel, const QString &folder)
        : m_panel(panel)
        , m_folder(folder)
    {
    }

    void open(const QString &screen)
    {
        m_panel->stack()->home();
        m_panel->stack()->open(screen);
        QApplication::processEvents();
    }

    void take(const QString &name)
    {
        QApplication::processEvents();
        const QString number = QString("%1-").arg(++m_count, 2, 10, QChar('0'));
        const QString file = m_folder.filePath(number + name + ".png");
        if (!m_panel->grab().save(file))
            throw std::runtime_error("cannot write " + file.toStdString());
        std::printf("%s\n", qPrintable(file));
    }

private:
    PanelWindow *const m_panel;
    const QDir m_folder;
    int m_count = 0;
};

void takeScreens(Album *album, const QString &suffix)
{
    for (const QString &name : PanelWindow::screens()) {
        album->open(name);
        album->take(name + suffix);
    }
}

void takeSearch(PanelWindow *panel, Album *album, const QString &suffix)
{
    album->open("contacts");
    auto *contacts = qobject_cast<ContactsScreen *>(panel->stack()->page());
    contacts->setSearching(true);
    contacts->findChild<VexoLineEdit *>()->setText("mar");
    album->take("search" + suffix);
}

void takeQuestion(PanelWindow *panel, Album *album, const QString &suffix)
{
    PanelDialog *question = panel->ask("Call Baker, Anna?");
    question->setExplanation("Telephone 116");
    question->addButton("Cancel");
    panel->addMainButton(question, "Call");
    question->open();
    album->take("question" + suffix);
    question->close();
}

void takeRest(PanelWindow *panel, Album *album)
{
    album->open("camera");
    qobject_cast<CameraScreen *>(panel->stack()->page())->setZoom(200);
    album->take("camera-zoomed");
    album->open("contacts");
    takeQuestion(panel, album, QString());
    panel->tell("Calling Baker, Anna ...");
    album->take("notice");
    panel->tell(QString());
    panel->dimmer()->dim();
    album->take("dimmed");
    panel->dimmer()->wake();
}

} // namespace

void takeShots(PanelWindow *panel, const QString &folder)
{
    if (!QDir().mkpath(folder))
        throw std::runtime_error("cannot create " + folder.toStdString());
    panel->setLanguage("en");
    panel->setAttribute(Qt::WA_DontShowOnScreen);
    panel->show();
    QApplication::setActiveWindow(panel); // some grounds are those of an active window
    Album album(panel, folder);
    takeScreens(&album, QString());
    takeSearch(panel, &album, QString());
    takeRest(panel, &album);
    panel->setNight(true);
    takeScreens(&album, "-night");
    takeSearch(panel, &album, "-night");
    panel->setNight(false);
    panel->setLanguage("de");
    takeScreens(&album, "-de");
    panel->setNight(true);
    takeQuestion(panel, &album, "-night");
}
