// SPDX-License-Identifier: MIT
#include "panel/typist.h"
#include "support/panelscale.h"
#include "support/testcase.h"

#include <PanelTranslations>
#include <ScreenDoctor>
#include <Soak>
#include <UpdateMainWindow>
#include <VexoLineEdit>
#include <VexoNumericButton>
#include <VexoVerticalButtonScrollArea>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTranslator>
#include <QVBoxLayout>

using namespace vexo::hox::qt;
using panel::OnScreenKeyboard;
using panel::PanelTranslations;

namespace {

const QLocale german(QLocale::German);
const QLocale english(QLocale::English);

/// A screen with each class of the library that says something of its own.
class Screen : public QWidget
{
public:
    Screen()
    {
        auto *column = new QVBoxLayout(this);
        column->setSizeConstraint(QLayout::SetNoConstraint);
        for (QWidget *widget : std::initializer_list<QWidget *>{ field, number, jumps, keyboard })
            column->addWidget(widget);
        field->enableTrailingButtonAction();
        keyboard->setHasHideKey(true);
        resize(800, 800);
    }

    /// All names that assistive technology reads, keys with a text of their own left out.
    QStringList names() const
    {
        QStringList names;
        for (const auto *widget : findChildren<QWidget *>()) {
            if (!widget->accessibleName().isEmpty())
                names += widget->accessibleName();
        }
        names.sort();
        return names;
    }

    ui::VexoLineEdit *const field = new ui::VexoLineEdit;
    ui::VexoNumericButton *const number = new ui::VexoNumericButton;
    ui::VexoVerticalButtonScrollArea *const jumps = new ui::VexoVerticalButtonScrollArea;
    OnScreenKeyboard *const keyboard = new OnScreenKeyboard;
};

/// Counts what tells a widget that the language has changed.
class LanguageChanges : public QWidget
{
public:
    int count()
    {
        QCoreApplication::processEvents();
        return std::exchange(m_count, 0);
    }

protected:
    void changeEvent(QEvent *event) override
    {
        m_count += event->type() == QEvent::LanguageChange ? 1 : 0;
    }

private:
    int m_count = 0;
};

QWidget *child(const QWidget &parent, const char *name)
{
    return parent.findChild<QWidget *>(QLatin1String(name));
}

} // namespace

class TestPanelTranslations : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void localeChoosesTheLanguage_data();
    void localeChoosesTheLanguage();
    void screenFollows();
    void updateFollows();
    void keysMadeLaterAreNamed();
    void findingsAreTranslated();
    void whatTheApplicationHasSetStays();
    void tellsOnlyOfAChange();
    void translatorOfTheApplicationComesFirst();
    void otherFolderMayBeNamed();
    void changesLeaveNothingBehind();

private:
    const PanelScale m_scale{ 5, 6 };
};

void TestPanelTranslations::cleanup()
{
    qunsetenv("HOXQUI_TRANSLATIONS");
    PanelTranslations::setLocale(english);
    QCoreApplication::processEvents();
    TestCase::cleanup();
}

void TestPanelTranslations::localeChoosesTheLanguage_data()
{
    QTest::addColumn<QLocale>("locale");
    QTest::newRow("de") << german;
    QTest::newRow("de, of Austria") << QLocale(QLocale::German, QLocale::Austria);
    QTest::newRow("en") << english;
    QTest::newRow("en, of Canada") << QLocale(QLocale::English, QLocale::Canada);
    QTest::newRow("en, since there is none for Thai") << QLocale(QLocale::Thai);
    QTest::newRow("en, of a program") << QLocale::c();
}

void TestPanelTranslations::localeChoosesTheLanguage()
{
    QFETCH(QLocale, locale);
    for (const QLocale &before : { german, english }) {
        PanelTranslations::setLocale(before);
        PanelTranslations::setLocale(locale);
        QCOMPARE(PanelTranslations::language(), QString::fromLatin1(QTest::currentDataTag(), 2));
    }
}

void TestPanelTranslations::screenFollows()
{
    const QStringList in_english{ "Decrease", "Delete", "Delete", "Down", "Enter", "Hide keyboard",
        "Increase", "Keyboard", "Shift", "Space", "Up" };
    QStringList in_german{ "Eingabetaste", QString::fromUtf8("Erhöhen"),
        QString::fromUtf8("Löschen"), QString::fromUtf8("Löschtaste"), "Leertaste", "Nach oben",
        "Nach unten", "Tastatur", "Tastatur ausblenden", "Umschalttaste", "Verringern" };
    in_german.sort();
    Screen screen;
    screen.keyboard->setLanguages({ "de" });
    screen.show();
    QVERIFY(QTest::qWaitForWindowExposed(&screen));
    QCOMPARE(screen.names(), in_english);
    PanelTranslations::setLocale(german);
    QTRY_COMPARE(screen.names(), in_german);
    QCOMPARE(Screen().names(), in_german);
    PanelTranslations::setLocale(QLocale(QLocale::Thai));
    QTRY_COMPARE(screen.names(), in_english);
}

void TestPanelTranslations::updateFollows()
{
    PanelTranslations::setLocale(german);
    const ui::UpdateMainWindow window(nullptr, 100, 60);
    const auto *text = window.findChild<QLabel *>("VexoSubTextLabel");
    QCOMPARE(window.windowTitle(), QString("Hauptfenster"));
    QCOMPARE(text->text(), QString("Wird aktualisiert ..."));
    PanelTranslations::setLocale(english);
    QTRY_COMPARE(text->text(), QString("Updating ..."));
    QCOMPARE(window.windowTitle(), QString("MainWindow"));
}

