// SPDX-License-Identifier: MIT
#include "support/testcase.h"

#include <StringUtil>

#include <cerrno>
#include <cstring>
#include <typeinfo>

using vexo::util::StringUtil;

using Function = std::string (*)(const std::string &);

Q_DECLARE_METATYPE(Function)

class TestStringUtil : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void formatsUpTo2047BytesAndNamesTheError();
    void findsPrefixes();
    void encodesAsTheToolkitDoes();
    void convertsOrRefuses_data();
    void convertsOrRefuses();
};

void TestStringUtil::formatsUpTo2047BytesAndNamesTheError()
{
    const std::string filler(2040, 'x');
    errno = 0;
    QCOMPARE(StringUtil::Format("%s%03d %%s", filler.c_str(), 7), filler + "007 %s");
    QCOMPARE(StringUtil::FormatError("%s1234567890", filler.c_str()), filler + "1234567");
    std::string (*const unchecked)(const char *, ...) = StringUtil::Format;
    QCOMPARE(unchecked(nullptr), std::string());
    errno = ENOENT;
    const std::string text = StringUtil::FormatError("open %s", "x");
    QCOMPARE(text, std::string("open x: ") + std::strerror(ENOENT));
}

void TestStringUtil::findsPrefixes()
{
    QVERIFY(StringUtil::StartsWith("hoxq.CVI", "hoxq.") && StringUtil::StartsWith("", ""));
    QVERIFY(!StringUtil::StartsWith("hoxq", "hoxq.") && !StringUtil::StartsWith("x", "X"));
    QVERIFY(!StringUtil::StartsWith("", nullptr));
    QCOMPARE(StringUtil::WHITESPACE, " \t\r\n");
}

// All values of a byte, in each place of a group, and groups of each length.
void TestStringUtil::encodesAsTheToolkitDoes()
{
    QByteArray text;
    for (int i = 0; i <= 770; ++i, text.append(char(i))) {
        const std::vector<unsigned char> bytes(text.begin(), text.end());
        QCOMPARE(StringUtil::ToHex(bytes), text.toHex().toStdString());
        QCOMPARE(StringUtil::ToBase64(bytes), text.toBase64().toStdString());
        QCOMPARE(StringUtil::FromHex(text.toHex().toUpper().toStdString()), bytes);
        QCOMPARE(StringUtil::FromBase64(text.toBase64().toStdString()), bytes);
    }
}

void TestStringUtil::convertsOrRefuses_data()
{
    QTest::addColumn<Function>("function");
    QTest::addColumn<QByteArray>("result");
    const auto rows = [](Function function, const QVector<QPair<QByteArray, QByteArray>> &list) {
        for (const auto &row : list)
            QTest::newRow(row.first) << function << row.second;
    };
    const QByteArray padding = "St13runtime_error: Invalid padding in base64!";
    const QByteArray character = "St13runtime_error: Invalid character in base64!";
    const QByteArray not_utf8 = "St11range_error: wstring_convert::from_bytes";
    rows([](const std::string &text) { return StringUtil::ToHex(StringUtil::FromHex(text)); },
        { { "00AB10ff", "00ab10ff" }, { " 1\t2+3-1", "010203ff" }, { "1g0x9\xff", "010009" },
            { "abc", "St16invalid_argument: Illegal count of charactes on input string!" },
            { "12g1", "St16invalid_argument: stoul" }, { "12  ", "St16invalid_argument: stoul" } });
    rows(
        [](const std::string &text) {
            const auto bytes = StringUtil::FromBase64(text);
            return std::string(bytes.begin(), bytes.end());
        },
        { { "", "" }, { "Zg==", "f" }, { "Zm8=", "fo" }, { "Zm9v", "foo" }, { "Zm9vYg==", "foob" },
            { "Zm9vYmE=", "fooba" }, { "Zm9vYmFy", "foobar" }, { "Zm9vZ/==", "foog" },
            { "Zm9vZg=!", "foof" }, { "Zg=", "St16invalid_argument: Invalid base64 length!" },
            { "Z===", padding }, { "Zg==Zm9v", padding }, { "Zm=!Zm9v", padding },
            { "Zm!=Zm9v", character }, { "Zm9vZm9\xff", character } });
    rows(
        [](const std::string &text) {
            return StringUtil::ToLower(text) + ' ' + StringUtil::ToUpper(text);
        },
        { { "Größe€Ж𐐀", "größe€ж𐐨 GRÖßE€Ж𐐀" }, { "a\xc3", not_utf8 },
            { "\xed\xa0\x80", not_utf8 } });
    rows(
        [](const std::string &text) {
            std::string pieces;
            for (const bool keeps_empty : { true, false }) {
                for (const std::string &piece : StringUtil::Split(text, "::", keeps_empty))
                    pieces += '[' + piece + ']';
            }
            return pieces;
        },
        { { "", "" }, { "ab", "[ab][ab]" }, { "a::::b:", "[a][][b:][a][b:]" },
            { "a::", "[a][][a]" }, { "::", "[][]" }, { ":::", "[][:][:]" } });
    rows([](const std::string &text) { return StringUtil::Split(text, "", true).front(); },
        { { "a b", "a b" } });
}

void TestStringUtil::convertsOrRefuses()
{
    QFETCH(Function, function);
    std::string result;
    try {
        result = function(QTest::currentDataTag());
    } catch (const std::exception &error) {
        result = typeid(error).name() + std::string(": ") + error.what();
    }
    QTEST(QByteArray::fromStdString(result), "result");
}

int main(int argc, char **argv)
{
    qputenv("LC_ALL", "C.UTF-8"); // the case of letters is that of the environment
    TestStringUtil test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_stringutil.moc"
