// SPDX-License-Identifier: MIT
#include "support/panelscale.h"
#include "support/testcase.h"
#include "uitest/auditing.h"

#include <VexoFunctionButton>
#include <VexoLabeledContainer>
#include <VexoLineEdit>
#include <VexoPushButton>

#include <QBoxLayout>
#include <QGroupBox>
#include <QLabel>
#include <QPainter>
#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTabBar>

using namespace auditing;
using namespace vexo::hox::qt::ui;
using vexo::hox::qt::uitest::PanelAudit;

namespace {

const QStringList cut{ QStringLiteral("text-cut error") };
const QStringList cut_sometimes{ QStringLiteral("text-cut warning") };

QLabel *addLabel(QWidget *parent, const char *text, double x, double y, double width, double height)
{
    auto *label = new QLabel(QLatin1String(text), parent);
    QFont font = label->font();
    font.setPixelSize(px(3, false));
    label->setFont(font);
    place(label, x, y, width, height);
    return label;
}

/// Draws its text shortened where it has no room.
class Elider : public QWidget
{
public:
    explicit Elider(QWidget *parent, const QString &text)
        : QWidget(parent)
    {
        setProperty("text", text);
    }

protected:
    void paintEvent(QPaintEvent *) override
    {
        const QString text = property("text").toString();
        QPainter painter(this);
        painter.drawText(
            rect(), Qt::AlignVCenter, fontMetrics().elidedText(text, Qt::ElideRight, width()));
    }
};

} // namespace

class TestPanelAuditText : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void cutTextsAreFound_data() { addPanels(); }
    void cutTextsAreFound();
    void overlapsAreFound_data() { addPanels(); }
    void overlapsAreFound();
    void shortenedTextsAreFound();
    void scrollingIsNoCut();
    void longerTextsAreTried_data() { addPanels(); }
    void longerTextsAreTried();
    void rightToLeftIsTried();
    void allIsRestored();
    void scrolledPlacesAreRestored();
    void theWindowMayGo();
};

void TestPanelAuditText::cutTextsAreFound()
{
    ON_PANEL;
    QWidget window;
    place(&window, 0, 0, 300, 100);
    const QWidget *good = addLabel(&window, "Night mode", 2, 2, 60, 6);
    const QWidget *narrow = addLabel(&window, "Night mode", 2, 12, 5, 6);
    const QWidget *low = addLabel(&window, "Night mode", 2, 22, 60, 1.5);
    QWidget box(&window);
    place(&box, 2, 32, 5, 6);
    const QWidget *in_box = addLabel(&box, "Night mode", 0, 0, 60, 6);
    QLabel *lines = addLabel(&window, "Night mode of the display and the keys", 2, 42, 15, 4);
    lines->setWordWrap(true);
    lines->setAlignment(Qt::AlignTop);
    QLabel *squeezed = addLabel(&window, "Night mode", 2, 60, 60, 6);
    squeezed->resize(squeezed->width(), 0);
    QLabel *hidden = addLabel(&window, "Night mode", 2, 70, 8, 6);
    hidden->hide();
    VexoPushButton push(&window);
    push.setText(QStringLiteral("Displayeinstellungen"));
    place(&push, 100, 2, 10, 10);
    show(&window);
    const Findings findings = PanelAudit::texts(&window, 1);
    QCOMPARE(rulesOf(findings, good), QStringList());
    QCOMPARE(rulesOf(findings, narrow), cut);
    QCOMPARE(rulesOf(findings, low), cut);
    QCOMPARE(rulesOf(findings, in_box), cut);
    QCOMPARE(rulesOf(findings, lines), cut);
    QCOMPARE(rulesOf(findings, squeezed), cut + cut_sometimes);
    QCOMPARE(rulesOf(findings, hidden), QStringList());
    QCOMPARE(rulesOf(findings, &push), cut);
    QVERIFY2(findings.first().text.startsWith(QStringLiteral("\"Night mode\" is cut by ")),
        qPrintable(findings.first().text));
}

void TestPanelAuditText::overlapsAreFound()
{
    ON_PANEL;
    QWidget window;
    place(&window, 0, 0, 300, 100);
    const QWidget *lower = addLabel(&window, "Night mode", 2, 2, 80, 6);
    const QWidget *upper = addLabel(&window, "Key tone", 5, 3, 80, 6);
    const QWidget *beside = addLabel(&window, "Night mode", 2, 20, 80, 6);
    const QWidget *below = addLabel(&window, "Key tone", 2, 24, 80, 6);
    QWidget covered(&window);
    place(&covered, 2, 40, 80, 20);
    addLabel(&covered, "Night mode", 2, 2, 60, 6);
    addLabel(&covered, "Key tone", 5, 2, 60, 6);
    QWidget sheet(&window);
    sheet.setStyleSheet(QStringLiteral("background: white"));
    place(&sheet, 0, 38, 100, 30);
    show(&window);
    const Findings findings = PanelAudit::texts(&window, 1);
    QCOMPARE(rulesOf(findings, lower), { QStringLiteral("text-overlap error") });
    QCOMPARE(rulesOf(findings, upper), QStringList());
    QCOMPARE(rulesOf(findings, beside) + rulesOf(findings, below), QStringList());
    QVERIFY2(findings.size() == 1, qPrintable(PanelAudit::report(findings)));
}

