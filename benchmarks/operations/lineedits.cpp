// SPDX-License-Identifier: MIT
#include "benchmarks/operations/operations.h"
#include "benchmarks/operations/panel.h"

#include <QApplication>
#include <QLineEdit>
#include <QTimer>
#include <QTimerEvent>
#include <ScalingInfo>
#include <VexoLineEdit>

#include <memory>

using namespace vexo::hox::qt::ui;

namespace bench {

namespace {

const QSize field_px(600, 61);

// Both hold half of what is expected.
QWidget *makeLibraryEdit(QWidget *parent)
{
    auto *edit = new VexoLineEdit(parent);
    edit->setUnderscores(8);
    edit->setText(QStringLiteral("2026"));
    return edit;
}

QWidget *makeStockEdit(QWidget *parent)
{
    auto *edit = new QLineEdit(parent);
    QFont font = edit->font();
    font.setPixelSize(31); // 9 pt
    font.setWeight(QFont::Medium);
    edit->setFont(font);
    edit->setPlaceholderText(QStringLiteral("_ _ _ _ _ _ _ _"));
    edit->setText(QStringLiteral("2026"));
    return edit;
}

// A visible field.
struct Form : Panel
{
    Form(const char *style_sheet, const Make &make)
        : Panel(style_sheet, make, 1, field_px)
        , edit(static_cast<QLineEdit *>(widget()))
    {
    }

    QLineEdit *edit;
};

// Takes the timer that blinks the toolkit's cursor from its first timeout.
class BlinkTimer : public QObject
{
public:
    explicit BlinkTimer(QLineEdit *edit)
    {
        for (QObject *child : edit->children()) {
            if (child->inherits("QWidgetLineControl"))
                m_control = child;
        }
        if (!m_control)
            qFatal("this toolkit keeps its cursor elsewhere");
        m_control->installEventFilter(this);
        edit->activateWindow();
        edit->setFocus();
        while (m_id == 0)
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    }

    void tick()
    {
        QTimerEvent event(m_id);
        QCoreApplication::sendEvent(m_control, &event);
        QCoreApplication::processEvents();
    }

protected:
    bool eventFilter(QObject *, QEvent *event) override
    {
        if (event->type() == QEvent::Timer && m_id == 0)
            m_id = static_cast<QTimerEvent *>(event)->timerId();
        return false;
    }

private:
    QObject *m_control = nullptr;
    int m_id = 0;
};

void addEdit(const char *variant, const char *style_sheet, const Make &make)
{
    addWidget("edit", variant, style_sheet, make, field_px, nullptr);
    const auto form = [=] { return std::make_shared<Form>(style_sheet, make); };
    add("edit-secret", variant, [=](int) {
        const auto secret = form();
        if (auto *field = qobject_cast<VexoLineEdit *>(secret->edit))
            field->setDrawPasswordSecured(true);
        else
            secret->edit->setEchoMode(QLineEdit::Password);
        return [secret] { secret->edit->repaint(); };
    });
    add("edit-type", variant, [=](int) {
        return [form = form()] {
            form->edit->insert(QStringLiteral("5"));
            QCoreApplication::processEvents();
            form->edit->backspace();
            QCoreApplication::processEvents();
        };
    });
}

void addStockBlink(const char *variant, const char *style_sheet)
{
    add("edit-blink", variant, [=](int) {
        const auto form = std::make_shared<Form>(style_sheet, makeStockEdit);
        return [form, timer = std::make_shared<BlinkTimer>(form->edit)] { timer->tick(); };
    });
}

void addLibraryBlink()
{
    add("edit-blink", "library", [](int) {
        const auto form = std::make_shared<Form>("", makeLibraryEdit);
        static_cast<VexoLineEdit *>(form->edit)->setCursorState(true);
        form->edit->repaint();
        return [form, timer = form->edit->findChild<QTimer *>()] {
            QMetaObject::invokeMethod(timer, "timeout");
            QCoreApplication::processEvents();
        };
    });
}

} // namespace

void addLineEdits()
{
    const char *const style_sheet
        = "QLineEdit { background: #ffffff; color: #3c3c3c; border: 2px solid #b4b4b4;"
          " border-radius: 30px; padding: 0 28px; }";
    ScalingInfo::inst()->setPixels(1280, 800);
    ScalingInfo::inst()->setSizeMM(128, 80); // 10 px/mm
    addEdit("library", "", makeLibraryEdit);
    addEdit("stock", "", makeStockEdit);
    addEdit("styled", style_sheet, makeStockEdit);
    addLibraryBlink();
    addStockBlink("stock", "");
    addStockBlink("styled", style_sheet);
}

} // namespace bench
