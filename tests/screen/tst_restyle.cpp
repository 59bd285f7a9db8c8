// SPDX-License-Identifier: MIT
#include "support/onscreen.h"
#include "support/panelscale.h"
#include "support/propertywalk.h"
#include "support/testcase.h"
#include "ui/buttons/vexofunctionbutton.h"
#include "ui/buttons/vexoiconbutton.h"
#include "ui/buttons/vexopushbutton.h"
#include "ui/foundation/vexostylesheet.h"
#include "ui/text/vexolabeledcontainer.h"

#include <QAbstractButton>
#include <QApplication>
#include <QFile>
#include <QLabel>
#include <QPainter>
#include <QRandomGenerator>
#include <QScopeGuard>
#include <QStyle>
#include <QStyleFactory>
#include <QVBoxLayout>

#include <functional>
#include <memory>

using namespace vexo::hox::qt::ui;

namespace {

const QString DAY = QStringLiteral(":/css/hoxq.qs");
const QString NIGHT = QStringLiteral(":/css/vexo-AAL.qs");

QStringList sheets()
{
    static const QStringList texts = {
        QString(),
        QStringLiteral("* { background: #203040; color: #f0e0d0; }"),
        QStringLiteral("QLabel { padding: 3px; } QAbstractButton { background: #80c0ff; }"),
        QStringLiteral("QWidget:disabled { background: red; border: 2px solid blue; }"),
        QStringLiteral("QWidget { font: bold 15px; } QLabel { qproperty-indent: 9; }"),
    };
    return texts;
}

QString textOf(const QString &file)
{
    QFile sheet(file);
    return sheet.open(QIODevice::ReadOnly) ? QString::fromUtf8(sheet.readAll()) : QString();
}

/// As an application that uses the library does.
void setSheet(const QString &text)
{
    VexoStylesheet sheet(QStringList(), false);
    sheet.addText(text);
    sheet.set();
}

/// A widget among others, one of which has a sheet of its own.
void fill(QWidget *window, const WalkedClass &walked)
{
    window->resize(300, 400);
    auto *page = new QWidget(window); // which leaves the size of the window alone
    page->setGeometry(window->rect());
    auto *column = new QVBoxLayout(page);
    QWidget *widget = walked.make(page);
    widget->setWindowFlags(Qt::Widget);
    column->addWidget(widget);
    for (int i = 0; i < 9; ++i)
        column->addWidget(new QLabel(QStringLiteral("text")));
    column->itemAt(1)->widget()->setStyleSheet(QStringLiteral("* { border: 3px solid green; }"));
}

/// Remembers what it hears of its look, and the application's sheet at that time.
class Watched : public QLabel
{
public:
    using QLabel::QLabel;

    QVector<QPair<QEvent::Type, QString>> heard;
    QPalette told; // at the last event that tells of colours

protected:
    bool event(QEvent *event) override
    {
        heard.append({ event->type(), qApp->styleSheet() });
        if (event->type() == QEvent::PaletteChange || event->type() == QEvent::Polish)
            told = palette();
        return QLabel::event(event);
    }
};

/// Puts back what a test does to the application.
class ApplicationLook
{
public:
    ~ApplicationLook()
    {
        qApp->setStyleSheet(QString());
        QApplication::setPalette(m_palette);
        QApplication::setFont(m_font);
        QApplication::setLayoutDirection(Qt::LeftToRight);
    }

private:
    const QPalette m_palette = QApplication::palette();
    const QFont m_font = QApplication::font();
};

/// A screen of a few widgets of any class, and what can happen to their look.
class Screen
{
public:
    explicit Screen(quint32 seed);

    QString change();
    QWidget *window() { return m_window.get(); }

private:
    QString changeApplication();
    QString changeMember();
    void come();
    QWidget *any() { return m_members.at(number(m_members.size())); }
    int number(int bound) { return int(m_random.bounded(quint32(bound))); }

    QRandomGenerator m_random;
    std::unique_ptr<QWidget> m_window;
    QVector<QWidget *> m_members;
};

Screen::Screen(quint32 seed)
    : m_random(seed)
{
    come();
}

// A new screen is there before the old one goes.
void Screen::come()
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
            button->setText(QStringLiteral("Button %1").arg(i));
        else if (auto *label = qobject_cast<QLabel *>(member))
            label->setText(QStringLiteral("Label %1").arg(i));
        member->setWindowFlags(Qt::Widget); // a main window would be one of its own
        column->addWidget(member);
        m_members += member;
    }
    window->show();
    m_window = std::move(window);
}