void TestPanelAuditText::shortenedTextsAreFound()
{
    QWidget window;
    window.resize(600, 200);
    Elider roomy(&window, QStringLiteral("Display brightness"));
    roomy.setGeometry(0, 0, 300, 40);
    Elider narrow(&window, QStringLiteral("Display brightness"));
    narrow.setGeometry(0, 50, 60, 40);
    Elider meant(&window, QString(QStringLiteral("Loading") + QChar(0x2026)));
    meant.setProperty("accessibleName", meant.property("text"));
    meant.setGeometry(0, 100, 300, 40);
    show(&window);
    const Findings findings = PanelAudit::texts(&window, 1);
    QCOMPARE(rulesOf(findings, &roomy) + rulesOf(findings, &meant), QStringList());
    QCOMPARE(rulesOf(findings, &narrow), cut_sometimes);
}

// A row at the edge, a long entry in a field, and a picture that is moved both ways.
void TestPanelAuditText::scrollingIsNoCut()
{
    const PanelScale scale(8, 5);
    QWidget window;
    place(&window, 0, 0, 100, 60);
    QScrollArea area(&window);
    area.setFrameShape(QFrame::NoFrame);
    place(&area, 0, 0, 60, 24);
    auto *content = new QWidget;
    place(content, 0, 0, 50, 80);
    for (int i = 0; i < 16; ++i)
        addLabel(content, "Night mode", 0, 5 * i, 50, 5);
    QLabel *wide = addLabel(content, "Night mode", 45, 5, 50, 5);
    area.setWidget(content);
    VexoLineEdit field(&window);
    place(&field, 0, 40, 20, 8);
    field.setText(QStringLiteral("A name that is longer than its field by far"));
    show(&window);
    area.verticalScrollBar()->setValue(px(2, false));
    const Findings findings = PanelAudit::texts(&window, 1);
    QCOMPARE(rulesOf(findings, wide), cut); // it does not move that way
    QVERIFY2(findings.size() == 1, qPrintable(PanelAudit::report(findings)));
}

void TestPanelAuditText::longerTextsAreTried()
{
    ON_PANEL;
    QWidget window;
    place(&window, 0, 0, 300, 100);
    const QWidget *roomy = addLabel(&window, "Settings", 2, 2, 60, 6);
    QLabel *tight = addLabel(&window, "Settings", 2, 12, 60, 6);
    tight->resize(tight->sizeHint().width() + 2, tight->height());
    QLabel *number = addLabel(&window, "1234567", 2, 22, 60, 6);
    number->resize(number->sizeHint().width() + 2, number->height());
    QTabBar tabs(&window);
    tabs.addTab(QStringLiteral("Display"));
    tabs.setUsesScrollButtons(false);
    place(&tabs, 100, 2, 60, 12);
    show(&window);
    const Findings findings = PanelAudit::texts(&window);
    QCOMPARE(rulesOf(findings, roomy), QStringList());
    QCOMPARE(rulesOf(findings, tight), cut_sometimes);
    QCOMPARE(rulesOf(findings, number), QStringList());
    QVERIFY2(findings.first().text.contains(QStringLiteral("\"Sééttíí")),
        qPrintable(findings.first().text));
    QVERIFY(findings.first().text.endsWith(QStringLiteral("1.4 times as long")));
    QCOMPARE(rulesOf(PanelAudit::texts(&window, 1), tight), QStringList());
}

// Of a layout that is made for one direction.
void TestPanelAuditText::rightToLeftIsTried()
{
    class Screen : public QWidget
    {
    public:
        using QWidget::QWidget;
        QLabel *label = nullptr;

    protected:
        void changeEvent(QEvent *event) override
        {
            if (label && event->type() == QEvent::LayoutDirectionChange)
                label->move(isRightToLeft() ? -px(10, true) : 0, 0);
        }
    };
    const PanelScale scale(8, 5);
    Screen window;
    place(&window, 0, 0, 100, 60);
    window.label = addLabel(&window, "Night mode", 0, 0, 50, 6);
    QLabel *good = addLabel(&window, "Key tone", 0, 20, 50, 6);
    show(&window);
    window.label->setAlignment(Qt::AlignLeft | Qt::AlignAbsolute);
    const Findings findings = PanelAudit::texts(&window, 1);
    QCOMPARE(rulesOf(findings, window.label), cut_sometimes);
    QVERIFY(findings.first().text.endsWith(QStringLiteral("from right to left")));
    QCOMPARE(rulesOf(findings, good), QStringList());
    QVERIFY(!window.isRightToLeft() && !window.testAttribute(Qt::WA_SetLayoutDirection));
}

