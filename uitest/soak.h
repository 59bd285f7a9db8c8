#pragma once
// SPDX-License-Identifier: MIT

#include "uitest/hoxquitest_export.h"

#include <QString>

#include <functional>

namespace vexo::hox::qt::uitest {

/// What one round of a soak leaves behind, on average. Negative: less than before.
struct HOXQUITEST_EXPORT SoakGrowth
{
    double heap_bytes = 0; ///< without what the pixmap cache holds
    double objects = 0; ///< QObjects, of all threads
    double cache_bytes = 0; ///< of pixmaps that the cache did not have before
    double handles = 0; ///< open files, sockets and pipes
};

/// What soak() measured: a function that runs a round of using a screen over and over, and looks at
/// what the process holds.
struct HOXQUITEST_EXPORT SoakResult
{
    SoakGrowth growth; ///< of the round that was asked for
    SoakGrowth floor; ///< of a window of the toolkit's own widgets, opened and closed
    int rounds = 0; ///< that were measured; 0 if there was no round to run

    /// Whether anything grows by more than the toolkit's own share and the error of measuring: 40
    /// bytes of heap or cache, a twentieth of an object or handle.
    bool isLeaking() const;
    /// One sentence that says what grew, with figures per round.
    QString text() const;
};

/// Runs \a round for \a rounds times, after a tenth as many to warm up, at least 20, and says what
/// each leaves behind: the median slope between ten looks, so that a hash that grows once is no
/// leak. After each round what is posted is handled and what was deleted later is deleted. At each
/// look the pixmap cache is emptied. The rounds are rounded up to a multiple of 15, from 30 on. GUI
/// thread only.
HOXQUITEST_EXPORT SoakResult soak(const std::function<void()> &round, int rounds = 1000);

} // namespace vexo::hox::qt::uitest
