// SPDX-License-Identifier: MIT
#include "updatescreen.h"

#include <CachedVectorIcon>
#include <PageStack>
#include <VexoColors>

#include <QLabel>
#include <QProgressBar>
#include <QVBoxLayout>
#include <QVariant>

using namespace vexo::hox::qt::panel;
using namespace vexo::hox::qt::ui;

namespace {

const int sign_in_mm = 16;
const int step_ms = 80; // for each percent

// Light ones: an update is shown on dark ground, by day as well.
QStringList frames()
{
    QStringList files;
    for (int step = 0; step < 12; ++step)
        files += Look::night().icon(QString("busy-%1").arg(step));
    return files;
}

} // namespace

UpdateScreen::UpdateScreen(PanelWindow *panel)
    : Screen(panel)
    , m_busy(frames(), sign_in_mm, sign_in_mm)
    , m_sign(new QLabel)
    , m_progress(new QProgressBar)
{
    m_sign->setFixedSize(mmSize(sign_in_mm, sign_in_mm));
    m_sign->setScaledContents(true); // frames keep the proportions of their files in px, not in mm
    m_sign->setProperty("hoxq_blinks", true); // moves on purpose
    m_sign->setPixmap(
        CachedVectorIcon(frames().first(), QSizeF(sign_in_mm, sign_in_mm)).toPixmap());
    m_progress->setProperty("hoxq_blinks", true);
    m_progress->setFixedWidth(mmX(80));
    m_progress->setTextVisible(false);
    QLabel *text = createText(13);
    QLabel *hint = createText(9, QFont::Normal);
    column()->addStretch(3);
    column()->addWidget(m_sign, 0, Qt::AlignHCenter);
    column()->addSpacing(mmY(6));
    column()->addWidget(text, 0, Qt::AlignHCenter);
    column()->addSpacing(mmY(4));
    column()->addWidget(m_progress, 0, Qt::AlignHCenter);
    column()->addSpacing(mmY(4));
    column()->addWidget(hint, 0, Qt::AlignHCenter);
    column()->addStretch(4);
    connect(&m_busy, &RotationPixmap::pixmapRotated, m_sign, &QLabel::setPixmap);
    const QString track
        = QString("QProgressBar { background: %1; }").arg(Look::night().line.name());
    follow([=] {
        setGround(this, Look::night().ground);
        m_progress->setStyleSheet(track);
        setInk(text, Look::night().ink);
        setInk(hint, Look::night().faint);
        text->setText(tr("Updating ..."));
        hint->setText(tr("Please leave the panel switched on."));
        m_progress->setAccessibleName(tr("Progress"));
        setWindowTitle(tr("Update"));
    });
}

void UpdateScreen::showEvent(QShowEvent *)
{
    m_busy.startRotating();
    m_progress->setValue(0);
    m_step.start(step_ms, this);
}

void UpdateScreen::hideEvent(QHideEvent *)
{
    m_busy.stopRotating();
    m_step.stop();
}

void UpdateScreen::timerEvent(QTimerEvent *)
{
    m_progress->setValue(m_progress->value() + 1);
    if (m_progress->value() == m_progress->maximum())
        end();
}

void UpdateScreen::end()
{
    m_step.stop();
    panel()->tell(tr("The panel is up to date."));
    panel()->stack()->home();
}
