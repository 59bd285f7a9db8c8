// SPDX-License-Identifier: MIT
#include "gallery/pages/stylesheetpage.h"

#include "gallery/measures.h"
#include "gallery/widgets/ground.h"
#include "gallery/widgets/plainbutton.h"
#include "gallery/widgets/plainslider.h"

#include <VexoColors>
#include <VexoLabeledContainer>
#include <VexoLineEdit>
#include <VexoVerticalButtonScrollArea>

#include <QCheckBox>
#include <QFile>
#include <QGridLayout>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QSlider>
#include <QVBoxLayout>

using namespace vexo::hox::qt::ui;

namespace {

// Follows another widget and takes no input.
template <typename Plain, typename Original>
Plain *createPlain(const Original *original)
{
    auto *plain = new Plain;
    plain->setAttribute(Qt::WA_TransparentForMouseEvents);
    plain->setFocusPolicy(Qt::NoFocus);
    plain->setText(original->text());
    plain->setAutoExclusive(false); // it follows, it does not choose
    plain->setChecked(original->isChecked());
    QObject::connect(original, &Original::toggled, plain, &Plain::setChecked);
    return plain;
}

QSlider *createSlider(Qt::Orientation orientation)
{
    auto *slider = new QSlider(orientation);
    slider->setValue(60);
    slider->setAccessibleName("Level");
    return slider;
}

void setLength(QSlider *slider)
{
    if (slider->orientation() == Qt::Horizontal)
        slider->setMinimumWidth(mmX(20));
    else
        slider->setMinimumHeight(mmY(30));
}

// On a dark ground, for its letters become white. It holds what fits without scrolling, since the
// page scrolls.
VexoVerticalButtonScrollArea *createJumpBar()
{
    auto *bar = new VexoVerticalButtonScrollArea(
        nullptr, VexoVerticalButtonScrollArea::VexoVerticalButtonScrollAreaType::None);
    for (const char *letter : { "#", "A", "B" })
        bar->addButton(letter);
    setGround(bar, VexoColors::C5);
    bar->setFixedHeight(5 * bar->width());
    return bar;
}

QPushButton *createPlainButton(const QPushButton *original)
{
    auto *plain = new PlainPushButton<QPushButton>;
    plain->setFixedSize(original->minimumSize());
    plain->setText(original->text());
    plain->setIcon(original->icon());
    QObject::connect(original, &QPushButton::pressed, plain, [=] { plain->setDown(true); });
    QObject::connect(original, &QPushButton::released, plain, [=] { plain->setDown(false); });
    return plain;
}

QWidget *createPlainJumpBar(const QWidget *original)
{
    auto *bar = new QWidget;
    bar->setAttribute(Qt::WA_TransparentForMouseEvents);
    bar->setFixedSize(original->minimumSize());
    auto *column = new QVBoxLayout(bar);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    for (const char *name : { "upButton", "letterButton", "downButton" }) {
        const auto buttons = original->findChildren<QPushButton *>(name);
        for (const QPushButton *button : buttons)
            column->addWidget(createPlainButton(button));
    }
    return bar;
}

VexoLabeledContainer *createContainer()
{
    auto *field = new VexoLineEdit;
    field->setObjectName("field");
    field->setText("Front door");
    auto *container = new VexoLabeledContainer(nullptr, field);
    container->setLabelText("Name");
    return container;
}

QString readSheets()
{
    QString text;
    for (const char *name : { ":/css/vexo-AAL.qs", ":/css/hoxq.qs" }) {
        QFile file(name);
        if (file.open(QIODevice::ReadOnly))
            text += QString::fromUtf8(file.readAll());
    }
    return text;
}

QString paragraph(const QString &selector, const QString &declarations)
{
    const QString html = "<p style='margin: 0 0 %1px %2px; text-indent: -%2px'>"
                         "<span style='font-weight: 500'>%3</span> { %4&nbsp;}</p>";
    return html.arg(mmY(1)).arg(mmX(4)).arg(selector, declarations.simplified());
}

// The rules for a widget in a state, a paragraph each.
QString rules(const QString &sheet, const QString &widget, const QString &state)
{
    QString found;
    const QStringList all = sheet.split('}', Qt::SkipEmptyParts);
    for (const QString &rule : all) {
        const QString selector = rule.section('{', 0, 0).trimmed();
        if (selector.startsWith(widget) && selector.endsWith(state))
            found += paragraph(selector, rule.section('{', 1));
    }
    return found;
}

} // namespace

