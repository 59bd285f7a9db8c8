// SPDX-License-Identifier: MIT
#include "benchmarks/memory/pairs.h"
#include "support/testcase.h"

#include <QFile>
#include <QRegularExpression>
#include <VexoLineEdit>
#include <VexoPushButton>

using namespace vexo::hox::qt::ui;

/// What widgets keep on the heap.
class TestMemory : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void keepsNoMoreThanItMay_data();
    void keepsNoMoreThanItMay();
    void longOnesKeepNoMoreThanShortOnes();
};

namespace {

template <typename Widget, int width_px>
double keptBytes()
{
    return bench::keptBytes([](QWidget *parent) -> QWidget * {
        auto *widget = new Widget(parent);
        widget->resize(width_px, widget->height());
        return widget;
    });
}

} // namespace

// The bounds stand with the rows of the benchmark's table.
void TestMemory::keepsNoMoreThanItMay_data()
{
    QTest::addColumn<int>("index");
    QTest::addColumn<double>("most"); // times what the stock widget keeps
    QFile rows(QStringLiteral(HOXQ_BENCHMARK_ROWS));
    QVERIFY(rows.open(QIODevice::ReadOnly));
    const QString text = QString::fromUtf8(rows.readAll());
    const std::vector<bench::Pair> &pairs = bench::pairs();
    for (std::size_t i = 0; i < pairs.size(); ++i) {
        const QRegularExpression row(
            QString("\nmemory \\| %1 \\|.*\\| ([0-9.]+)\n").arg(QLatin1String(pairs[i].name)));
        QTest::newRow(pairs[i].name) << int(i) << row.match(text).captured(1).toDouble();
    }
}

void TestMemory::keepsNoMoreThanItMay()
{
    QFETCH(int, index);
    QFETCH(double, most);
    const bench::Pair &pair = bench::pairs()[std::size_t(index)];
    const double stock = bench::keptBytes(pair.stock);
    const double kept = bench::keptBytes(pair.library);
    QVERIFY(stock > 1000); // else nothing was counted
    QVERIFY2(kept <= most * stock, qPrintable(QString("%1 bytes").arg(kept)));
}

void TestMemory::longOnesKeepNoMoreThanShortOnes()
{
    const auto is_bounded = [](double long_one, double short_one) {
        return long_one < short_one + 1000; // bytes
    };
    QVERIFY(is_bounded((keptBytes<VexoLineEdit, 3000>)(), (keptBytes<VexoLineEdit, 300>)()));
    QVERIFY(is_bounded((keptBytes<VexoPushButton, 3000>)(), (keptBytes<VexoPushButton, 300>)()));
}

QTEST_MAIN(TestMemory)
#include "tst_memory.moc"
