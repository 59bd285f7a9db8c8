// SPDX-License-Identifier: MIT
#include "gallery/pages/videopage.h"

#include "gallery/measures.h"
#include "gallery/widgets/fingerscroll.h"
#include "gallery/widgets/videooutput.h"

#include <VexoIconButton>
#include <VexoPushButton>
#include <VideoArea>
#include <VideoCapturePanning>

#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QVBoxLayout>

using namespace vexo::hox::qt::ui;

namespace {

const QSizeF picture_in_mm(64, 36); // as the camera's, 16 : 9
const int frame_ms = 40;
const int zoom_step = 50; // percent
const int greatest_zoom = 400;

VexoIconButton *createIconButton(const QString &name, const QString &icon)
{
    auto *button = new VexoIconButton;
    button->setMmIconSize(QSizeF(8, 8));
    const QString file = ":/widgetimages/Icons_Round_Small/RoundButton_S_%1_%2.svg";
    button->addIcon(ActiveButton::DEFAULT_STATE_NAME, file.arg(icon, "Active"));
    button->addIcon(ActiveButton::CLICKED_STATE_NAME, file.arg(icon, "Pressed"));
    button->addIcon(ActiveButton::INACTIVE_STATE_NAME, file.arg(icon, "Inactive"));
    button->setFixedSize(mmSize(12, 12));
    button->setAccessibleName(name);
    return button;
}

VexoPushButton *createPushButton(const QString &text)
{
    auto *button = new VexoPushButton;
    button->setText(text);
    button->setFixedWidth(mmX(40));
    return button;
}

// A value does not move what is beside it when it grows.
QLabel *createValue(const QString &name)
{
    auto *value = new QLabel("-");
    value->setObjectName(name);
    value->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    return value;
}

} // namespace

VideoPage::VideoPage()
    : Page("Video",
        "The picture is drawn behind the widgets, as a panel's video output does: the two classes "
        "only tell which part of it, and where. Pan it with the finger; a double tap zooms.",
        Screen)
    , m_output(new VideoOutput)
    , m_panning(new VideoCapturePanning(m_output))
    , m_area(new VideoArea)
    , m_minus(createIconButton("Zoom out", "Minus"))
    , m_plus(createIconButton("Zoom in", "Plus"))
    , m_play(createPushButton("Play"))
{
    auto *row = new QHBoxLayout;
    row->setSpacing(mmX(4));
    row->addWidget(createPicture());
    row->addLayout(createControls());
    row->addStretch();
    addBlock(row);
    addBlock(createValues());
    connect(&m_camera, &QTimer::timeout, m_output, &VideoOutput::showNextFrame);
    setZoom(m_zoom);
}

void VideoPage::hideEvent(QHideEvent *event)
{
    setPlaying(false);
    Page::hideEvent(event);
}

QWidget *VideoPage::createPicture()
{
    m_output->setFixedSize(mmSize(picture_in_mm.width(), picture_in_mm.height()));
    m_panning->resize(m_output->size()); // at 0, 0: the place is told right only there
    m_panning->setAccessibleName("Camera picture");
    m_area->setVideoWidth(quint32(m_output->pictureSize().width()));
    m_area->setVideoHeight(quint32(m_output->pictureSize().height()));
    m_panning->setWidget(m_area);
    // The toolkit gives both a ground, which would hide the picture.
    m_area->setAutoFillBackground(false);
    m_panning->viewport()->setAutoFillBackground(false);
    panByFinger(m_panning);
    connect(m_area, &VideoArea::crop, m_output, &VideoOutput::setCrop);
    connect(m_panning, &VideoCapturePanning::setViewportPos, m_output, &VideoOutput::setPlace);
    connect(m_panning, &VideoCapturePanning::setViewportSize, m_output, &VideoOutput::setPlaceSize);
    return m_output;
}

