// SPDX-License-Identifier: MIT
#include "benchmarks/memory/pairs.h"
#include "benchmarks/support/measure.h"

#include <QApplication>

int main(int argc, char **argv)
{
    bench::prepareProcess();
    const QApplication application(argc, argv);
    for (const bench::Pair &pair : bench::pairs()) {
        const std::string subject = std::string("memory ") + pair.name;
        bench::print(subject + " library", "bytes", bench::keptBytes(pair.library));
        bench::print(subject + " stock", "bytes", bench::keptBytes(pair.stock));
    }
    return 0;
}
