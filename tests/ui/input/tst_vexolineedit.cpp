// SPDX-License-Identifier: MIT
#include "support/iconfiles.h"
#include "support/paintcounter.h"
#include "support/panelscale.h"
#include "support/testcase.h"
#include "support/touch.h"

#include <FontLoader>
#include <VexoIconButton>
#include <VexoLineEdit>

#include <QMetaProperty>
#include <QPaintEvent>
#include <QSignalSpy>
#include <QTest>
#include <QTimer>

#include <memory>

using namespace vexo::hox::qt::ui;

namespace {

const QColor GROUND(Qt::yellow);
const QColor INK(Qt::blue);
const QColor EXPECTED(Qt::green);
const QColor CURSOR(Qt::magenta);

/// Opens what the toolkit calls, and keeps on a canvas what its repaints have drawn.
class Field : public VexoLineEdit
{
public:
    Field()
    {
        resize(400, height());
        setBackgroundColor(GROUND);
        setTextColor(INK);
        setPlaceholderColor(EXPECTED);
        setCursorColor(CURSOR);
    }

    using VexoLineEdit::mousePressEvent;
    using VexoLineEdit::mouseReleaseEvent;

    QImage picture() { return grab().toImage(); }

    /// Shows the field and waits until nothing is due. Requests are recorded from here on.
    void expose()
    {
        show();
        QVERIFY(QTest::qWaitForWindowExposed(this));
        settle();
        canvas = picture();
        settle();
    }

    /// Returns the area that was repainted, and repaints just that on the canvas.
    QRegion settle()
    {
        m_painted = QRegion();
        for (int i = 0; i < 10; ++i)
            QCoreApplication::sendPostedEvents(); // and no timers
        QRegion painted = m_painted;
        if (!canvas.isNull() && !painted.isEmpty())
            render(&canvas, painted.boundingRect().topLeft(), painted);
        return painted;
    }

    bool step() { return QMetaObject::invokeMethod(this, "onShakeAnimationStep"); }
    bool blink() { return QMetaObject::invokeMethod(findChild<QTimer *>(), "timeout"); }

    QImage canvas;

protected:
    void paintEvent(QPaintEvent *event) override
    {
        m_painted += event->region();
        VexoLineEdit::paintEvent(event);
    }

private:
    QRegion m_painted;
};

} // namespace

class TestVexoLineEdit : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void heightFollowsFromTheMillimetres();
    void dotsStandForCharacters_data();
    void dotsStandForCharacters();
    void textStartsBehindMarginAndIcon();
    void cursorStandsBehindTheText();
    void changeRepaintsOnceAndShows();
    void blinkRepaintsWhatItChanges_data();
    void blinkRepaintsWhatItChanges();
    void shakeShowsWhatWasWrong_data();
    void shakeShowsWhatWasWrong();
    void shakeEndsByItself();
    void touchesRingAndAskForText();
    void trailingButtonDeletes();
    void trailingButtonRingsWhatItsFieldRings();
    void mayBeDeletedInItsSignals();
};

void TestVexoLineEdit::heightFollowsFromTheMillimetres()
{
    const PanelScale scale(20, 10);
    VexoLineEdit field;
    QCOMPARE(field.height(), 61); // 60 px and 1.76 px, both cut
    field.setMmRadius(2.56);
    QCOMPARE(field.height(), 52); // 51 px and 1.76 px
    field.setMmMargin(QSizeF(9, 0.5));
    field.setMmPenLine(0);
    for (const double senseless : { -0.1, qQNaN() }) {
        field.setMmRadius(senseless);
        field.setMmPenLine(senseless);
    }
    QCOMPARE(field.minimumHeight(), 61);
    QCOMPARE(field.maximumHeight(), 61);
}

void TestVexoLineEdit::dotsStandForCharacters_data()
{
    QTest::addColumn<int>("characters");
    QTest::addColumn<bool>("centered");
    QTest::addColumn<QVector<int>>("middles"); // px, dots are 30 px wide and 50 px apart
    QTest::newRow("empty") << 0 << true << QVector<int>();
    QTest::newRow("centred") << 4 << true << QVector<int>{ 125, 175, 225, 275 };
    QTest::newRow("left") << 2 << false << QVector<int>{ 90, 140 };
    QTest::newRow("too many") << 10000 << true << QVector<int>{ 90, 140, 190, 240, 290 };
}