QString Screen::change()
{
    switch (number(4)) {
    case 0:
        come();
        return QStringLiteral("another screen");
    case 1:
        return changeMember();
    default:
        return changeApplication();
    }
}

QString Screen::changeApplication()
{
    switch (number(6)) {
    case 0:
        VexoStylesheet(number(2) ? DAY : NIGHT, true);
        return QStringLiteral("sheet of the library");
    case 1:
        qApp->setStyleSheet(sheets().at(number(sheets().size())));
        return QStringLiteral("sheet of the application");
    case 2:
        QApplication::setPalette(QPalette(QColor::fromHsv(number(360), 90, 200)));
        return QStringLiteral("palette of the application");
    case 3: {
        QFont font = QApplication::font();
        font.setPixelSize(8 + number(20));
        QApplication::setFont(font);
        return QStringLiteral("font of the application");
    }
    case 4:
        QApplication::setLayoutDirection(number(2) ? Qt::RightToLeft : Qt::LeftToRight);
        return QStringLiteral("direction of the application");
    default: {
        QPixmap elsewhere(m_window->size() * 2); // as on a finer screen
        elsewhere.setDevicePixelRatio(1 + number(5) / 4.0);
        m_window->render(&elsewhere);
        return QStringLiteral("another pixel ratio");
    }
    }
}

QString Screen::changeMember()
{
    QWidget *member = any();
    switch (number(6)) {
    case 0:
        member->setStyleSheet(sheets().at(number(sheets().size())));
        return QStringLiteral("sheet of a widget");
    case 1:
        member->setPalette(QPalette(QColor::fromHsv(number(360), 90, 200)));
        return QStringLiteral("palette of a widget");
    case 2:
        member->setLayoutDirection(number(2) ? Qt::RightToLeft : Qt::LeftToRight);
        return QStringLiteral("direction of a widget");
    case 3:
        member->setEnabled(!member->isEnabled());
        return QStringLiteral("enabled or disabled");
    case 4:
        member->setVisible(member->isHidden());
        return QStringLiteral("hidden or shown");
    default: {
        QFont font = member->font();
        font.setPixelSize(8 + number(20));
        member->setFont(font);
        return QStringLiteral("font of a widget");
    }
    }
}

/// A button of an application that paints itself.
template <typename Button>
class Painted : public Button
{
public:
    using Button::Button;

protected:
    void paintEvent(QPaintEvent *) override { QPainter(this).fillRect(0, 0, 9, 9, Qt::red); }
};

} // namespace

class TestRestyle : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void sheetMayChangeAfterAScreenWasClosed_data();
    void sheetMayChangeAfterAScreenWasClosed();
    void paletteReachesPartsOfAWidget();
    void arrowOfARowTakesPaddingFromASheet();
    void sheetGivesGroundToWhatPaintsItself();
    void screenShowsWhatARepaintWouldPaint();
    void changeLooksAsTheToolkitsOwn_data();
    void changeLooksAsTheToolkitsOwn();
    void changeIsHeardOnceWithTheNewSheet_data();
    void changeIsHeardOnceWithTheNewSheet();
    void changeLeavesClassesTheirFonts();
    void changeLeavesClassesTheirColours();
    void changeLeavesAWidgetItsStyle();
};

void TestRestyle::sheetMayChangeAfterAScreenWasClosed_data()
{
    QTest::addColumn<int>("index");
    QTest::addColumn<bool>("sheet_first");
    const auto &classes = walkedClasses();
    for (size_t i = 0; i < classes.size(); ++i) {
        QTest::addRow("%s, made under a sheet", classes[i].name) << int(i) << true;
        QTest::addRow("%s, made before the first sheet", classes[i].name) << int(i) << false;
    }
}

