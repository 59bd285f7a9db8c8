// SPDX-License-Identifier: MIT
#include <PageStack>
#include <Panel>
#include <ScalingInfo>
#include <VexoDesignVectorButton>
#include <VexoFunctionButton>
#include <VexoLabeledContainer>
#include <VexoNumericButton>
#include <VexoRuler>
#include <VexoSlider>
#include <VexoVerticalScrollArea>
#include <VexoVerticalScrollContent>

#include <QApplication>
#include <QLabel>
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

void addSwitch(QLayout *list, const QString &text, bool is_on)
{
    auto *row = new VexoFunctionButton;
    row->setText(text);
    row->getButtonInstance()->setChecked(is_on);
    addRow(list, row);
}

VexoSlider *createBrightness()
{
    auto *slider = new VexoSlider(Qt::Horizontal);
    slider->setMaximum(100);
    slider->setValue(60);
    return slider;
}

VexoNumericButton *createDelay()
{
    auto *stepper = new VexoNumericButton;
    stepper->setMinimum(1);
    stepper->setMaximum(30);
    stepper->setValue(5);
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

QWidget *createSettings(PageStack *pages)
{
    QVBoxLayout *column = createPage(pages, "Settings");
    addSettings(column);
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

QWidget *createStart(PageStack *pages)
{
    QGridLayout *tiles = createTiles();
    tiles->addWidget(createText("Good morning", 20), 0, 0, 1, 2);
    addSwitchTile(tiles, 0, "Light");
    addSwitchTile(tiles, 1, "Heating");
    addWay(tiles, 2, "Settings", pages);
    return tiles->parentWidget();
}

void addPages(PageStack *pages)
{
    pages->addPage("Start", [=] { return createStart(pages); });
    pages->addPage("Settings", [=] { return createSettings(pages); });
    pages->open("Start");
}

} // namespace

int main(int argc, char *argv[])
{
    QApplication application(argc, argv);
    Panel::setUp(application);
    PageStack pages;
    addPages(&pages);
    pages.showFullScreen();
    return application.exec();
}
