// SPDX-License-Identifier: MIT
#include "uitest/touchtarget_p.h"

#include "ui/buttons/vexocheckbox.h"
#include "ui/buttons/vexofunctionbutton.h"
#include "ui/buttons/vexoradiobutton.h"
#include "uitest/widgetwalk_p.h"

#include <QAbstractItemView>
#include <QAbstractSpinBox>
#include <QComboBox>
#include <QDial>
#include <QGroupBox>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QMetaMethod>
#include <QPlainTextEdit>
#include <QScrollBar>
#include <QScroller>
#include <QSizeGrip>
#include <QSplitter>
#include <QStackedWidget>
#include <QStyleOptionComplex>
#include <QTabBar>
#include <QTabWidget>
#include <QTextEdit>

namespace vexo::hox::qt::uitest {

namespace {

using Parts = QVector<TouchPart>;

const int most_parts = 200; // of one widget; more would not fit on a screen

Parts whole(const QWidget *widget)
{
    return { { widget->rect(), QString() } };
}

QRect subControl(const QWidget *widget, const QStyleOptionComplex &option,
    QStyle::ComplexControl control, QStyle::SubControl part)
{
    return widget->style()->subControlRect(control, &option, part, widget);
}

// The first and the last place of a line through \a hit at which \a isHit, px.
template <typename Hit>
QPair<int, int> reachAlong(int hit, int end, Hit isHit)
{
    int first = hit;
    int last = hit;
    while (first > 0 && isHit(first - 1))
        --first;
    while (last + 1 < end && isHit(last + 1))
        ++last;
    return { first, last };
}

// Some buttons, such as a stock check box, leave a part of their rectangle out.
Parts hitPart(const QWidget *widget)
{
    struct Access : QAbstractButton
    {
        using QAbstractButton::hitButton;
    };
    const auto *button = static_cast<const QAbstractButton *>(widget);
    const auto hits = [=](int x, int y) { return (button->*&Access::hitButton)(QPoint(x, y)); };
    const QRect all = widget->rect();
    if (all.isEmpty() || (hits(0, 0) && hits(all.right(), 0) && hits(all.right(), all.bottom())))
        return whole(widget);
    const int middle = all.height() / 2;
    for (const int x : { all.width() / 2, all.height() / 2, all.right() - all.height() / 2 }) {
        if (!hits(x, middle))
            continue;
        const auto across = reachAlong(x, all.width(), [&](int at) { return hits(at, middle); });
        const auto down = reachAlong(middle, all.height(), [&](int at) { return hits(x, at); });
        return { { QRect(QPoint(across.first, down.first), QPoint(across.second, down.second)),
            QString() } };
    }
    return whole(widget);
}

// With a tick box only that reacts.
Parts rowPart(const QWidget *widget)
{
    const int type = widget->property("m_button_type").toInt();
    return type == ui::VexoFunctionButton::TickAgreementType ? Parts() : whole(widget);
}

template <typename Slider>
QStyleOptionSlider sliderOption(const QWidget *widget)
{
    struct Access : Slider
    {
        using Slider::initStyleOption;
    };
    QStyleOptionSlider option;
    (static_cast<const Slider *>(widget)->*&Access::initStyleOption)(&option);
    return option;
}

Parts handle(const QWidget *widget)
{
    if (!qobject_cast<const QSlider *>(widget))
        return whole(widget);
    const QStyleOptionSlider option = sliderOption<QSlider>(widget);
    const QRect px = subControl(widget, option, QStyle::CC_Slider, QStyle::SC_SliderHandle);
    return { { px, QStringLiteral("handle") } };
}

// Of a list that a finger moves the scroll bar only shows where it is.
Parts barHandle(const QWidget *widget)
{
    const auto *bar = static_cast<const QScrollBar *>(widget);
    for (QWidget *area = widget->parentWidget(); area; area = area->parentWidget()) {
        const auto *scrolled = qobject_cast<const QAbstractScrollArea *>(area);
        if (!scrolled)
            continue;
        if (QScroller::hasScroller(area) || QScroller::hasScroller(scrolled->viewport()))
            return Parts();
        break;
    }
    if (bar->maximum() <= bar->minimum())
        return Parts();
    const QStyleOptionSlider option = sliderOption<QScrollBar>(widget);
    const QRect px = subControl(widget, option, QStyle::CC_ScrollBar, QStyle::SC_ScrollBarSlider);
    return { { px, QStringLiteral("handle") } };
}

Parts field(const QWidget *widget)
{
    return static_cast<const QLineEdit *>(widget)->isReadOnly() ? Parts() : whole(widget);
}

// One that only shows a text is scrolled, no more.
template <typename Edit>
Parts editor(const QWidget *widget)
{
    const bool is_typed
        = static_cast<const Edit *>(widget)->textInteractionFlags() & Qt::TextEditable;
    return is_typed ? whole(widget) : Parts();
}

Parts comboParts(const QWidget *widget)
{
    struct Access : QComboBox
    {
        using QComboBox::initStyleOption;
    };
    const auto *combo = static_cast<const QComboBox *>(widget);
    if (!combo->isEditable())
        return whole(widget);
    QStyleOptionComboBox option;
    (combo->*&Access::initStyleOption)(&option);
    const QRect px = subControl(widget, option, QStyle::CC_ComboBox, QStyle::SC_ComboBoxArrow);
    return { { px, QStringLiteral("arrow") } };
}

// Its field is a widget of its own.
Parts spinParts(const QWidget *widget)
{
    struct Access : QAbstractSpinBox
    {
        using QAbstractSpinBox::initStyleOption;
    };
    const auto *spin = static_cast<const QAbstractSpinBox *>(widget);
    if (spin->buttonSymbols() == QAbstractSpinBox::NoButtons)
        return Parts();
    QStyleOptionSpinBox option;
    (spin->*&Access::initStyleOption)(&option);
    return { { subControl(widget, option, QStyle::CC_SpinBox, QStyle::SC_SpinBoxUp),
                 QStringLiteral("upper button") },
        { subControl(widget, option, QStyle::CC_SpinBox, QStyle::SC_SpinBoxDown),
            QStringLiteral("lower button") } };
}

Parts checkPart(const QWidget *widget)
{
    struct Access : QGroupBox
    {
        using QGroupBox::initStyleOption;
    };
    const auto *box = static_cast<const QGroupBox *>(widget);
    if (!box->isCheckable())
        return Parts();
    QStyleOptionGroupBox option;
    (box->*&Access::initStyleOption)(&option);
    const QRect px = subControl(widget, option, QStyle::CC_GroupBox, QStyle::SC_GroupBoxCheckBox)
        | subControl(widget, option, QStyle::CC_GroupBox, QStyle::SC_GroupBoxLabel);
    return { { px, QStringLiteral("check box") } };
}

Parts sections(const QWidget *widget)
{
    const auto *header = static_cast<const QHeaderView *>(widget);
    Parts parts;
    for (int i = 0; header->sectionsClickable() && i < qMin(header->count(), most_parts); ++i) {
        const int at = header->sectionViewportPosition(i);
        const int length = header->sectionSize(i);
        const QRect px = header->orientation() == Qt::Horizontal
            ? QRect(at, 0, length, header->height())
            : QRect(0, at, header->width(), length);
        if (!header->isSectionHidden(i) && px.intersects(header->rect()))
            parts.append({ px, QStringLiteral("section") });
    }
    return parts;
}

// A row that is shown in part can be moved into view.
Parts items(const QWidget *widget)
{
    const auto *view = static_cast<const QAbstractItemView *>(widget);
    const QRect shown = view->viewport()->rect();
    const QPoint corner = view->viewport()->pos();
    Parts parts;
    QModelIndex index = view->indexAt(shown.topLeft() + QPoint(1, 1));
    while (index.isValid() && parts.size() < most_parts) {
        const QRect px = view->visualRect(index);
        if (!px.intersects(shown))
            break;
        if (index.flags() & Qt::ItemIsEnabled)
            parts.append({ px.translated(corner), QStringLiteral("item") });
        index = view->indexAt(QPoint(px.left() + 1, px.bottom() + 2));
    }
    return parts;
}

Parts tabs(const QWidget *widget)
{
    const auto *bar = static_cast<const QTabBar *>(widget);
    Parts parts;
    for (int i = 0; i < bar->count(); ++i) {
        if (bar->isTabEnabled(i) && bar->tabRect(i).intersects(bar->rect()))
            parts.append({ bar->tabRect(i), QStringLiteral("tab") });
    }
    return parts;
}

template <typename Menu>
Parts entries(const QWidget *widget)
{
    const auto *menu = static_cast<const Menu *>(widget);
    const QList<QAction *> actions = menu->actions();
    Parts parts;
    for (QAction *action : actions) {
        if (action->isVisible() && action->isEnabled() && !action->isSeparator())
            parts.append({ menu->actionGeometry(action), QStringLiteral("entry") });
    }
    return parts;
}

struct Known
{
    const QMetaObject *base;
    Parts (*parts)(const QWidget *);
};

// The first line counts whose class a widget has.
const Known *known(const QWidget *widget)
{
    static const Known table[] = { { &ui::VexoFunctionButton::staticMetaObject, rowPart },
        { &ui::VexoCheckBox::staticMetaObject, whole },
        { &ui::VexoRadioButton::staticMetaObject, whole },
        { &QAbstractButton::staticMetaObject, hitPart },
        { &QScrollBar::staticMetaObject, barHandle }, { &QDial::staticMetaObject, whole },
        { &QAbstractSlider::staticMetaObject, handle }, { &QLineEdit::staticMetaObject, field },
        { &QComboBox::staticMetaObject, comboParts },
        { &QAbstractSpinBox::staticMetaObject, spinParts },
        { &QGroupBox::staticMetaObject, checkPart }, { &QHeaderView::staticMetaObject, sections },
        { &QAbstractItemView::staticMetaObject, items }, { &QTabBar::staticMetaObject, tabs },
        { &QMenuBar::staticMetaObject, entries<QMenuBar> },
        { &QMenu::staticMetaObject, entries<QMenu> }, { &QSplitterHandle::staticMetaObject, whole },
        { &QSizeGrip::staticMetaObject, whole },
        { &QTextEdit::staticMetaObject, editor<QTextEdit> },
        { &QPlainTextEdit::staticMetaObject, editor<QPlainTextEdit> } };
    for (const Known &line : table) {
        if (line.base->cast(widget))
            return &line;
    }
    return nullptr;
}

// These take the focus for the keys, not for a press.
bool isGround(const QWidget *widget)
{
    return widget->isWindow() || qobject_cast<const QLabel *>(widget)
        || qobject_cast<const QAbstractScrollArea *>(widget)
        || qobject_cast<const QTabWidget *>(widget) || qobject_cast<const QStackedWidget *>(widget)
        || qobject_cast<const QMainWindow *>(widget);
}

bool hasPressSignal(const QMetaObject *meta)
{
    for (int i = QWidget::staticMetaObject.methodCount(); i < meta->methodCount(); ++i) {
        const QMetaMethod method = meta->method(i);
        const QByteArray name = method.name();
        if (method.methodType() == QMetaMethod::Signal
            && (name == "clicked" || name == "pressed" || name == "tapped"))
            return true;
    }
    return false;
}

} // namespace

bool reactsToPress(const QWidget *widget)
{
    if (const Known *line = known(widget))
        return !line->parts(widget).isEmpty();
    const bool takes_focus = (widget->focusPolicy() & Qt::ClickFocus) && !isGround(widget);
    return takes_focus || hasPressSignal(widget->metaObject());
}

bool includesItsChildren(const QWidget *widget)
{
    return qobject_cast<const QAbstractButton *>(widget);
}

bool isGuessed(const QWidget *widget)
{
    return !known(widget);
}

QVector<TouchPart> touchParts(const QWidget *widget)
{
    const Known *line = known(widget);
    return line ? line->parts(widget) : whole(widget);
}

} // namespace vexo::hox::qt::uitest
