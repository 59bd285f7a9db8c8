// SPDX-License-Identifier: MIT
#include "benchmarks/operations/operations.h"

#include <QApplication>

namespace {

class LineReporter : public benchmark::BenchmarkReporter
{
public:
    LineReporter() = default;
    Q_DISABLE_COPY(LineReporter)

    bool ReportContext(const Context &) override { return true; }

    void ReportRuns(const std::vector<Run> &runs) override
    {
        for (const Run &run : runs) {
            if (run.run_type == Run::RT_Iteration)
                bench::print(run.run_name.function_name, "cpu", run.GetAdjustedCPUTime());
        }
    }
};

} // namespace

namespace bench {

void addSeries(
    const std::string &subject, const std::function<void(benchmark::State &)> &series, int times)
{
#ifndef __clang_analyzer__ // takes what Google Benchmark keeps for a leak
    auto *operation = benchmark::RegisterBenchmark(subject.c_str(), series);
    if (times > 0 || isCounting())
        operation->Iterations(times > 0 ? times : 50);
#endif
}

} // namespace bench

int main(int argc, char **argv)
{
    bench::prepareProcess();
    QApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    bench::addConversions();
    bench::addIcons();
    bench::addButtons();
    bench::addActiveButtons();
    bench::addLineEdits();
    bench::addRows();
    bench::addLabels();
    bench::addStrings();
    LineReporter reporter;
    benchmark::RunSpecifiedBenchmarks(&reporter);
    return 0;
}