void TestVexoLineEdit::dotsStandForCharacters()
{
    QFETCH(int, characters);
    QFETCH(bool, centered);
    QFETCH(QVector<int>, middles);
    const PanelScale scale(20, 10);
    Field field;
    field.setUnderscores(20000);
    field.setText(QString(characters, QLatin1Char('W')));
    field.setCursorState(true);
    field.setDrawPasswordSecured(true);
    field.setDrawSecuredCentered(centered);
    const QImage image = field.picture();
    const QRect box = boxOf(image, INK);
    QCOMPARE(box.isEmpty(), middles.isEmpty());
    QVERIFY(middles.isEmpty() || qAbs(box.left() - middles.first() + 15) <= 3);
    QVERIFY(middles.isEmpty() || qAbs(box.right() - middles.last() - 15) <= 3);
    QVERIFY(middles.isEmpty() || qAbs(box.height() - 14) <= 2); // within the outline
    for (const int x : qAsConst(middles)) {
        QCOMPARE(image.pixelColor(x, 30), INK);
        QCOMPARE(image.pixelColor(x + 25, 30), GROUND); // between the dots
    }
    QVERIFY(boxOf(image, EXPECTED).isEmpty() && boxOf(image, CURSOR).isEmpty());
    field.setTextInactiveColor(Qt::cyan);
    field.setEnabled(false);
    QCOMPARE(boxOf(field.picture(), Qt::cyan), box);
}

void TestVexoLineEdit::textStartsBehindMarginAndIcon()
{
    const PanelScale scale(10, 20);
    Field field;
    field.setText(QStringLiteral("HH"));
    const QRect ink = boxOf(field.picture(), INK);
    QVERIFY(ink.left() >= 30 && ink.left() < 40); // behind the corner of 3 mm
    QVERIFY(qAbs(ink.center().y() - 61) <= 8);
    field.setMmMargin(QSizeF(1.5, 0));
    QCOMPARE(boxOf(field.picture(), INK).left(), ink.left() + 15);
    field.setMmLeftOffset(2);
    QCOMPARE(boxOf(field.picture(), INK).left(), ink.left() + 35);
    field.setMmLeadingIconSize(QSizeF(7, 4));
    QPixmap green(70, 80);
    green.fill(Qt::green);
    field.setLeadingIcon(green);
    field.enableLeadingLabelAction();
    const QImage image = field.picture();
    const QRect icon = boxOf(image, Qt::green);
    QCOMPARE(icon.size(), green.size()); // none of it is cut off
    QVERIFY(qAbs(icon.center().y() - 61) <= 1);
    QCOMPARE(boxOf(image, INK).left(), ink.left() - 30 + icon.left() + 70 + 20);
}

void TestVexoLineEdit::cursorStandsBehindTheText()
{
    const PanelScale scale(10, 20);
    Field field;
    field.setCursorPxPenWidth(2);
    field.setCursorState(true);
    QCOMPARE(boxOf(field.picture(), CURSOR), QRect(34, 20, 2, 82)); // 0.5 mm off, 4 mm high
    field.setText(QStringLiteral("HH"));
    field.setUnderscores(4);
    field.setUnderscores(-1);
    QCOMPARE(field.placeholderText(), QStringLiteral("____"));
    const int x = boxOf(field.picture(), CURSOR).left();
    const int bearing = field.fontMetrics().rightBearing(QLatin1Char('H'));
    QVERIFY(qAbs(boxOf(field.picture(), INK).right() + 1 + bearing + 5 - x) <= 1);
    const QRect spaced = boxOf(field.picture(), EXPECTED);
    QVERIFY(qAbs(spaced.left() - x) <= 5);
    field.setPlaceholderText(QStringLiteral("____"));
    QVERIFY(boxOf(field.picture(), EXPECTED).width() < spaced.width());
    field.setCursorState(false);
    QVERIFY(boxOf(field.picture(), CURSOR).isEmpty());
}