// The style keeps what it knows of a widget until that is destroyed; it forgets a widget only when
// it was the one to mark it as styled.
void TestRestyle::sheetMayChangeAfterAScreenWasClosed()
{
    QFETCH(int, index);
    QFETCH(bool, sheet_first);
    const ApplicationLook look;
    if (sheet_first)
        VexoStylesheet(DAY, true);
    {
        QWidget screen;
        QWidget *widget = walkedClasses()[size_t(index)].make(&screen);
        const QList<QWidget *> children = widget->findChildren<QWidget *>();
        for (const QWidget *part : QList<QWidget *>{ widget } + children)
            QVERIFY2(!part->testAttribute(Qt::WA_StyleSheet) || sheet_first
                    || !part->styleSheet().isEmpty(),
                part->metaObject()->className());
        screen.show();
        settle();
        if (!sheet_first)
            VexoStylesheet(DAY, true);
        settle();
    }
    std::vector<std::unique_ptr<QByteArray>> taken; // what was freed is used anew
    for (int i = 0; i < 200; ++i)
        taken.push_back(std::make_unique<QByteArray>(500, 'x'));
    VexoStylesheet(NIGHT, true);
    settle();
}

void TestRestyle::paletteReachesPartsOfAWidget()
{
    QWidget screen;
    VexoLabeledContainer container(&screen);
    QPalette palette;
    palette.setColor(QPalette::WindowText, Qt::red);
    screen.setPalette(palette);
    const auto *caption
        = container.findChild<QLabel *>(QStringLiteral("vexoLabeledContainerLabel"));
    QCOMPARE(caption->palette().color(QPalette::WindowText), QColor(Qt::red));
}

void TestRestyle::arrowOfARowTakesPaddingFromASheet()
{
    const ApplicationLook look;
    QWidget screen;
    VexoFunctionButton row(&screen, VexoFunctionButton::ActionType);
    const auto *arrow = row.findChild<QWidget *>(QStringLiteral("vexoFunctionButtonWidgetRight"));
    screen.show();
    settle();
    const QSize bare = arrow->size();
    qApp->setStyleSheet(QStringLiteral("QLabel { padding: 4px; }"));
    settle();
    QCOMPARE(arrow->size(), bare + QSize(8, 8));
    qApp->setStyleSheet(QString());
    settle();
    QCOMPARE(arrow->size(), bare);
}

void TestRestyle::sheetGivesGroundToWhatPaintsItself()
{
    const ApplicationLook look;
    qApp->setStyleSheet(
        QStringLiteral("QAbstractButton { background: #80c0ff; border-radius: 2px; }"));
    QWidget screen;
    Painted<VexoIconButton> icon_button(&screen);
    Painted<VexoPushButton> push_button(&screen);
    push_button.move(100, 0);
    screen.resize(200, 100);
    screen.show();
    for (QWidget *button : QWidgetList{ &icon_button, &push_button }) {
        button->setFixedSize(60, 60);
        // Of the window: the toolkit fills what is grabbed alone with the colour of its palette.
        const QImage image = screen.grab(button->geometry()).toImage();
        QCOMPARE(image.pixelColor(20, 20), QColor(0x80, 0xc0, 0xff));
        QCOMPARE(image.pixelColor(0, 0), QColor(Qt::red));
    }
}

// Takes another number of changes from the environment variable HOXQ_CHANGES.
void TestRestyle::screenShowsWhatARepaintWouldPaint()
{
    const int asked = qEnvironmentVariableIntValue("HOXQ_CHANGES");
    const int changes = asked > 0 ? asked : 600;
    const int changes_of_a_story = 60;
    const ApplicationLook look;
    PanelScale scale(4, 5);
    for (int done = 0; done < changes; done += changes_of_a_story) {
        const auto seed = quint32(done + 1);
        Screen screen(seed);
        QStringList story;
        for (int i = 0; i < changes_of_a_story; ++i) {
            story += screen.change();
            settle();
            const QRect wrong = wrongPixels(*screen.window());
            if (wrong.isEmpty())
                continue;
            qWarning() << "seed" << seed << "wrong" << wrong << "after" << story;
            for (const QWidget *part : screen.window()->findChildren<QWidget *>()) {
                const QRect place(part->mapTo(screen.window(), QPoint()), part->size());
                if (place.intersects(wrong))
                    qWarning() << part << place;
            }
            QFAIL("the screen shows something else than a repaint");
        }
    }
}

void TestRestyle::changeLooksAsTheToolkitsOwn_data()
{
    QTest::addColumn<int>("index");
    const auto &classes = walkedClasses();
    for (size_t i = 0; i < classes.size(); ++i)
        QTest::newRow(classes[i].name) << int(i);
}

