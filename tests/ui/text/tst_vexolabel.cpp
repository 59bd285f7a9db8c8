// SPDX-License-Identifier: MIT
#include "support/panelscale.h"
#include "support/testcase.h"

#include <FontLoader>
#include <VexoLabel>

#include <QAccessible>

using namespace vexo::hox::qt::ui;

class TestVexoLabel : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void isAsThePainterDrawsIt_data();
    void isAsThePainterDrawsIt();
    void measuresArePhysical();
};

void TestVexoLabel::isAsThePainterDrawsIt_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("alignment");
    const QString words = "one two three four five six seven";
    const QString hebrew = QString::fromUtf8(
        "\u05d0\u05d1\u05d2 \u05d3\u05d4\u05d5 \u05d6\u05d7\u05d8 \u05d9\u05db\u05dc");
    QTest::newRow("right, bottom") << "Text" << int(Qt::AlignRight | Qt::AlignBottom);
    QTest::newRow("wrapped") << words << int(Qt::AlignCenter);
    QTest::newRow("line breaks, markup") << "a\nb <b>c</b> &amp; d" << int(Qt::AlignLeft);
    QTest::newRow("right to left") << hebrew << int(Qt::AlignJustify);
    QTest::newRow("pairs") << QString::fromUtf8("A\U0001f600").repeated(20) << int(Qt::AlignTop);
    QTest::newRow("10,000 characters") << words.repeated(310) << int(Qt::AlignCenter);
}

void TestVexoLabel::isAsThePainterDrawsIt()
{
    QFETCH(QString, text);
    QFETCH(int, alignment);
    const PanelScale scale(8, 10);
    FontLoader();
    QTextOption option; // finds the direction in the text
    option.setAlignment(Qt::Alignment(alignment));
    VexoLabel label("before");
    label.setMmHeight(8.6);
    label.resize(151, 86);
    label.grab(); // nothing of this look may outlive the changes
    label.setPtFontSize(10);
    label.setTextColor(Qt::red);
    label.setBackgroundColor(Qt::green);
    label.setText(text);
    label.setTextAlignment(Qt::Alignment(alignment));
    QImage expected(151, 86, QImage::Format_RGB32);
    expected.fill(Qt::green);
    QPainter painter(&expected);
    QFont font;
    font.setPixelSize(35); // 10 pt
    font.setWeight(QFont::Medium);
    painter.setFont(font);
    painter.setPen(Qt::red);
    painter.drawText(QRectF(expected.rect()), text, option);
    painter.end();
    QCOMPARE(label.grab().toImage().convertToFormat(QImage::Format_RGB32), expected);
    QCOMPARE(QAccessible::queryAccessibleInterface(&label)->text(QAccessible::Name), text);
}

void TestVexoLabel::measuresArePhysical()
{
    const PanelScale scale(10, 20);
    VexoLabel label;
    QCOMPARE(label.minimumHeight(), 100);
    QCOMPARE(label.maximumHeight(), 100);
    QCOMPARE(label.font().pixelSize(), 49);
    label.setMmIndent(2.09);
    QCOMPARE(label.indent(), 20);
    QCOMPARE(label.mmIndent(), double(20.9F / 10.0F));
}

QTEST_MAIN(TestVexoLabel)
#include "tst_vexolabel.moc"
