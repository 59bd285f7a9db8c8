// SPDX-License-Identifier: MIT
#include "support/testcase.h"
#include "ui/input/fieldlook_p.h"
#include "ui/painting/textrun_p.h"

#include <QTest>

using namespace vexo::hox::qt::ui;

class TestFieldLook : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void textLeavesRoom_data();
    void textLeavesRoom();
    void tooLongKeepsItsBeginning();
    void endsBeforeAnIconAtTheRight();
};

namespace {

/// 400 px wide; a text leaves 30 px for a corner, 7 px of margin and 5 px before the cursor.
FieldLook wideLook()
{
    FieldLook look;
    look.size = QSize(400, 60);
    look.margin = QPointF(7, 11);
    look.corner = 30;
    look.indent = 5;
    look.cursor.setWidth(4);
    return look;
}

} // namespace

void TestFieldLook::textLeavesRoom_data()
{
    QTest::addColumn<bool>("is_centered");
    QTest::addColumn<bool>("has_cursor");
    QTest::addColumn<int>("icon_end"); // px, 0: there is none
    QTest::addColumn<int>("placeholder"); // px, 0: there is none
    QTest::addColumn<double>("x"); // of its left edge or its middle
    QTest::newRow("plain") << false << true << 0 << 20 << 40.0;
    QTest::newRow("icon") << false << true << 50 << 20 << 53.0;
    QTest::newRow("centred") << true << false << 50 << 0 << 200.0;
    QTest::newRow("centred with cursor") << true << true << 0 << 0 << 196.0;
    QTest::newRow("centred with placeholder") << true << false << 0 << 20 << 188.0;
    QTest::newRow("centred with both") << true << true << 0 << 20 << 184.0;
}

void TestFieldLook::textLeavesRoom()
{
    QFETCH(bool, is_centered);
    QFETCH(bool, has_cursor);
    QFETCH(int, icon_end);
    QFETCH(int, placeholder);
    FieldLook look = wideLook();
    look.offset = 3;
    look.is_centered = is_centered;
    look.has_cursor = has_cursor;
    if (icon_end > 0)
        look.icon_end = icon_end;
    TextRun run;
    run.set(QStringLiteral("123"), QFont());
    const QRectF rect
        = look.textRect(run, placeholder > 0 ? std::make_optional(placeholder) : std::nullopt);
    QTEST(rect.left() + (look.is_centered ? run.advance() / 2 : 0), "x");
    QCOMPARE(rect.top(), 11.0);
    QCOMPARE(rect.height(), 38.0);
    QCOMPARE(look.cursorX(rect), int(rect.left()) + run.advance() + 5);
}

void TestFieldLook::tooLongKeepsItsBeginning()
{
    const FieldLook look = wideLook();
    TextRun run;
    run.set(QString(200, QLatin1Char('W')), QFont());
    QCOMPARE(look.textRect(run, {}).left(), 37.0);
    run.set(QString(200, QChar(0x05d0)), QFont());
    QCOMPARE(look.textRect(run, {}).right(), 363.0);
}

// That is where a layout from right to left puts it.
void TestFieldLook::endsBeforeAnIconAtTheRight()
{
    FieldLook look = wideLook();
    look.offset = 3;
    look.icon_start = 350;
    TextRun run;
    run.set(QStringLiteral("123"), QFont());
    QCOMPARE(look.textRect(run, {}).right(), 338.0); // 5 px and the cursor before the offset
    QCOMPARE(look.textRect(run, 20).right(), 322.0);
    look.has_cursor = true;
    QCOMPARE(look.textRect(run, {}).right(), 338.0);
    run.set(QString(200, QLatin1Char('W')), QFont());
    QCOMPARE(look.textRect(run, {}).left(), 37.0);
    run.set(QString(200, QChar(0x05d0)), QFont());
    QCOMPARE(look.textRect(run, {}).right(), 338.0);
}

QTEST_MAIN(TestFieldLook)
#include "tst_fieldlook.moc"
