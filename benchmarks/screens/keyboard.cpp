// SPDX-License-Identifier: MIT
#include "benchmarks/support/screen.h"

#include <QGridLayout>
#include <QLineEdit>
#include <QToolButton>

#ifdef HOXQ_BENCHMARK_LIBRARY
#include <VexoKeyboardButton>
#else
#include <QImageReader>
#endif

namespace bench {

namespace {

// Four rows of ten keys; an image stands on a special key.
const char *const keys[] = { "1", "2", "3", "4", "5", "6", "7", "8", "9", "0", //
    "q", "w", "e", "r", "t", "z", "u", "i", "o", "p", //
    "a", "s", "d", "f", "g", "h", "j", "k", "l", ":/VexoIconGeneralReset", //
    ":/VexoIconGeneralShift", "y", "x", "c", "v", "b", "n", "m", ".", ":/VexoIconGeneralEnter" };

#ifdef HOXQ_BENCHMARK_LIBRARY

using Button = vexo::hox::qt::ui::VexoKeyboardButton;

void setImage(Button *key, const QString &file)
{
    key->addIcon(Button::DEFAULT_STATE_NAME, file);
    key->addInverseIcon(Button::DEFAULT_STATE_NAME, file + QStringLiteral("C0"));
}

#else

using Button = QToolButton;

QIcon icon(const QString &file)
{
    QImageReader reader(file);
    reader.setScaledSize(reader.size().scaled(1280, 47, Qt::KeepAspectRatio)); // 4.7 mm
    return QPixmap::fromImageReader(&reader);
}

void setImage(Button *key, const QString &file)
{
    const QIcon plain = icon(file);
    const QIcon inverse = icon(file + QStringLiteral("C0"));
    key->setIconSize(plain.availableSizes().value(0));
    key->setIcon(plain);
    QObject::connect(key, &Button::pressed, key, [key, inverse] { key->setIcon(inverse); });
    QObject::connect(key, &Button::released, key, [key, plain] { key->setIcon(plain); });
}

#endif

QWidget *addKey(QGridLayout *layout, int index)
{
    const QString label = QLatin1String(keys[index]);
    auto *key = new Button;
    if (label.startsWith(QLatin1Char(':'))) {
        setImage(key, label);
    } else {
        key->setText(label);
        key->setObjectName(QStringLiteral("key"));
    }
    key->setFixedSize(118, 80);
    layout->addWidget(key, index / 10, index % 10);
    return key;
}

} // namespace

Screen makeScreen()
{
    Screen screen;
    screen.window = std::make_unique<QWidget>();
    auto *layout = new QGridLayout(screen.window.get());
    std::vector<QWidget *> buttons(40);
    for (int i = 0; i < 40; ++i)
        buttons[std::size_t(i)] = addKey(layout, i);
    auto *line = new QLineEdit(QStringLiteral("vexo"));
    line->setFocusPolicy(Qt::NoFocus); // without a cursor that blinks
    layout->addWidget(line, 4, 0, 1, 10);
    screen.actions = { fullRepaint(screen.window.get()), pressAndRelease(buttons) };
    return screen;
}

#ifdef HOXQ_BENCHMARK_STOCK

QString stockStyleSheet()
{
    return QStringLiteral(
        "QToolButton { border: 1px solid #999; border-top-color: white;"
        " border-bottom: 2px solid #a0a0a0; border-radius: 7px;"
        " background: #dcdcdc; color: #3c3c3c; font-size: 45px; }" // 13 pt
        "#key { background: #f5f5f5; }"
        "QToolButton:pressed, #key:pressed { background: #505050; color: white; }");
}

#endif

} // namespace bench
