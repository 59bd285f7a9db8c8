// SPDX-License-Identifier: MIT
#include "support/panelscale.h"
#include "support/testcase.h"

#include <MmStylesheet>
#include <ScalingInfo>

#include <QAbstractItemView>
#include <QApplication>
#include <QComboBox>
#include <QListWidget>
#include <QPainter>
#include <QSlider>
#include <QSpinBox>
#include <QStyledItemDelegate>
#include <QTemporaryDir>
#include <QTest>

using namespace vexo::hox::qt::panel;
using namespace vexo::hox::qt::ui;

namespace {

QString inPixels(const char *rules)
{
    MmStylesheet sheet;
    sheet.addText(QString::fromUtf8(rules));
    return sheet.inPixels().simplified();
}

QImage picture(QWidget *widget)
{
    QImage image(widget->size(), QImage::Format_RGB32);
    image.fill(Qt::white);
    widget->render(&image, QPoint(), QRegion(), QWidget::DrawChildren);
    return image;
}

} // namespace

class TestMmStylesheet : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void lengthsAreConverted_data();
    void lengthsAreConverted();
    void faultIsNamedWithItsLine_data();
    void faultIsNamedWithItsLine();
    void faultyFileAddsNothing();
    void onlyWhatShowsIsKept();
    void shownSheetFollowsTheScale();
    void anotherSheetIsLeftAlone();
    void readySheetFitsEachDensity_data();
    void readySheetFitsEachDensity();
    void readySliderIsRoundAndFilledFromItsMinimum_data();
    void readySliderIsRoundAndFilledFromItsMinimum();
};

void TestMmStylesheet::cleanup()
{
    qApp->setStyleSheet(QString());
    TestCase::cleanup();
}

void TestMmStylesheet::lengthsAreConverted_data()
{
    QTest::addColumn<QByteArray>("rule");
    QTest::addColumn<QByteArray>("px"); // on a panel of 10 x 20 px/mm
    const auto row = [](const QByteArray &declarations, const QByteArray &px) {
        QTest::newRow(declarations) << "A { " + declarations + " }"
                                    << "A { " + px + " }";
    };
    row("width: 2mm; height: 2mm;", "width: 20px; height: 40px;");
    row("min-width: 1.99mm; max-height:.51mm", "min-width: 19px; max-height: 10px;");
    row("margin: 1mm;", "margin: 20px 10px;");
    row("padding: 1mm 2mm 3mm 4mm;", "padding: 20px 20px 60px 40px;");
    row("margin: -1mm 0;", "margin: -20px 0;");
    row("padding-left: 1mm; margin-top: 1mm;", "padding-left: 10px; margin-top: 20px;");
    row("border-left: 1mm solid red;", "border-left: 10px solid red;");
    row("border-bottom-width: 1mm;", "border-bottom-width: 20px;");
    row("border: 0.2mm solid red;", "border: 4px solid red; border-width: 4px 2px;");
    row("border: 1px solid red;", "border: 1px solid red;");
    row("border-radius: 1mm; border-top-left-radius: 2mm 1mm;",
        "border-radius: 10px 20px; border-top-left-radius: 20px 20px;");
    row("font-size: 7.2pt; font: bold 7.2pt \"Inter\";",
        "font-size: 50px; font: bold 50px \"Inter\";");
    row("width: 7.2pt;", "width: 25px;");
    row("width: 0.001mm; height: 0mm;", "width: 1px; height: 0px;");
    row("width: 99999999mm;", "width: 32767px;");
    row("width: 12px; font-size: 120%; margin: 2em;", "width: 12px; font-size: 120%; margin: 2em;");
    row("width: calc(6.4mm - 0.41mm - 3px + 1mm);", "width: 67px;");
    row("qproperty-iconSize: 3mm 3mm; qproperty-minimumSectionSize: 3mm; qproperty-flat: 1;",
        "qproperty-iconSize: 30px 60px; qproperty-minimumSectionSize: 60px; qproperty-flat: 1;");
    row("image: url(3mm.svg); qproperty-text: \"3mm; } 4mm\";",
        "image: url(3mm.svg); qproperty-text: \"3mm; } 4mm\";");
    row("background: qlineargradient(x1:0, y1: 0.5, stop:0 #3a3a3a);",
        "background: qlineargradient(x1:0, y1: 0.5, stop:0 #3a3a3a);");
    row("/* 3mm } */ color: red /* ; */; ;", "color: red;");
    row("/*a*//*b*/ color: rgb(1, /* ) */2,\n3) /*c*//*d*/;", "color: rgb(1, 2, 3);");
    // A radius beyond half of what is sure would be drawn as a square.
    row("width: 3mm; height: 3mm; border-radius: 2mm;",
        "width: 30px; height: 60px; border-radius: 15px 30px;");
    row("border-radius: 9mm; border: 0.2mm solid red; height: 3mm; padding: 1mm 2mm;",
        "border: 4px solid red; border-width: 4px 2px; height: 60px; padding: 20px 20px; "
        "border-radius: 90px 54px;");
}

