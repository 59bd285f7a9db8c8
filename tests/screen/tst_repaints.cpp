// SPDX-License-Identifier: MIT
#include "support/panelscale.h"
#include "support/propertywalk.h"
#include "support/story.h"
#include "support/testcase.h"
#include "ui/buttons/vexofunctionbutton.h"
#include "ui/foundation/vexostylesheet.h"
#include "ui/scrolling/vexoverticalscrollarea.h"
#include "ui/scrolling/vexoverticalscrollcontent.h"
#include "ui/text/vexolabel.h"
#include "ui/text/vexoruler.h"

#include <QAbstractButton>
#include <QScopeGuard>
#include <QScrollBar>
#include <QVBoxLayout>

using namespace vexo::hox::qt::ui;

namespace {

const QString DAY = ":/css/hoxq.qs";
const QString NIGHT = ":/css/vexo-AAL.qs";
const QStringList SHEETS{ QString(), "* { background: #203040; color: #f0e0d0; }",
    "QLabel { padding: 3px; } QAbstractButton { background: #80c0ff; }",
    "QWidget:disabled { background: red; border: 2px solid blue; }",
    "QWidget { font: bold 15px; } QLabel { qproperty-indent: 9; }" };

QString wrongOf(QWidget &window)
{
    settle();
    const QRect wrong = wrongPixels(window);
    return wrong.isEmpty() ? QString()
                           : QString("a repaint differs at %1, %2 of %3 x %4 px")
                                 .arg(wrong.x())
                                 .arg(wrong.y())
                                 .arg(wrong.width())
                                 .arg(wrong.height());
}

/// A screen whose parts change under a notice that lies on it.
class Crowd : public StoryScreen
{
public:
    Crowd(bool is_list, bool with_rows, bool with_labels, quint32 seed);

    QString change();
    QString fault() { return wrongOf(m_window); }

private:
    QWidget *makeMember(QWidget *parent);
    void insertMember();
    void changeText(QWidget *member);

    const bool m_with_rows;
    const bool m_with_labels;
    QWidget m_window;
    QWidget *m_content = nullptr;
    QWidget *m_notice = nullptr;
    VexoVerticalScrollArea *m_area = nullptr;
    QVector<QWidget *> m_members;
};

Crowd::Crowd(bool is_list, bool with_rows, bool with_labels, quint32 seed)
    : StoryScreen(seed)
    , m_with_rows(with_rows)
    , m_with_labels(with_labels)
{
    m_window.resize(320, 240);
    if (is_list) {
        m_area = new VexoVerticalScrollArea(&m_window);
        m_area->setGeometry(10, 10, 300, 220);
        m_content = new VexoVerticalScrollContent;
        m_area->setWidget(m_content);
    } else {
        m_content = new QWidget(&m_window);
        m_content->setGeometry(10, 10, 300, 220);
        new QVBoxLayout(m_content);
    }
    m_notice = new QWidget(&m_window);
    m_notice->setAutoFillBackground(true);
    m_notice->setPalette(QPalette(Qt::magenta));
    m_notice->setGeometry(60, 60, 120, 90);
    for (int i = 0; i < 8; ++i)
        insertMember();
    m_window.show();
    settle();
}

QWidget *Crowd::makeMember(QWidget *parent)
{
    if (m_with_rows && number(5) == 0)
        return new VexoRuler(parent);
    if (m_with_rows && (!m_with_labels || number(2) == 0))
        return new VexoFunctionButton(parent, VexoFunctionButton::ActionType);
    return new VexoLabel(parent);
}

void Crowd::insertMember()
{
    const int place = number(m_members.size() + 1);
    m_members.insert(place, makeMember(m_content));
    changeText(m_members.at(place));
    static_cast<QVBoxLayout *>(m_content->layout())->insertWidget(place, m_members.at(place));
}

void Crowd::changeText(QWidget *member)
{
    const QString text = QString("text %1").arg(number(99));
    if (auto *row = qobject_cast<VexoFunctionButton *>(member))
        row->setText(text);
    else if (auto *label = qobject_cast<VexoLabel *>(member))
        label->setText(text);
    else
        static_cast<VexoRuler *>(member)->setRulerStyle(
            number(2) ? VexoRuler::Transparent : VexoRuler::MainMiddle);
}

QString Crowd::change()
{
    const int kind = number(8);
    if (kind == 0) {
        const auto move = [this] { m_notice->move(number(260), number(200)); };
        return makeOne(
            { { "notice hidden or shown", [this] { m_notice->setVisible(m_notice->isHidden()); } },
                { "notice raised", [this] { m_notice->raise(); } }, { "notice moved", move },
                { "notice moved", move } });
    }
    if (kind < 4 && m_area) {
        // The toolkit moves pixels that are not yet painted anew, also those of its own widgets.
        settle();
        QScrollBar *bar = m_area->verticalScrollBar();
        const int most = number(4) == 0 ? 400 : 20; // a jump, or a step
        bar->setValue(bar->value() + number(2 * most + 1) - most);
        return "scroll";
    }
    if (m_members.isEmpty() || (m_members.size() < 14 && number(6) == 0)) {
        insertMember();
        return "insert";
    }
    QWidget *member = m_members.at(number(m_members.size()));
    return makeOne({
        { "delete", [=] { m_members.removeOne(member), delete member; } },
        { "hide or show", [=] { member->setVisible(member->isHidden()); } },
        { "move",
            [=] { member->move(member->pos() + QPoint(number(21), number(21)) - QPoint(9, 9)); } },
        { "lay out", [=] { m_content->layout()->activate(); } },
        { "update", [=] { member->update(); } },
        { "enable", [=] { member->setEnabled(!member->isEnabled()); } },
        { "set text or lines", [=] { changeText(member); } },
    });
}

/// A screen of a few widgets of any class, and what can happen to their look.
class Restyled : public StoryScreen
{
public:
    explicit Restyled(quint32 seed)
        : StoryScreen(seed)
    {
        come();
    }
    Restyled(const Restyled &) = delete;
    Restyled &operator=(const Restyled &) = delete;
    ~Restyled();

