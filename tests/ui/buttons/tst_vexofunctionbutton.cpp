// SPDX-License-Identifier: MIT
#include "support/iconfiles.h"
#include "support/paintcounter.h"
#include "support/panelscale.h"
#include "support/testcase.h"
#include "support/touch.h"

#include <VexoFunctionButton>

#include <QAccessible>
#include <QLabel>
#include <QLayout>
#include <QTest>

using namespace vexo::hox::qt::ui;

namespace {

using Row = VexoFunctionButton;
using Type = Row::VexoFunctionButtonType;
const Type TYPES[] = { Row::CheckboxType, Row::ActionType, Row::RadiobuttonType,
    Row::FullsizeRadiobuttonType, Row::TickAgreementType };
const QPoint INSIDE(20, 15);

/// A row in loud colours. Those names are also those that lookOf() gives.
struct LoudRow : Row
{
    explicit LoudRow(Type type, QWidget *parent = nullptr)
        : Row(parent, type)
    {
        setText(QStringLiteral("MMM"));
        setTextColor(QColor("blue"));
        setTextClickedColor(QColor("cyan"));
        setTextInactiveColor(QColor("gray"));
        setBackgroundColor(QColor("yellow"));
        setBackgroundClickedColor(QColor("green"));
        resize(400, height());
    }
    bool hasArrow() const { return getButtonInstance() == this; }
    QLayoutItem *part(int index) const { return layout()->itemAt(index); }
};

/// Colours of text, ground and arrow (C3, C0, 220) as they are seen: "blue yellow #3c3c3c".
QByteArray lookOf(LoudRow *row)
{
    const QImage image = row->grab().toImage();
    QByteArrayList look;
    for (const char *color :
        { "blue", "cyan", "gray", "yellow", "green", "#3c3c3c", "#ffffff", "#dcdcdc" }) {
        if ((*color != '#' || row->hasArrow()) && !boxOf(image, QColor(color)).isEmpty())
            look += color;
    }
    return look.join(' ');
}

const QByteArray UP("blue yellow #3c3c3c");
const QByteArray DARK("cyan green #ffffff");
const QByteArray OFF("gray yellow #dcdcdc");

} // namespace

class TestVexoFunctionButton : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void everyTypeTellsATapFromASwipe();
    void fullRowsExcludeEachOther();
    void looksFollowTheState();
    void arrowIsRecoloured();
    void eachPartIsPaintedOncePerChange();
    void measuresAreMillimetres();
    void typeMayChangeInAnyState_data();
    void typeMayChangeInAnyState();
    void mayChangeAndBeDeletedInSignals();
    void textIsWrappedInItsRow();
    void textIsMeasuredLikeAnyLabel_data();
    void textIsMeasuredLikeAnyLabel();
    void textIsPlacedLikeAnyLabel_data() { textIsMeasuredLikeAnyLabel_data(); }
    void textIsPlacedLikeAnyLabel();
    void textIsDrawnLikeAnyLabel_data();
    void textIsDrawnLikeAnyLabel();
    void isOneAccessibleObject();

private:
    const PanelScale m_scale{ 10, 20 };
};

void TestVexoFunctionButton::everyTypeTellsATapFromASwipe()
{
    const QByteArray right("pressed; right toggled 1; right clicked 1; clicked 0; ");
    const QByteArray told[] = { right, "down pressed; clicked 0; ", right,
        "pressed; state 1; toggled 1; clicked 0; ", "pressed; " };
    Row limits;
    for (int px : { 3, 2, 24, 25 }) {
        limits.setMouseMoveDelta(px);
        QCOMPARE(limits.getMouseMoveDelta(), qBound(3, px, 24));
    }
    for (const Type type : TYPES) {
        LoudRow row(type);
        QByteArray log;
        connect(&row, &Row::pressed, this, [&] { log += row.isDown() ? "down " : ""; });
        connect(&row, &Row::stateChanged, this,
            [&](bool on) { log += on ? "state 1; " : "state 0; "; });
        record(&row, &log);
        if (row.getButtonInstance() != &row)
            record(row.getButtonInstance(), &log, "right ");
        for (const QPoint &away : { INSIDE + QPoint(11, 0), INSIDE - QPoint(0, 11) }) {
            log.clear();
            touch(&row, { INSIDE, away, INSIDE });
            QCOMPARE(log, QByteArray(type == Row::ActionType ? "down pressed; " : "pressed; "));
            QVERIFY(!row.isDown());
        }
        log.clear();
        touch(&row, { INSIDE, INSIDE + QPoint(-10, 10) });
        QCOMPARE(log, told[type]);
        QCOMPARE(row.isDown(), type == Row::FullsizeRadiobuttonType);
        for (int i = 0; i < 2 && type == Row::TickAgreementType; ++i) {
            touch(row.getButtonInstance());
            QVERIFY(row.getButtonInstance()->isChecked()); // and stays it
        }
    }
}