QLayout *VideoPage::createControls()
{
    auto *whole = createPushButton("Whole");
    connect(whole, &VexoPushButton::clicked, this, [this] { setZoom(100); });
    connect(m_play, &VexoPushButton::clicked, this, [this] { setPlaying(!m_camera.isActive()); });
    auto *column = new QVBoxLayout;
    column->setSpacing(0);
    column->addLayout(createZoomButtons());
    column->addWidget(whole);
    column->addWidget(m_play);
    return column;
}

QLayout *VideoPage::createZoomButtons()
{
    connect(m_minus, &VexoIconButton::clicked, this, [this] { setZoom(m_zoom - zoom_step); });
    connect(m_plus, &VexoIconButton::clicked, this, [this] { setZoom(m_zoom + zoom_step); });
    auto *row = new QHBoxLayout;
    row->addWidget(m_minus);
    row->addWidget(m_plus);
    row->addStretch();
    return row;
}

QLayout *VideoPage::createValues()
{
    auto *grid = new QGridLayout;
    grid->setHorizontalSpacing(mmX(3));
    grid->setVerticalSpacing(mmY(1));
    grid->setColumnStretch(1, 1);
    grid->setColumnStretch(3, 1);
    const auto add = [grid](int row, int column, const QString &name, int span = 1) {
        auto *label = new QLabel(name);
        label->setFont(ptFont(7, QFont::Medium));
        QLabel *value = createValue(name);
        grid->addWidget(label, row, 2 * column);
        grid->addWidget(value, row, 2 * column + 1, 1, span);
        return value;
    };
    showCrop(add(0, 0, "crop", 3));
    showPlace(add(1, 0, "setViewportPos"), add(1, 1, "setViewportSize"));
    showRatio(add(2, 0, "setAspectRatio"));
    countTaps(add(2, 1, "tap"));
    return grid;
}

void VideoPage::showCrop(QLabel *value)
{
    connect(m_area, &VideoArea::crop, value, [=](int x, int y, uint width, uint height) {
        value->setText(QString("%1, %2, %3, %4").arg(x).arg(y).arg(width).arg(height));
    });
}

void VideoPage::showPlace(QLabel *position, QLabel *size)
{
    const auto pair = [](QLabel *value) {
        return [value](uint x, uint y) { value->setText(QString("%1, %2").arg(x).arg(y)); };
    };
    connect(m_panning, &VideoCapturePanning::setViewportPos, position, pair(position));
    connect(m_panning, &VideoCapturePanning::setViewportSize, size, pair(size));
}

void VideoPage::showRatio(QLabel *value)
{
    connect(m_panning, &VideoCapturePanning::setAspectRatio, value,
        [=](double ratio) { value->setText(QString::number(ratio, 'f', 3)); });
}

void VideoPage::countTaps(QLabel *value)
{
    connect(m_panning, &VideoCapturePanning::tap, this, [=] {
        value->setText(QString::number(++m_taps));
        setZoom(m_zoom > 100 ? 100 : 200);
    });
}

void VideoPage::setPlaying(bool playing)
{
    if (playing)
        m_camera.start(frame_ms);
    else
        m_camera.stop();
    m_play->setText(playing ? "Pause" : "Play");
}

// What is in the middle stays there.
void VideoPage::setZoom(int percent)
{
    const QSize opening = m_panning->size();
    const QPoint half(opening.width() / 2, opening.height() / 2);
    const QPoint middle = (half - m_area->pos()) * percent / m_zoom;
    const QSize whole = opening * percent / 100;
    m_zoom = percent;
    m_area->setMinimumSize(percent > 100 ? whole : QSize(0, 0));
    m_area->resize(whole);
    const QPoint offset = middle - half; // below 0 beside a corner
    m_panning->setPosition(QPoint(qMax(0, offset.x()), qMax(0, offset.y())));
    m_minus->setEnabled(percent > 100);
    m_plus->setEnabled(percent < greatest_zoom);
}