    QString change();
    QString fault() { return wrongOf(*m_window); }

private:
    QString changeApplication();
    void come();
    void renderElsewhere();
    QPalette anyPalette() { return QColor::fromHsv(number(360), 90, 200); }
    QFont anySizeOf(QFont font)
    {
        font.setPixelSize(8 + number(20));
        return font;
    }
    Qt::LayoutDirection anyDirection() { return number(2) ? Qt::RightToLeft : Qt::LeftToRight; }

    const QPalette m_palette = QApplication::palette();
    const QFont m_font = QApplication::font();
    std::unique_ptr<QWidget> m_window;
    QVector<QWidget *> m_members;
};

Restyled::~Restyled()
{
    m_window.reset();
    qApp->setStyleSheet(QString());
    QApplication::setPalette(m_palette);
    QApplication::setFont(m_font);
    QApplication::setLayoutDirection(Qt::LeftToRight);
}

// A new screen is there before the old one goes.
void Restyled::come()
{
    auto window = std::make_unique<QWidget>();
    window->resize(400, 300);
    m_members.clear();
    const auto &classes = walkedClasses();
    auto *page = new QWidget(window.get()); // which leaves the size of the window alone
    page->setGeometry(window->rect());
    auto *column = new QVBoxLayout(page);
    for (int i = 0; i < 4; ++i) {
        QWidget *member = classes[size_t(number(int(classes.size())))].make(page);
        if (auto *button = qobject_cast<QAbstractButton *>(member))
            button->setText(QString("Button %1").arg(i));
        else if (auto *label = qobject_cast<QLabel *>(member))
            label->setText(QString("Label %1").arg(i));
        member->setWindowFlags(Qt::Widget); // a main window would be one of its own
        column->addWidget(member);
        m_members += member;
    }
    window->show();
    m_window = std::move(window);
}

// As on a finer screen.
void Restyled::renderElsewhere()
{
    QPixmap elsewhere(m_window->size() * 2);
    elsewhere.setDevicePixelRatio(1 + number(5) / 4.0);
    m_window->render(&elsewhere);
}

QString Restyled::change()
{
    const int kind = number(4);
    if (kind == 0)
        return makeOne({ { "another screen", [this] { come(); } } });
    if (kind > 1)
        return changeApplication();
    QWidget *member = m_members.at(number(m_members.size()));
    return makeOne({
        { "sheet of a widget", [=] { member->setStyleSheet(SHEETS.at(number(SHEETS.size()))); } },
        { "palette of a widget", [=] { member->setPalette(anyPalette()); } },
        { "direction of a widget", [=] { member->setLayoutDirection(anyDirection()); } },
        { "enabled or disabled", [=] { member->setEnabled(!member->isEnabled()); } },
        { "hidden or shown", [=] { member->setVisible(member->isHidden()); } },
        { "font of a widget", [=] { member->setFont(anySizeOf(member->font())); } },
    });
}

QString Restyled::changeApplication()
{
    return makeOne({
        { "sheet of the library", [this] { VexoStylesheet(number(2) ? DAY : NIGHT, true); } },
        { "sheet of the application",
            [this] { qApp->setStyleSheet(SHEETS.at(number(SHEETS.size()))); } },
        { "palette of the application", [this] { QApplication::setPalette(anyPalette()); } },
        { "font of the application",
            [this] { QApplication::setFont(anySizeOf(QApplication::font())); } },
        { "direction of the application",
            [this] { QApplication::setLayoutDirection(anyDirection()); } },
        { "another pixel ratio", [this] { renderElsewhere(); } },
    });
}

} // namespace

/// Whatever happens, the screen shows what a repaint would paint.
class TestRepaints : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void nothingPaintsOverWhatLiesOnTop_data();
    void nothingPaintsOverWhatLiesOnTop();
    void noLookOutlivesItsChange();

private:
    const PanelScale m_scale{ 4, 5 };
};

void TestRepaints::nothingPaintsOverWhatLiesOnTop_data()
{
    QTest::addColumn<bool>("is_list");
    QTest::addColumn<bool>("with_rows");
    QTest::addColumn<bool>("with_labels");
    QTest::addColumn<QString>("sheet");
    QTest::newRow("rows of a list") << true << true << false << QString();
    QTest::newRow("rows and labels of a list") << true << true << true << QString();
    QTest::newRow("rows of a list, with a sheet") << true << true << false << DAY;
    QTest::newRow("rows of a plain layout") << false << true << false << QString();
    QTest::newRow("labels of a plain layout") << false << false << true << QString();
}

void TestRepaints::nothingPaintsOverWhatLiesOnTop()
{
    QFETCH(bool, is_list);
    QFETCH(bool, with_rows);
    QFETCH(bool, with_labels);
    QFETCH(QString, sheet);
    if (!sheet.isEmpty())
        VexoStylesheet(sheet, true);
    const auto finish = qScopeGuard([] { qApp->setStyleSheet(QString()); });
    tellStories<Crowd>(400, 50, [&](quint32 seed) {
        return std::make_unique<Crowd>(is_list, with_rows, with_labels, seed);
    });
}

void TestRepaints::noLookOutlivesItsChange()
{
    tellStories<Restyled>(600, 60, [](quint32 seed) { return std::make_unique<Restyled>(seed); });
}

QTEST_MAIN(TestRepaints)
#include "tst_repaints.moc"