void TestVexoFunctionButton::fullRowsExcludeEachOther()
{
    QWidget list;
    LoudRow first(Row::FullsizeRadiobuttonType, &list);
    LoudRow second(Row::FullsizeRadiobuttonType, &list);
    touch(&first);
    QCOMPARE(lookOf(&first), DARK);
    QByteArray log;
    record(&first, &log, "1 ");
    record(&second, &log, "2 ");
    connect(&first, &Row::stateChanged, this, [&](bool on) { log += on ? "1 on; " : "1 off; "; });
    touch(&first); // stays chosen
    touch(&second);
    QCOMPARE(log,
        QByteArray("1 pressed; 1 clicked 0; 2 pressed; 1 off; 1 toggled 0; 2 toggled 1; "
                   "2 clicked 0; "));
    QCOMPARE(lookOf(&first), UP);
    QCOMPARE(lookOf(&second), DARK);
    second.setEnabled(false);
    QCOMPARE(lookOf(&second), QByteArray("gray green #dcdcdc"));
}

void TestVexoFunctionButton::looksFollowTheState()
{
    for (const Type type : TYPES) {
        LoudRow row(type);
        const QByteArray up = row.hasArrow() ? UP : "blue yellow";
        const QByteArray off = row.hasArrow() ? OFF : "gray yellow";
        QCOMPARE(lookOf(&row), up);
        row.setDown(true);
        QCOMPARE(lookOf(&row), row.hasArrow() ? DARK : up);
        row.setEnabled(false);
        QCOMPARE(lookOf(&row), off);
        QCOMPARE(lookOf(&row), off);
        row.setEnabled(true);
        QCOMPARE(lookOf(&row), up);
    }
}

void TestVexoFunctionButton::arrowIsRecoloured()
{
    const QColor colors[] = { Qt::red, Qt::magenta, QColor(0, 60, 90) }; // up, down, disabled
    for (const Type type : { Row::ActionType, Row::FullsizeRadiobuttonType }) {
        LoudRow row(Row::CheckboxType);
        row.setArrowColor(colors[0]);
        row.setButtonType(type);
        const auto shows = [&](int color) {
            const QImage image = row.grab().toImage();
            for (int i = 0; i < 3; ++i) {
                if (boxOf(image, colors[i]).isEmpty() == (i == color))
                    return false;
            }
            return true;
        };
        QVERIFY(shows(0));
        row.setDown(true);
        QCOMPARE(lookOf(&row), DARK);
        row.setArrowClickedColor(colors[1]); // while it is down
        row.setArrowInactiveColor(colors[2]);
        QVERIFY(shows(1));
        row.setEnabled(false);
        QVERIFY(shows(2));
        row.setEnabled(true);
        row.setArrowColor(VexoColors::C3);
        QCOMPARE(lookOf(&row), UP);
    }
}

