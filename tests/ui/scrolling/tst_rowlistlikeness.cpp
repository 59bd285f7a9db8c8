// SPDX-License-Identifier: MIT
#include "support/panelscale.h"
#include "support/rowmodel.h"
#include "support/story.h"
#include "support/testcase.h"

#include <VexoFunctionButton>
#include <VexoRuler>
#include <VexoStylesheet>
#include <VexoVerticalScrollContent>

#include <QScrollBar>

using namespace vexo::hox::qt::ui;

namespace {

using Row = VexoFunctionButton;

// The second one draws check boxes from images; the toolkit draws other ones differently where they
// are cut.
const QStringList sheets{ ":/css/hoxq.qs", ":/css/vexo-AAL.qs" };

/// A RowList over a model that changes at random, and a list that has a widget for each row.
class Twins : public StoryScreen
{
public:
    Twins(bool has_separators, quint32 seed);

    QString change();
    /// Empty if both look alike, and each as a repaint of it would.
    QString fault();

private:
    QString changeModel();
    void changeEntry();
    QString changeLook();
    void scroll();
    void fillPlain();
    int any() { return number(qMax(1, m_model.rowCount())); }
    int value() const { return list.verticalScrollBar()->value(); }

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
    : StoryScreen(seed)
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

QString Twins::fault()
{
    settle();
    const QRect wrong = wrongPixels(m_window);
    if (!wrong.isEmpty())
        return "a repaint looks different";
    fillPlain();
    settle();
    const QScrollBar *bar = list.verticalScrollBar();
    QScrollBar *plain_bar = m_plain.verticalScrollBar();
    if (bar->maximum() != plain_bar->maximum())
        return QString("the height is another one: %1, not %2")
            .arg(bar->maximum())
            .arg(plain_bar->maximum());
    plain_bar->setValue(bar->value());
    // Painted anew: where a stock area jumps, the toolkit loses what lies on it.
    const QImage plain = m_plain_window.grab().toImage().convertToFormat(QImage::Format_RGB32);
    return shownOnScreen(m_window) == plain ? QString() : "a list of all rows looks different";
}

QString Twins::change()
{
    const int kind = number(8);
    if (kind == 0)
        return changeLook();
    if (kind < 3)
        return changeModel();
    if (kind == 3)
        return makeOne({ { "a row changes", [this] { changeEntry(); } } });
    return makeOne({ { "scroll", [this] { scroll(); } } });
}

QString Twins::changeModel()
{
    const int row = any();
    const int count = m_model.rowCount();
    const auto remove = [=] { m_model.remove(row, qMin(count - row, 1 + number(4))); };
    if (count == 0)
        return makeOne({ { "reset", [this] { m_model.reset(RowModel::entries(number(50))); } } });
    return makeOne({
        { "move", [=] { m_model.move(row, number(count + 1)); } },
        { "turn round", [=] { m_model.turnRound(); } },
        { "reset", [=] { m_model.reset(RowModel::entries(number(50))); } },
        { "insert",
            [=] {
                m_model.insert(number(count + 1), RowModel::entries(1 + number(4), number(5)));
            } },
        { "remove", remove },
        { "remove", remove },
    });
}

void Twins::changeEntry()
{
    if (m_model.rowCount() == 0)
        return;
    const int row = number(3) == 0 ? any() : qMin(m_model.rowCount() - 1, value() / 49 + number(4));
    m_model.set(
        row, { QString("changed %1").arg(number(100)), number(5), number(2) == 0, number(3) > 0 });
}

QString Twins::changeLook()
{
    const QSize size(200 + number(200), 60 + number(300));
    const bool has_bar = number(2);
    return makeOne({
        { "resize",
            [=] {
                for (QWidget *part : { &m_window, &m_plain_window, static_cast<QWidget *>(&list),
                         static_cast<QWidget *>(&m_plain) })
                    part->resize(size);
            } },
        { "notice moves",
            [=] {
                m_notice.move(size.width() - 200, size.height() / 2);
                m_plain_notice.move(m_notice.pos());
            } },
        { "scroll bar",
            [=] {
                list.setScrollBarEnabled(has_bar);
                m_plain.setScrollBarEnabled(has_bar);
            } },
        { "sheet", [=] { VexoStylesheet(sheets.mid(has_bar), true); } },
    });
}

void Twins::scroll()
{
    settle(); // the toolkit moves pixels that are not yet painted anew
    QScrollBar *bar = list.verticalScrollBar();
    const bool is_jump = number(4) == 0;
    bar->setValue(is_jump ? number(bar->maximum() + 1) : value() + number(121) - 60);
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

void TestRowListLikeness::looksAsAListOfAllRows()
{
    QFETCH(bool, has_separators);
    const PanelScale scale(4, 5);
    VexoStylesheet(sheets, true);
    tellStories<Twins>(
        300, 50, [=](quint32 seed) { return std::make_unique<Twins>(has_separators, seed); });
    qApp->setStyleSheet(QString());
}

QTEST_MAIN(TestRowListLikeness)
#include "tst_rowlistlikeness.moc"
