// SPDX-License-Identifier: MIT
#include "support/onscreen.h"
#include "support/panelscale.h"
#include "support/rowmodel.h"
#include "support/testcase.h"

#include <VexoFunctionButton>
#include <VexoRuler>
#include <VexoStylesheet>
#include <VexoVerticalScrollContent>

#include <QApplication>
#include <QLayout>
#include <QRandomGenerator>
#include <QScopeGuard>
#include <QScrollBar>

using namespace vexo::hox::qt::ui;

namespace {

using Row = VexoFunctionButton;

// The second one draws check boxes from images; the toolkit draws other ones differently where they
// are cut.
const QStringList sheets{ QStringLiteral(":/css/hoxq.qs"), QStringLiteral(":/css/vexo-AAL.qs") };

/// A RowList over a model that changes at random, and a list that has a widget for each row.
class Twins
{
public:
    Twins(bool has_separators, quint32 seed);

    QString change();
    /// Empty if both look alike, and each as a repaint of it would.
    QString difference();

private:
    QString changeModel();
    QString changeEntry();
    QString changeLook();
    QString scroll();
    void fillPlain();
    int number(int bound) { return int(m_random.bounded(quint32(bound))); }
    int any() { return number(qMax(1, m_model.rowCount())); }
    int value() const { return list.verticalScrollBar()->value(); }

    QRandomGenerator m_random;
    const bool m_has_separators;
    RowModel m_model{ 40 };
    QWidget m_window;
    QWidget m_plain_window;
    RowList list{ &m_window };
    VexoVerticalScrollArea m_plain{ &m_plain_window };
    QWidget m_notice{ &m_window }; // lies on the list
    QWidget m_plain_notice{ &m_plain_window };
};

Twins::Twins(bool has_separators, quint32 seed)
    : m_random(seed)
    , m_has_separators(has_separators)
{
    if (has_separators)
        list.setSeparatorFactory([] { return new VexoRuler; });
    list.setModel(&m_model);
    m_plain.setWidget(new VexoVerticalScrollContent);
    for (QWidget *notice : { &m_notice, &m_plain_notice }) {
        notice->setAutoFillBackground(true);
        notice->setPalette(QPalette(Qt::magenta));
        notice->setGeometry(60, 60, 80, 60);
    }
    for (QWidget *window : { &m_window, &m_plain_window }) {
        window->resize(300, 220);
        window->show();
    }
    list.resize(300, 220);
    m_plain.resize(300, 220);
}

void Twins::fillPlain()
{
    auto *content = new VexoVerticalScrollContent;
    for (int i = 0; i < m_model.rowCount(); ++i) {
        const RowModel::Entry &entry = m_model.at(i);
        auto *row = new Row(content, Row::VexoFunctionButtonType(entry.type));
        row->setText(entry.text);
        row->setEnabled(entry.is_enabled);
        if (QAbstractButton *button = row->getButtonInstance()) {
            button->setAutoExclusive(false);
            if (button->isCheckable())
                button->setChecked(entry.is_checked);
        }
        if (m_has_separators && i > 0)
            content->layout()->addWidget(new VexoRuler);
        content->layout()->addWidget(row);
    }
    m_plain.setWidget(content);
}

QString Twins::difference()
{
    settle();
    const QRect wrong = wrongPixels(m_window);
    if (!wrong.isEmpty())
        return QStringLiteral("a repaint looks different");
    fillPlain();
    settle();
    const QScrollBar *bar = list.verticalScrollBar();
    QScrollBar *plain_bar = m_plain.verticalScrollBar();
    if (bar->maximum() != plain_bar->maximum())
        return QStringLiteral("the height is another one: %1, not %2")
            .arg(bar->maximum())
            .arg(plain_bar->maximum());
    plain_bar->setValue(bar->value());
    // Painted anew: where a stock area jumps, the toolkit loses what lies on it.
    const QImage plain = m_plain_window.grab().toImage().convertToFormat(QImage::Format_RGB32);
    return shownOnScreen(m_window) == plain ? QString()
                                            : QStringLiteral("a list of all rows looks different");
}

QString Twins::change()
{
    switch (number(8)) {
    case 0:
        return changeLook();
    case 1:
    case 2:
        return changeModel();
    case 3:
        return changeEntry();
    default:
        return scroll();
    }
}

QString Twins::changeModel()
{
    const int row = any();
    const int count = m_model.rowCount();
    switch (number(6)) {
    case 0:
        if (count == 0)
            return QString();
        m_model.move(row, number(count + 1));
        return QStringLiteral("move");
    case 1:
        m_model.turnRound();
        return QStringLiteral("turn round");
    case 2:
        m_model.reset(RowModel::entries(number(50)));
        return QStringLiteral("reset");
    case 3:
        m_model.insert(number(count + 1), RowModel::entries(1 + number(4), number(5)));
        return QStringLiteral("insert");
    default:
        if (count == 0)
            return QString();
        m_model.remove(row, qMin(count - row, 1 + number(4)));
        return QStringLiteral("remove");
    }
}

QString Twins::changeEntry()
{
    if (m_model.rowCount() == 0)
        return QString();
    const int row = number(3) == 0 ? any() : qMin(m_model.rowCount() - 1, value() / 49 + number(4));
    m_model.set(row,
        { QStringLiteral("changed %1").arg(number(100)), number(5), number(2) == 0,
            number(3) > 0 });
    return QStringLiteral("row %1 changes").arg(row);
}

QString Twins::changeLook()
{
    switch (number(4)) {
    case 0: {
        const QSize size(200 + number(200), 60 + number(300));
        for (QWidget *window : { &m_window, &m_plain_window })
            window->resize(size);
        list.resize(size);
        m_plain.resize(size);
        return QStringLiteral("resize");
    }
    case 1: {
        const QRect place(number(200), number(150), 80, 60);
        for (QWidget *notice : { &m_notice, &m_plain_notice })
            notice->setGeometry(place);
        return QStringLiteral("notice moves");
    }
    case 2: {
        const bool has_bar = number(2);
        list.setScrollBarEnabled(has_bar);
        m_plain.setScrollBarEnabled(has_bar);
        return QStringLiteral("scroll bar");
    }
    default:
        VexoStylesheet(sheets.mid(number(2)), true);
        return QStringLiteral("sheet");
    }
}

QString Twins::scroll()
{
    settle(); // the toolkit moves pixels that are not yet painted anew
    QScrollBar *bar = list.verticalScrollBar();
    const bool is_jump = number(4) == 0;
    bar->setValue(is_jump ? number(bar->maximum() + 1) : value() + number(121) - 60);
    return QStringLiteral("scroll to %1").arg(value());
}

} // namespace

