// SPDX-License-Identifier: MIT
#include "gallery/widgets/toneflash.h"

namespace {

const int flash_ms = 200; // long enough to be seen, short enough to tell two taps apart

} // namespace

ToneFlash::ToneFlash()
{
    m_timer.setSingleShot(true);
    m_timer.setInterval(flash_ms);
    connect(&m_timer, &QTimer::timeout, this, [this] { Q_EMIT litChanged(false); });
}

ToneFlash *ToneFlash::installed()
{
    return qobject_cast<ToneFlash *>(tone_delegator);
}

void ToneFlash::tone()
{
    m_timer.start();
    Q_EMIT litChanged(true);
}