void TestPanelTranslations::keysMadeLaterAreNamed()
{
    Screen screen;
    screen.show();
    PanelTranslations::setLocale(german);
    QCoreApplication::processEvents();
    screen.keyboard->setLanguages({ "de", "en" });
    QVERIFY(keyOf(*screen.keyboard, QString::fromUtf8("Nächste Sprache")));
}

void TestPanelTranslations::findingsAreTranslated()
{
    const panel::ScreenFacts facts{ "xcb", QSize(1280, 800), QSizeF(1280, 800) };
    const auto report
        = [&] { return panel::ScreenDoctor::report(panel::ScreenDoctor::findings(facts)); };
    QVERIFY(report().startsWith("1280 x 800 px on 1280 x 800 mm, 1 x 1 px/mm: the millimetres"));
    PanelTranslations::setLocale(german);
    QVERIFY2(report().startsWith("1280 x 800 px auf 1280 x 800 mm, 1 x 1 px/mm: Die Millimeter"),
        qPrintable(report()));
    QVERIFY(report().contains(QString::fromUtf8("Für ein Panel von 160 x 100 mm: DisplaySize")));
    QVERIFY(report().contains("; oder PanelOptions::mm"));
}

void TestPanelTranslations::whatTheApplicationHasSetStays()
{
    Screen screen;
    ui::UpdateMainWindow window(nullptr, 100, 60);
    window.setWindowTitle("Mine");
    screen.keyboard->setAccessibleName("Mine");
    for (const char *name : { "decreaseButton", "upButton", "trailingButton" })
        child(screen, name)->setAccessibleName("Mine");
    for (const QLocale &locale : { german, english, german }) {
        PanelTranslations::setLocale(locale);
        QCoreApplication::processEvents();
        QCOMPARE(window.windowTitle(), QString("Mine"));
        QCOMPARE(screen.names().count("Mine"), 4);
    }
    QCOMPARE(child(screen, "downButton")->accessibleName(), QString("Nach unten"));
    child(screen, "upButton")->setAccessibleName("Nach oben"); // given back
    PanelTranslations::setLocale(english);
    QTRY_COMPARE(child(screen, "upButton")->accessibleName(), QString("Up"));
}

void TestPanelTranslations::tellsOnlyOfAChange()
{
    LanguageChanges widget;
    PanelTranslations::setLocale(QLocale(QLocale::Thai));
    QCOMPARE(widget.count(), 0);
    PanelTranslations::setLocale(german);
    QCOMPARE(widget.count(), 1);
    PanelTranslations::setLocale(QLocale(QLocale::German, QLocale::Switzerland));
    QCOMPARE(widget.count(), 0);
    PanelTranslations::setLocale(english);
    QCOMPARE(widget.count(), 1);
}

void TestPanelTranslations::translatorOfTheApplicationComesFirst()
{
    class Own : public QTranslator
    {
    public:
        bool isEmpty() const override { return false; }
        QString translate(const char *, const char *text, const char *, int) const override
        {
            return qstrcmp(text, "Decrease") == 0 ? QString("Weniger") : QString();
        }
    };
    const ui::VexoNumericButton number;
    PanelTranslations::setLocale(german);
    Own own;
    QCoreApplication::installTranslator(&own);
    QTRY_COMPARE(child(number, "decreaseButton")->accessibleName(), QString("Weniger"));
    QTRY_COMPARE(child(number, "increaseButton")->accessibleName(), QString::fromUtf8("Erhöhen"));
}

/// With a language of its own; a catalogue that is none is passed over.
void TestPanelTranslations::otherFolderMayBeNamed()
{
    const QTemporaryDir folder;
    const QString thai = folder.filePath("hoxqui_th.qm");
    QVERIFY(QFile::copy(PanelTranslations::folder() + "/hoxqui_de.qm", thai));
    QFile broken(folder.filePath("hoxqui_fr.qm"));
    QVERIFY(broken.open(QIODevice::WriteOnly) && broken.write("<TS>") > 0);
    qputenv("HOXQUI_TRANSLATIONS", QFile::encodeName(folder.path()));
    QCOMPARE(PanelTranslations::folder(), folder.path());
    const ui::VexoNumericButton number;
    PanelTranslations::setLocale(QLocale(QLocale::Thai));
    QTRY_COMPARE(child(number, "decreaseButton")->accessibleName(), QString("Verringern"));
    PanelTranslations::setLocale(QLocale(QLocale::French));
    QTRY_COMPARE(child(number, "decreaseButton")->accessibleName(), QString("Decrease"));
    qputenv("HOXQUI_TRANSLATIONS", QFile::encodeName(folder.filePath("none")));
    PanelTranslations::setLocale(german);
    QCOMPARE(PanelTranslations::language(), QString("en"));
}

void TestPanelTranslations::changesLeaveNothingBehind()
{
    Screen screen;
    screen.show();
    const uitest::SoakResult result = uitest::soak(
        [] {
            for (const QLocale &locale : { german, english }) {
                PanelTranslations::setLocale(locale);
                QCoreApplication::processEvents();
            }
        },
        asked("HOXQ_LANGUAGE_CHANGES", 120) / 2);
    QVERIFY2(!result.isLeaking(), qPrintable(result.text()));
}

QTEST_MAIN(TestPanelTranslations)
#include "tst_paneltranslations.moc"
