// SPDX-License-Identifier: MIT
#include "gallery/pages/listspage.h"

#include "gallery/measures.h"
#include "gallery/widgets/fingerscroll.h"
#include "gallery/widgets/ground.h"

#include <CachedVectorIcon>
#include <RowList>
#include <VexoCheckBox>
#include <VexoColors>
#include <VexoRadioButton>
#include <VexoRuler>
#include <VexoSlider>
#include <VexoSliderDecoration>

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

using namespace vexo::hox::qt::ui;

namespace {

const double indent_in_mm = 3; // of all texts, as of the rows
const double bar_in_mm = 12;

QLabel *createIndentedText(const QString &text, double pt, int weight)
{
    auto *label = new QLabel(text);
    label->setFont(ptFont(pt, weight));
    label->setIndent(mmX(indent_in_mm));
    return label;
}

QHBoxLayout *createRow(QWidget *parent)
{
    auto *row = new QHBoxLayout(parent);
    row->setContentsMargins(0, 0, mmX(indent_in_mm), 0);
    row->setSpacing(mmX(2));
    return row;
}

// Of one line, as between the other parts of the screen.
QWidget *createSeparator()
{
    auto *ruler = new VexoRuler;
    ruler->setFirstLineColor(VexoColors::C13);
    ruler->setRulerStyle(VexoRuler::SettingsUnderHeading);
    ruler->setFixedHeight(1);
    return ruler;
}

// The list's arrow, turned: what was across is then upright.
QIcon arrow(double degrees)
{
    CachedVectorIcon icon(":/widgetimages/VexoIconGeneralArrowListRight_44px_C0.svg");
    icon.setPxSize(QSize(mmY(2.7), mmX(bar_in_mm / 2)));
    return icon.toPixmap().transformed(QTransform().rotate(degrees));
}

// Of the panel's sheets the letters are white and have no border. Buttons that come later do not
// inherit a font where there is a sheet.
QString barSheet()
{
    const QString sheet = "QPushButton { background: %1; font-size: %3px; font-weight: %4; }"
                          "QPushButton:pressed { background: %2; }";
    return sheet.arg(VexoColors::C4.name(), VexoColors::C3.name())
        .arg(ptFont(9).pixelSize())
        .arg(8 * QFont::Medium); // what the toolkit makes of a weight in a sheet
}

} // namespace

ListsPage::ListsPage()
    : m_list(new RowList)
    , m_bar(new Bar)
    , m_status(createIndentedText("Flick the list, or touch a letter", 7, QFont::Normal))
    , m_state(createIndentedText("Inactive", 7, QFont::Light))
{
    auto *column = new QVBoxLayout;
    column->addWidget(createHeadline());
    column->addWidget(createLine());
    column->addWidget(createList(), 1);
    column->addWidget(createLine());
    column->addWidget(createFoot());
    setUpBar();
    auto *body = new QWidget;
    auto *row = new QHBoxLayout(body);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(0);
    row->addLayout(column, 1);
    row->addWidget(m_bar);
    layout()->addWidget(body);
}

QWidget *ListsPage::createHeadline()
{
    auto *headline = new QWidget;
    headline->setFixedHeight(mmY(11));
    QHBoxLayout *row = createRow(headline);
    row->addWidget(createIndentedText("Contacts", 13, QFont::Medium), 1);
    auto *scroll_bar = new VexoCheckBox;
    scroll_bar->setText("Scroll bar");
    connect(scroll_bar, &VexoCheckBox::toggled, m_list, &RowList::setScrollBarEnabled);
    row->addWidget(scroll_bar);
    addBarType(row, BarType::AlphabeticWithHash, QString::fromUtf8("A–Z"));
    addBarType(row, BarType::Numbers, QString::fromUtf8("0–9"));
    addBarType(row, BarType::None, "None");
    return headline;
}

