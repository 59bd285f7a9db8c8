// SPDX-License-Identifier: MIT
#include "benchmarks/operations/operations.h"

#include <QGuiApplication>
#include <QScreen>
#include <ScalingInfo>

using namespace vexo::hox::qt::ui;

namespace bench {

namespace {

// One conversion is as short as the loop around it: a step makes a thousand, each of a measure that
// the compiler cannot foresee.
template <typename Conversion>
void addThousand(const char *what, const char *variant, Conversion conversion)
{
    add(what, variant, [=](int) {
        return [=] {
            float measure = 4.7f;
            for (int i = 0; i < 1000; ++i) {
                benchmark::DoNotOptimize(measure);
                benchmark::DoNotOptimize(conversion(measure));
            }
        };
    });
}

double dotsPerMm()
{
    return QGuiApplication::primaryScreen()->physicalDotsPerInchX() / 25.4;
}

} // namespace

void addConversions()
{
    const double px_per_mm = dotsPerMm();
    addThousand("mm2px_X", "library", [](float mm) { return ScalingInfo::inst()->mm2px_X(mm); });
    addThousand("mm2px_X", "multiplication", [=](float mm) { return double(mm) * px_per_mm; });
    addThousand("mm2px_X", "stock", [](float mm) { return double(mm) * dotsPerMm(); });
    addThousand("mm2px", "library",
        [](float mm) { return ScalingInfo::inst()->mm2px(QSizeF(double(mm), double(mm))); });
    addThousand("mm2px", "multiplication",
        [=](float mm) { return QSizeF(double(mm), double(mm)) * px_per_mm; });
    addThousand(
        "mm2px", "stock", [](float mm) { return QSizeF(double(mm), double(mm)) * dotsPerMm(); });
    addThousand("pt2px_Y", "library", [](float pt) { return ScalingInfo::inst()->pt2px_Y(pt); });
    addThousand("pt2px_Y", "stock", [](float pt) {
        return double(pt) * QGuiApplication::primaryScreen()->physicalDotsPerInchY() / 72;
    });
}

} // namespace bench
