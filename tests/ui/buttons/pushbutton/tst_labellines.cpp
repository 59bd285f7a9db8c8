// SPDX-License-Identifier: MIT
#include "support/testcase.h"
#include "ui/buttons/pushbutton/labellines_p.h"

#include <QFontMetrics>
#include <QTest>

#include <ctime>

using namespace vexo::hox::qt::ui;

class TestLabelLines : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void firstLineIsTheLongestThatFits_data();
    void firstLineIsTheLongestThatFits();
    void longTextIsFittedQuickly();
};

void TestLabelLines::firstLineIsTheLongestThatFits_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("word") << QStringLiteral("Geschwindigkeitsbegrenzungsanzeige");
    QTest::newRow("line break") << QStringLiteral("first line\nsecond  line ");
    QTest::newRow("kerning") << QStringLiteral("AVAVAffiflWAToTo");
    QTest::newRow("Arabic") << QStringLiteral("\u0645\u0631\u062d\u0628\u0627 \u0628\u0643\u0645");
    QTest::newRow("accents") << QStringLiteral("a\u0301\u0302e\u0301o\u0308n\u0303");
    QTest::newRow("pairs") << QStringLiteral("a\U0001D578\U0001D578bc\U0001D578");
}

void TestLabelLines::firstLineIsTheLongestThatFits()
{
    QFETCH(QString, text);
    LabelLines lines;
    for (int width = 0, most = 1; width <= most; ++width) {
        for (const int font_px : { 30, 20 }) {
            QFont font;
            font.setPixelSize(font_px);
            const QFontMetrics metrics(font);
            most = metrics.boundingRect(text).width() + 1;
            int length = text.size();
            while (length > 0 && metrics.boundingRect(text.left(length)).width() > width)
                --length;
            if (length > 0 && length < text.size() && text.at(length).isLowSurrogate())
                --length; // never half a pair
            lines.measure(text, QString(), font);
            lines.split(width);
            QCOMPARE(lines.first(), text.left(length));
            QCOMPARE(lines.second(), text.mid(length));
        }
    }
}

void TestLabelLines::longTextIsFittedQuickly()
{
    const QFontMetrics metrics{ QFont() };
    const QString text(10000, QLatin1Char('m'));
    const std::clock_t start = std::clock(); // CPU time, whatever else the machine does
    metrics.boundingRect(text);
    const std::clock_t once = std::clock() - start;
    fittingBeginning(metrics, text, 300);
    QVERIFY(std::clock() - start - once < 200 * once); // one by one: thousands
}

QTEST_MAIN(TestLabelLines)
#include "tst_labellines.moc"