void TestMmStylesheet::lengthsAreConverted()
{
    QFETCH(QByteArray, rule);
    QFETCH(QByteArray, px);
    const PanelScale scale(10, 20);
    QCOMPARE(inPixels(rule), QString::fromLatin1(px));
}

void TestMmStylesheet::faultIsNamedWithItsLine_data()
{
    QTest::addColumn<QByteArray>("rules");
    QTest::addColumn<QByteArray>("fault");
    const auto row = [](const QByteArray &rules, const QByteArray &fault) {
        QTest::newRow(fault) << rules << fault;
    };
    row("A {\n width: 2cm; }", "2: unknown unit 'cm' in '2cm'; there is mm, pt, px, em, ex and %");
    row("A {\n\n width: 2 mm; }", "3: 'mm' stands apart from its number");
    row("A { width: 1.2.3mm }", "1: '1.2.3mm' is no number");
    row("A { width: calc(1mm * 2); }",
        "1: 'calc(1mm * 2)' is no sum of lengths in mm, pt or px, as calc(6mm - 1px) is");
    row("A { width: calc(1mm +); }",
        "1: 'calc(1mm +)' is no sum of lengths in mm, pt or px, as calc(6mm - 1px) is");
    row("A {}\n}", "2: a } without its {");
    row("A { color: red }\nB {\n color: red;\n", "2: the rule of 'B' has no }");
    row("A {\n color: red;\nB::c { }", "3: a { inside the rule of 'A'");
    row("{ color: red }", "1: a { without a selector");
    row("\n\nA", "3: 'A' has no { and belongs to no rule");
    row("A {\n color red;\n}", "2: 'color red' has no value");
    row("A { color:; }", "1: 'color' has no value");
    row("A { qproperty-text: \"a\n b\"; }", "1: a quotation that does not end on its line");
    row("A { image: url(a;\n }", "1: a url( that does not end on its line");
    row("A { color: rgb(1, 2; }", "1: a ( without its )");
    row("A { color: red); }", "1: a ) without its (");
    row("/* A {\n", "1: a comment without its */");
    row("@import url(a.qs);", "1: '@import url(a.qs)' has no { and belongs to no rule");
    row("@media print { }", "1: '@media print': rules with @ are not known");
    row("A { color: \\", "1: the rule of 'A' has no }");
    row("A { color: 'a\\", "1: a quotation that does not end on its line");
    const QByteArray selectors = "A" + QByteArray(", A").repeated(200);
    row(selectors + " { color: red }", "1: too many selectors and declarations for the toolkit");
    row("A" + QByteArray("\\2c A").repeated(200) + " { color: red }",
        "1: too many selectors and declarations for the toolkit");
}

void TestMmStylesheet::faultIsNamedWithItsLine()
{
    QFETCH(QByteArray, rules);
    QFETCH(QByteArray, fault);
    const Messages messages;
    MmStylesheet sheet;
    QVERIFY(sheet.addText(QStringLiteral("Good { color: red }")));
    QVERIFY(!sheet.addText(QString::fromLatin1(rules), QStringLiteral("own.qs")));
    QCOMPARE(sheet.faults(), QStringList(QStringLiteral("own.qs:") + QString::fromLatin1(fault)));
    QCOMPARE(messages.lines(),
        QStringList(QStringLiteral("warning default: HoxqUi: ") + sheet.faults().constFirst()));
    QCOMPARE(sheet.inPixels().simplified(), QStringLiteral("Good { color: red; }"));
}

void TestMmStylesheet::faultyFileAddsNothing()
{
    const QTemporaryDir dir;
    const QString name = dir.filePath(QStringLiteral("own.qs"));
    QFile file(name);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write("A { width: 1mm }\nB { width: 1furlong }");
    file.close();
    const Messages messages;
    const MmStylesheet sheet(
        { name, dir.path(), QStringLiteral("none.qs"), QStringLiteral("/dev/zero") });
    QCOMPARE(sheet.faults().size(), 4);
    QVERIFY(sheet.faults().constFirst().startsWith(name + QStringLiteral(":2: ")));
    QCOMPARE(sheet.inPixels(), QString());
}

void TestMmStylesheet::onlyWhatShowsIsKept()
{
    MmStylesheet sheet;
    sheet.addText(QStringLiteral("A { image: url(a); color: red } B { color: red } C { }"));
    sheet.addText(QStringLiteral("D { color: red ! important } A:on { color: red }"));
    sheet.addText(QStringLiteral("A { color: blue } B { color: blue } C { color: blue }"));
    sheet.addText(QStringLiteral("D { color: blue } A { color: black }"));
    QCOMPARE(sheet.inPixels().simplified(),
        QStringLiteral("A { image: url(a); } C { } D { color: red ! important; } "
                       "A:on { color: red; } B { color: blue; } C { color: blue; } "
                       "D { color: blue; } A { color: black; }"));
}

