// SPDX-License-Identifier: MIT
#include "support/testcase.h"
#include "uitest/auditing.h"

#include <VexoFunctionButton>
#include <VexoIconButton>
#include <VexoLabel>
#include <VexoLineEdit>
#include <VexoPushButton>

#include <QButtonGroup>
#include <QCheckBox>
#include <QListWidget>
#include <QRadioButton>
#include <QToolButton>

using namespace auditing;
using namespace vexo::hox::qt::ui;

namespace {

const char *const UNREADABLE = "contrast error";
const char *const PALE = "contrast warning";

/// A picture of stripes as a ground.
class Picture : public QWidget
{
public:
    Picture(const QColor &left, const QColor &right)
        : m_left(left)
        , m_right(right)
    {
    }

protected:
    void paintEvent(QPaintEvent *) override
    {
        QPixmap pixmap(size());
        pixmap.fill(m_left);
        QPainter(&pixmap).fillRect(width() / 2, 0, width(), height(), m_right);
        QPainter(this).drawPixmap(0, 0, pixmap);
    }

private:
    const QColor m_left;
    const QColor m_right;
};

QColor gray(int value)
{
    return { value, value, value };
}

QLabel *label(
    const QColor &ink, QWidget *parent = nullptr, double pt = 9, int weight = QFont::Normal)
{
    auto *label = new QLabel("Night mode", parent);
    QFont font = QApplication::font();
    font.setPixelSize(int(ScalingInfo::inst()->pt2px_Y(float(pt))));
    font.setWeight(weight);
    label->setFont(font);
    QPalette palette = label->palette();
    palette.setColor(QPalette::WindowText, ink);
    label->setPalette(palette);
    return label;
}

QPixmap ring(const QColor &color)
{
    QPixmap pixmap(40, 40);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(color, 3));
    painter.drawEllipse(5, 5, 30, 30);
    return pixmap;
}

QToolButton *icon(const QColor &color)
{
    auto *button = new QToolButton;
    button->setIcon(ring(color));
    button->setIconSize(QSize(40, 40));
    button->setAutoRaise(true);
    return button;
}

/// Says in its look only what it is asked for while it is down or checked.
class Moody : public QAbstractButton
{
public:
    explicit Moody(bool is_checkable = true)
    {
        setText("Start");
        setCheckable(is_checkable);
    }

    QColor ink = Qt::white;
    QColor down_ink = Qt::white;
    QColor checked_ink = Qt::white;

protected:
    void paintEvent(QPaintEvent *) override
    {
        QPainter painter(this);
        painter.fillRect(rect(), Qt::black);
        painter.setPen(isDown() ? down_ink : isChecked() ? checked_ink : ink);
        painter.drawText(rect(), Qt::AlignCenter, text());
    }
};

/// A screen on white.
struct WhiteScreen : Screen
{
    explicit WhiteScreen(const QSizeF &mm)
        : Screen(mm)
    {
        setPalette(QPalette(Qt::white));
    }
};

} // namespace

class TestPanelAuditContrast : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void paleTextsAreFound_data() { addPanels(); }
    void paleTextsAreFound();
    void theGroundIsWhatLiesBehind_data() { addPanels(); }
    void theGroundIsWhatLiesBehind();
    void paleIconsAreFound_data() { addPanels(); }
    void paleIconsAreFound();
    void eachStateIsLookedAt();
    void ourClassesAreSeenThrough_data() { addPanels(); }
    void ourClassesAreSeenThrough();
    void whatIsNotSeenIsNotJudged();
    void nothingChanges();
};

void TestPanelAuditContrast::paleTextsAreFound()
{
    ON_PANEL;
    WhiteScreen screen({ 100, 90 });
    screen.add(label(gray(110)), { 2, 0, 60, 9 }); // 5.1
    screen.add(label(gray(140)), { 2, 10, 60, 9 }, PALE); // 3.4
    const QWidget *bad = screen.add(label(gray(180)), { 2, 20, 60, 9 }, UNREADABLE); // 2.1
    screen.add(label(Qt::white), { 2, 30, 60, 9 }, UNREADABLE);
    screen.add(label(gray(140), nullptr, 18), { 2, 40, 60, 9 });
    screen.add(label(gray(140), nullptr, 14, QFont::Bold), { 2, 50, 60, 9 });
    screen.add(label(gray(140), nullptr, 14), { 2, 60, 60, 9 }, PALE);
    screen.add(label(gray(180)), { 2, 70, 60, 9 })->setEnabled(false);
    QVERIFY(screen.appear());
    const Findings findings = PanelAudit::contrasts(&screen);
    QCOMPARE(screen.surprises(findings), QString());
    QCOMPARE(findings.at(1).widget, bad);
    QCOMPARE(findings.at(1).text,
        QString("text #b4b4b4 on #ffffff has a contrast of 2.1, less than 4.5"));
}

