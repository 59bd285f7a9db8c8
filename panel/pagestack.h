#pragma once
// SPDX-License-Identifier: MIT

#include "panel/hoxqpanel_export.h"

#include <QPointer>
#include <QString>
#include <QStringList>
#include <QWidget>

#include <functional>
#include <map>

class QLabel;

namespace vexo::hox::qt::panel {

/// The pages of an application, of which one is shown, with the way back. A page is made when it is
/// first shown and as large as the stack; one that is dropped when it is left is made anew next
/// time, so an application of many pages needs the memory of few. A change of the page paints the
/// new one once. The focus of a page that is left goes to the stack, which goes back at
/// Qt::Key_Back.
///
/// Pages and stack may be deleted at any time, a page also by a slot of its own that opens another
/// one. Assistive technology reads a page without a name of its own by its window title, or else by
/// the name that it has here.
class HOXQPANEL_EXPORT PageStack : public QWidget
{
    Q_OBJECT

    /// How long the page that is left takes to slide away from the new one, ms: to the left, on the
    /// way back to the right. It is a picture then and takes no touches. Default 0: it is gone at
    /// once, as is best on a slow panel. Less counts as 0.
    Q_PROPERTY(int m_slide_ms READ slideMs WRITE setSlideMs)

public:
    /// What becomes of a page that is left.
    enum Life {
        Kept, ///< it is only hidden
        Dropped ///< it is deleted, as soon as the event loop runs
    };
    Q_ENUM(Life)

    using Make = std::function<QWidget *()>;

    explicit PageStack(QWidget *parent = nullptr);
    ~PageStack() override;

    int slideMs() const { return m_slide_ms; }
    void setSlideMs(int ms);

    /// Lets open(\a name) show what \a make returns, which the stack owns from then on. A second
    /// page of this name takes the place of the first, which is deleted, when it is shown as soon
    /// as it is left. Nothing is shown before open().
    void addPage(const QString &name, const Make &make, Life life = Kept);

    /// Shows the page \a name, and remembers the one that was shown for back(). False, and nothing
    /// has changed, when there is no such page, it is shown already or its function returns null;
    /// what that throws comes out of here, and nothing has changed either.
    bool open(const QString &name);
    /// The page that is shown; null before the first open() and when it was deleted.
    QWidget *page() const;
    /// Its name; empty before the first open().
    QString name() const { return m_name; }
    /// Whether there is a page to go back to.
    bool canGoBack() const { return !m_history.isEmpty(); }

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

public Q_SLOTS:
    /// Shows the page from which this one was opened. Without one nothing happens.
    void back();
    /// Shows the page that was opened first, and forgets the way.
    void home();

Q_SIGNALS:
    /// The page \a name has come up.
    void opened(const QString &name);
    /// There is a way back now, or none any more.
    void canGoBackChanged(bool can);

protected:
    void resizeEvent(QResizeEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;

private:
    struct Page
    {
        Make make;
        Life life = Kept;
        QPointer<QWidget> widget; // null until it is shown
        bool is_replaced = false; // by another of this name, while it is shown
    };

    QWidget *made(const QString &name, Page &page);
    bool goTo(const QString &name, const QStringList &history, bool is_back);
    void leave(bool is_back);
    void slideAway(QWidget *page, bool is_back);

    std::map<QString, Page> m_pages;
    QStringList m_history; // names, the latest last
    QString m_name;
    int m_slide_ms = 0;
    QPointer<QLabel> m_curtain; // picture of the page that slides away
};

} // namespace vexo::hox::qt::panel
