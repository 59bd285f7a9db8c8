// SPDX-License-Identifier: MIT
#include "benchmarks/support/screen.h"

#include <FontLoader>
#include <ScalingInfo>
#include <VexoStylesheet>

using namespace vexo::hox::qt::ui;

namespace bench {

void setUpFonts()
{
    ScalingInfo::inst()->setPixels(1280, 800);
    ScalingInfo::inst()->setSizeMM(128, 80); // 10 px/mm
    FontLoader();
}

void setUpSheets()
{
#ifndef HOXQ_BENCHMARK_WITHOUT_SHEETS
    VexoStylesheet(QStringList{ ":/css/vexo-AAL.qs", ":/css/hoxq.qs" });
#endif
}

} // namespace bench
