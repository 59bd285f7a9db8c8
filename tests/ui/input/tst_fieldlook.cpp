// SPDX-License-Identifier: MIT
#include "support/testcase.h"
#include "ui/input/fieldlook_p.h"
#include "ui/painting/textrun_p.h"

#include <QTest>

#include <functional>

using namespace vexo::hox::qt::ui;

using Change = std::function<void(FieldLook &)>;
Q_DECLARE_METATYPE(Change)

class TestFieldLook : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void textLeavesRoom_data();
    void textLeavesRoom();
    void tooLongKeepsItsBeginning();
};

namespace {

/// 400 px wide; a text leaves 30 px for a corner, 7 px of margin and 5 px before the cursor.
FieldLook lookWith(const Change &change)
{
    FieldLook look;
    look.size = QSize(400, 60);
    look.margin = QPointF(7, 11);
    look.corner = 30;
    look.indent = 5;
    look.cursor.setWidth(4);
    change(look);
    return look;
}

} // namespace

void TestFieldLook::textLeavesRoom_data()
{
    QTest::addColumn<Change>("change");
    QTest::addColumn<bool>("has_placeholder"); // 20 px wide
    QTest::addColumn<bool>("is_from_middle");
    QTest::addColumn<double>("left");
    const auto centered = [](FieldLook &look) { look.is_centered = true; };
    const auto beside_icon = [](FieldLook &look) { look.icon_end = 50; };
    const auto blinking = [](FieldLook &look) { look.is_centered = look.has_cursor = true; };
    const auto moved = [](FieldLook &look) { look.offset = 3; };
    QTest::newRow("plain") << Change([](FieldLook &) {}) << true << false << 37.0;
    QTest::newRow("offset") << Change(moved) << false << false << 40.0;
    QTest::newRow("icon") << Change(beside_icon) << false << false << 50.0;
    QTest::newRow("centred") << Change(centered) << false << true << 200.0;
    QTest::newRow("centred with cursor") << Change(blinking) << false << true << 196.0;
    QTest::newRow("centred with placeholder") << Change(centered) << true << true << 188.0;
    QTest::newRow("centred with both") << Change(blinking) << true << true << 184.0;
}

void TestFieldLook::textLeavesRoom()
{
    QFETCH(Change, change);
    QFETCH(bool, has_placeholder);
    QFETCH(bool, is_from_middle);
    const FieldLook look = lookWith(change);
    TextRun run;
    run.set(QStringLiteral("123"), QFont());
    const QRectF rect = look.textRect(run, has_placeholder ? std::optional<int>(20) : std::nullopt);
    QTEST(rect.left() + (is_from_middle ? run.advance() / 2 : 0), "left");
    QCOMPARE(rect.top(), 11.0);
    QCOMPARE(rect.height(), 38.0);
    QCOMPARE(look.cursorX(rect), int(rect.left()) + run.advance() + 5);
}

void TestFieldLook::tooLongKeepsItsBeginning()
{
    const FieldLook look = lookWith([](FieldLook &) {});
    TextRun run;
    run.set(QString(200, QLatin1Char('W')), QFont());
    QCOMPARE(look.textRect(run, {}).left(), 37.0);
    run.set(QString(200, QChar(0x05d0)), QFont());
    QCOMPARE(look.textRect(run, {}).right(), 363.0);
}

QTEST_MAIN(TestFieldLook)
#include "tst_fieldlook.moc"