void TestPanelAuditText::allIsRestored()
{
    const PanelScale scale(8, 5);
    QWidget window;
    auto *layout = new QVBoxLayout(&window);
    const Messages platform; // it knows no smallest size of a window
    auto *button = new QPushButton(QStringLiteral("&Save the settings"));
    button->setShortcut(QKeySequence(Qt::CTRL + Qt::Key_S));
    auto *row = new VexoFunctionButton;
    row->setText(QStringLiteral("Night mode"));
    auto *field = new VexoLineEdit;
    auto *container = new VexoLabeledContainer(nullptr, field);
    container->setLabelText(QStringLiteral("Address"));
    auto *rich = new QLabel(QStringLiteral("<b>Night</b> mode &amp; key tone"));
    auto *area = new QScrollArea;
    auto *content = new QLabel(QString(QStringLiteral("word and word ")).repeated(80));
    content->setWordWrap(true);
    area->setWidgetResizable(true);
    area->setWidget(content);
    for (QWidget *widget : QWidgetList{ button, row, container, rich, area })
        layout->addWidget(widget);
    window.resize(500, 500);
    show(&window);
    area->verticalScrollBar()->setValue(area->verticalScrollBar()->maximum());
    QTest::qWait(10);
    const QImage before = window.grab().toImage();
    const QSize size = window.size();
    const QSize minimum = window.minimumSize();
    const int scrolled = area->verticalScrollBar()->value();
    const QSignalSpy moved(area->verticalScrollBar(), &QScrollBar::valueChanged);
    const QSignalSpy ranged(area->verticalScrollBar(), &QScrollBar::rangeChanged);
    PanelAudit::texts(&window);
    QCOMPARE(moved.size() + ranged.size(), 0);
    QCOMPARE(button->text(), QStringLiteral("&Save the settings"));
    QCOMPARE(button->shortcut(), QKeySequence(Qt::CTRL + Qt::Key_S));
    QCOMPARE(row->text(), QStringLiteral("Night mode"));
    QCOMPARE(container->labelText(), QStringLiteral("Address"));
    QCOMPARE(field->accessibleName(), QStringLiteral("Address"));
    QCOMPARE(rich->text(), QStringLiteral("<b>Night</b> mode &amp; key tone"));
    QCOMPARE(area->verticalScrollBar()->value(), scrolled);
    QCOMPARE(window.size(), size);
    QCOMPARE(window.minimumSize(), minimum);
    QTest::qWait(10);
    QCOMPARE(window.grab().toImage(), before);
}

// A content that becomes shorter takes the place along to which it was scrolled.
void TestPanelAuditText::scrolledPlacesAreRestored()
{
    class Content : public QWidget
    {
    protected:
        void changeEvent(QEvent *event) override
        {
            if (event->type() == QEvent::LayoutDirectionChange)
                resize(100, isRightToLeft() ? 10 : 900);
        }
    };
    QScrollArea area;
    area.resize(200, 200);
    auto *content = new Content;
    content->resize(100, 900);
    area.setWidget(content);
    show(&area);
    area.verticalScrollBar()->setValue(300);
    PanelAudit::texts(&area, 1);
    QCOMPARE(area.verticalScrollBar()->value(), 300);
    QCOMPARE(content->y(), -300);
}

// An application may rebuild its screen when it is laid out.
void TestPanelAuditText::theWindowMayGo()
{
    class Fleeting : public QWidget
    {
    public:
        using QWidget::QWidget;
        QPointer<QWidget> part;

    protected:
        void changeEvent(QEvent *event) override
        {
            if (event->type() == QEvent::LayoutDirectionChange)
                delete part;
        }
    };
    Fleeting window;
    window.resize(300, 300);
    window.part = new QPushButton(QStringLiteral("Save the settings"), &window);
    window.part->resize(20, 20);
    show(&window);
    const Findings findings = PanelAudit::all(&window, 0);
    QVERIFY(!window.part);
    QVERIFY(!findings.isEmpty());
    QVERIFY(!findings.first().widget);
}

QTEST_MAIN(TestPanelAuditText)
#include "tst_panelaudit_text.moc"