StylesheetPage::StylesheetPage()
    : Page("Stylesheets",
        "The panel's stylesheets restyle widgets of the toolkit and a few of the library. At the "
        "left a widget as an "
        "application gets it; at the right, following it, the same widget without the sheets. "
        "The sheets give sizes in pixels; Panel::setUp() adds those in millimetres.")
    , m_sheets(readSheets())
{
    addCheckBox();
    addRadioButtons();
    addSlider(Qt::Horizontal);
    addSlider(Qt::Vertical);
    addJumpBar();
    addContainer();
}

void StylesheetPage::addCheckBox()
{
    QGridLayout *comparison = addComparison("Check box");
    for (const bool checked : { true, false }) {
        auto *box = new QCheckBox(checked ? "Checked" : "Unchecked");
        box->setChecked(checked);
        const int row = comparison->rowCount();
        comparison->addWidget(box, row, 0);
        comparison->addWidget(createPlain<PlainCheckBox<QCheckBox>>(box), row, 1);
    }
    addRules("QCheckBox");
}

void StylesheetPage::addRadioButtons()
{
    QGridLayout *comparison = addComparison("Radio button");
    for (const bool checked : { true, false }) {
        auto *button = new QRadioButton(checked ? "First choice" : "Second choice");
        button->setChecked(checked);
        const int row = comparison->rowCount();
        comparison->addWidget(button, row, 0);
        comparison->addWidget(createPlain<PlainRadioButton<QRadioButton>>(button), row, 1);
    }
    addRules("QRadioButton");
}

void StylesheetPage::addSlider(Qt::Orientation orientation)
{
    const bool is_horizontal = orientation == Qt::Horizontal;
    QGridLayout *comparison
        = addComparison(is_horizontal ? "Horizontal slider" : "Vertical slider");
    QSlider *slider = createSlider(orientation);
    auto *plain = new PlainSlider(slider);
    setLength(slider);
    setLength(plain);
    const Qt::Alignment alignment = is_horizontal ? Qt::Alignment() : Qt::AlignLeft;
    comparison->addWidget(slider, 1, 0, alignment);
    comparison->addWidget(plain, 1, 1, alignment);
    if (is_horizontal)
        addBlock(createText("The toolkit does not know the state qlineargradient and takes the "
                            "page rules of both orientations for each slider; the vertical ones "
                            "come last and would win. The sheet in millimetres outweighs them."));
    addRules("QSlider", is_horizontal ? ":horizontal" : ":vertical");
}

void StylesheetPage::addJumpBar()
{
    QGridLayout *comparison = addComparison("Jump bar");
    VexoVerticalButtonScrollArea *bar = createJumpBar();
    comparison->addWidget(bar, 1, 0, Qt::AlignLeft);
    comparison->addWidget(createPlainJumpBar(bar), 1, 1, Qt::AlignLeft);
    addBlock(createText("The letters are white and no button has a border: the application gives "
                        "the bar a darker ground."));
    addRules("vexo--hox--qt--ui--VexoVerticalButtonScrollArea");
}

void StylesheetPage::addContainer()
{
    QGridLayout *comparison = addComparison("Labeled container");
    VexoLabeledContainer *plain = createContainer();
    for (QWidget *widget : { static_cast<QWidget *>(plain), plain->findChild<QWidget *>("field") })
        widget->setAttribute(Qt::WA_StyledBackground, false);
    comparison->addWidget(createContainer(), 1, 0);
    comparison->addWidget(plain, 1, 1);
    addBlock(createText("It has its ground as long as its window is the active one."));
    addRules("vexo--hox--qt--ui--VexoLabeledContainer");
}

QGridLayout *StylesheetPage::addComparison(const QString &heading)
{
    addSection(heading);
    auto *comparison = new QGridLayout;
    comparison->setHorizontalSpacing(mmX(6));
    comparison->setVerticalSpacing(mmY(2));
    comparison->setColumnStretch(0, 1);
    comparison->setColumnStretch(1, 1);
    comparison->addWidget(createText("With the sheets", 7, QFont::Normal), 0, 0);
    comparison->addWidget(createText("Without", 7, QFont::Normal), 0, 1);
    addBlock(comparison);
    return comparison;
}

void StylesheetPage::addRules(const QString &widget, const QString &state)
{
    QLabel *text = createText(rules(m_sheets, widget, state));
    const QString sheet = "QLabel { background: %1; }";
    text->setStyleSheet(sheet.arg(VexoColors::C1.name()));
    text->setMargin(mmX(2));
    addBlock(text);
}