void TestPanelAuditContrast::theGroundIsWhatLiesBehind()
{
    ON_PANEL;
    Screen screen({ 100, 90 });
    auto *dark = screen.add(new Picture(gray(20), QColor(60, 20, 20)), { 0, 50, 66, 20 });
    auto *mixed = screen.add(new Picture(gray(20), gray(230)), { 0, 10, 12, 10 });
    auto *film = screen.add(new QWidget, { 0, 30, 66, 10 });
    film->setPalette(
        QPalette(QColor(128, 128, 128, 128))); // half of what lies below shines through
    film->setAutoFillBackground(true);
    screen.add(label(Qt::white, dark), { 2, 0, 60, 9 });
    screen.add(label(Qt::white, mixed), { 2, 0, 60, 9 }, UNREADABLE);
    screen.add(label(Qt::white, film), { 2, 0, 60, 9 }, UNREADABLE);
    screen.add(label(QColor(255, 255, 255, 40), dark), { 2, 10, 60, 9 }, UNREADABLE);
    QVERIFY(screen.appear());
    QCOMPARE(screen.surprises(PanelAudit::contrasts(&screen)), QString());
}

void TestPanelAuditContrast::paleIconsAreFound()
{
    ON_PANEL;
    WhiteScreen screen({ 100, 90 });
    screen.add(icon(gray(110)), { 70, 0, 12, 12 }); // 5.1
    screen.add(icon(gray(180)), { 70, 15, 12, 12 }, UNREADABLE); // 2.1
    screen.add(icon(gray(180)), { 70, 30, 12, 12 })->setEnabled(false);
    screen.add(icon(Qt::white), { 70, 45, 12, 12 }, UNREADABLE);
    screen.add(new QLabel, { 2, 60, 20, 20 }, UNREADABLE)->setPixmap(ring(gray(200)));
    auto *own = screen.add(new VexoIconButton, { 30, 60, 12, 12 }, UNREADABLE);
    own->addIcon(ActiveButton::DEFAULT_STATE_NAME,
        ":/widgetimages/VexoIconGeneralArrowListRight_44px_RGB220.svg");
    own->setMmIconSize(QSizeF(0, 8));
    QVERIFY(screen.appear());
    QCOMPARE(screen.surprises(PanelAudit::contrasts(&screen)), QString());
}

void TestPanelAuditContrast::eachStateIsLookedAt()
{
    const PanelScale scale(4, 4);
    Screen screen({ 125, 100 });
    screen.add(new Moody, { 2, 0, 40, 10 });
    screen.add(new Moody(false), { 2, 12, 40, 10 }, UNREADABLE)->down_ink = gray(60);
    screen.add(new Moody, { 2, 24, 40, 10 }, UNREADABLE)->checked_ink = gray(60);
    auto *on = screen.add(new Moody, { 2, 36, 40, 10 }, UNREADABLE);
    on->setChecked(true);
    on->ink = gray(60);
    auto *off = screen.add(new Moody(false), { 2, 48, 40, 10 });
    off->down_ink = gray(60);
    off->setEnabled(false);
    QVERIFY(screen.appear());
    const Findings findings = PanelAudit::contrasts(&screen);
    QCOMPARE(screen.surprises(findings), QString());
    QVERIFY(findings.first().text.endsWith("while down"));
}

// They keep what they draw, text and ground together.
void TestPanelAuditContrast::ourClassesAreSeenThrough()
{
    ON_PANEL;
    WhiteScreen screen({ 200, 90 });
    for (const bool is_good : { true, false }) {
        const QColor ink = gray(is_good ? 20 : 210);
        const char *rules = is_good ? "" : UNREADABLE;
        const double x = is_good ? 0 : 100;
        auto *row = new VexoFunctionButton(nullptr, VexoFunctionButton::ActionType);
        row->setText("Reset");
        row->setTextColor(ink);
        screen.add(row, { x, 0, 60, 9.8 });
        screen.expect(row->getLabelInstance(), rules);
        auto *push = screen.add(new VexoPushButton, { x, 15, 60, 10 }, rules);
        push->setText("Continue");
        push->setTextColor(ink);
        push->setTextClickedColor(Qt::black);
        auto *text = screen.add(new VexoLabel("Brightness"), { x, 30, 60, 10 }, rules);
        text->setTextColor(ink);
        auto *field = screen.add(new VexoLineEdit, { x, 45, 60, 10 }, rules);
        field->setText("1234");
        field->setTextColor(ink);
    }
    QVERIFY(screen.appear());
    screen.grab(); // now they have kept it
    QCOMPARE(screen.surprises(PanelAudit::contrasts(&screen)), QString());
}