void TestMmStylesheet::shownSheetFollowsTheScale()
{
    MmStylesheet sheet;
    sheet.addText(QStringLiteral("A { width: 2mm }"));
    {
        const PanelScale scale(10, 20);
        sheet.set();
        QVERIFY(qApp->styleSheet().contains(QStringLiteral("width: 20px")));
    }
    const PanelScale scale(7, 20);
    QTRY_VERIFY(qApp->styleSheet().contains(QStringLiteral("width: 14px")));
}

void TestMmStylesheet::anotherSheetIsLeftAlone()
{
    const QString another = QStringLiteral("B { width: 1px }");
    MmStylesheet sheet;
    sheet.addText(QStringLiteral("A { width: 2mm }"));
    sheet.set();
    qApp->setStyleSheet(another);
    const PanelScale scale(10, 20);
    QCoreApplication::processEvents();
    QCOMPARE(qApp->styleSheet(), another);
}

void TestMmStylesheet::readySheetFitsEachDensity_data()
{
    QTest::addColumn<double>("px_per_mm_x");
    QTest::addColumn<double>("px_per_mm_y");
    for (const double density : { 4.0, 5.3, 7.3, 8.0, 12.5, 20.0 })
        QTest::addRow("%g px/mm", density) << density << density;
    QTest::newRow("uneven") << 10.0 << 12.0;
}

void TestMmStylesheet::readySheetFitsEachDensity()
{
    QFETCH(double, px_per_mm_x);
    QFETCH(double, px_per_mm_y);
    const PanelScale scale(px_per_mm_x, px_per_mm_y);
    QWidget window;
    const QString sheet = MmStylesheet(MmStylesheet::files(MmStylesheet::Night)).inPixels();
    QComboBox box(&window);
    box.setItemDelegate(new QStyledItemDelegate(&box));
    box.addItem(QStringLiteral("a"));
    QSpinBox number(&window);
    QListWidget list(&window);
    list.addItem(QStringLiteral("a"));
    window.setStyleSheet(sheet);
    window.resize(400, 400);
    window.show();
    const auto mmHigh = [&](int px) { return px / px_per_mm_y; };
    const auto isAbout = [](double mm, double expected) { return qAbs(mm - expected) <= 0.6; };
    QVERIFY(isAbout(mmHigh(box.sizeHint().height()), 9.6));
    QVERIFY(isAbout(mmHigh(number.sizeHint().height()), 9.6));
    QVERIFY(isAbout(mmHigh(list.visualItemRect(list.item(0)).height()), 9.8));
    QVERIFY(isAbout(mmHigh(box.view()->sizeHintForRow(0)), 9.8));
}

void TestMmStylesheet::readySliderIsRoundAndFilledFromItsMinimum_data()
{
    readySheetFitsEachDensity_data();
}

void TestMmStylesheet::readySliderIsRoundAndFilledFromItsMinimum()
{
    QFETCH(double, px_per_mm_x);
    QFETCH(double, px_per_mm_y);
    const PanelScale scale(px_per_mm_x, px_per_mm_y);
    const QColor filled(0xb4, 0xc8, 0x00);
    const QColor empty(0xc8, 0xc8, 0xc8);
    const QString sheet = MmStylesheet(MmStylesheet::files(MmStylesheet::Day)).inPixels();
    for (const auto orientation : { Qt::Horizontal, Qt::Vertical }) {
        const bool is_level = orientation == Qt::Horizontal;
        QSlider slider(orientation);
        slider.setValue(50);
        slider.setStyleSheet(sheet);
        slider.resize(
            int((is_level ? 60 : 6.5) * px_per_mm_x), int((is_level ? 6.5 : 60) * px_per_mm_y));
        const QImage image = picture(&slider);
        const QPoint middle = image.rect().center();
        const auto at = [&](double along_mm, double across_mm) {
            const QPointF mm
                = is_level ? QPointF(along_mm, across_mm) : QPointF(across_mm, -along_mm);
            return image.pixelColor(
                middle + QPoint(qRound(mm.x() * px_per_mm_x), qRound(mm.y() * px_per_mm_y)));
        };
        QCOMPARE(at(-20, 0), filled);
        QCOMPARE(at(20, 0), empty);
        QCOMPARE(at(0, 0), QColor(Qt::white)); // the handle
        QCOMPARE(at(2.7, 2.7), QColor(Qt::white)); // beside it, if it is round
    }
}

QTEST_MAIN(TestMmStylesheet)
#include "tst_mmstylesheet.moc"