void TestVexoFunctionButton::eachPartIsPaintedOncePerChange()
{
    QWidget window;
    LoudRow row(Row::ActionType, &window);
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    PaintCounter paints;
    const QVector<QWidget *> parts{ &row, row.getLabelInstance(), row.part(1)->widget() };
    for (QWidget *part : parts)
        paints.watch(part);
    const auto painted = [&] {
        QVector<int> counts;
        for (QWidget *part : parts)
            counts += paints.take(part);
        return counts;
    };
    for (const bool is_down : { true, false }) { // draws each look of the text once
        row.setDown(is_down);
        painted();
    }
    QCOMPARE(painted(), QVector<int>(3, 0)); // at rest
    finger(&row, QEvent::MouseButtonPress, INSIDE);
    QCOMPARE(painted(), QVector<int>(3, 1));
    finger(&row, QEvent::MouseButtonRelease, INSIDE);
    QCOMPARE(painted(), QVector<int>(3, 1));
    row.clearFocus(); // a change of its own
    painted();
    row.setEnabled(false);
    QCOMPARE(painted(), QVector<int>(3, 1));
    row.hide();
    QCOMPARE(propertiesWithoutOneRepaint(&row),
        (QByteArrayList{ "m_button_type", // the new part shows a round later
            "m_text_font_size_in_pt" }));
}

void TestVexoFunctionButton::measuresAreMillimetres()
{
    LoudRow row(Row::CheckboxType);
    const auto gap = [&] {
        row.layout()->activate();
        return row.width() - 1 - row.part(1)->geometry().right();
    };
    QCOMPARE(row.height(), 196);
    QCOMPARE(row.getLabelInstance()->indent(), 30);
    QCOMPARE(row.getLabelInstance()->font().pixelSize(), 63); // 9 pt = 63.5 px
    QCOMPARE(row.getLabelInstance()->font().weight(), 57);
    QCOMPARE(gap(), 20);
    for (float mm : { 1.59F, -1.0F, std::numeric_limits<float>::quiet_NaN() })
        row.setMmRightSpacer(mm);
    QCOMPARE(gap(), 15);
    row.setButtonType(Row::ActionType);
    QCOMPARE(gap(), 30);
    QWidget buddy;
    QCOMPARE(row.addVisibleBuddy(&buddy), &buddy);
    QVERIFY(buddy.testAttribute(Qt::WA_WState_ExplicitShowHide)); // hidden at once
}

void TestVexoFunctionButton::typeMayChangeInAnyState_data()
{
    QTest::addColumn<Type>("from");
    QTest::addColumn<Type>("to");
    QTest::addColumn<QByteArray>("look");
    QTest::newRow("pressed") << Row::ActionType << Row::FullsizeRadiobuttonType << UP;
    QTest::newRow("off") << Row::CheckboxType << Row::ActionType << OFF;
    QTest::newRow("on") << Row::FullsizeRadiobuttonType << Row::ActionType << UP;
    QTest::newRow("on box") << Row::FullsizeRadiobuttonType << Row::CheckboxType
                            << QByteArray("blue yellow");
    QTest::newRow("on still") << Row::FullsizeRadiobuttonType << Row::FullsizeRadiobuttonType
                              << DARK;
}

void TestVexoFunctionButton::typeMayChangeInAnyState()
{
    QFETCH(Type, from);
    QFETCH(Type, to);
    const QByteArray state(QTest::currentDataTag());
    LoudRow row(from);
    row.setChecked(state.startsWith("on"));
    row.setEnabled(state != "off");
    finger(&row, QEvent::MouseButtonPress, INSIDE);
    lookOf(&row);
    row.setButtonType(to);
    QTEST(lookOf(&row), "look");
    finger(&row, QEvent::MouseButtonRelease, INSIDE);
    row.setButtonType(Row::CheckboxType);
    row.setButtonType(Row::FullsizeRadiobuttonType);
    int changes = 0; // the choice is forgotten
    connect(&row, &Row::stateChanged, this, [&] { ++changes; });
    row.setChecked(true);
    QCOMPARE(changes, 1);
}