/// Nothing that a paint keeps may outlive a change.
void TestVexoLineEdit::changeRepaintsOnceAndShows()
{
    VexoLineEdit repainted;
    const QByteArrayList silent = { "left_offset_mm", "cursor_ms_blink_interval", "font_weight",
        "m_leading_icon", "m_trailing_icon", "m_mm_trailing_icon_size", "m_pt_font_size" };
    QCOMPARE(propertiesWithoutOneRepaint(&repainted), silent); // or had that font already
    const QHash<int, QVariant> values{ { QMetaType::QColor, QColor(Qt::darkCyan) },
        { QMetaType::QString, QStringLiteral("12345") }, { QMetaType::Int, 6 } };
    const QMetaObject &meta = VexoLineEdit::staticMetaObject;
    for (int i = meta.propertyOffset(); i < meta.propertyCount(); ++i) {
        const QMetaProperty property = meta.property(i);
        Field painted;
        Field fresh;
        QVariant value = property.read(&fresh);
        if (value.userType() == QMetaType::Double)
            value = value.toDouble() * 2;
        value = values.value(value.userType(), value);
        for (Field *each : { &painted, &fresh }) {
            each->setUnderscores(4);
            each->setText(QStringLiteral("12"));
            if (each == &painted)
                each->picture();
            QVERIFY(property.write(each, value));
            each->resize(300, each->height());
        }
        QVERIFY2(painted.picture() == fresh.picture(), property.name());
    }
}

void TestVexoLineEdit::blinkRepaintsWhatItChanges_data()
{
    QTest::addColumn<QString>("setup");
    QTest::addColumn<int>("width"); // px of the repainted area
    QTest::newRow("plain") << QString() << 3;
    QTest::newRow("centred") << QStringLiteral("centred") << 400;
    QTest::newRow("moved silently") << QStringLiteral("offset") << 400;
    QTest::newRow("secret") << QStringLiteral("secret") << 0;
    QTest::newRow("shaking") << QStringLiteral("shake") << 0;
}

void TestVexoLineEdit::blinkRepaintsWhatItChanges()
{
    QFETCH(QString, setup);
    QFETCH(int, width);
    const PanelScale scale(10, 10);
    Field field;
    field.setUnderscores(4);
    field.setText(QStringLiteral("12"));
    field.setCursorState(true);
    field.setDrawCentered(setup == QLatin1String("centred"));
    field.setDrawPasswordSecured(setup == QLatin1String("secret"));
    field.expose();
    QVERIFY(field.settle().isEmpty());
    if (setup == QLatin1String("offset"))
        field.setMmLeftOffset(1);
    if (setup == QLatin1String("shake"))
        field.shake(500, 5, 10, true);
    for (int i = 0; i < 3; ++i) {
        QVERIFY(field.blink());
        const QRect area = field.settle().boundingRect();
        if (i == 0 || !setup.startsWith(QLatin1String("offset")))
            QCOMPARE(area.width(), width);
        if (setup != QLatin1String("shake"))
            QCOMPARE(field.canvas, field.picture());
        field.settle();
    }
}

void TestVexoLineEdit::shakeShowsWhatWasWrong_data()
{
    QTest::addColumn<bool>("secret");
    QTest::addColumn<bool>("centered");
    QTest::addColumn<QString>("text");
    QTest::newRow("dots") << true << true << QStringLiteral("2026");
    QTest::newRow("text") << false << false << QStringLiteral("2026");
    QTest::newRow("centred text") << false << true << QStringLiteral("2026");
    QTest::newRow("slanted beyond its advance") << false << false << QStringLiteral("TTT");
}

void TestVexoLineEdit::shakeShowsWhatWasWrong()
{
    QFETCH(bool, secret);
    QFETCH(QString, text);
    const PanelScale scale(10, 10);
    Field field;
    QFont font = field.font();
    font.setFamily(FontLoader::loadFont(":/fonts/UniversNextW1G-Medium.otf"));
    font.setItalic(QTest::currentDataTag() == QByteArray("slanted beyond its advance"));
    field.setFont(font);
    field.setUnderscores(6);
    field.setCursorState(true);
    field.setDrawPasswordSecured(secret);
    QFETCH(bool, centered);
    field.setDrawCentered(centered);
    field.expose();
    for (int round = 1; round <= 2; ++round) {
        field.setText(text);
        field.settle();
        const QSize size = boxOf(field.canvas, INK).size();
        field.clear();
        field.settle();
        const QImage empty = field.canvas;
        field.shake(100, 3, 1, !secret);
        field.shake(500, 5, 10, !secret); // from now on
        QVERIFY(field.step());
        field.settle();
        const int middle = boxOf(field.canvas, INK).left() + 10;
        for (const int offset : { 9, -8, 5, -3 }) {
            QCOMPARE(field.canvas, field.picture());
            QVERIFY(boxOf(field.canvas, CURSOR).isEmpty());
            QVERIFY(field.step());
            QVERIFY(field.settle().boundingRect().width() < 300);
            const QRect ink = boxOf(field.canvas, INK);
            QCOMPARE(ink, QRect(QPoint(middle + offset, ink.top()), size));
        }
        QVERIFY(field.step());
        field.settle();
        QCOMPARE(field.canvas, empty);
    }
}

