// SPDX-License-Identifier: MIT
#include "panel/keyboardlayout_p.h"
#include "support/testcase.h"

#include <OnScreenKeyboard>

#include <QRandomGenerator>
#include <QTemporaryDir>
#include <QTest>

#include <stdexcept>

using namespace vexo::hox::qt::panel;

class TestKeyboardLayout : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void readsKeysWidthsAndVariants();
    void makesCapitals();
    void namesTheLine_data();
    void namesTheLine();
    void refusesFiles();
    void builtInOnesAreWhole_data();
    void builtInOnesAreWhole();
    void hostileTextsAreRefused();
};

namespace {

QString errorOf(const QByteArray &text)
{
    try {
        KeyboardLayout::fromText(text, QStringLiteral("x.txt"));
    } catch (const std::runtime_error &error) {
        return QString::fromUtf8(error.what());
    }
    return QString();
}

QString fileError(const QString &file)
{
    try {
        KeyboardLayout::languageFromFile(file);
    } catch (const std::runtime_error &error) {
        return QString::fromUtf8(error.what());
    }
    return QString();
}

const KeyboardKey &key(const KeyboardLayout &layout, const char *layer, int row, int index)
{
    static KeyboardRows rows;
    rows = layout.layers.value(QLatin1String(layer));
    return rows.at(std::size_t(row)).at(std::size_t(index));
}

const QByteArray head = "language de Deutsch\nlayer lower\n";

} // namespace

void TestKeyboardLayout::readsKeysWidthsAndVariants()
{
    const KeyboardLayout layout = KeyboardLayout::fromText(
        "# a comment\r\n" + head + "row a:äá*1.5 * *:× **2 { } : {space}* x*2\n",
        QStringLiteral("x.txt"));
    QCOMPARE(layout.code, QStringLiteral("de"));
    QCOMPARE(layout.name, QStringLiteral("Deutsch"));
    QCOMPARE(key(layout, "lower", 0, 0).variants, QString::fromUtf8("ä á").split(QLatin1Char(' ')));
    QCOMPARE(key(layout, "lower", 0, 0).width, 1.5);
    QCOMPARE(key(layout, "lower", 0, 1).text, QStringLiteral("*"));
    QVERIFY(!key(layout, "lower", 0, 1).fills);
    QCOMPARE(key(layout, "lower", 0, 2).variants, QStringList(QString::fromUtf8("×")));
    QCOMPARE(key(layout, "lower", 0, 3).width, 2.0);
    QVERIFY(key(layout, "lower", 0, 7).fills);
    QCOMPARE(key(layout, "lower", 0, 4).text, QStringLiteral("{"));
    QCOMPARE(key(layout, "lower", 0, 6).text, QStringLiteral(":"));
}

void TestKeyboardLayout::makesCapitals()
{
    const KeyboardLayout german
        = KeyboardLayout::fromText(head + "row ß:ſ a:äŉ 1 {shift}\n", QStringLiteral("x.txt"));
    QCOMPARE(key(german, "upper", 0, 0).text, QString::fromUtf8("ẞ"));
    QCOMPARE(key(german, "upper", 0, 1).variants.constFirst(), QString::fromUtf8("Ä"));
    QCOMPARE(key(german, "upper", 0, 1).variants.constLast(), QString::fromUtf8("ŉ"));
    QCOMPARE(key(german, "upper", 0, 2).text, QStringLiteral("1"));
    const KeyboardLayout turkish = KeyboardLayout::fromText(
        "language tr Türkçe\nlayer lower\nrow i ı\n", QStringLiteral("x.txt"));
    QCOMPARE(key(turkish, "upper", 0, 0).text, QString::fromUtf8("İ"));
    QCOMPARE(key(turkish, "upper", 0, 1).text, QStringLiteral("I"));
}

void TestKeyboardLayout::namesTheLine_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QString>("error");
    const auto row = [](const char *name, const QByteArray &text, const char *error) {
        QTest::newRow(name) << text << QString::fromUtf8(error);
    };
    row("unknown word", head + "rwo a\n", "x.txt:3: \"rwo\" is none of language, letters");
    row("row first", "row a\n", "x.txt:1: a row before the first layer");
    row("unknown layer", "\nlayer middle\n", "x.txt:2: a layer is one of");
    row("layer twice", head + "row a\nlayer lower\n", "x.txt:4: a second layer lower");
    row("no code", "language Deutsch\n", "x.txt:1: expected a code and a name");
    row("unknown key", head + "row {shfit}\n", "x.txt:3: there is no key {shfit}");
    row("open brace", head + "row {shift\n", "x.txt:3: there is no key {shift");
    row("two letters", head + "row ab\n", "x.txt:3: expected a blank after the key");
    row("no variants", head + "row a:\n", "x.txt:3: expected a blank after the key");
    row("shift with variants", head + "row {shift}:a\n", "x.txt:3: expected a blank");
    row("no width", head + "row a*0\n", "x.txt:3: a key is 0.5 to 20 wide");
    row("a wide row", head + "row a*15 b*15\n", "x.txt:3: a row wider than 20 letters");
    row("filled twice", head + "row a* b*\n", "x.txt:3: two keys that fill the row");
    row("no keys", head + "row\n", "x.txt:3: a row without keys");
    row("seven rows", head + QByteArray("row a\n").repeated(7), "x.txt:9: more than 6 rows");
    row("13 variants", head + "row a:bcdefghijklmn\n", "x.txt:3: more than 12 variants");
    row("marks", head + "row a" + QByteArray("\xcc\x81").repeated(9), "x.txt:3: a letter with too");
    row("no UTF-8", head + "row \xff\n", "x.txt:3: this is no UTF-8");
    row("cut UTF-8", head + "row \xc3", "x.txt:3: this is no UTF-8");
    row("a NUL", head + QByteArray("row a\0b\n", 8), "x.txt:3: a character that cannot be shown");
    row("empty", "", "x.txt:1: there is no layer lower");
    row("an empty layer", head, "x.txt:3: the layer lower has no row");
}

