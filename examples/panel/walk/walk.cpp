// SPDX-License-Identifier: MIT
#include "walk/walk.h"

#include "camerascreen.h"

#include <Finger>
#include <PageStack>
#include <PanelDialog>
#include <PanelNotice>
#include <RowList>
#include <VexoDesignVectorButton>
#include <VexoFunctionButton>
#include <VexoHorizontalTextIconButton>
#include <VexoKeyboardButton>
#include <VexoLineEdit>
#include <VexoPushButton>
#include <VexoVerticalButtonScrollArea>
#include <VideoCapturePanning>

#include <QTest>

#include <algorithm>
#include <stdexcept>

using namespace vexo::hox::qt::panel;
using namespace vexo::hox::qt::ui;
using vexo::hox::qt::uitest::Finger;

namespace {

const int bounce_ms = 30;

class Visitor
{
public:
    using Note = std::function<void(const QString &step)>;

    Visitor(PanelWindow *panel, const Note &note)
        : m_panel(panel)
        , m_finger(panel)
        , m_note(note)
    {
        m_finger.setJitter(0.3).setWiggle(0.5).setBounce(bounce_ms);
    }

    void callSomebody();
    void lookThroughTheCamera();
    void changeTheLook();
    void update();

private:
    /// The first button of \a type that is seen and bears \a text, or that accessible name.
    template <typename Button>
    Button *seen(const QString &text) const
    {
        for (auto *button : m_panel->findChildren<Button *>()) {
            if (button->isVisible() && (button->text() == text || button->accessibleName() == text))
                return button;
        }
        throw std::runtime_error(text.toStdString() + " is not to be seen");
    }

    QWidget *page() const { return m_panel->stack()->page(); }
    void tap(QWidget *target);
    void openTile(const QString &text, const QString &screen);
    void back(const QString &screen);
    void type(const QString &text);
    void expect(const std::function<bool()> &condition, const QString &what) const;
    void expectScreen(const QString &name) const;
    void note(const QString &step) const { m_note(step); }

    PanelWindow *const m_panel;
    Finger m_finger;
    const Note m_note;
};

void Visitor::tap(QWidget *target)
{
    m_finger.tap(target);
    if (!m_finger.lastProblem().isEmpty())
        throw std::runtime_error(m_finger.lastProblem().toStdString());
}

void Visitor::expect(const std::function<bool()> &condition, const QString &what) const
{
    if (!QTest::qWaitFor(condition, 5000))
        throw std::runtime_error("expected " + what.toStdString());
}

void Visitor::expectScreen(const QString &name) const
{
    expect([&] { return m_panel->stack()->name() == name; }, "the screen " + name);
}

void Visitor::openTile(const QString &text, const QString &screen)
{
    tap(seen<VexoDesignVectorButton>(text));
    expectScreen(screen);
    note(text);
}

void Visitor::back(const QString &screen)
{
    tap(seen<QAbstractButton>("Back"));
    expectScreen(screen);
}

void Visitor::type(const QString &text)
{
    for (const QChar letter : text) {
        const QString key(letter);
        const auto keys = page()->findChildren<VexoKeyboardButton *>();
        const auto found = std::find_if(keys.begin(), keys.end(), [&](const auto *each) {
            return each->isVisible() && each->text().compare(key, Qt::CaseInsensitive) == 0;
        });
        if (found == keys.end())
            throw std::runtime_error("no key " + key.toStdString());
        tap(*found);
    }
}

void Visitor::callSomebody()
{
    openTile("Contacts", "contacts");
    auto *list = page()->findChild<RowList *>();
    m_finger.flick(list->viewport(), QPointF(0, -25), 120);
    note("A flick through the list");
    expect([=] { return list->getScroller()->state() == QScroller::Inactive; }, "rest");
    tap(page()->findChild<VexoVerticalButtonScrollArea *>()->findChild<QPushButton *>(
        "letterButton"));
    auto *search = page()->findChild<VexoLineEdit *>();
    tap(search);
    note("The keyboard comes up");
    type("weber");
    expect([=] { return search->text().compare("weber", Qt::CaseInsensitive) == 0; }, "weber");
    expect([=] { return list->model()->rowCount() == 5; }, "five persons");
    note("Five of 300 names");
    const QModelIndex person = list->model()->index(1, 0);
    expect([=] { return list->rowAt(person); }, "a row");
    QTest::qWait(50); // its place is that of the next layout
    tap(list->rowAt(person));
    expect([=] { return m_panel->findChild<PanelDialog *>(); }, "a question");
    note("A question");
    tap(seen<VexoPushButton>("Call"));
    expect([=] { return !m_panel->findChild<PanelDialog *>(); }, "an answer");
    note("A notice");
    back("start");
}

void Visitor::lookThroughTheCamera()
{
    openTile("Camera", "camera");
    const auto *camera = qobject_cast<CameraScreen *>(page());
    tap(seen<QAbstractButton>("Zoom in"));
    tap(seen<QAbstractButton>("Zoom in"));
    expect([=] { return camera->zoom() == 200; }, "twice the size");
    note("Twice as large");
    auto *picture = page()->findChild<VideoCapturePanning *>();
    QTest::qWait(300); // in less, also since it came up, a second touch is a double tap
    m_finger.slide(picture, QPointF(60, 30), QPointF(-20, 10), 250);
    note("Moved by a finger");
    back("start");
}

void Visitor::changeTheLook()
{
    openTile("Settings", "settings");
    tap(seen<VexoFunctionButton>("Night look"));
    expect([=] { return m_panel->isNight(); }, "the night");
    note("By night");
    back("start");
    note("The start by night");
    tap(seen<VexoDesignVectorButton>("Night look"));
    expect([=] { return !m_panel->isNight(); }, "the day");
}

void Visitor::update()
{
    const auto *notice = m_panel->findChild<PanelNotice *>();
    expect([=] { return !notice->isVisible(); }, "that the notice goes, which lies over keys");
    openTile("Update", "pin");
    const auto *field = page()->findChild<VexoLineEdit *>();
    type("1234");
    expect([=] { return field->text().isEmpty(); }, "a refusal, not " + field->text());
    note("A wrong PIN shakes");
    type("2026");
    expectScreen("update");
    QTest::qWait(1500); // so that there is some progress
    note("The update");
}

} // namespace

void walk(PanelWindow *panel, const std::function<void(const QString &step)> &note)
{
    panel->setLanguage("en");
    note("The start");
    Visitor visitor(panel, note);
    visitor.callSomebody();
    visitor.lookThroughTheCamera();
    visitor.changeTheLook();
    visitor.update();
}
