#pragma once
// SPDX-License-Identifier: MIT

#include "benchmarks/support/measure.h"

#include <benchmark/benchmark.h>

#include <functional>
#include <string>

namespace bench {

void addActiveButtons();
void addButtons();
void addConversions();
void addIcons();
void addLineEdits();
void addRows();
void addLabels();
void addStrings();

/// Registers what is run under \a subject, "operations what variant". \a times fixes the number of
/// steps in a series; with 0 it is found by the time the steps take.
void addSeries(
    const std::string &subject, const std::function<void(benchmark::State &)> &series, int times);

/// Adds an operation. \a prepare is not measured: it is given the number of steps to come and
/// returns the step, a function object.
template <typename Prepare>
void add(const std::string &what, const char *variant, Prepare prepare, int times = 0)
{
    const std::string subject = "operations " + what + ' ' + variant;
    const auto series = [=](benchmark::State &state) {
        auto step = prepare(int(state.max_iterations));
        step(); // fills the caches that a step may use
        startCounting();
        for (auto _ : state)
            step();
        stopCounting(subject, int(state.iterations()));
    };
    addSeries(subject, series, times);
}

} // namespace bench
