// SPDX-License-Identifier: MIT
#include "benchmarks/support/screen.h"

#include <QLabel>
#include <QTimer>
#include <QVBoxLayout>

#ifdef HOXQ_BENCHMARK_LIBRARY
#include <RotationPixmap>
#include <UpdatePage>
#endif

namespace bench {

namespace {

QStringList frames()
{
    QStringList files;
    for (const char *name : { "Tick_Active", "Tick_Inactive", "Tick_Pressed", "X_Active" })
        files += QStringLiteral(":/widgetimages/RoundButton_S_%1.svg").arg(QLatin1String(name));
    return files;
}

#ifdef HOXQ_BENCHMARK_LIBRARY

using namespace vexo::hox::qt::ui;

QWidget *makePage()
{
    return new UpdatePage;
}

// A thread that is still loading when the first frame is counted would be counted by chance.
QTimer *animate(QLabel *label)
{
    auto *rotation = new RotationPixmap(frames(), 12, 12);
    rotation->setParent(label);
    rotation->wait();
    QObject::connect(rotation, &RotationPixmap::pixmapRotated, label, &QLabel::setPixmap);
    return rotation->findChild<QTimer *>();
}

#else

QLabel *makeLabel(const char *name)
{
    auto *label = new QLabel;
    label->setObjectName(QLatin1String(name));
    label->setAlignment(Qt::AlignCenter);
    return label;
}

QWidget *makePage()
{
    auto *page = new QWidget;
    QLabel *logo = makeLabel("logo");
    logo->setPixmap(QStringLiteral(":/widgetimages/vexo-inverted.png"));
    logo->setFixedHeight(70);
    QLabel *note = makeLabel("note");
    note->setText(QStringLiteral("Updating ..."));
    auto *column = new QVBoxLayout(page);
    column->setSpacing(0);
    column->setContentsMargins(0, 0, 0, 0);
    column->addStretch();
    column->addWidget(logo);
    column->addSpacing(60);
    column->addWidget(note);
    column->addStretch();
    return page;
}

QTimer *animate(QLabel *label)
{
    QVector<QPixmap> pixmaps;
    const QStringList files = frames();
    for (const QString &file : files)
        pixmaps += QPixmap(file).scaled(
            120, 120, Qt::KeepAspectRatioByExpanding, Qt::SmoothTransformation);
    auto *timer = new QTimer(label);
    QObject::connect(timer, &QTimer::timeout, label, [label, pixmaps, index = 0]() mutable {
        index = (index + 1) % pixmaps.size();
        label->setPixmap(pixmaps.at(index));
    });
    return timer;
}

#endif

} // namespace

Screen makeScreen()
{
    Screen screen;
    screen.window = std::make_unique<QWidget>();
    auto *busy = new QLabel;
    busy->setFixedHeight(200);
    busy->setAlignment(Qt::AlignCenter);
    auto *column = new QVBoxLayout(screen.window.get());
    column->addWidget(makePage());
    column->addWidget(busy);
    screen.actions = { tick(animate(busy)) };
    return screen;
}

#ifdef HOXQ_BENCHMARK_STOCK

QString stockStyleSheet()
{
    return QStringLiteral("QLabel { background: transparent; } #note { font: 400 10pt; }");
}

#endif

} // namespace bench
