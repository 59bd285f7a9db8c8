// SPDX-License-Identifier: MIT
#include "ui/scrolling/vexoverticalbuttonscrollarea.h"

#include "ui/files/imagefile_p.h"
#include "ui/foundation/languagefollower_p.h"
#include "ui/foundation/pixels_p.h"
#include "ui/foundation/tightlayout_p.h"
#include "ui/scrolling/vexoverticalscrollarea.h"
#include "ui/scrolling/vexoverticalscrollcontent.h"
#include "ui/touch/press_p.h"

#include <QPushButton>
#include <QScrollBar>
#include <QVBoxLayout>

#include <memory>

namespace vexo::hox::qt::ui {

namespace {

const int usual_px = 60;
const int most_px = 1024; // of a side; a bar of such buttons is larger than any screen

/// A stock button, but for the ends of a press.
class JumpButton : public QPushButton
{
public:
    using QPushButton::QPushButton;

protected:
    void mousePressEvent(QMouseEvent *event) override
    {
        if (Press::begin(this, event))
            QPushButton::mousePressEvent(event);
    }

    void mouseReleaseEvent(QMouseEvent *event) override
    {
        if (Press::end(this, *event) != Press::Late)
            QPushButton::mouseReleaseEvent(event);
    }
};

} // namespace

VexoVerticalButtonScrollArea::VexoVerticalButtonScrollArea(
    QWidget *parent, VexoVerticalButtonScrollAreaType type)
    : QWidget(parent)
    , m_scroll_area(new VexoVerticalScrollArea)
    , m_up_button(new JumpButton)
    , m_down_button(new JumpButton)
    , m_type(type)
{
    setupUi();
    qRegisterMetaType<VexoVerticalButtonScrollAreaType>();
    qRegisterMetaType<VexoVerticalButtonScrollAreaType>("VexoVerticalButtonScrollAreaType");
}

void VexoVerticalButtonScrollArea::setType(VexoVerticalButtonScrollAreaType type)
{
    if (type == m_type)
        return;
    m_type = type;
    removeScrollAreaContent();
    addScrollAreaContent();
}

void VexoVerticalButtonScrollArea::addButton(const QString &text)
{
    QLayout *column = this->column();
    if (!column)
        return;
    auto *button = new JumpButton(tr(text.toUtf8().constData()));
    button->setFixedSize(m_button_px);
    button->setObjectName(QStringLiteral("letterButton"));
    column->addWidget(button);
}

void VexoVerticalButtonScrollArea::addAlphabeticButtons(bool with_hash)
{
    if (with_hash)
        addButton(QStringLiteral("#"));
    for (char letter = 'A'; letter <= 'Z'; ++letter)
        addButton(QString(QLatin1Char(letter)));
}

void VexoVerticalButtonScrollArea::addNumericButtons()
{
    for (int digit = 0; digit <= 9; ++digit)
        addButton(QString::number(digit));
}

void VexoVerticalButtonScrollArea::addScrollAreaContent()
{
    switch (m_type) {
    case VexoVerticalButtonScrollAreaType::None:
        break;
    case VexoVerticalButtonScrollAreaType::Alphabetic:
        addAlphabeticButtons(false);
        break;
    case VexoVerticalButtonScrollAreaType::Numbers:
        addNumericButtons();
        break;
    case VexoVerticalButtonScrollAreaType::AlphabeticWithHash:
        addAlphabeticButtons(true);
        break;
    }
}

void VexoVerticalButtonScrollArea::removeScrollAreaContent()
{
    QLayout *column = this->column();
    while (column && column->count() > 0) {
        const std::unique_ptr<QLayoutItem> item(column->takeAt(0));
        delete item->widget();
    }
}

void VexoVerticalButtonScrollArea::setButtonConnection(
    QObject *receiver, std::function<void()> handler) // NOLINT(performance-unnecessary-value-param)
{
    if (!receiver || !handler || !m_scroll_area)
        return;
    const QList<QPushButton *> buttons = m_scroll_area->findChildren<QPushButton *>();
    for (QPushButton *button : buttons)
        connect(button, &QPushButton::clicked, receiver, handler);
}

VexoVerticalScrollArea *VexoVerticalButtonScrollArea::verticalScrollArea() const
{
    return m_scroll_area;
}

void VexoVerticalButtonScrollArea::setUpIcon(const QIcon &icon)
{
    m_up_icon = icon;
    m_up_button->setIcon(icon);
}

void VexoVerticalButtonScrollArea::setDownIcon(const QIcon &icon)
{
    m_down_icon = icon;
    m_down_button->setIcon(icon);
}

void VexoVerticalButtonScrollArea::setNavigationButtonVisibility(bool visible)
{
    m_up_button->setVisible(visible);
    m_down_button->setVisible(visible);
}

void VexoVerticalButtonScrollArea::setMmButtonSize(const QSizeF &mm)
{
    if (!isMeasure(mm))
        return;
    m_mm_button_size = mm;
    const QSize px = pxSize(*ScalingInfo::inst(), mm).boundedTo(QSize(most_px, most_px));
    m_button_px = px.isEmpty() ? QSize(usual_px, usual_px) : px;
    setFixedWidth(m_button_px.width());
    const double icon_mm = qMin(mm.width(), mm.height()) / 2;
    const QSize icon_px
        = pxSize(*ScalingInfo::inst(), QSizeF(icon_mm, icon_mm)).boundedTo(m_button_px / 2);
    for (QPushButton *button : { m_up_button, m_down_button }) {
        button->setFixedSize(m_button_px);
        button->setIconSize(icon_px.isEmpty() ? QSize() : icon_px); // that of the style
    }
    const auto letters = findChildren<QPushButton *>(QStringLiteral("letterButton"));
    for (QPushButton *button : letters)
        button->setFixedSize(m_button_px);
}

void VexoVerticalButtonScrollArea::onUpButtonClicked()
{
    page(-1);
}

void VexoVerticalButtonScrollArea::onDownButtonClicked()
{
    page(1);
}

void VexoVerticalButtonScrollArea::page(int direction)
{
    if (!m_scroll_area)
        return;
    QScrollBar *bar = m_scroll_area->verticalScrollBar();
    bar->setValue(bar->value() + direction * m_button_px.height() * 5 / 2);
}

// Null when an application, which is handed the scroll area, deleted it or what it shows.
QLayout *VexoVerticalButtonScrollArea::column() const
{
    return m_scroll_area && m_scroll_area->widget() ? m_scroll_area->widget()->layout() : nullptr;
}

void VexoVerticalButtonScrollArea::setupUi()
{
    setFixedWidth(usual_px);
    auto *outer = new QVBoxLayout(this);
    tighten(outer);
    tighten(new QVBoxLayout(m_scroll_area));
    m_scroll_area->setWidget(new VexoVerticalScrollContent);
    outer->addWidget(m_up_button);
    outer->addWidget(m_scroll_area);
    outer->addWidget(m_down_button);
    const auto kind = ImageFile::Kind::Vector;
    setUpIcon(ImageFile(QStringLiteral(":widgetimages/back.svg"), kind).icon());
    setDownIcon(ImageFile(QStringLiteral(":widgetimages/forward.svg"), kind).icon());
    m_up_button->setObjectName(QStringLiteral("upButton"));
    followLanguage(m_up_button, "accessibleName", [] { return tr("Up"); });
    m_down_button->setObjectName(QStringLiteral("downButton"));
    followLanguage(m_down_button, "accessibleName", [] { return tr("Down"); });
    m_up_button->setFixedSize(m_button_px);
    m_down_button->setFixedSize(m_button_px);
    addScrollAreaContent();
    connect(
        m_up_button, &QPushButton::clicked, this, &VexoVerticalButtonScrollArea::onUpButtonClicked);
    connect(m_down_button, &QPushButton::clicked, this,
        &VexoVerticalButtonScrollArea::onDownButtonClicked);
}

} // namespace vexo::hox::qt::ui
