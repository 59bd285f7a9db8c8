// SPDX-License-Identifier: MIT
#include "support/testcase.h"
#include "ui/input/fieldtext_p.h"

#include <QInputMethodEvent>
#include <QTest>

using namespace vexo::hox::qt::ui;

class TestFieldText : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void placeholderCountsDown_data();
    void placeholderCountsDown();
    void composedTextCounts();
};

void TestFieldText::placeholderCountsDown_data()
{
    QTest::addColumn<QString>("placeholder");
    QTest::addColumn<int>("typed");
    QTest::addColumn<bool>("spaced");
    QTest::addColumn<QString>("rest");
    const QString four = QStringLiteral("____");
    QTest::newRow("nothing typed") << four << 0 << true << QStringLiteral("_ _ _ _");
    QTest::newRow("some") << four << 2 << true << QStringLiteral("_ _");
    QTest::newRow("all") << four << 4 << true << QString();
    QTest::newRow("close together") << four << 2 << false << QStringLiteral("__");
    QTest::newRow("half a pair is not shown")
        << QStringLiteral(u"\U0001F130b") << 1 << false << QStringLiteral("b");
}

void TestFieldText::placeholderCountsDown()
{
    QFETCH(QString, placeholder);
    QFETCH(int, typed);
    QFETCH(bool, spaced);
    QTEST(FieldText::rest(placeholder, typed, spaced), "rest");
}

void TestFieldText::composedTextCounts()
{
    TextRun run;
    run.set(QStringLiteral("MIW"), QFont());
    FieldText text;
    text.setPlaceholder(QStringLiteral("____"), false);
    text.compose(QInputMethodEvent(QStringLiteral("IW"), {}), 9); // behind the end by now
    text.layOut(QStringLiteral("M"), QFont());
    QCOMPARE(text.run().advance(), run.advance());
    QVERIFY(text.hasPlaceholder());
    text.setPlaceholder(QStringLiteral("___"), false);
    text.layOut(QStringLiteral("M"), QFont());
    QVERIFY(!text.hasPlaceholder());
    QCOMPARE(text.placeholder().advance(), 0);
}

QTEST_MAIN(TestFieldText)
#include "tst_fieldtext.moc"