void TestKeyboardLayout::namesTheLine()
{
    QFETCH(QByteArray, text);
    QFETCH(QString, error);
    const QString said = errorOf(text);
    QVERIFY2(said.startsWith(error), qPrintable(said));
}

void TestKeyboardLayout::refusesFiles()
{
    const QTemporaryDir folder;
    const QString file = folder.filePath(QStringLiteral("x.txt"));
    QCOMPARE(fileError(file), file + QStringLiteral(": there is no such file"));
    QCOMPARE(
        fileError(QStringLiteral("/dev/zero")), QStringLiteral("/dev/zero: there is no such file"));
    QFile written(file);
    QVERIFY(written.open(QIODevice::WriteOnly));
    written.write("layer lower\nrow a\n");
    written.flush();
    QVERIFY(fileError(file).contains(QStringLiteral("\"language CODE NAME\" is missing")));
    written.write(QByteArray(70000, '#'));
    written.flush();
    QCOMPARE(fileError(file), file + QStringLiteral(": more than 65536 bytes"));
}

void TestKeyboardLayout::builtInOnesAreWhole_data()
{
    QTest::addColumn<QString>("letters");
    QTest::newRow("de") << QString::fromUtf8("abcdefghijklmnopqrstuvwxyzäöüß");
    QTest::newRow("en") << QString::fromUtf8("abcdefghijklmnopqrstuvwxyz");
    QTest::newRow("fr") << QString::fromUtf8("abcdefghijklmnopqrstuvwxyzàâæçéèêëîïôœùûüÿ");
    QTest::newRow("es") << QString::fromUtf8("abcdefghijklmnopqrstuvwxyzñáéíóúü");
    QTest::newRow("it") << QString::fromUtf8("abcdefghijklmnopqrstuvwxyzàèéìòù");
    QTest::newRow("pl") << QString::fromUtf8("abcdefghijklmnopqrstuvwxyząćęłńóśźż");
    QTest::newRow("cs") << QString::fromUtf8("abcdefghijklmnopqrstuvwxyzáčďéěíňóřšťúůýž");
    QTest::newRow("el") << QString::fromUtf8("αβγδεζηθικλμνξοπρσςτυφχψωάέήίόύώϊϋΐΰ");
    QTest::newRow("ru") << QString::fromUtf8("абвгдеёжзийклмнопрстуфхцчшщъыьэюя");
    QTest::newRow("symbols") << QString::fromUtf8("0123456789@#€&%-+=()*/\"':;!?.");
    QTest::newRow("pin") << QStringLiteral("0123456789");
    QTest::newRow("digits") << QStringLiteral("0123456789-+,.");
    QTest::newRow("phone") << QStringLiteral("0123456789*#+-()/,");
}

// Each letter of the language can be typed, and one can write on and take back from each layer.
void TestKeyboardLayout::builtInOnesAreWhole()
{
    QFETCH(QString, letters);
    const QString name = QString::fromLatin1(QTest::currentDataTag());
    const KeyboardLayout &layout = KeyboardLayout::builtIn(name);
    QCOMPARE(OnScreenKeyboard::builtInLanguages().contains(name), !layout.code.isEmpty());
    QString typed;
    for (const KeyboardRows &rows : layout.layers) {
        int functions = 0;
        for (const KeyboardRow &row : rows) {
            for (const KeyboardKey &each : row) {
                typed += each.text + each.variants.join(QString());
                functions |= 1 << each.function;
            }
        }
        QVERIFY(functions & (1 << KeyboardKey::Delete));
        QVERIFY(functions & (1 << KeyboardKey::Enter));
    }
    for (const QChar letter : letters)
        QVERIFY2(typed.contains(letter), qPrintable(QString(letter)));
}

void TestKeyboardLayout::hostileTextsAreRefused()
{
    QVERIFY(errorOf(head + "row " + QByteArray(60000, 'a')).size() < 200);
    QVERIFY(errorOf(head + "row a:" + QByteArray(60000, 'b')).size() < 200);
    QVERIFY(errorOf(head + "row " + QByteArray("a ").repeated(30000)).size() < 200);
    QVERIFY(errorOf(QByteArray(60000, '\n')).size() < 200);
    QRandomGenerator random(1);
    const QByteArray whole = head + "row a:äá*1.5 {shift} {space}* .\nlayer symbols\nrow 1 2\n";
    for (int i = 0; i < 20000; ++i) {
        QByteArray text = whole;
        for (int changes = random.bounded(4); changes >= 0; --changes)
            text[random.bounded(text.size())] = char(random.bounded(256));
        const QString said = errorOf(text);
        QVERIFY(said.isEmpty() || said.startsWith(QStringLiteral("x.txt:")));
    }
}

QTEST_MAIN(TestKeyboardLayout)
#include "tst_keyboardlayout.moc"
