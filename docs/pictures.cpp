// SPDX-License-Identifier: MIT
#include "docs/snippets/placing.cpp"

#define main runFirstPanel
#include "examples/first-panel/main.cpp"
#undef main

#include <Panel>

#include <QApplication>
#include <QDir>
#include <QPainter>

#include <cstdio>

namespace {

const QSizeF panel_in_mm(160, 96);
const int px_per_mm = 5; // each text can be read and a picture stays small

void addDisplay(QLayout *list)
{
    addHeading(list, "Display");
    auto *night = new VexoFunctionButton;
    night->setText("Night mode");
    night->getButtonInstance()->setChecked(true);
    addWithRuler(list, night);
    addWithRuler(list, createValueRow("Language", "English"));
    auto *network = new VexoFunctionButton(nullptr, VexoFunctionButton::ActionType);
    network->setText("Network");
    addWithRuler(list, network);
    auto *slider = new VexoSlider(Qt::Horizontal);
    slider->setMaximum(100);
    slider->setTickInterval(5);
    addWithRuler(list, createSliderRow("Brightness", slider, 60));
}

void addTiles(QLayout *list)
{
    addHeading(list, "Tiles");
    auto *ground = new QWidget;
    setGround(ground, VexoColors::C13);
    auto *tiles = new QGridLayout(ground);
    int index = 0;
    for (const char *text : { "Light", "Heating", "Camera" }) {
        auto *tile = new VexoDesignVectorButton;
        tile->setMmIconSize(QSizeF(0, 8));
        tile->addIcon(ActiveButton::DEFAULT_STATE_NAME, ":/VexoIconGeneralInfoSvg");
        tile->createMissingInverseIcons();
        tile->setText(text);
        tile->setSubtext(index == 1 ? "On" : "Off");
        addTile(tiles, index++, tile);
    }
    addWithRuler(list, ground);
}

void addKeys(QLayout *list)
{
    addHeading(list, "Keys");
    auto *ground = new QWidget;
    setGround(ground, VexoColors::C6);
    auto *keys = new QGridLayout(ground);
    keys->setAlignment(Qt::AlignCenter);
    for (int i = 0; i < 10; ++i)
        addLetterKey(keys, i, QString(QChar("QWERTYUIOP"[i])));
    addWithRuler(list, ground);
}

QImage pictureOf(QWidget &screen)
{
    screen.layout()->setSizeConstraint(QLayout::SetNoConstraint); // it has its size already
    screen.show();
    QApplication::setActiveWindow(&screen); // some grounds are those of an active window
    QApplication::processEvents();
    return screen.grab().toImage();
}

QImage firstPanel()
{
    QStackedWidget pages;
    pages.resize(ScalingInfo::inst()->m_pixels);
    addSettings(&pages);
    addPinEntry(&pages);
    const QImage settings = pictureOf(pages);
    pages.setCurrentIndex(1);
    pages.findChild<VexoLineEdit *>()->setText("20");
    const QImage pin_entry = pictureOf(pages);
    const int gap_px = mmX(4);
    QImage both(2 * settings.width() + gap_px, settings.height(), settings.format());
    both.fill(VexoColors::C4);
    QPainter painter(&both);
    painter.drawImage(0, 0, settings);
    painter.drawImage(settings.width() + gap_px, 0, pin_entry);
    return both;
}

QImage placing()
{
    QWidget screen;
    auto *place = new QVBoxLayout(&screen);
    place->setContentsMargins(0, 0, 0, 0);
    QLayout *list = addList(place);
    addDisplay(list);
    addTiles(list);
    addKeys(list);
    screen.resize(ScalingInfo::inst()->m_pixels.width(), list->parentWidget()->sizeHint().height());
    return pictureOf(screen);
}

} // namespace

// Renders what the pages beside those of the classes show into the folder that is given.
int main(int argc, char *argv[])
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    PanelOptions options;
    options.mm = panel_in_mm;
    options.px = (panel_in_mm * px_per_mm).toSize();
    Panel::setUp(application, options);
    const QDir folder(application.arguments().value(1, "."));
    if (placing().save(folder.filePath("placing.png"))
        && firstPanel().save(folder.filePath("first-panel.png")))
        return EXIT_SUCCESS;
    std::fprintf(stderr, "hoxqpictures: cannot write to %s\n", qPrintable(folder.path()));
    return EXIT_FAILURE;
}
