// SPDX-License-Identifier: MIT
#include "support/testcase.h"
#include "ui/painting/textblock_p.h"

#include <FontLoader>

#include <QImage>
#include <QPainter>
#include <QTest>

using namespace vexo::hox::qt::ui;

class TestTextBlock : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void looksAsDrawTextDoes_data();
    void looksAsDrawTextDoes();
    void cutsNoLetter_data();
    void cutsNoLetter();
    void runsAsItsTextOrAsItIsTold();
};

namespace {

const QRect whole_image(0, 0, 220, 150);
const QRectF areas[] = { { 10, 10, 200, 40 }, { 3.5, 52.25, 150.5, 61 }, { 5, 115, 90, 30 } };

QImage drawn(const QString &text, int px, const QTextOption &option, TextBlock *block = nullptr,
    const TextBlock::Ground &ground = {})
{
    QImage image(whole_image.size(), QImage::Format_RGB32);
    image.fill(Qt::white);
    QFont font;
    font.setPixelSize(px);
    QPainter painter(&image);
    painter.setFont(font);
    for (const QRectF &area : areas) {
        if (block)
            block->draw(&painter, area, text, option.alignment(), ground);
        else
            painter.drawText(area, text, option);
    }
    return image;
}

} // namespace

void TestTextBlock::looksAsDrawTextDoes_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("short") << "Language";
    QTest::newRow("longer than a line") << QStringLiteral("Donaudampfschifffahrt zum Kapitän");
    QTest::newRow("kerning, ligatures, outer spaces") << "  ffi fl AVAWA To. ";
    QTest::newRow("control characters") << "two\nlines\r and\ta tab\n\n";
    QTest::newRow("right to left") << QStringLiteral("اللغة العربية في الشاشة");
    QTest::newRow("Chinese") << QStringLiteral("语言 设置 中文 文本 很长 的 一 行");
    QTest::newRow("combining, surrogates") << QStringLiteral("e\u0301a \U0001F600");
    QTest::newRow("one word without an end") << QString(3000, 'x');
}

void TestTextBlock::looksAsDrawTextDoes()
{
    const FontLoader fonts;
    QFETCH(QString, text);
    const QVector<Qt::Alignment> alignments{ Qt::AlignCenter, Qt::AlignLeft | Qt::AlignVCenter,
        Qt::AlignRight | Qt::AlignTop, Qt::AlignJustify | Qt::AlignBottom, Qt::Alignment() };
    for (const Qt::Alignment alignment : alignments) {
        QTextOption plain(alignment);
        QTextOption unwrapped(alignment);
        unwrapped.setWrapMode(QTextOption::NoWrap);
        QTextOption turning(alignment);
        turning.setTextDirection(Qt::LayoutDirectionAuto);
        for (const QTextOption &option : { plain, unwrapped, turning }) {
            TextBlock block(option.wrapMode());
            block.setDirection(option.textDirection());
            for (int px : { 13, 13, 24 }) { // the second time everything is laid out
                const QImage expected = drawn(text, px, option);
                QCOMPARE(drawn(text, px, option, &block), expected);
                QCOMPARE(drawn(text, px, option, &block, { Qt::white, whole_image }), expected);
            }
        }
    }
}

void TestTextBlock::cutsNoLetter_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<double>("pt"); // 0: in px
    QTest::addColumn<int>("px");
    for (const int px : { 20, 45, 60, 90 })
        QTest::addRow("stacked accents of %d px", px)
            << QStringLiteral("\u1EA8\u1EBE\u1EB0") << 0.0 << px;
    QTest::newRow("overhang, in px") << "jf" << 0.0 << 60;
    QTest::newRow("overhang, in pt") << "jf" << 45.0 << 0;
    QTest::newRow("marks below") << QStringLiteral("\u1E71\u1E3D\u0328\u0323") << 30.0 << 0;
}

// Of what is kept together with its ground.
void TestTextBlock::cutsNoLetter()
{
    QFETCH(QString, text);
    QFETCH(double, pt);
    QFETCH(int, px);
    QFont font(FontLoader::loadFont(":/fonts/UniversNextW1G-Bold.otf"));
    if (pt > 0)
        font.setPointSizeF(pt);
    else
        font.setPixelSize(px);
    for (const bool is_italic : { false, true }) {
        font.setItalic(is_italic);
        QImage images[2] = { QImage(500, 400, QImage::Format_RGB32), QImage() };
        images[0].fill(Qt::white);
        images[1] = images[0];
        const TextBlock::Ground grounds[] = { {}, { Qt::white, QRectF(images[0].rect()) } };
        for (int i = 0; i < 2; ++i) {
            QPainter painter(&images[i]);
            painter.setFont(font);
            TextBlock().draw(&painter, images[i].rect(), text, Qt::AlignCenter, grounds[i]);
        }
        QVERIFY(images[0] == images[1]);
    }
}

void TestTextBlock::runsAsItsTextOrAsItIsTold()
{
    const QString brackets = QStringLiteral("(1) a");
    TextBlock block(QTextOption::NoWrap);
    QTextOption option(Qt::AlignLeft);
    option.setWrapMode(QTextOption::NoWrap);
    for (const auto direction : { Qt::LayoutDirectionAuto, Qt::RightToLeft, Qt::LeftToRight }) {
        option.setTextDirection(direction);
        block.setDirection(direction);
        QVERIFY(drawn(brackets, 20, option, &block) == drawn(brackets, 20, option));
    }
}

QTEST_MAIN(TestTextBlock)
#include "tst_textblock.moc"
