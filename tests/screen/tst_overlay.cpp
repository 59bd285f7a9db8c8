// SPDX-License-Identifier: MIT
#include "support/onscreen.h"
#include "support/panelscale.h"
#include "support/testcase.h"
#include "ui/buttons/vexofunctionbutton.h"
#include "ui/foundation/vexostylesheet.h"
#include "ui/scrolling/vexoverticalscrollarea.h"
#include "ui/scrolling/vexoverticalscrollcontent.h"
#include "ui/text/vexolabel.h"
#include "ui/text/vexoruler.h"

#include <QApplication>
#include <QRandomGenerator>
#include <QScopeGuard>
#include <QScrollBar>
#include <QVBoxLayout>

using namespace vexo::hox::qt::ui;

/// A screen whose parts change at random under a notice that lies on it.
class Crowd
{
public:
    Crowd(bool is_list, bool with_rows, bool with_labels, quint32 seed);

    QString change();
    QWidget window;

private:
    QWidget *makeMember();
    QString changeMember();
    QString changeNotice();
    int number(int bound) { return int(m_random.bounded(quint32(bound))); }

    QRandomGenerator m_random;
    const bool m_with_rows;
    const bool m_with_labels;
    QWidget *m_content = nullptr;
    QWidget *m_notice = nullptr;
    VexoVerticalScrollArea *m_area = nullptr;
    QVector<QWidget *> m_members;
    int m_count = 0;
};

Crowd::Crowd(bool is_list, bool with_rows, bool with_labels, quint32 seed)
    : m_random(seed)
    , m_with_rows(with_rows)
    , m_with_labels(with_labels)
{
    window.resize(320, 240);
    if (is_list) {
        m_area = new VexoVerticalScrollArea(&window);
        m_area->setGeometry(10, 10, 300, 220);
        m_content = new VexoVerticalScrollContent;
        m_area->setWidget(m_content);
    } else {
        m_content = new QWidget(&window);
        m_content->setGeometry(10, 10, 300, 220);
        new QVBoxLayout(m_content);
    }
    m_notice = new QWidget(&window);
    m_notice->setAutoFillBackground(true);
    m_notice->setPalette(QPalette(Qt::magenta));
    m_notice->setGeometry(60, 60, 120, 90);
    for (int i = 0; i < 8; ++i)
        makeMember();
}

QWidget *Crowd::makeMember()
{
    const QString text = QStringLiteral("%1 of the many").arg(m_count++);
    QWidget *member = nullptr;
    if (m_with_rows && number(5) == 0) {
        member = new VexoRuler(m_content);
    } else if (m_with_rows && (!m_with_labels || number(2) == 0)) {
        auto *row = new VexoFunctionButton(m_content, VexoFunctionButton::ActionType);
        row->setText(text);
        member = row;
    } else {
        member = new VexoLabel(text, m_content);
    }
    const int place = number(m_members.size() + 1);
    m_members.insert(place, member);
    static_cast<QVBoxLayout *>(m_content->layout())->insertWidget(place, member);
    return member;
}

QString Crowd::changeMember()
{
    if (m_members.isEmpty() || (m_members.size() < 14 && number(6) == 0)) {
        makeMember();
        return QStringLiteral("insert");
    }
    const int place = number(m_members.size());
    QWidget *member = m_members.at(place);
    switch (number(7)) {
    case 0:
        m_members.removeAt(place);
        delete member;
        return QStringLiteral("delete");
    case 1:
        member->setVisible(member->isHidden());
        return QStringLiteral("hide or show");
    case 2:
        member->move(member->x() + number(21) - 10, member->y() + number(21) - 10);
        return QStringLiteral("move");
    case 3:
        m_content->layout()->activate();
        return QStringLiteral("lay out");
    case 4:
        member->update();
        return QStringLiteral("update");
    case 5:
        member->setEnabled(!member->isEnabled());
        return QStringLiteral("enable");
    default: {
        const QString text = QStringLiteral("text %1").arg(number(99));
        if (auto *row = qobject_cast<VexoFunctionButton *>(member))
            row->setText(text);
        else if (auto *label = qobject_cast<VexoLabel *>(member))
            label->setText(text);
        else
            static_cast<VexoRuler *>(member)->setRulerStyle(
                number(2) ? VexoRuler::Transparent : VexoRuler::MainMiddle);
        return QStringLiteral("set text or lines");
    }
    }
}

