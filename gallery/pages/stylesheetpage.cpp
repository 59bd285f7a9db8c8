#include "gallery/pages/stylesheetpage.h"

#include "gallery/measures.h"
#include "gallery/widgets/plainbutton.h"
#include "gallery/widgets/plainslider.h"

#include <VexoColors>

#include <QCheckBox>
#include <QFile>
#include <QGridLayout>
#include <QLabel>
#include <QRadioButton>
#include <QSlider>

using vexo::hox::qt::ui::VexoColors;

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
    return slider;
}

void setLength(QSlider *slider)
{
    if (slider->orientation() == Qt::Horizontal)
        slider->setMinimumWidth(mmX(20));
    else
        slider->setMinimumHeight(mmY(30));
}

QString readSheet()
{
    QFile file(":/css/vexo-AAL.qs");
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
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
        if (selector.startsWith(widget + ':') && selector.endsWith(state))
            found += paragraph(selector, rule.section('{', 1));
    }
    return found;
}

} // namespace

StylesheetPage::StylesheetPage()
    : Page("Stylesheets",
        "The panel's stylesheets restyle stock widgets of the toolkit. At the left a widget as an "
        "application gets it; at the right, following it, the same widget without the sheets. "
        "The sheets give their sizes in pixels, so these differ from panel to panel.")
    , m_sheet(readSheet())
{
    addCheckBox();
    addRadioButtons();
    addSlider(Qt::Horizontal);
    addSlider(Qt::Vertical);
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
                            "page rules of both orientations for each slider: the vertical ones "
                            "come last and win, so the colours are the other way round here."));
    addRules("QSlider", is_horizontal ? ":horizontal" : ":vertical");
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
    QLabel *text = createText(rules(m_sheet, widget, state));
    const QString sheet = "QLabel { background: %1; }";
    text->setStyleSheet(sheet.arg(VexoColors::C1.name()));
    text->setMargin(mmX(2));
    addBlock(text);
}
