// SPDX-License-Identifier: MIT
#include "support/propertywalk.h"
#include "support/testcase.h"
#include "ui/buttons/vexofunctionbutton.h"
#include "ui/buttons/vexohorizontaltexticonbutton.h"
#include "ui/input/vexolineedit.h"
#include "ui/sliders/vexosliderdecoration.h"
#include "ui/text/vexolabel.h"

#include <QBuffer>
#include <QImage>
#include <QPdfWriter>
#include <QTemporaryDir>

using namespace vexo::hox::qt::ui;

namespace {

using Picture = std::function<QImage(const QString &text)>;

QImage grabbed(QWidget *widget)
{
    widget->setLayoutDirection(Qt::LeftToRight);
    widget->resize(300, widget->height());
    return widget->grab().toImage();
}

QImage field(const QString &text)
{
    VexoLineEdit field;
    field.setText(text);
    return grabbed(&field);
}

QImage leftText(const QString &text)
{
    VexoHorizontalTextIconButton row;
    row.setLeftSideText(text);
    return grabbed(&row);
}

QImage rightText(const QString &text)
{
    VexoHorizontalTextIconButton row;
    row.setRightSideText(text);
    return grabbed(&row);
}

} // namespace

Q_DECLARE_METATYPE(Picture)

class TestTexts : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void markupOpensNoFile_data() { addWalkedClasses(); }
    void markupOpensNoFile();
    void applicationMayAskForMarkup();
    void tooLongTextKeepsItsBeginning_data();
    void tooLongTextKeepsItsBeginning();
    void directionIsThatOfTheText_data() { tooLongTextKeepsItsBeginning_data(); }
    void directionIsThatOfTheText();
    void textsStayTextsInAPdf();

private:
    QTemporaryDir m_folder;
    QString m_markup; // names an image that is larger than each of its labels
};

void TestTexts::initTestCase()
{
    TestCase::initTestCase();
    QVERIFY(m_folder.isValid());
    const QString file = m_folder.filePath("large.png");
    QImage image(900, 800, QImage::Format_RGB32);
    image.fill(Qt::red);
    QVERIFY(image.save(file));
    m_markup = QString("Anna <img src='%1'>").arg(file);
}

// Also of the parts that an application finds by their names.
void TestTexts::markupOpensNoFile()
{
    QFETCH(const WalkedClass *, walked);
    QWidget window;
    QWidget *widget = walked->make(&window);
    if (auto *row = qobject_cast<VexoFunctionButton *>(widget))
        row->setButtonType(VexoFunctionButton::ActionType);
    if (auto *decoration = qobject_cast<VexoSliderDecoration *>(widget))
        decoration->setSliderUnit(m_markup);
    for (auto *label : window.findChildren<QLabel *>()) {
        label->setText(m_markup);
        QVERIFY2(label->QLabel::sizeHint().height() < 800, qPrintable(label->objectName()));
    }
}

void TestTexts::applicationMayAskForMarkup()
{
    VexoFunctionButton row;
    row.getLabelInstance()->setTextFormat(Qt::RichText);
    row.setText(m_markup);
    QVERIFY(row.getLabelInstance()->sizeHint().height() >= 800);
}

void TestTexts::tooLongTextKeepsItsBeginning_data()
{
    QTest::addColumn<Picture>("picture");
    QTest::newRow("line edit") << Picture(field);
    QTest::newRow("left text of a row") << Picture(leftText);
    QTest::newRow("right text of a row") << Picture(rightText);
}

void TestTexts::tooLongTextKeepsItsBeginning()
{
    QFETCH(Picture, picture);
    const QPair<QChar, QChar> from_the_left('i', 'm'); // a thin and a wide letter
    const QPair<QChar, QChar> from_the_right(0x5d5, 0x5e9);
    for (const auto &letters : { from_the_left, from_the_right }) {
        const QString text(200, letters.first);
        const QString other_beginning = letters.second + text.mid(1);
        const QString other_end = text.left(199) + letters.second;
        QVERIFY(picture(text) != picture(other_beginning));
        QVERIFY(picture(text) == picture(other_end));
    }
}

// Whatever the direction of the application is, also where that changes later.
void TestTexts::directionIsThatOfTheText()
{
    QFETCH(Picture, picture);
    const QString text = "(1) a.";
    const QImage expected = picture(text);
    QApplication::setLayoutDirection(Qt::RightToLeft);
    const QImage later = picture(text);
    QApplication::setLayoutDirection(Qt::LeftToRight);
    QVERIFY(later == expected);
    QVERIFY(picture(QChar(0x200f) + text) != expected);
}

// On a screen they are copied from pictures of them.
void TestTexts::textsStayTextsInAPdf()
{
    VexoFunctionButton row;
    row.setText("Night mode");
    VexoLabel label;
    label.setText("Brightness");
    for (QWidget *widget : QWidgetList{ &row, &label }) {
        widget->resize(400, 80);
        widget->grab();
        QBuffer pdf;
        QVERIFY(pdf.open(QIODevice::WriteOnly));
        {
            QPdfWriter writer(&pdf);
            QPainter painter(&writer);
            widget->render(&painter);
        }
        QVERIFY2(pdf.data().contains("/BaseFont"), widget->metaObject()->className());
    }
}

QTEST_MAIN(TestTexts)
#include "tst_texts.moc"
