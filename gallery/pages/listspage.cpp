// SPDX-License-Identifier: MIT
#include "gallery/pages/listspage.h"

#include "gallery/measures.h"
#include "gallery/widgets/fingerscroll.h"
#include "gallery/widgets/ground.h"

#include <CachedVectorIcon>
#include <VexoCheckBox>
#include <VexoColors>
#include <VexoRadioButton>
#include <VexoSlider>
#include <VexoSliderDecoration>
#include <VexoVerticalScrollArea>
#include <VexoVerticalScrollContent>

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QScrollBar>
#include <QVBoxLayout>

using namespace vexo::hox::qt::ui;

namespace {

const double indent_in_mm = 3; // of all texts, as of the rows
const int entries_per_slider = 9;

// In alphabetical order: numbers first, then five persons of each family.
QStringList contacts()
{
    QStringList names{ "1st floor, kitchen", "1st floor, office", "2nd floor, laboratory",
        "2nd floor, office", "24-hour service", "3rd floor, archive", "3rd floor, hall",
        "4th floor, roof door", "8 to 8 pharmacy", "9th Street gate" };
    const QStringList first_names{ "Ada", "Ben", "Clara", "Dario", "Eva", "Finn", "Greta", "Hugo",
        "Ines", "Jonas", "Leo", "Mia", "Nora", "Paul", "Zoe" };
    const QStringList families{ "Adler", "Arnold", "Bauer", "Brooks", "Carter", "Cohen", "Diaz",
        "Dubois", "Ekberg", "Evans", "Fischer", "Fontaine", "Garcia", "Gruber", "Hansen", "Hughes",
        "Ibrahim", "Ivanova", "Jansen", "Jones", "Keller", "Kowalski", "Lang", "Lopez", "Martin",
        "Meyer", "Nguyen", "Novak", "Okafor", "Olsen", "Park", "Peeters", "Quandt", "Quinn",
        "Rossi", "Ryan", "Schmidt", "Silva", "Tanaka", "Thomas", "Ueda", "Urban", "Varga", "Vogel",
        "Wagner", "Wong", "Xavier", "Xu", "Yilmaz", "Young", "Zeman", "Ziegler" };
    for (int family = 0; family < families.size(); ++family)
        for (int person = family % 3; person < first_names.size(); person += 3)
            names += families.at(family) + ", " + first_names.at(person);
    return names;
}

QChar letterOf(const QString &name)
{
    return name.at(0).isDigit() ? QChar('#') : name.at(0);
}

struct EntryKind
{
    VexoFunctionButton::VexoFunctionButtonType type;
    QString remark;
};

// Of an entry, counted from the last slider.
EntryKind kindOf(int index)
{
    switch (index) {
    case 2:
        return { VexoFunctionButton::CheckboxType, ": mute" };
    case 5:
        return { VexoFunctionButton::TickAgreementType, ": accept the call" };
    default:
        return { VexoFunctionButton::ActionType, "" };
    }
}

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

VexoSlider *createSlider(const QString &name)
{
    auto *slider = new VexoSlider(Qt::Horizontal);
    slider->setAccessibleName(name);
    slider->setMaximum(100);
    slider->setValue(60);
    return slider;
}

// The list's arrow, turned: what was across is then upright.
QIcon arrow(double degrees)
{
    CachedVectorIcon icon(":/widgetimages/VexoIconGeneralArrowListRight_44px_C0.svg");
    icon.setPxSize(QSize(mmY(3), mmX(6.6)));
    return icon.toPixmap().transformed(QTransform().rotate(degrees));
}

// Of the panel's sheets the letters are white and have no border. Buttons that come later do not
// inherit a font where there is a sheet.
QString barSheet()
{
    const QString sheet = "QPushButton { background: %1; icon-size: %3px; font-size: %4px; "
                          "font-weight: %5; }"
                          "QPushButton:pressed { background: %2; }";
    return sheet.arg(VexoColors::C4.name(), VexoColors::C3.name())
        .arg(mmX(6.6))
        .arg(ptFont(9).pixelSize())
        .arg(8 * QFont::Medium); // what the toolkit makes of a weight in a sheet
}

} // namespace

ListsPage::ListsPage()
    : m_list(new VexoVerticalScrollArea)
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
    connect(
        scroll_bar, &VexoCheckBox::toggled, m_list, &VexoVerticalScrollArea::setScrollBarEnabled);
    row->addWidget(scroll_bar);
    addBarType(row, BarType::AlphabeticWithHash, QString::fromUtf8("A–Z"));
    addBarType(row, BarType::Numbers, QString::fromUtf8("0–9"));
    addBarType(row, BarType::None, "None");
    return headline;
}

QWidget *ListsPage::createList()
{
    auto *content = new VexoVerticalScrollContent;
    setGround(content, VexoColors::C13); // seen between the rows
    content->setObjectName("contacts");
    content->layout()->setSpacing(1);
    m_list->setWidget(content);
    m_list->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Ignored); // takes what is left
    setNarrowScrollBar(m_list);
    addEntries(content->layout());
    connect(m_list, &VexoVerticalScrollArea::scrollerStateChanged, this, &ListsPage::showState);
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

void ListsPage::addEntries(QLayout *entries)
{
    const QStringList names = contacts();
    for (int i = 0; i < names.size(); ++i) {
        addRow(entries, i % entries_per_slider, names.at(i));
        if (i % entries_per_slider == entries_per_slider - 1)
            addVolume(entries, names.at(i));
    }
}

void ListsPage::addRow(QLayout *entries, int index, const QString &name)
{
    const EntryKind kind = kindOf(index);
    auto *row = new Row(nullptr, kind.type);
    row->setText(name + kind.remark);
    connect(row, &Row::clicked, this, [this, row] { note(row->text()); });
    entries->addWidget(row);
    if (!m_first_rows.contains(letterOf(name)))
        m_first_rows.insert(letterOf(name), row);
}

void ListsPage::addVolume(QLayout *entries, const QString &name)
{
    auto *row = new QWidget;
    setGround(row, VexoColors::C1);
    row->setFixedHeight(mmY(9.8));
    row->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    VexoSlider *slider = createSlider("Volume, " + name);
    auto *decoration
        = new VexoSliderDecoration(nullptr, VexoSliderDecoration::HorizontalWithoutScale, slider);
    QHBoxLayout *layout = createRow(row);
    layout->addWidget(createIndentedText("Volume", 9, QFont::Light), 1);
    layout->addWidget(decoration);
    m_list->forwardSliderEvents(slider);
    connect(slider, &VexoSlider::valueChanged, this,
        [this](int value) { m_status->setText(QString("Volume %1").arg(value)); });
    entries->addWidget(row);
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
    m_bar->setButtonConnection(this, [this] { jump(); });
}

void ListsPage::jump()
{
    const auto *button = qobject_cast<QPushButton *>(sender());
    if (!button)
        return;
    m_list->getScroller()->stop(); // a flick would go on from where it was
    m_list->verticalScrollBar()->setValue(targetOf(button->text())->y());
}

// A digit is a tenth of the list.
QWidget *ListsPage::targetOf(const QString &button) const
{
    if (QWidget *row = m_first_rows.value(button.at(0)))
        return row;
    const QLayout *entries = m_list->widget()->layout();
    return entries->itemAt(button.toInt() * entries->count() / 10)->widget();
}