void TestVexoLineEdit::shakeEndsByItself()
{
    Field hidden;
    auto deleted = std::make_unique<Field>();
    const QImage still = hidden.picture();
    for (Field *each : { deleted.get(), &hidden }) {
        each->setText(QStringLiteral("1"));
        each->picture();
        each->clear();
        each->shake(100, 20, 5, true);
        QVERIFY(each->picture() != still);
    }
    deleted.reset();
    QTRY_COMPARE(hidden.picture(), still);
}

void TestVexoLineEdit::touchesRingAndAskForText()
{
    Field silent;
    auto tone = std::make_unique<ToneCounter>();
    Field field;
    const QSignalSpy wanted(&field, &VexoLineEdit::textEditWanted);
    for (Field *each : { &silent, &field }) {
        QTest::mouseClick(each, Qt::LeftButton);
        QCOMPARE(tone->tones, 0); // after the event has been handled
    }
    QCoreApplication::processEvents();
    QCOMPARE(tone->tones, 1);
    field.setText(QStringLiteral("abc"));
    field.mousePressEvent(nullptr);
    field.mouseReleaseEvent(nullptr);
    QTest::mouseClick(&field, Qt::LeftButton);
    tone.reset(); // with a tone still to be rung
    QTest::mousePress(&field, Qt::LeftButton);
    QCoreApplication::processEvents();
    QCOMPARE(wanted, (QList<QVariantList>{ { QString() }, { QStringLiteral("abc") } }));
}

void TestVexoLineEdit::trailingButtonDeletes()
{
    VexoLineEdit field;
    const QSignalSpy deletions(&field, &VexoLineEdit::deleteButtonClick);
    QVERIFY(!field.findChild<VexoIconButton *>());
    for (const int clicks : { 1, 3 }) { // one more for each further action
        field.enableTrailingButtonAction();
        QTest::mouseClick(field.findChild<VexoIconButton *>("trailingButton"), Qt::LeftButton);
        QCOMPARE(deletions.count(), clicks);
    }
    QVERIFY_EXCEPTION_THROWN(field.setMmTrailingIconSize(QSizeF(-1, 2)), std::out_of_range);
    QCOMPARE(field.property("m_mm_trailing_icon_size").toSizeF(), QSizeF(5, 5));
}

/// It is made late, but has the delegator of its field.
void TestVexoLineEdit::trailingButtonRingsWhatItsFieldRings()
{
    VexoLineEdit silent;
    const ToneCounter first;
    VexoLineEdit field;
    const ToneCounter second;
    for (VexoLineEdit *each : { &field, &silent }) {
        each->enableTrailingButtonAction();
        QTest::mouseClick(each->findChild<VexoIconButton *>(), Qt::LeftButton);
    }
    QCOMPARE(first.tones, 1);
    QCOMPARE(second.tones, 0);
    QVERIFY(VexoFeedbackDelegator::tone_delegator == &second);
}

void TestVexoLineEdit::mayBeDeletedInItsSignals()
{
    QVERIFY(isGoneAfter(&VexoLineEdit::textEditWanted, new VexoLineEdit));
    const QPointer<VexoLineEdit> field = new VexoLineEdit;
    field->enableTrailingButtonAction();
    field->enableTrailingButtonAction();
    connect(field, &VexoLineEdit::deleteButtonClick, this, [&field] { delete field; });
    QTest::mouseClick(field->findChild<VexoIconButton *>(), Qt::LeftButton);
    QVERIFY(!field);
}

QTEST_MAIN(TestVexoLineEdit)
#include "tst_vexolineedit.moc"
