// SPDX-License-Identifier: MIT
#include "gallery/mainwindow.h"
#include "gallery/pagelist.h"
#include "support/testcase.h"
#include "uitest/auditing.h"

#include <Panel>

#include <QElapsedTimer>
#include <QFile>
#include <QRegularExpression>

using namespace auditing;
using namespace vexo::hox::qt::ui;

namespace {

/// A line of accepted.txt.
struct Accepted
{
    QRegularExpression page;
    QString rule;
    QRegularExpression what;
    QString line;
    bool is_needed = false;
};

QRegularExpression whole(const QString &pattern)
{
    return QRegularExpression(QRegularExpression::anchoredPattern(pattern));
}

QVector<Accepted> readAccepted()
{
    QVector<Accepted> accepted;
    QFile file(QStringLiteral(HOXQ_ACCEPTED));
    if (!file.open(QIODevice::ReadOnly))
        return accepted;
    const QStringList lines = QString::fromUtf8(file.readAll()).split(QLatin1Char('\n'));
    for (const QString &line : lines) {
        const QStringList parts = line.split(" | ");
        if (parts.size() == 4 && !line.startsWith(QLatin1Char('#')))
            accepted.append({ whole(parts.at(0)), parts.at(1),
                QRegularExpression(parts.at(2).trimmed()), line });
    }
    return accepted;
}

bool isFor(const Accepted &accepted, const QString &page, const Finding &finding)
{
    return accepted.page.match(page).hasMatch() && accepted.rule == finding.rule
        && accepted.what.match(finding.where + ": " + finding.text).hasMatch();
}

void open(MainWindow *window, int page)
{
    window->resize(ScalingInfo::inst()->m_pixels);
    window->show();
    window->showPage(page);
}

} // namespace

/// The pages of the gallery are a good example, but for what accepted.txt names.
class TestPanelAuditGallery : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void pagesAreGood_data();
    void pagesAreGood();
    void eachAcceptedLineIsNeeded();
    void settingsTakeAMoment();

private:
    QVector<Accepted> m_accepted;
};

void TestPanelAuditGallery::initTestCase()
{
    TestCase::initTestCase();
    PanelOptions options;
    options.px = QSize(1280, 800);
    options.mm = QSizeF(160, 100);
    Panel::setUp(*qobject_cast<QApplication *>(qApp), options);
    m_accepted = readAccepted();
    QVERIFY(!m_accepted.isEmpty());
}

void TestPanelAuditGallery::pagesAreGood_data()
{
    QTest::addColumn<int>("page");
    for (int i = 0; i < pageList().size(); ++i)
        QTest::newRow(qPrintable(pageList().at(i).name)) << i;
}

void TestPanelAuditGallery::pagesAreGood()
{
    QFETCH(int, page);
    MainWindow window;
    open(&window, page);
    window.showWholePage();
    QVERIFY(QTest::qWaitForWindowActive(&window));
    window.setFocus(); // no cursor blinks
    PanelAudit::texts(&window); // the sliders come to rest in their second layout only
    const QImage before = window.grab().toImage();
    Findings unexpected;
    const Findings findings = PanelAudit::all(&window, 100);
    for (const Finding &finding : findings) {
        bool is_accepted = false;
        for (Accepted &accepted : m_accepted) {
            const bool is_this = isFor(accepted, pageList().at(page).name, finding);
            accepted.is_needed = accepted.is_needed || is_this;
            is_accepted = is_accepted || is_this;
        }
        if (!is_accepted)
            unexpected.append(finding);
    }
    QVERIFY2(unexpected.isEmpty(), qPrintable(PanelAudit::report(unexpected)));
    QTRY_COMPARE(window.grab().toImage(), before); // some cursors blink
}

void TestPanelAuditGallery::eachAcceptedLineIsNeeded()
{
    for (const Accepted &accepted : qAsConst(m_accepted))
        QVERIFY2(accepted.is_needed, qPrintable(accepted.line));
}

// Of its twelve rows and a stepper; what the screen costs once is the measure.
void TestPanelAuditGallery::settingsTakeAMoment()
{
    MainWindow window;
    open(&window, pageNames().indexOf("settings"));
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    const auto time = [](const std::function<void()> &run) {
        qint64 best_ns = std::numeric_limits<qint64>::max();
        for (int i = 0; i < 5; ++i) {
            QElapsedTimer timer;
            timer.start();
            run();
            best_ns = qMin(best_ns, timer.nsecsElapsed());
        }
        return double(best_ns);
    };
    QImage picture(window.size(), QImage::Format_RGB32);
    const double render = time([&] { window.render(&picture); });
    const double all = time([&] { PanelAudit::all(&window, 0); });
    qInfo("all() takes as long as %.0f renderings, %.0f ms", all / render, all / 1e6);
    const double most = 500; // of 0.6 ms each
    QVERIFY2(all / render < most, qPrintable(QString::number(all / render)));
}

QTEST_MAIN(TestPanelAuditGallery)
#include "tst_panelaudit_gallery.moc"
