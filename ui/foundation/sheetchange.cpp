// SPDX-License-Identifier: MIT
#include "ui/foundation/sheetchange_p.h"

#include <QApplication>
#include <QPair>
#include <QPointer>
#include <QSet>
#include <QStyle>
#include <QVector>
#include <QWidget>

namespace vexo::hox::qt::ui {

namespace {

/// The toolkit asks for its class only where the application has a font for widgets of some class.
class FontProbe : public QWidget
{
public:
    const QMetaObject *metaObject() const override
    {
        m_is_asked = true;
        return QWidget::metaObject();
    }

    bool isAskedForFont()
    {
        m_is_asked = false;
        static_cast<void>(QApplication::font(this));
        return m_is_asked;
    }

private:
    mutable bool m_is_asked = false;
};

// The toolkit forgets fonts of classes whenever its style changes, and does not bring a widget with
// a style of its own back under the sheet. What lies in a sheet of its own is styled twice.
bool mayBeEmptied()
{
    if (FontProbe().isAskedForFont())
        return false;
    const QWidgetList widgets = QApplication::allWidgets();
    int others = 0;
    for (const QWidget *widget : widgets) {
        if (widget->testAttribute(Qt::WA_SetStyle))
            return false;
        others += widget->style() != QApplication::style();
    }
    return others <= widgets.size() / 8;
}

/// Holds back what widgets are told of their look while it lives. In the end those are told whose
/// colours or font have changed; of the style they hear with the next sheet.
class Silence : public QObject
{
public:
    Silence() { qApp->installEventFilter(this); }

    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (!watched->isWidgetType())
            return false;
        const QEvent::Type type = event->type();
        const bool is_lasting = type == QEvent::PaletteChange || type == QEvent::FontChange;
        if (is_lasting && !m_known.contains({ watched, type })) {
            m_known.insert({ watched, type });
            m_held.append({ static_cast<QWidget *>(watched), type });
        }
        return is_lasting || type == QEvent::StyleChange;
    }

    void end() { qApp->removeEventFilter(this); }

    void tell()
    {
        for (const Held &held : qAsConst(m_held)) {
            QEvent event(held.type);
            if (held.widget)
                QCoreApplication::sendEvent(held.widget, &event);
        }
    }

private:
    struct Held
    {
        QPointer<QWidget> widget;
        QEvent::Type type;
    };

    QVector<Held> m_held;
    QSet<QPair<QObject *, QEvent::Type>> m_known; // by both
};

} // namespace

void changeSheet(const QString &sheet)
{
    if (sheet.isEmpty() || qApp->styleSheet().isEmpty() || !mayBeEmptied()) {
        qApp->setStyleSheet(sheet);
        return;
    }
    Silence silence;
    qApp->setStyleSheet(QString());
    silence.end();
    qApp->setStyleSheet(sheet);
    silence.tell();
}

} // namespace vexo::hox::qt::ui
