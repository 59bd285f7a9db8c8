// SPDX-License-Identifier: MIT
#include "ui/buttons/activebutton.h"

#include "ui/files/imagefile_p.h"
#include "ui/foundation/withoutrepaint_p.h"
#include "ui/painting/iconpixmap_p.h"

#include <QEvent>
#include <QPointer>

namespace vexo::hox::qt::ui {

const char *ActiveButton::DEFAULT_STATE_NAME = "DEFAULT";
const char *ActiveButton::CLICKED_STATE_NAME = "CLICKED";
const char *ActiveButton::INACTIVE_STATE_NAME = "INACTIVE";
const char *ActiveButton::TEMPORARY_STATE_NAME = "TEMPORARY";
const char *ActiveButton::ALTERNATIVE_STATE_NAME = "ALTERNATIVE";
const char *ActiveButton::BLINKING_STATE_NAME = "BLINKING";

ActiveButton::ActiveButton(QWidget *parent)
    : MeasuredPushButton(parent)
{
    const int one_shot_ms = 1000;
    setFocusPolicy(Qt::NoFocus);
    m_one_shot_timer.setSingleShot(true);
    m_one_shot_timer.setTimerType(Qt::PreciseTimer);
    m_one_shot_timer.setInterval(one_shot_ms);
    connect(&m_one_shot_timer, &QTimer::timeout, this, &ActiveButton::timeout);
}

void ActiveButton::setTimer(const QTimer *timer)
{
    if (timer)
        connect(timer, &QTimer::timeout, this, QOverload<>::of(&ActiveButton::timerEvent));
}

void ActiveButton::addIcon(const QString &state, const QString &file)
{
    if (!hasState(state))
        m_state_icons.insert(state, compute(file));
    m_state_files.insert(state, file);
    if (state == QLatin1String(DEFAULT_STATE_NAME)) {
        setIcon(m_state_icons.value(state));
        m_state = state;
    }
}

void ActiveButton::addInverseIcon(const QString &state, const QString &file)
{
    m_inverse_icons.insert(state, compute(file));
    m_inverse_files.insert(state, file);
}

void ActiveButton::createMissingInverseIcons()
{
    const QHash<QString, QIcon> icons = m_state_icons; // an override may add or remove icons
    for (auto icon = icons.cbegin(); icon != icons.cend(); ++icon) {
        if (!m_inverse_icons.contains(icon.key()) && !m_inverse_files.contains(icon.key()))
            m_inverse_icons.insert(icon.key(), generateInverseIcon(icon.value()));
    }
}

void ActiveButton::setState(const QString &state)
{
    if (m_inverse && m_inverse_icons.contains(state)) {
        showSteadily(state, m_inverse_icons.value(state));
    } else if (m_state_icons.contains(state)) {
        showSteadily(state, m_state_icons.value(state));
    } else if (m_inverse_icons.contains(state)) {
        if (m_mode == Mode::OneShot)
            endOneShot();
        m_inverse_icon_state = state;
        m_state = state;
    }
}

bool ActiveButton::hasState(const QString &state) const
{
    return m_state_icons.contains(state);
}

void ActiveButton::blink(const QString &state1, const QString &state2)
{
    log("Blink ", state1, " <-> ", state2);
    if (!hasIcons(state1, state2))
        return;
    m_one_shot_timer.stop();
    m_first_state = state1;
    m_second_state = state2;
    m_mode = Mode::FirstDue;
    timerEvent();
}

void ActiveButton::oneShot(const QString &state1, const QString &state2)
{
    log("One shot ", state1, " -> ", state2);
    if (!hasIcons(state1, state2))
        return;
    showState(state1);
    m_state = state1;
    m_first_state = state1;
    m_second_state = state2;
    m_mode = Mode::OneShot;
    m_one_shot_timer.start();
}

bool ActiveButton::inverseState() const
{
    return m_inverse;
}

void ActiveButton::setInverseState(bool inverse)
{
    m_inverse = inverse;
}

void ActiveButton::removeIcons()
{
    m_state_icons.clear();
    m_state_files.clear();
    m_inverse_icons.clear();
}

void ActiveButton::removeIcon(const QString &state)
{
    m_state_icons.remove(state);
    m_state_files.remove(state);
    m_inverse_icons.remove(state);
}

void ActiveButton::timeout()
{
    showState(m_second_state);
    m_mode = Mode::Steady;
}

void ActiveButton::timerEvent()
{
    forgetInverseIcon();
    if (m_mode == Mode::FirstDue && showState(m_first_state))
        m_mode = Mode::SecondDue;
    else if (m_mode == Mode::SecondDue && showState(m_second_state))
        m_mode = Mode::FirstDue;
}

QIcon ActiveButton::compute(const QString &file)
{
    return ImageFile(file, ImageFile::Kind::Any).icon();
}

QIcon ActiveButton::generateInverseIcon(const QIcon &icon)
{
    const bool has_sharp_screen = sharpestRatio() > 1;
    QIcon inverse;
    const QList<QSize> sizes = icon.availableSizes(QIcon::Normal, QIcon::Off);
    for (const QSize &px : sizes) {
        inverse.addPixmap(inverted(iconPixmap(icon, px, 1)));
        if (!has_sharp_screen)
            break; // the others are of earlier sizes
    }
    return inverse;
}

void ActiveButton::updateStateVisualization(bool checked)
{
    setState(QLatin1String(checked ? CLICKED_STATE_NAME : DEFAULT_STATE_NAME));
}

QIcon ActiveButton::getStateIcon(const QString &state) const
{
    return hasState(state) ? m_state_icons.value(state) : QIcon();
}

QIcon ActiveButton::inverseIcon()
{
    const QIcon *icon
        = getInverseIconObject(m_inverse_icon_state.isEmpty() ? m_state : m_inverse_icon_state);
    return icon ? *icon : QIcon();
}

const QIcon *ActiveButton::getInverseIconObject(const QString &state)
{
    const auto inverse = m_inverse_icons.constFind(state);
    if (inverse != m_inverse_icons.constEnd())
        return &inverse.value();
    const auto icon = m_state_icons.constFind(state);
    return hasState(state) && icon != m_state_icons.constEnd() ? &icon.value() : nullptr;
}

void ActiveButton::rerenderAll(bool create_inverse)
{
    const QHash<QString, QString> files = m_state_files; // an override may add or remove icons
    for (auto file = files.cbegin(); file != files.cend(); ++file)
        m_state_icons.insert(file.key(), compute(file.value()));
    const QHash<QString, QString> inverse_files = m_inverse_files;
    for (auto file = inverse_files.cbegin(); file != inverse_files.cend(); ++file)
        m_inverse_icons.insert(file.key(), compute(file.value()));
    if (create_inverse)
        createMissingInverseIcons();
    setState(m_state);
}

bool ActiveButton::event(QEvent *event)
{
    if (event->type() == QEvent::ToolTipChange)
        takeNameFromTooltip();
    return MeasuredPushButton::event(event);
}

void ActiveButton::checkStateSet()
{
    if (isChecked() == m_checked)
        return;
    m_checked = isChecked();
    updateStateVisualization(m_checked);
    Q_EMIT stateChanged(m_checked);
}

void ActiveButton::nextCheckState()
{
    const QPointer<ActiveButton> self(this);
    MeasuredPushButton::nextCheckState();
    if (self)
        checkStateSet(); // for a touch the toolkit leaves it out
}

bool ActiveButton::hasIcons(const QString &state1, const QString &state2) const
{
    return m_state_icons.contains(state1) && m_state_icons.contains(state2);
}

bool ActiveButton::showState(const QString &state)
{
    const auto icon = m_state_icons.constFind(state);
    const QIcon *plain = icon != m_state_icons.constEnd() ? &icon.value() : nullptr;
    const QIcon *inverse = inverseState() ? getInverseIconObject(state) : nullptr;
    const QIcon *shown = inverse ? inverse : plain;
    if (!shown)
        return false;
    showIcon(*shown);
    m_inverse_icon_state = state;
    return true;
}

void ActiveButton::showIcon(const QIcon &icon)
{
    if (m_icon_area.isNull()) {
        setIcon(icon);
        return;
    }
    withoutRepaint(this, [this, &icon] { setIcon(icon); });
    update(m_icon_area);
}

void ActiveButton::showSteadily(const QString &state, const QIcon &icon)
{
    endOneShot();
    m_inverse_icon_state = state;
    if (icon.cacheKey() != this->icon().cacheKey())
        setIcon(icon); // the toolkit lays out all that lies in the same layout anew
    else
        update();
    m_state = state;
}

void ActiveButton::endOneShot()
{
    m_mode = Mode::Steady;
    m_one_shot_timer.stop();
}

void ActiveButton::forgetInverseIcon()
{
    const bool is_other = !m_inverse_icon_state.isEmpty() && m_inverse_icon_state != m_state;
    m_inverse_icon_state.clear();
    if (is_other && m_mode == Mode::Steady && (isDown() || isChecked()))
        update(); // the inverse icon is what a pressed button draws
}

void ActiveButton::takeNameFromTooltip()
{
    if (accessibleName() != m_tooltip_name || !text().isEmpty())
        return;
    m_tooltip_name = toolTip();
    setAccessibleName(m_tooltip_name);
}

void ActiveButton::log(
    const char *what, const QString &state1, const char *arrow, const QString &state2)
{
    if (isDebugging())
        Debug(what + state1.toStdString() + arrow + state2.toStdString());
}

} // namespace vexo::hox::qt::ui