class TestRowListLikeness : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void looksAsAListOfAllRows_data();
    void looksAsAListOfAllRows();
};

void TestRowListLikeness::looksAsAListOfAllRows_data()
{
    QTest::addColumn<bool>("has_separators");
    QTest::newRow("rows") << false;
    QTest::newRow("rows with separators") << true;
}

// Takes another number of changes from the environment variable HOXQ_CHANGES.
void TestRowListLikeness::looksAsAListOfAllRows()
{
    QFETCH(bool, has_separators);
    const int asked = qEnvironmentVariableIntValue("HOXQ_CHANGES");
    const int changes = asked > 0 ? asked : 300;
    const int changes_of_a_story = 50;
    VexoStylesheet(sheets, true);
    const auto finish = qScopeGuard([] { qApp->setStyleSheet(QString()); });
    PanelScale scale(4, 5);
    for (int done = 0; done < changes; done += changes_of_a_story) {
        const auto seed = quint32(done + 1);
        Twins twins(has_separators, seed);
        QRandomGenerator turns(seed);
        QStringList story;
        for (int i = 0; i < changes_of_a_story; ++i) {
            story += twins.change();
            if (turns.bounded(4) == 0)
                continue; // more than one change before the next paint
            const QString difference = twins.difference();
            if (difference.isEmpty())
                continue;
            qWarning() << "seed" << seed << "after" << story.mid(qMax(0, story.size() - 8));
            QFAIL(qPrintable(difference));
        }
    }
}

QTEST_MAIN(TestRowListLikeness)
#include "tst_rowlistlikeness.moc"
