// SPDX-License-Identifier: MIT
#include "support/panelscale.h"
#include "support/testcase.h"
#include "uitest/auditing.h"

#include <VexoFunctionButton>
#include <VexoIconButton>
#include <VexoLabel>
#include <VexoLineEdit>
#include <VexoPushButton>

#include <QButtonGroup>
#include <QCheckBox>
#include <QLabel>
#include <QListWidget>
#include <QPainter>
#include <QRadioButton>
#include <QSignalSpy>
#include <QToolButton>

using namespace auditing;
using namespace vexo::hox::qt::ui;
using vexo::hox::qt::uitest::PanelAudit;

namespace {

const QStringList unreadable{ QStringLiteral("contrast error") };
const QStringList pale{ QStringLiteral("contrast warning") };

/// A picture of stripes as a ground.
class Picture : public QWidget
{
public:
    Picture(QWidget *parent, const QColor &left, const QColor &right)
        : QWidget(parent)
        , m_left(left)
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

QFont font(double pt, int weight = QFont::Normal)
{
    QFont font = QApplication::font();
    font.setPixelSize(int(ScalingInfo::inst()->pt2px_Y(float(pt))));
    font.setWeight(weight);
    return font;
}

void setInk(QWidget *widget, const QColor &ink)
{
    QPalette palette = widget->palette();
    for (const auto role : { QPalette::WindowText, QPalette::ButtonText, QPalette::Text })
        palette.setColor(role, ink);
    widget->setPalette(palette);
}

QLabel *addLabel(
    QWidget *parent, double y, const QColor &ink, double pt = 9, int weight = QFont::Normal)
{
    auto *label = new QLabel(QStringLiteral("Night mode"), parent);
    label->setFont(font(pt, weight));
    setInk(label, ink);
    place(label, 2, y, 60, 9);
    return label;
}

QIcon ring(const QColor &color)
{
    QPixmap pixmap(40, 40);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(color, 3));
    painter.drawEllipse(5, 5, 30, 30);
    return QIcon(pixmap);
}

QToolButton *addIcon(QWidget *parent, double y, const QColor &color)
{
    auto *button = new QToolButton(parent);
    button->setIcon(ring(color));
    button->setIconSize(QSize(40, 40));
    button->setAutoRaise(true);
    place(button, 70, y, 12, 12);
    return button;
}

/// Says in its look only what it is asked for while it is down or checked.
class Moody : public QAbstractButton
{
public:
    using QAbstractButton::QAbstractButton;

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

Moody *addMoody(QWidget *parent, double y)
{
    auto *button = new Moody(parent);
    button->setText(QStringLiteral("Start"));
    place(button, 2, y, 40, 10);
    return button;
}

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
    QWidget window;
    window.setPalette(QPalette(Qt::white));
    place(&window, 0, 0, 100, 90);
    const QWidget *good = addLabel(&window, 0, QColor(110, 110, 110)); // 5.1
    const QWidget *middling = addLabel(&window, 10, QColor(140, 140, 140)); // 3.4
    const QWidget *bad = addLabel(&window, 20, QColor(180, 180, 180)); // 2.1
    const QWidget *same = addLabel(&window, 30, Qt::white);
    const QWidget *large = addLabel(&window, 40, QColor(140, 140, 140), 18);
    const QWidget *bold = addLabel(&window, 50, QColor(140, 140, 140), 14, QFont::Bold);
    const QWidget *not_bold = addLabel(&window, 60, QColor(140, 140, 140), 14);
    QWidget *off = addLabel(&window, 70, QColor(180, 180, 180));
    off->setEnabled(false);
    show(&window);
    const Findings findings = PanelAudit::contrasts(&window);
    QCOMPARE(rulesOf(findings, good), QStringList());
    QCOMPARE(rulesOf(findings, middling), pale);
    QCOMPARE(rulesOf(findings, bad), unreadable);
    QCOMPARE(rulesOf(findings, same), unreadable);
    QCOMPARE(rulesOf(findings, large), QStringList());
    QCOMPARE(rulesOf(findings, bold), QStringList());
    QCOMPARE(rulesOf(findings, not_bold), pale);
    QVERIFY2(findings.size() == 4, qPrintable(PanelAudit::report(findings)));
    QCOMPARE(findings.at(1).text,
        QStringLiteral("text #b4b4b4 on #ffffff has a contrast of 2.1, less than 4.5"));
}

void TestPanelAuditContrast::theGroundIsWhatLiesBehind()
{
    ON_PANEL;
    QWidget window;
    place(&window, 0, 0, 100, 90);
    Picture dark(&window, QColor(20, 20, 20), QColor(60, 20, 20));
    place(&dark, 0, 50, 66, 20);
    Picture mixed(&window, QColor(20, 20, 20), QColor(230, 230, 230));
    place(&mixed, 0, 10, 12, 10);
    QWidget film(&window); // half of what lies below shines through
    film.setPalette(QPalette(QColor(128, 128, 128, 128)));
    film.setAutoFillBackground(true);
    place(&film, 0, 30, 66, 10);
    const QWidget *good = addLabel(&dark, 0, Qt::white);
    const QWidget *half = addLabel(&mixed, 0, Qt::white);
    const QWidget *filmed = addLabel(&film, 0, QColor(255, 255, 255));
    const QWidget *faint = addLabel(&dark, 10, QColor(255, 255, 255, 40));
    show(&window);
    const Findings findings = PanelAudit::contrasts(&window);
    QCOMPARE(rulesOf(findings, good), QStringList());
    QCOMPARE(rulesOf(findings, half), unreadable);
    QCOMPARE(rulesOf(findings, filmed), unreadable);
    QCOMPARE(rulesOf(findings, faint), unreadable);
}

void TestPanelAuditContrast::paleIconsAreFound()
{
    ON_PANEL;
    QWidget window;
    window.setPalette(QPalette(Qt::white));
    place(&window, 0, 0, 100, 90);
    const QWidget *good = addIcon(&window, 0, QColor(110, 110, 110)); // 5.1
    const QWidget *bad = addIcon(&window, 15, QColor(180, 180, 180)); // 2.1
    QWidget *off = addIcon(&window, 30, QColor(180, 180, 180));
    off->setEnabled(false);
    const QWidget *same = addIcon(&window, 45, Qt::white);
    QLabel label(&window);
    label.setPixmap(ring(QColor(200, 200, 200)).pixmap(40, 40));
    place(&label, 2, 60, 20, 20);
    VexoIconButton own(&window);
    own.addIcon(QLatin1String(ActiveButton::DEFAULT_STATE_NAME),
        QStringLiteral(":/widgetimages/VexoIconGeneralArrowListRight_44px_RGB220.svg"));
    own.setMmIconSize(QSizeF(0, 8));
    place(&own, 30, 60, 12, 12);
    show(&window);
    const Findings findings = PanelAudit::contrasts(&window);
    QCOMPARE(rulesOf(findings, good), QStringList());
    QCOMPARE(rulesOf(findings, bad), unreadable);
    QCOMPARE(rulesOf(findings, same), unreadable);
    QCOMPARE(rulesOf(findings, &label), unreadable);
    QCOMPARE(rulesOf(findings, &own), unreadable);
    QVERIFY2(findings.size() == 4, qPrintable(PanelAudit::report(findings)));
}

void TestPanelAuditContrast::eachStateIsLookedAt()
{
    QWidget window;
    window.resize(500, 400);
    Moody *good = addMoody(&window, 0);
    good->setCheckable(true);
    Moody *down = addMoody(&window, 12);
    down->down_ink = Qt::darkGray;
    Moody *checked = addMoody(&window, 24);
    checked->setCheckable(true);
    checked->checked_ink = QColor(60, 60, 60);
    Moody *unchecked = addMoody(&window, 36);
    unchecked->setCheckable(true);
    unchecked->setChecked(true);
    unchecked->ink = QColor(60, 60, 60);
    Moody *off = addMoody(&window, 48);
    off->down_ink = QColor(60, 60, 60);
    off->setEnabled(false);
    down->down_ink = QColor(60, 60, 60);
    show(&window);
    const Findings findings = PanelAudit::contrasts(&window);
    QCOMPARE(rulesOf(findings, good), QStringList());
    QCOMPARE(rulesOf(findings, down), unreadable);
    QVERIFY(findings.first().text.endsWith(QStringLiteral("while down")));
    QCOMPARE(rulesOf(findings, checked), unreadable);
    QCOMPARE(rulesOf(findings, unchecked), unreadable);
    QCOMPARE(rulesOf(findings, off), QStringList());
}

// They keep what they draw, text and ground together.
void TestPanelAuditContrast::ourClassesAreSeenThrough()
{
    ON_PANEL;
    const auto build = [](QWidget *window, const QColor &ink) {
        auto *row = new VexoFunctionButton(window, VexoFunctionButton::ActionType);
        row->setText(QStringLiteral("Reset"));
        row->setTextColor(ink);
        place(row, 0, 0, 60, 9.8);
        auto *push = new VexoPushButton(window);
        push->setText(QStringLiteral("Continue"));
        push->setTextColor(ink);
        push->setTextClickedColor(Qt::black);
        place(push, 0, 15, 60, 10);
        auto *label = new VexoLabel(window);
        label->setText(QStringLiteral("Brightness"));
        label->setTextColor(ink);
        place(label, 0, 30, 60, 10);
        auto *field = new VexoLineEdit(window);
        field->setText(QStringLiteral("1234"));
        field->setTextColor(ink);
        place(field, 0, 45, 60, 10);
        return QWidgetList{ row->getLabelInstance(), push, label, field };
    };
    QWidget window;
    window.setPalette(QPalette(Qt::white));
    place(&window, 0, 0, 200, 90);
    QWidget left(&window);
    place(&left, 0, 0, 90, 90);
    QWidget right(&window);
    place(&right, 100, 0, 90, 90);
    const QWidgetList good = build(&left, QColor(20, 20, 20));
    const QWidgetList bad = build(&right, QColor(210, 210, 210));
    show(&window);
    window.grab(); // now they have kept it
    const Findings findings = PanelAudit::contrasts(&window);
    for (const QWidget *widget : good)
        QCOMPARE(rulesOf(findings, widget), QStringList());
    for (const QWidget *widget : bad)
        QCOMPARE(rulesOf(findings, widget), unreadable);
}

void TestPanelAuditContrast::whatIsNotSeenIsNotJudged()
{
    QWidget window;
    window.setPalette(QPalette(Qt::white));
    window.resize(500, 400);
    const QWidget *below = addLabel(&window, 0, Qt::lightGray);
    const QWidget *visible = addLabel(&window, 40, Qt::lightGray);
    QListWidget list(&window);
    list.addItems({ QStringLiteral("one"), QStringLiteral("two") });
    list.item(0)->setFlags(Qt::NoItemFlags);
    list.setGeometry(300, 0, 100, 100);
    QWidget page(&window);
    page.setGeometry(0, 300, 200, 100);
    const QWidget *on_page = addLabel(&page, 0, Qt::lightGray);
    Picture sheet(&window, Qt::white, Qt::white); // the toolkit does not know that it is opaque
    sheet.setGeometry(0, 0, 290, 60);
    show(&window);
    const Findings findings = PanelAudit::contrasts(&window);
    QCOMPARE(rulesOf(findings, below), QStringList());
    QCOMPARE(rulesOf(findings, visible), unreadable);
    QCOMPARE(rulesOf(findings, list.viewport()), QStringList());
    QCOMPARE(findings.size(), 2);
    const Findings of_page = PanelAudit::contrasts(&page);
    QCOMPARE(of_page.size(), 1);
    QCOMPARE(rulesOf(of_page, on_page), unreadable);
    QVERIFY(of_page.first().mm.y() < 5); // counted from the page
}

void TestPanelAuditContrast::nothingChanges()
{
    QWidget window;
    window.resize(500, 500);
    QButtonGroup group;
    const auto addChoice = [&](int y) {
        auto *choice = new QRadioButton(QStringLiteral("choice"), &window);
        choice->setGeometry(0, y, 100, 40);
        group.addButton(choice, 10 + y);
        return choice;
    };
    QVector<QRadioButton *> choices{ addChoice(0), addChoice(40), addChoice(80) };
    choices.at(1)->setChecked(true);
    QButtonGroup open_group;
    auto *open = new QPushButton(QStringLiteral("open"), &window);
    open->setCheckable(true);
    open->move(0, 130);
    open_group.addButton(open);
    QCheckBox third(QStringLiteral("third"), &window);
    third.setTristate(true);
    third.setCheckState(Qt::PartiallyChecked);
    third.move(0, 170);
    QVector<VexoFunctionButton *> rows;
    for (const auto type :
        { VexoFunctionButton::CheckboxType, VexoFunctionButton::FullsizeRadiobuttonType,
            VexoFunctionButton::FullsizeRadiobuttonType, VexoFunctionButton::ActionType }) {
        rows += new VexoFunctionButton(&window, type);
        rows.last()->setText(QStringLiteral("row"));
        rows.last()->setGeometry(150, 50 * rows.size(), 300, 40);
    }
    rows.at(2)->setChecked(true);
    show(&window);
    const QImage before = window.grab().toImage();
    const QSignalSpy toggled(choices.at(1), &QAbstractButton::toggled);
    const QSignalSpy group_told(&group, &QButtonGroup::idToggled);
    const QSignalSpy row_told(rows.at(2), &VexoFunctionButton::stateChanged);
    const QSignalSpy pressed(rows.at(3), &QAbstractButton::pressed);
    PanelAudit::contrasts(&window);
    QCOMPARE(toggled.size() + group_told.size() + row_told.size() + pressed.size(), 0);
    QVERIFY(!group.signalsBlocked() && !open->signalsBlocked());
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
