// SPDX-License-Identifier: MIT
#include <MmStylesheet>
#include <OnScreenKeyboard>
#include <PageStack>
#include <Panel>
#include <PanelDialog>
#include <PanelNotice>
#include <ScalingInfo>
#include <VexoDesignVectorButton>
#include <VexoFunctionButton>
#include <VexoLabeledContainer>
#include <VexoLineEdit>
#include <VexoNumericButton>
#include <VexoRuler>
#include <VexoSlider>
#include <VexoVerticalScrollArea>
#include <VexoVerticalScrollContent>

#include <QApplication>
#include <QLabel>
#include <QSettings>
#include <QVBoxLayout>

using namespace vexo::hox::qt::ui;
using namespace vexo::hox::qt::panel;

namespace {

// Whole pixels of this panel.
int mmX(double mm)
{
    return int(ScalingInfo::inst()->mm2px_X(float(mm)));
}

int mmY(double mm)
{
    return int(ScalingInfo::inst()->mm2px_Y(float(mm)));
}

QLabel *createText(const QString &text, double pt)
{
    auto *label = new QLabel(text);
    QFont font = label->font(); // the panel's, light
    font.setPixelSize(int(ScalingInfo::inst()->pt2px_Y(float(pt))));
    label->setFont(font);
    return label;
}

void addRow(QLayout *list, QWidget *row)
{
    list->addWidget(row);
    list->addWidget(new VexoRuler(nullptr, VexoRuler::MainUnderButton));
}

void addLabelled(QLayout *list, const QString &text, QWidget *widget)
{
    auto *row = new VexoLabeledContainer(nullptr, widget);
    row->setLabelText(text);
    addRow(list, row);
}

QAbstractButton *addSwitch(QLayout *list, const QString &text, bool is_on)
{
    auto *row = new VexoFunctionButton;
    row->setText(text);
    row->getButtonInstance()->setChecked(QSettings().value(text, is_on).toBool());
    QObject::connect(row->getButtonInstance(), &QAbstractButton::toggled, row,
        [=](bool is_on_now) { QSettings().setValue(text, is_on_now); });
    addRow(list, row);
    return row->getButtonInstance();
}

VexoSlider *createBrightness()
{
    auto *slider = new VexoSlider(Qt::Horizontal);
    slider->setMaximum(100);
    slider->setValue(QSettings().value("Brightness", 60).toInt());
    QObject::connect(slider, &VexoSlider::valueChanged, slider,
        [](int percent) { QSettings().setValue("Brightness", percent); });
    return slider;
}

VexoNumericButton *createDelay()
{
    auto *stepper = new VexoNumericButton;
    stepper->setMinimum(1);
    stepper->setMaximum(30);
    stepper->setValue(QSettings().value("Delay", 5).toInt());
    QObject::connect(stepper, &VexoNumericButton::valueChanged, stepper,
        [](int minutes) { QSettings().setValue("Delay", minutes); });
    return stepper;
}

// A list that is flicked with a finger, also where the finger hits the slider. Returns the rows.
QLayout *addSettings(QLayout *place)
{
    auto *area = new VexoVerticalScrollArea;
    place->addWidget(area); // first, so that its rows are styled only once
    auto *content = new VexoVerticalScrollContent;
    QLayout *list = content->layout();
    addSwitch(list, "Key tone", true);
    addSwitch(list, "Wake at a touch", true);
    VexoSlider *brightness = createBrightness();
    addLabelled(list, "Brightness", brightness);
    addLabelled(list, "Dark after, minutes", createDelay());
    for (const char *text : { "Weather", "News", "Calls", "Front door" })
        addSwitch(list, text, false);
    area->setWidget(content);
    area->forwardSliderEvents(brightness);
    return list;
}

// The column of a page, whose first row is its title and the way back.
QVBoxLayout *createPage(PageStack *pages, const QString &title)
{
    auto *head = new VexoDesignVectorButton;
    head->setText(title);
    head->setPtTextFontSize(13);
    head->setMmHeight(12);
    head->setPtLineSpacing(7); // in the middle, as there is no second line
    head->setMmIconPos(QPointF(6, 6));
    head->setMmIconSize(QSizeF(0, 8)); // as wide as the image makes it
    head->addIcon(ActiveButton::DEFAULT_STATE_NAME, ":/widgetimages/back.svg");
    head->createMissingInverseIcons(); // under the finger
    head->setAccessibleName("Back");
    QObject::connect(head, &VexoDesignVectorButton::clicked, pages, &PageStack::back);
    auto *page = new QWidget;
    page->setWindowTitle(title); // assistive technology reads it when the page comes up
    auto *column = new QVBoxLayout(page);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    addRow(column, head);
    return column;
}

// The library's own widgets draw in colours that are properties; a sheet sets these, too.
QString widgetRules(const QString &ground, const QString &ink, const QString &line)
{
    return QString(R"(
        vexo--hox--qt--ui--VexoFunctionButton, vexo--hox--qt--panel--PanelDialog {
            qproperty-m_background_color: %1;
            qproperty-m_text_color: %2;
        }
        vexo--hox--qt--ui--VexoPushButton, vexo--hox--qt--ui--VexoLineEdit {
            background: transparent;
            qproperty-m_background_color: %1;
            qproperty-m_text_color: %2;
        }
        vexo--hox--qt--ui--VexoDesignVectorButton {
            qproperty-background_color: %1;
            qproperty-text_color: %2;
        }
        vexo--hox--qt--ui--VexoNumericButton { qproperty-text_color: %2; }
        vexo--hox--qt--ui--VexoLabeledContainer,
        vexo--hox--qt--ui--VexoLabeledContainer:active { background: %1; }
        vexo--hox--qt--panel--OnScreenKeyboard { qproperty-background_color: %3; }
        vexo--hox--qt--ui--VexoRuler {
            qproperty-m_second_line_color: %3;
            qproperty-m_style: MainUnderButton;
        })")
        .arg(ground, ink, line);
}

bool isNight()
{
    return QSettings().value("Night look").toBool();
}

// Dark icons by day, their inverse by night.
void showIcons(const QWidget *window)
{
    for (auto *button : window->findChildren<ActiveVectorButton *>()) {
        button->createMissingInverseIcons();
        button->setInverseState(isNight());
        button->setState(button->currentState());
    }
}

void showLook(const QWidget *window)
{
    const auto look = isNight() ? MmStylesheet::Night : MmStylesheet::Day;
    const QPalette colors = MmStylesheet::palette(look);
    QApplication::setPalette(colors);
    delete qApp->findChild<MmStylesheet *>(); // the look of before
    auto *sheet = new MmStylesheet(MmStylesheet::files(look), qApp);
    sheet->addText(widgetRules(colors.color(QPalette::Base).name(),
        colors.color(QPalette::Text).name(), isNight() ? "#5a5a5a" : "#c8c8c8"));
    sheet->set();
    showIcons(window);
}

void tell(QWidget *window, const QString &text)
{
    auto *notice = window->findChild<PanelNotice *>();
    if (!notice)
        notice = new PanelNotice(Qt::BottomEdge, window);
    notice->tell(text);
}

void reset(PageStack *pages)
{
    QSettings().clear();
    showLook(pages);
    pages->home();
    tell(pages->window(), "The panel is as on its first day.");
}

void askForReset(PageStack *pages)
{
    auto *question = new PanelDialog("Reset the panel?", pages->window());
    question->setAttribute(Qt::WA_DeleteOnClose);
    question->setExplanation("Your name and all settings are lost.");
    question->addButton("Cancel");
    question->addButton("Reset");
    QObject::connect(question, &PanelDialog::answered, pages, [=](int button) {
        if (button == 1)
            reset(pages);
    });
    question->open();
}

QWidget *createSettings(PageStack *pages)
{
    QVBoxLayout *column = createPage(pages, "Settings");
    QLayout *list = addSettings(column);
    QObject::connect(addSwitch(list, "Night look", false), &QAbstractButton::toggled, pages,
        [=] { showLook(pages); });
    auto *row = new VexoDesignVectorButton; // a tile as high as a row
    row->setText("Reset ...");
    row->setMmHeight(9.8);
    row->setMmIndent(3);
    row->setPtLineSpacing(2);
    QObject::connect(row, &VexoDesignVectorButton::clicked, pages, [=] { askForReset(pages); });
    addRow(list, row);
    return column->parentWidget();
}

VexoDesignVectorButton *addTile(QGridLayout *tiles, int place, const QString &text)
{
    auto *tile = new VexoDesignVectorButton;
    tile->setText(text);
    tile->setPtTextFontSize(11);
    tile->setMmIndent(5);
    tile->setMmHeight((ScalingInfo::inst()->m_size_mm.height() - 28) / 2); // two rows fill a panel
    tiles->addWidget(tile, 1 + place / 2, place % 2);
    return tile;
}

void addSwitchTile(QGridLayout *tiles, int place, const QString &text)
{
    VexoDesignVectorButton *tile = addTile(tiles, place, text);
    tile->setCheckable(true);
    tile->setOnText(text);
    tile->setOnSubtext("On");
    tile->setOffText(text);
    tile->setOffSubtext("Off");
}

void addWay(QGridLayout *tiles, int place, const QString &text, PageStack *pages)
{
    VexoDesignVectorButton *tile = addTile(tiles, place, text);
    tile->setPtLineSpacing(4); // in the middle, as there is no second line
    QObject::connect(tile, &VexoDesignVectorButton::clicked, pages, [=] { pages->open(text); });
}

QGridLayout *createTiles()
{
    auto *tiles = new QGridLayout(new QWidget);
    tiles->setContentsMargins(mmX(4), mmY(4), mmX(4), mmY(4));
    tiles->setHorizontalSpacing(mmX(2));
    tiles->setVerticalSpacing(mmY(2));
    return tiles;
}

QString greeting()
{
    const QString name = QSettings().value("Name").toString();
    return name.isEmpty() ? "Good morning" : "Good morning, " + name;
}

QWidget *createStart(PageStack *pages)
{
    QGridLayout *tiles = createTiles();
    QLabel *head = createText(greeting(), 20);
    QObject::connect(pages, &PageStack::opened, head, [=] { head->setText(greeting()); });
    tiles->addWidget(head, 0, 0, 1, 2);
    addSwitchTile(tiles, 0, "Light");
    addSwitchTile(tiles, 1, "Heating");
    addWay(tiles, 2, "Settings", pages);
    addWay(tiles, 3, "Your name", pages);
    return tiles->parentWidget();
}

QWidget *createName(PageStack *pages)
{
    QVBoxLayout *column = createPage(pages, "Your name");
    auto *field = new VexoLineEdit;
    field->setMmRadius(4.5); // and so 9 mm high, for a finger
    field->setText(QSettings().value("Name").toString());
    addLabelled(column, "The panel greets you by it", field);
    column->addStretch(1);
    auto *keyboard = new OnScreenKeyboard;
    keyboard->setLanguages({ "en", "de" });
    keyboard->setReceiver(field); // which takes no focus
    column->addWidget(keyboard);
    QObject::connect(field, &VexoLineEdit::returnPressed, pages, [=] {
        QSettings().setValue("Name", field->text());
        pages->back();
    });
    return column->parentWidget();
}

void addPages(PageStack *pages)
{
    pages->addPage("Start", [=] { return createStart(pages); });
    pages->addPage(
        "Settings", [=] { return createSettings(pages); }, PageStack::Dropped);
    pages->addPage(
        "Your name", [=] { return createName(pages); }, PageStack::Dropped);
    QObject::connect(pages, &PageStack::opened, pages, [=] { showIcons(pages); });
    pages->open("Start");
}

// Of the arguments "1280 800 160 100": a panel of that many px and mm.
PanelOptions panelOf(const QStringList &arguments)
{
    PanelOptions options;
    if (arguments.size() == 5) {
        options.px = QSize(arguments.at(1).toInt(), arguments.at(2).toInt());
        options.mm = QSizeF(arguments.at(3).toDouble(), arguments.at(4).toDouble());
    }
    return options;
}

} // namespace

int main(int argc, char *argv[])
{
    QApplication application(argc, argv);
    QApplication::setOrganizationName("first-panel"); // the file of the settings
    Panel::setUp(application, panelOf(application.arguments()));
    PageStack pages;
    addPages(&pages);
    showLook(&pages);
    if (application.arguments().size() == 5) {
        pages.setFixedSize(ScalingInfo::inst()->m_pixels);
        pages.show();
    } else {
        pages.showFullScreen();
    }
    return application.exec();
}