void TestVexoFunctionButton::mayChangeAndBeDeletedInSignals()
{
    QVERIFY(ringsOnce<Row>());
    for (const Type type : TYPES) {
        QVERIFY(isGoneAfter(&QAbstractButton::pressed, new LoudRow(type)));
        if (type != Row::TickAgreementType)
            QVERIFY(isGoneAfter(&QAbstractButton::clicked, new LoudRow(type)));
        const auto next = Type((type + 2) % 5);
        for (const bool of_part : { false, true }) {
            LoudRow row(type);
            QAbstractButton *button = of_part ? row.getButtonInstance() : &row;
            const auto change = [&] {
                row.setButtonType(next);
                row.setChecked(true);
            };
            connect(button, &QAbstractButton::clicked, this, change);
            touch(of_part && type == Row::TickAgreementType ? button : &row);
            QCOMPARE(row.property("m_button_type").toInt(), type == 4 && !of_part ? 4 : next);
            QCOMPARE(row.isDown(), row.isChecked());
        }
    }
}

void TestVexoFunctionButton::textIsWrappedInItsRow()
{
    QWidget window;
    LoudRow row(Row::TickAgreementType, &window);
    row.setText(QStringLiteral("MMMM MMMM MMMM"));
    row.resize(2000, row.height());
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    const QLabel *label = row.getLabelInstance();
    const int line = label->height();
    const int too_long = label->fontMetrics().horizontalAdvance(row.text()) / 6;
    row.resize(row.width() - label->width() + label->indent() + 5 * too_long, row.height());
    QTRY_COMPARE(label->height(), line + label->fontMetrics().lineSpacing());
}

void TestVexoFunctionButton::textIsMeasuredLikeAnyLabel_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("word") << QStringLiteral("Language");
    QTest::newRow("words") << QStringLiteral("Wi-Fi  is on ");
    QTest::newRow("half a hint") << QString(12, QLatin1Char('M')) + QString(12, QLatin1Char(' '));
    QTest::newRow("wrapped") << QStringLiteral("MMMMMM ").repeated(20);
    QTest::newRow("lines") << QStringLiteral("one\ntwo");
    QTest::newRow("tab") << QStringLiteral("one\ttwo");
    QTest::newRow("rich") << QStringLiteral("<b>one</b> two");
    QTest::newRow("soft hyphen") << QStringLiteral("long%1word").arg(QChar(QChar::SoftHyphen));
    QTest::newRow("from right to left") << QString(QChar(0x5d0)).repeated(5);
}

void TestVexoFunctionButton::textIsMeasuredLikeAnyLabel()
{
    QFETCH(QString, text);
    LoudRow row(Row::ActionType);
    row.setText(text);
    QLabel *label = row.getLabelInstance();
    label->setTextFormat(Qt::AutoText); // as any label's, with markup
    QLabel any(text);
    any.setWordWrap(true);
    any.setIndent(label->indent());
    const auto compare = [&] {
        any.setFont(label->font());
        QCOMPARE(label->sizeHint(), any.sizeHint());
        QCOMPARE(label->minimumSizeHint(), any.minimumSizeHint());
        for (int px : { 0, 50, 100, 150, 200, 250, 300, 400, 1000, 9999 })
            QCOMPARE(label->heightForWidth(px), any.heightForWidth(px));
    };
    compare();
    for (QLabel *changed : { label, &any }) {
        changed->setMargin(7);
        changed->setContentsMargins(1, 2, 3, 4);
        changed->setMaximumWidth(300);
    }
    compare();
    row.setTextFontsizeInPt(3);
    compare();
    QFont spaced = label->font();
    spaced.setLetterSpacing(QFont::AbsoluteSpacing, 60);
    label->setFont(spaced);
    compare();
}

