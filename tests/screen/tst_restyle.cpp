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
#include <QFile>
#include <QScopeGuard>
#include <QStyle>
#include <QStyleFactory>
#include <QVBoxLayout>

using namespace vexo::hox::qt::ui;

namespace {

const QString DAY = ":/css/hoxq.qs";
const QString NIGHT = ":/css/vexo-AAL.qs";

const QStringList SHEETS{ "* { background: #203040; color: #f0e0d0; }",
    "QLabel { padding: 3px; } QAbstractButton { background: #80c0ff; }",
    "QWidget:disabled { background: red; border: 2px solid blue; }",
    "QWidget { font: bold 15px; } QLabel { qproperty-indent: 9; }" };

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
        column->addWidget(new QLabel("text"));
    column->itemAt(1)->widget()->setStyleSheet("* { border: 3px solid green; }");
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
    void sheetMayChangeAfterAScreenWasClosed_data() { addWalkedClasses(); }
    void sheetMayChangeAfterAScreenWasClosed();
    void paletteReachesPartsOfAWidget();
    void arrowOfARowTakesPaddingFromASheet();
    void sheetGivesGroundToWhatPaintsItself();
    void changeLooksAsTheToolkitsOwn_data() { addWalkedClasses(); }
    void changeLooksAsTheToolkitsOwn();
    void changeIsHeardOnceWithTheNewSheet_data();
    void changeIsHeardOnceWithTheNewSheet();
    void changeLeavesClassesTheirFontsAndColours();
    void changeLeavesAWidgetItsStyle();
};

// The style keeps what it knows of a widget until that is destroyed; it forgets a widget only when
// it was the one to mark it as styled.
void TestRestyle::sheetMayChangeAfterAScreenWasClosed()
{
    QFETCH(const WalkedClass *, walked);
    for (const bool sheet_first : { true, false }) {
        const ApplicationLook look;
        if (sheet_first)
            VexoStylesheet(DAY, true);
        {
            QWidget screen;
            QWidget *widget = walked->make(&screen);
            for (const QWidget *part : QWidgetList{ widget } + widget->findChildren<QWidget *>())
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
}

void TestRestyle::paletteReachesPartsOfAWidget()
{
    QWidget screen;
    VexoLabeledContainer container(&screen);
    QPalette palette;
    palette.setColor(QPalette::WindowText, Qt::red);
    screen.setPalette(palette);
    const auto *caption = container.findChild<QLabel *>("vexoLabeledContainerLabel");
    QCOMPARE(caption->palette().color(QPalette::WindowText), QColor(Qt::red));
}

void TestRestyle::arrowOfARowTakesPaddingFromASheet()
{
    const ApplicationLook look;
    QWidget screen;
    VexoFunctionButton row(&screen, VexoFunctionButton::ActionType);
    const auto *arrow = row.findChild<QWidget *>("vexoFunctionButtonWidgetRight");
    screen.show();
    settle();
    const QSize bare = arrow->size();
    qApp->setStyleSheet("QLabel { padding: 4px; }");
    settle();
    QCOMPARE(arrow->size(), bare + QSize(8, 8));
    qApp->setStyleSheet(QString());
    settle();
    QCOMPARE(arrow->size(), bare);
}

void TestRestyle::sheetGivesGroundToWhatPaintsItself()
{
    const ApplicationLook look;
    qApp->setStyleSheet("QAbstractButton { background: #80c0ff; border-radius: 2px; }");
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

void TestRestyle::changeLooksAsTheToolkitsOwn()
{
    QFETCH(const WalkedClass *, walked);
    const ApplicationLook look;
    PanelScale scale(4, 5);
    const QStringList texts = SHEETS + QStringList{ textOf(DAY), textOf(NIGHT) };
    for (int i = 0; i < texts.size(); ++i) {
        for (const int next : { 1, 2 }) {
            const QString &before = texts[i];
            const QString &after = texts[(i + next) % texts.size()];
            const auto picture = [&](const std::function<void()> &change) {
                qApp->setStyleSheet(before);
                QWidget window;
                fill(&window, *walked);
                window.show();
                settle();
                change();
                settle();
                return shownOnScreen(window);
            };
            const QImage toolkits = picture([&] { qApp->setStyleSheet(after); });
            const QImage ours = picture([&] { setSheet(after); });
            QVERIFY2(ours == toolkits, qPrintable(before + " to " + after));
        }
    }
}

void TestRestyle::changeIsHeardOnceWithTheNewSheet_data()
{
    QTest::addColumn<QString>("before");
    QTest::addColumn<QString>("after");
    QTest::newRow("another") << SHEETS.at(0) << SHEETS.at(1);
    QTest::newRow("one without colours") << SHEETS.at(0) << "Other { color: red }";
    QTest::newRow("the same") << SHEETS.at(3) << SHEETS.at(3);
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

void TestRestyle::changeLeavesClassesTheirFontsAndColours()
{
    const ApplicationLook look;
    qApp->setStyleSheet(SHEETS.at(1));
    const auto put_back = qScopeGuard([] { QApplication::setFont(QFont(), "QMenu"); });
    QFont font;
    font.setPixelSize(33);
    QApplication::setFont(font, "QMenu");
    QApplication::setPalette(QPalette(Qt::red), "QMenu");
    setSheet(SHEETS.at(3));
    QCOMPARE(QApplication::font("QMenu").pixelSize(), 33);
    QCOMPARE(QApplication::palette("QMenu").color(QPalette::Button), QColor(Qt::red));
}

void TestRestyle::changeLeavesAWidgetItsStyle()
{
    const ApplicationLook look;
    const std::unique_ptr<QStyle> style(QStyleFactory::create("windows"));
    qApp->setStyleSheet(SHEETS.at(0));
    QWidget screen;
    QLabel label("text", &screen);
    label.setStyle(style.get());
    for (int i = 0; i < 20; ++i)
        new QLabel(&screen); // most of a screen has the application's
    screen.show();
    settle();
    setSheet("QLabel { padding: 9px; }");
    settle();
    QCOMPARE(label.sizeHint().height(), 2 * 9 + label.fontMetrics().height());
}

QTEST_MAIN(TestRestyle)
#include "tst_restyle.moc"