void TestRestyle::changeLooksAsTheToolkitsOwn()
{
    QFETCH(int, index);
    const ApplicationLook look;
    PanelScale scale(4, 5);
    const QStringList texts = sheets().mid(1) + QStringList{ textOf(DAY), textOf(NIGHT) };
    for (int i = 0; i < texts.size(); ++i) {
        for (const int next : { 1, 2 }) {
            const QString &before = texts[i];
            const QString &after = texts[(i + next) % texts.size()];
            const auto picture = [&](const std::function<void()> &change) {
                qApp->setStyleSheet(before);
                QWidget window;
                fill(&window, walkedClasses()[size_t(index)]);
                window.show();
                settle();
                change();
                settle();
                return shownOnScreen(window);
            };
            const QImage toolkits = picture([&] { qApp->setStyleSheet(after); });
            const QImage ours = picture([&] { setSheet(after); });
            QVERIFY2(ours == toolkits, qPrintable(before + QStringLiteral(" to ") + after));
        }
    }
}

void TestRestyle::changeIsHeardOnceWithTheNewSheet_data()
{
    QTest::addColumn<QString>("before");
    QTest::addColumn<QString>("after");
    QTest::newRow("another") << sheets().at(1) << sheets().at(2);
    QTest::newRow("one without colours")
        << sheets().at(1) << QStringLiteral("Other { color: red }");
    QTest::newRow("the same") << sheets().at(4) << sheets().at(4);
}

void TestRestyle::changeIsHeardOnceWithTheNewSheet()
{
    QFETCH(QString, before);
    QFETCH(QString, after);
    const ApplicationLook look;
    qApp->setStyleSheet(before);
    Watched window;
    auto *middle = new Watched(&window);
    auto *inner = new Watched(middle);
    VexoFunctionButton row(middle);
    window.show();
    QVERIFY(QTest::qWaitForWindowActive(&window));
    settle();
    const QList<Watched *> all = { &window, middle, inner };
    for (Watched *widget : all)
        widget->heard.clear();
    setSheet(after);
    for (Watched *widget : all) {
        QCOMPARE(widget->heard.count({ QEvent::StyleChange, after }), 1);
        QVERIFY(widget->told == widget->palette());
    }
    settle();
    QCOMPARE(window.heard.count({ QEvent::UpdateRequest, after }), 1);
    for (Watched *widget : all) {
        QVERIFY(widget->heard.contains({ QEvent::Paint, after }));
        for (const auto &[type, sheet] : qAsConst(widget->heard))
            QCOMPARE(sheet, after);
    }
}

void TestRestyle::changeLeavesClassesTheirFonts()
{
    const ApplicationLook look;
    qApp->setStyleSheet(sheets().at(1));
    const auto put_back = qScopeGuard([] { QApplication::setFont(QFont(), "QMenu"); });
    QFont font;
    font.setPixelSize(33);
    QApplication::setFont(font, "QMenu");
    setSheet(sheets().at(2));
    QCOMPARE(QApplication::font("QMenu").pixelSize(), 33);
}

void TestRestyle::changeLeavesClassesTheirColours()
{
    const ApplicationLook look;
    qApp->setStyleSheet(sheets().at(2));
    QApplication::setPalette(QPalette(Qt::red), "QMenu");
    setSheet(sheets().at(4));
    QCOMPARE(QApplication::palette("QMenu").color(QPalette::Button), QColor(Qt::red));
}

void TestRestyle::changeLeavesAWidgetItsStyle()
{
    const ApplicationLook look;
    const std::unique_ptr<QStyle> style(QStyleFactory::create(QStringLiteral("windows")));
    qApp->setStyleSheet(sheets().at(1));
    QWidget screen;
    QLabel label(QStringLiteral("text"), &screen);
    label.setStyle(style.get());
    for (int i = 0; i < 20; ++i)
        new QLabel(&screen); // most of a screen has the application's
    screen.show();
    settle();
    setSheet(QStringLiteral("QLabel { padding: 9px; }"));
    settle();
    QCOMPARE(label.sizeHint().height(), 2 * 9 + label.fontMetrics().height());
}

QTEST_MAIN(TestRestyle)
#include "tst_restyle.moc"