QWidget *ListsPage::createList()
{
    m_list->widget()->setObjectName("contacts");
    m_list->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Ignored); // takes what is left
    m_list->setSeparatorFactory(createSeparator);
    m_list->setRowFactory(
        [this](int type) { return type == RowList::UserRow ? createVolume() : nullptr; });
    m_list->setRowBinder(
        [this](QWidget *row, const QModelIndex &index) { showVolume(row, index); });
    m_list->setModel(&m_contacts);
    setNarrowScrollBar(m_list);
    connect(m_list, &RowList::clicked, this,
        [this](const QModelIndex &index) { note(index.data().toString()); });
    connect(m_list, &RowList::scrollerStateChanged, this, &ListsPage::showState);
    return m_list;
}

QWidget *ListsPage::createFoot()
{
    auto *foot = new QWidget;
    foot->setFixedHeight(mmY(9));
    setGround(foot, VexoColors::C1);
    QHBoxLayout *row = createRow(foot);
    row->addWidget(m_status, 1);
    row->addWidget(m_state);
    return foot;
}

void ListsPage::setUpBar()
{
    m_bar->setMmButtonSize(QSizeF(bar_in_mm, bar_in_mm)); // else 60 px on each panel
    setGround(m_bar, VexoColors::C4); // also below the last button
    m_bar->setStyleSheet(barSheet());
    m_bar->setUpIcon(arrow(-90));
    m_bar->setDownIcon(arrow(90));
    m_bar->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Ignored);
}

void ListsPage::addBarType(QLayout *row, BarType type, const QString &name)
{
    auto *choice = new VexoRadioButton;
    choice->setText(name);
    row->addWidget(choice);
    connect(choice, &VexoRadioButton::toggled, this, [this, type](bool is_chosen) {
        if (is_chosen)
            setBarType(type);
    });
    choice->setChecked(type == BarType::AlphabeticWithHash);
}

QWidget *ListsPage::createVolume()
{
    auto *row = new QWidget;
    setGround(row, VexoColors::C1);
    auto *slider = new VexoSlider(Qt::Horizontal);
    slider->setMaximum(100);
    QHBoxLayout *layout = createRow(row);
    layout->addWidget(createIndentedText("Volume", 9, QFont::Light), 1);
    layout->addWidget(
        new VexoSliderDecoration(nullptr, VexoSliderDecoration::HorizontalWithoutScale, slider));
    m_list->forwardSliderEvents(slider);
    connect(slider, &VexoSlider::valueChanged, this, [this, slider](int value) {
        const QModelIndex index = m_list->indexOf(slider);
        if (index.data(Contacts::VolumeRole) == value)
            return; // the row shows another one
        m_contacts.setData(index, value, Contacts::VolumeRole);
        m_status->setText(QString("Volume %1").arg(value));
    });
    return row;
}

void ListsPage::showVolume(QWidget *row, const QModelIndex &index)
{
    auto *slider = row->findChild<VexoSlider *>();
    if (!slider)
        return;
    slider->setAccessibleName("Volume, " + index.data().toString());
    slider->setValue(index.data(Contacts::VolumeRole).toInt());
}

void ListsPage::note(const QString &text)
{
    m_status->setText(QString("Click %1: %2").arg(++m_clicks).arg(text));
}

void ListsPage::showState(QScroller::State state)
{
    const QStringList names{ "Inactive", "Pressed", "Dragging", "Scrolling" };
    m_state->setText(names.value(state));
}

void ListsPage::setBarType(BarType type)
{
    m_bar->setType(type);
    if (type == BarType::Numbers)
        m_bar->setButtonConnection(this, [this] { jump(); });
    else
        m_list->connectJumpBar(m_bar);
}

// A digit is a tenth of the list.
void ListsPage::jump()
{
    const auto *button = qobject_cast<QPushButton *>(sender());
    const int tenth = button ? button->text().toInt() : 0;
    m_list->scrollTo(
        m_contacts.index(tenth * m_contacts.rowCount() / 10), QAbstractItemView::PositionAtTop);
}