QString Crowd::changeNotice()
{
    switch (number(4)) {
    case 0:
        m_notice->setVisible(m_notice->isHidden());
        return QStringLiteral("notice hidden or shown");
    case 1:
        m_notice->raise();
        return QStringLiteral("notice raised");
    default:
        m_notice->move(number(260), number(200));
        return QStringLiteral("notice moved");
    }
}

QString Crowd::change()
{
    const int kind = number(8);
    if (kind == 0)
        return changeNotice();
    if (kind < 4 && m_area) {
        // The toolkit moves pixels that are not yet painted anew, also those of its own widgets.
        settle();
        QScrollBar *bar = m_area->verticalScrollBar();
        const int most = number(4) == 0 ? 400 : 20; // a jump, or a step
        bar->setValue(bar->value() + number(2 * most + 1) - most);
        return QStringLiteral("scroll");
    }
    return changeMember();
}

class TestOverlay : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void nothingPaintsOverWhatLiesOnTop_data();
    void nothingPaintsOverWhatLiesOnTop();
};

void TestOverlay::nothingPaintsOverWhatLiesOnTop_data()
{
    QTest::addColumn<bool>("is_list");
    QTest::addColumn<bool>("with_rows");
    QTest::addColumn<bool>("with_labels");
    QTest::addColumn<QString>("sheet");
    const QString none;
    const QString panel = QStringLiteral(":/css/hoxq.qs");
    QTest::newRow("rows of a list") << true << true << false << none;
    QTest::newRow("rows and labels of a list") << true << true << true << none;
    QTest::newRow("rows of a list, with a sheet") << true << true << false << panel;
    QTest::newRow("rows of a plain layout") << false << true << false << none;
    QTest::newRow("labels of a plain layout") << false << false << true << none;
}

// Takes another number of changes from the environment variable HOXQ_CHANGES.
void TestOverlay::nothingPaintsOverWhatLiesOnTop()
{
    QFETCH(bool, is_list);
    QFETCH(bool, with_rows);
    QFETCH(bool, with_labels);
    QFETCH(QString, sheet);
    if (!sheet.isEmpty())
        VexoStylesheet(sheet, true);
    const auto finish = qScopeGuard([] { qApp->setStyleSheet(QString()); });
    const int asked = qEnvironmentVariableIntValue("HOXQ_CHANGES");
    const int changes = asked > 0 ? asked : 400; // of each row
    const int changes_of_a_screen = 50;
    PanelScale scale(4, 5);
    for (int done = 0; done < changes; done += changes_of_a_screen) {
        const auto seed = quint32(done + 1);
        Crowd crowd(is_list, with_rows, with_labels, seed);
        crowd.window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&crowd.window));
        settle();
        QRandomGenerator turns(seed);
        QStringList story;
        for (int i = 0; i < changes_of_a_screen; ++i) {
            story += crowd.change();
            if (turns.bounded(3) == 0)
                continue; // more than one change before the next paint
            settle();
            const QRect wrong = wrongPixels(crowd.window);
            if (wrong.isEmpty())
                continue;
            qWarning() << "seed" << seed << "wrong" << wrong << "after"
                       << story.mid(qMax(0, story.size() - 8));
            QFAIL("the screen shows something else than a repaint");
        }
    }
}

QTEST_MAIN(TestOverlay)
#include "tst_overlay.moc"
