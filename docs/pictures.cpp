// SPDX-License-Identifier: MIT
#include "docs/firststeps.h"
#include "docs/snippets/placing.cpp"

#include <PageStack>
#include <Panel>
#include <VexoLineEdit>

#include <QApplication>
#include <QDir>
#include <QPainter>
#include <QSettings>
#include <QTemporaryDir>

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

using namespace vexo::hox::qt::panel;

QImage shown(QWidget *window)
{
    QApplication::processEvents();
    return window->grab().toImage();
}

QImage namePage(PageStack *pages)
{
    pages->open("Your name");
    pages->findChild<VexoLineEdit *>()->setText("Anna");
    return shown(pages);
}

QImage question(PageStack *pages)
{
    pages->open("Settings");
    for (auto *row : pages->findChildren<VexoDesignVectorButton *>()) {
        if (row->text() == "Reset ...")
            row->click();
    }
    return shown(pages);
}

QImage dayAndNight(PageStack *pages)
{
    const QImage day = shown(pages);
    pages->open("Settings");
    for (auto *row : pages->findChildren<VexoFunctionButton *>()) {
        if (row->text() == "Night look")
            row->getButtonInstance()->click();
    }
    const QImage night = shown(pages);
    const int gap_px = mmX(4);
    QImage both(2 * day.width() + gap_px, day.height(), day.format());
    both.fill(VexoColors::C4);
    QPainter painter(&both);
    painter.drawImage(0, 0, day);
    painter.drawImage(day.width() + gap_px, 0, night);
    return both;
}

// What the page says of a step.
QImage pictureOfStep(int number, QWidget *window)
{
    auto *pages = qobject_cast<PageStack *>(window);
    switch (number) {
    case 4:
        return namePage(pages);
    case 5:
        return question(pages);
    case 6:
        return dayAndNight(pages);
    default:
        return shown(window);
    }
}

// The last one is shown on the sheet of panels.
bool saveSteps(const QDir &folder)
{
    const QTemporaryDir settings; // not those of whoever calls this
    qputenv("XDG_CONFIG_HOME", settings.path().toUtf8());
    for (int number = 1; number < first_steps; ++number) {
        if (number == 6)
            QSettings("first-panel", "step").setValue("Name", "Anna");
        const QString file = folder.filePath(QString("first-panel-%1.png").arg(number));
        const auto save = [&](QWidget *window) {
            return pictureOfStep(number, window).save(file) ? EXIT_SUCCESS : EXIT_FAILURE;
        };
        if (runFirstStep(number, (panel_in_mm * px_per_mm).toSize(), panel_in_mm, save) != 0)
            return false;
    }
    return true;
}

bool savePlacing(int argc, char **argv, const QDir &folder)
{
    QApplication application(argc, argv);
    PanelOptions options;
    options.mm = panel_in_mm;
    options.px = (panel_in_mm * px_per_mm).toSize();
    Panel::setUp(application, options);
    return placing().save(folder.filePath("placing.png"));
}

} // namespace

// Renders what the pages beside those of the classes show into the folder that is given.
int main(int argc, char *argv[])
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QDir folder(argc > 1 ? QString::fromLocal8Bit(argv[1]) : ".");
    if (saveSteps(folder) && savePlacing(argc, argv, folder))
        return EXIT_SUCCESS;
    std::fprintf(stderr, "hoxqpictures: cannot write to %s\n", qPrintable(folder.path()));
    return EXIT_FAILURE;
}
