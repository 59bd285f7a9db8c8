#include "support/testcase.h"
#include "ui/foundation/textblock_p.h"

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
            TextBlock block(option.wrapMode(), option.textDirection());
            for (int px : { 13, 13, 24 }) { // the second time everything is laid out
                const QImage expected = drawn(text, px, option);
                QCOMPARE(drawn(text, px, option, &block), expected);
                QCOMPARE(drawn(text, px, option, &block, { Qt::white, whole_image }), expected);
            }
        }
    }
}

QTEST_MAIN(TestTextBlock)
#include "tst_textblock.moc"
