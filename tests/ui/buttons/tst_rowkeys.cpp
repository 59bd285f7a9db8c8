// SPDX-License-Identifier: MIT
#include "support/testcase.h"
#include "support/touch.h"

#include <VexoFunctionButton>

#include <QTest>
#include <QWindow>

using namespace vexo::hox::qt::ui;

namespace {

using Row = VexoFunctionButton;
using Type = Row::VexoFunctionButtonType;

/// Two rows of a type in a window that has the keys.
struct Rows : QWidget
{
    explicit Rows(Type type)
        : first(this, type)
        , second(this, type)
    {
        resize(400, 300);
        second.move(0, 150);
        show();
        activateWindow();
    }

    bool isReady() { return QTest::qWaitForWindowActive(this); }
    void key(Qt::Key key) { QTest::keyClick(windowHandle(), key); }

    Row first;
    Row second;
};

} // namespace

/// VexoFunctionButton, operated by keys.
class TestRowKeys : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void spaceOperatesTheRow_data();
    void spaceOperatesTheRow();
    void eachRowIsOneTabStop();
    void chosenRowIsNotReleased_data();
    void chosenRowIsNotReleased();
};

void TestRowKeys::spaceOperatesTheRow_data()
{
    const QByteArray right("pressed; right toggled 1; right clicked 1; released; clicked 0; ");
    QTest::addColumn<Type>("type");
    QTest::addColumn<QByteArray>("told");
    QTest::newRow("check box") << Row::CheckboxType << right;
    QTest::newRow("action") << Row::ActionType << QByteArray("pressed; released; clicked 0; ");
    QTest::newRow("radio button") << Row::RadiobuttonType << right;
    QTest::newRow("choice") << Row::FullsizeRadiobuttonType
                            << QByteArray("pressed; toggled 1; released; clicked 1; ");
    QTest::newRow("tick box") << Row::TickAgreementType << right;
}

void TestRowKeys::spaceOperatesTheRow()
{
    QFETCH(Type, type);
    Rows rows(type);
    QVERIFY(rows.isReady());
    rows.first.setFocus();
    QByteArray log;
    record(&rows.first, &log);
    QAbstractButton *right = rows.first.getButtonInstance();
    if (right != &rows.first)
        record(right, &log, "right ");
    rows.key(Qt::Key_Space);
    QTEST(log, "told");
    QCOMPARE(right->isChecked(), type != Row::ActionType);
    rows.key(Qt::Key_Space);
    QCOMPARE(
        right->isChecked(), type == Row::FullsizeRadiobuttonType || type == Row::TickAgreementType);
}

void TestRowKeys::eachRowIsOneTabStop()
{
    // Of rows that exclude each other the toolkit makes one stop.
    for (const Type type :
        { Row::CheckboxType, Row::ActionType, Row::RadiobuttonType, Row::TickAgreementType }) {
        Rows rows(type);
        QVERIFY(rows.isReady());
        rows.first.setFocus();
        for (const Row *next : { &rows.second, &rows.first, &rows.second }) {
            rows.key(Qt::Key_Tab);
            QCOMPARE(QApplication::focusWidget(), next);
        }
    }
}

void TestRowKeys::chosenRowIsNotReleased_data()
{
    QTest::addColumn<bool>("is_disabled");
    QTest::newRow("focus lost") << false;
    QTest::newRow("disabled") << true;
}

void TestRowKeys::chosenRowIsNotReleased()
{
    QFETCH(bool, is_disabled);
    Rows rows(Row::FullsizeRadiobuttonType);
    QVERIFY(rows.isReady());
    rows.first.setFocus();
    touch(&rows.first);
    QVERIFY(rows.first.isDown());
    QByteArray log;
    record(&rows.first, &log);
    if (is_disabled)
        rows.first.setEnabled(false);
    else
        rows.second.setFocus();
    rows.first.setEnabled(true);
    QCOMPARE(log, QByteArray());
    QVERIFY(rows.first.isDown());
}

QTEST_MAIN(TestRowKeys)
#include "tst_rowkeys.moc"