void TestVexoFunctionButton::textIsPlacedLikeAnyLabel()
{
    QFETCH(QString, text);
    LoudRow row(Row::ActionType);
    row.setText(text);
    QLabel *label = row.getLabelInstance();
    label->setTextFormat(Qt::AutoText); // as any label's, with markup
    QWidget other;
    QLabel any(text);
    any.setWordWrap(true);
    any.setIndent(label->indent());
    any.setFont(label->font());
    any.setSizePolicy(label->sizePolicy());
    QLabel arrow;
    QHBoxLayout layout(&other);
    layout.setContentsMargins(0, 0, 0, 0);
    layout.addWidget(&any);
    layout.addWidget(&arrow, 0, Qt::AlignRight);
    layout.addSpacing(row.part(2)->sizeHint().width());
    for (const int px : { 2000, 1000, 600, 400, 300, 200, 2000 }) {
        row.layout()->setGeometry(QRect(0, 0, px, row.height()));
        arrow.setFixedSize(row.part(1)->widget()->size());
        layout.setGeometry(QRect(0, 0, px, row.height()));
        QCOMPARE(label->x(), any.x());
        QCOMPARE(label->width(), any.width());
        QCOMPARE(row.layout()->minimumSize().width(), layout.minimumSize().width());
    }
    delete row.layout()->takeAt(0);
    row.layout()->setGeometry(QRect(0, 0, 300, row.height()));
    QCOMPARE(row.part(0)->geometry().right(), 299 - row.part(1)->sizeHint().width());
}

void TestVexoFunctionButton::textIsDrawnLikeAnyLabel_data()
{
    QTest::addColumn<QString>("sheet");
    QTest::addColumn<QColor>("seen");
    QTest::newRow("no sheet") << QString() << QColor(Qt::blue);
    QTest::newRow("ground") << QStringLiteral("QLabel { background: red }") << QColor(Qt::red);
    QTest::newRow("border") << QStringLiteral("QLabel { border: 2px solid red }")
                            << QColor(Qt::red);
}

void TestVexoFunctionButton::textIsDrawnLikeAnyLabel()
{
    QFETCH(QString, sheet);
    QFETCH(QColor, seen);
    QWidget window;
    window.setStyleSheet(sheet);
    LoudRow row(Row::ActionType, &window);
    QLabel *label = row.getLabelInstance();
    QLabel any(label->text(), &window);
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    any.setForegroundRole(label->foregroundRole());
    any.setPalette(label->palette());
    any.setFont(label->font());
    any.setIndent(label->indent());
    any.setWordWrap(true);
    any.resize(label->size());
    const auto drawn = [&](QLabel *alone) {
        QImage image(alone->size(), QImage::Format_RGB32);
        image.fill(row.backgroundColor());
        alone->render(&image, QPoint(), QRegion(), QWidget::RenderFlags());
        return image;
    };
    const QImage image = drawn(&any);
    QVERIFY(!boxOf(image, seen).isEmpty());
    for (int i = 0; i < 2; ++i) { // polished, polished anew
        for (int j = 0; j < 2; ++j) // printed, copied
            QCOMPARE(row.grab(label->geometry()).toImage().convertToFormat(image.format()), image);
        QCOMPARE(drawn(label), image);
        window.setStyleSheet(QString());
        window.setStyleSheet(sheet);
    }
}

void TestVexoFunctionButton::isOneAccessibleObject()
{
    const QAccessible::Role roles[] = { QAccessible::CheckBox, QAccessible::Button,
        QAccessible::RadioButton, QAccessible::RadioButton, QAccessible::CheckBox };
    const QString press = QAccessibleActionInterface::pressAction();
    for (const Type type : TYPES) {
        LoudRow row(Type((type + 1) % 5));
        QAccessibleInterface *seen = QAccessible::queryAccessibleInterface(&row);
        row.setButtonType(type);
        QCOMPARE(seen->text(QAccessible::Name), QStringLiteral("MMM"));
        QCOMPARE(seen->childCount(), 0);
        QCOMPARE(seen->role(), roles[type]);
        QCOMPARE(bool(seen->state().checkable), type != Row::ActionType);
        QVERIFY(!seen->state().checked);
        QVERIFY(seen->actionInterface()->actionNames().contains(press));
        int clicks = 0;
        connect(row.getButtonInstance(), &QAbstractButton::clicked, this, [&] { ++clicks; });
        seen->actionInterface()->doAction(press);
        QCOMPARE(clicks, 1);
        QCOMPARE(bool(seen->state().checked), type != Row::ActionType);
    }
}

QTEST_MAIN(TestVexoFunctionButton)
#include "tst_vexofunctionbutton.moc"