void TestPanelAuditContrast::whatIsNotSeenIsNotJudged()
{
    const PanelScale scale(4, 4);
    WhiteScreen screen({ 125, 100 });
    screen.add(label(Qt::lightGray), { 2, 0, 60, 9 });
    screen.add(label(Qt::lightGray), { 2, 40, 60, 9 }, UNREADABLE);
    auto *list = screen.add(new QListWidget, { 75, 0, 25, 25 });
    list->addItems({ "one", "two" });
    list->item(0)->setFlags(Qt::NoItemFlags);
    auto *page = screen.add(new QWidget, { 0, 75, 50, 25 });
    const QWidget *on_page = screen.add(label(Qt::lightGray, page), { 2, 0, 60, 9 }, UNREADABLE);
    // The toolkit does not know that it is opaque.
    screen.add(new Picture(Qt::white, Qt::white), { 0, 0, 72, 15 });
    QVERIFY(screen.appear());
    QCOMPARE(screen.surprises(PanelAudit::contrasts(&screen)), QString());
    const Findings of_page = PanelAudit::contrasts(page);
    QCOMPARE(of_page.size(), 1);
    QCOMPARE(of_page.first().widget, on_page);
    QVERIFY(of_page.first().mm.y() < 5); // counted from the page
}

void TestPanelAuditContrast::nothingChanges()
{
    QWidget window;
    window.resize(500, 500);
    QButtonGroup group;
    QVector<QRadioButton *> choices;
    for (int y : { 0, 40, 80 }) {
        choices += new QRadioButton("choice", &window);
        choices.last()->setGeometry(0, y, 100, 40);
        group.addButton(choices.last(), 10 + y);
    }
    choices.at(1)->setChecked(true);
    QButtonGroup open_group;
    QPushButton open("open", &window);
    open.setCheckable(true);
    open.move(0, 130);
    open_group.addButton(&open);
    QCheckBox third("third", &window);
    third.setTristate(true);
    third.setCheckState(Qt::PartiallyChecked);
    third.move(0, 170);
    QVector<VexoFunctionButton *> rows;
    for (const auto type :
        { VexoFunctionButton::CheckboxType, VexoFunctionButton::FullsizeRadiobuttonType,
            VexoFunctionButton::FullsizeRadiobuttonType, VexoFunctionButton::ActionType }) {
        rows += new VexoFunctionButton(&window, type);
        rows.last()->setText("row");
        rows.last()->setGeometry(150, 50 * rows.size(), 300, 40);
    }
    rows.at(2)->setChecked(true);
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    const QImage before = window.grab().toImage();
    const QSignalSpy toggled(choices.at(1), &QAbstractButton::toggled);
    const QSignalSpy group_told(&group, &QButtonGroup::idToggled);
    const QSignalSpy row_told(rows.at(2), &VexoFunctionButton::stateChanged);
    const QSignalSpy pressed(rows.at(3), &QAbstractButton::pressed);
    PanelAudit::contrasts(&window);
    QCOMPARE(toggled.size() + group_told.size() + row_told.size() + pressed.size(), 0);
    QVERIFY(!group.signalsBlocked() && !open.signalsBlocked());
    QCOMPARE(window.grab().toImage(), before);
    QCOMPARE(group.checkedButton(), choices.at(1));
    QCOMPARE(group.buttons(), QList<QAbstractButton *>({ choices[0], choices[1], choices[2] }));
    QCOMPARE(group.id(choices.at(2)), 90);
    QCOMPARE(open_group.checkedButton(), nullptr);
    QCOMPARE(third.checkState(), Qt::PartiallyChecked);
    QVERIFY(rows.at(2)->isChecked() && rows.at(2)->isDown() && !rows.at(1)->isChecked());
    choices.at(0)->click();
    QVERIFY(!choices.at(1)->isChecked());
    rows.at(1)->click();
    QVERIFY(!rows.at(2)->isChecked());
}

QTEST_MAIN(TestPanelAuditContrast)
#include "tst_panelaudit_contrast.moc"
