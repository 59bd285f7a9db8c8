// SPDX-License-Identifier: MIT
#include "gallery/expose.h"
#include "gallery/pages/formpage.h"
#include "gallery/pages/listspage.h"
#include "support/find.h"
#include "support/testcase.h"

#include <VexoFunctionButton>
#include <VexoLabeledContainer>
#include <VexoPushButton>
#include <VexoRadioButton>

#include <QPushButton>

using namespace vexo::hox::qt::ui;

/// The pages with a list beside its jump bar, and with payloads that come and go.
class TestLists : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void buttonOfTheBarJumps_data();
    void buttonOfTheBarJumps();
    void payloadsComeAndGo();
};

namespace {

// Of what is seen of the list.
QString firstRowOf(const QWidget &page)
{
    const auto *list = page.findChild<QWidget *>("contacts");
    const QPoint below_the_line(1, 2 - list->y());
    return list->childAt(below_the_line)->property("button_text").toString();
}

QString payloadOf(const QWidget &page, const QString &caption)
{
    const auto containers = page.findChildren<VexoLabeledContainer *>();
    for (const VexoLabeledContainer *container : containers) {
        if (container->labelText() != caption)
            continue;
        const QWidget *payload = container->childAt(container->rect().center() + QPoint(0, 15));
        return payload ? payload->property("text").toString() : QString();
    }
    return "no container";
}

} // namespace

void TestLists::buttonOfTheBarJumps_data()
{
    QTest::addColumn<QString>("type");
    QTest::addColumn<QString>("button");
    QTest::addColumn<QString>("row");
    const auto row = [](const char *name, const char *type, char button, const char *first) {
        QTest::newRow(name) << QString::fromUtf8(type) << QString(QLatin1Char(button))
                            << QString::fromLatin1(first);
    };
    row("letter", "A–Z", 'Q', "Quandt, Clara");
    row("numbers", "A–Z", '#', "1st floor, kitchen");
    row("a tenth", "0–9", '5', "Meyer, Ben");
}

void TestLists::buttonOfTheBarJumps()
{
    QFETCH(QString, type);
    QFETCH(QString, button);
    ListsPage page;
    expose(&page);
    byText<QPushButton>(page, "C")->click(); // away from the top
    byText<VexoRadioButton>(page, type)->setChecked(true);
    byText<QPushButton>(page, button)->click();
    QTEST(firstRowOf(page), "row");
}

void TestLists::payloadsComeAndGo()
{
    const int before = QApplication::allWidgets().size();
    {
        FormPage page;
        expose(&page);
        QStringList shown;
        for (const char *text : { "", "Automatic", "Remove", "By hand", "Put back", "Automatic" }) {
            if (*text)
                byText<VexoPushButton>(page, QLatin1String(text))->click();
            QCoreApplication::sendPostedEvents(); // lays out
            shown += payloadOf(page, "Gateway") + QLatin1Char('|') + payloadOf(page, "Note");
        }
        const QString by_hand = "192.168.0.1|";
        const QString note = "Ring twice";
        const QString text = "Assigned by the network|";
        QCOMPARE(shown,
            (QStringList{
                by_hand + note, text + note, text, by_hand, by_hand + note, text + note }));
    }
    QCOMPARE(QApplication::allWidgets().size(), before); // nothing was left behind
}

QTEST_MAIN(TestLists)
#include "tst_lists.moc"
