// SPDX-License-Identifier: MIT
#include "camerascreen.h"

#include "camerapicture.h"

#include <ScalingInfo>
#include <VexoIconButton>
#include <VideoArea>
#include <VideoCapturePanning>

#include <QHBoxLayout>
#include <QLabel>
#include <QScroller>
#include <QTimer>
#include <QVBoxLayout>

using namespace vexo::hox::qt::ui;

namespace {

const int zoom_step = 50; // percent
const int greatest_zoom = 400;

} // namespace

CameraScreen::CameraScreen(PanelWindow *panel)
    : Screen(panel)
    , m_picture(new CameraPicture)
    , m_panning(new VideoCapturePanning(m_picture))
    , m_area(new VideoArea)
    , m_minus(createIconButton())
    , m_plus(createIconButton())
    , m_percent(createText(9))
    , m_stage(new QWidget)
{
    addHead([] { return tr("Camera"); });
    auto *row = new QHBoxLayout;
    column()->addLayout(row, 1);
    row->addWidget(m_stage, 1);
    m_picture->setParent(m_stage);
    setUpPicture();
    setUpPanning();
    addControls();
    setZoom(100);
}

// The picture is drawn behind the two classes, which tell what is to be seen of it.
void CameraScreen::setUpPicture()
{
    m_area->setVideoWidth(quint32(m_picture->frameSize().width()));
    m_area->setVideoHeight(quint32(m_picture->frameSize().height()));
    m_panning->setWidget(m_area);
    m_area->setAutoFillBackground(false); // the toolkit gives both a ground
    m_panning->viewport()->setAutoFillBackground(false);
    connect(m_area, &VideoArea::crop, m_picture, &CameraPicture::setCrop);
    connect(m_panning, &VideoCapturePanning::tap, this,
        [this] { setZoom(m_zoom > 100 ? 100 : 2 * m_zoom); });
    follow([this] { m_panning->setAccessibleName(tr("Picture of the camera")); });
}

void CameraScreen::setUpPanning()
{
    QWidget *viewport = m_panning->viewport();
    QScroller::grabGesture(viewport, QScroller::LeftMouseButtonGesture);
    QScrollerProperties properties = QScroller::scroller(viewport)->scrollerProperties();
    properties.setScrollMetric(QScrollerProperties::MousePressEventDelay, 0);
    const auto never = QVariant::fromValue(QScrollerProperties::OvershootAlwaysOff);
    properties.setScrollMetric(QScrollerProperties::VerticalOvershootPolicy, never);
    properties.setScrollMetric(QScrollerProperties::HorizontalOvershootPolicy, never);
    QScroller::scroller(viewport)->setScrollerProperties(properties);
}

void CameraScreen::addControls()
{
    auto *controls = new QWidget;
    controls->setFixedWidth(mmX(18));
    auto *layout = new QVBoxLayout(controls);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(mmY(2));
    layout->addStretch(1);
    layout->addWidget(m_plus, 0, Qt::AlignHCenter);
    layout->addWidget(m_percent, 0, Qt::AlignHCenter);
    layout->addWidget(m_minus, 0, Qt::AlignHCenter);
    layout->addStretch(1);
    qobject_cast<QHBoxLayout *>(column()->itemAt(column()->count() - 1)->layout())
        ->addWidget(controls);
    connect(m_plus, &VexoIconButton::clicked, this, [this] { setZoom(m_zoom + zoom_step); });
    connect(m_minus, &VexoIconButton::clicked, this, [this] { setZoom(m_zoom - zoom_step); });
    follow([=] {
        setGround(m_stage, Look::night().ground); // beside the picture, by day as well
        setGround(controls, look().surface);
        dress(m_plus, look(), "plus");
        dress(m_minus, look(), "minus");
        m_plus->setAccessibleName(tr("Zoom in"));
        m_minus->setAccessibleName(tr("Zoom out"));
    });
}

// What is in the middle stays there.
void CameraScreen::setZoom(int percent)
{
    const QSize opening = m_panning->size();
    const QPoint half(opening.width() / 2, opening.height() / 2);
    const QPoint middle = (half - m_area->pos()) * percent / m_zoom;
    m_zoom = percent;
    m_area->setMinimumSize(percent > 100 ? opening * percent / 100 : QSize(0, 0));
    m_area->resize(opening * percent / 100);
    const QPoint offset = middle - half; // below 0 beside a corner
    m_panning->setPosition(QPoint(qMax(0, offset.x()), qMax(0, offset.y())));
    m_percent->setText(QString("%1 %").arg(percent));
    m_minus->setEnabled(percent > 100);
    m_plus->setEnabled(percent < greatest_zoom);
}

void CameraScreen::resizeEvent(QResizeEvent *event)
{
    Screen::resizeEvent(event);
    column()->activate(); // the stage has its size
    fitPicture();
}

// As large as the stage allows in the proportions of the camera, in millimetres.
void CameraScreen::fitPicture()
{
    const ScalingInfo &scaling = *ScalingInfo::inst();
    const QSizeF frame(m_picture->frameSize());
    const QSize size = scaling.mm2px(frame).scaled(m_stage->size(), Qt::KeepAspectRatio).toSize();
    m_picture->resize(size);
    m_picture->move((m_stage->width() - size.width()) / 2, (m_stage->height() - size.height()) / 2);
    m_panning->resize(size);
    setZoom(100);
}
