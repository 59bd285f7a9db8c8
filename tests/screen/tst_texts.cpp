#include "support/propertywalk.h"
#include "support/testcase.h"
#include "ui/buttons/vexofunctionbutton.h"
#include "ui/sliders/vexosliderdecoration.h"
#include "ui/text/vexolabel.h"

#include <QImage>
#include <QLabel>
#include <QTemporaryDir>
#include <QTest>

using namespace vexo::hox::qt::ui;

class TestTexts : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void markupOpensNoFile_data();
    void markupOpensNoFile();
    void applicationMayAskForMarkup();

private:
    QTemporaryDir m_folder;
    QString m_markup; // names an image that is larger than each of its labels
};

void TestTexts::initTestCase()
{
    TestCase::initTestCase();
    QVERIFY(m_folder.isValid());
    const QString file = m_folder.filePath(QStringLiteral("large.png"));
    QImage image(900, 800, QImage::Format_RGB32);
    image.fill(Qt::red);
    QVERIFY(image.save(file));
    m_markup = QStringLiteral("Anna <img src='%1'>").arg(file);
}

void TestTexts::markupOpensNoFile_data()
{
    QTest::addColumn<int>("index");
    const auto &classes = walkedClasses();
    for (size_t i = 0; i < classes.size(); ++i)
        QTest::newRow(classes[i].name) << int(i);
}

// Also of the parts that an application finds by their names.
void TestTexts::markupOpensNoFile()
{
    QFETCH(int, index);
    QWidget window;
    QWidget *widget = walkedClasses()[size_t(index)].make(&window);
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

QTEST_MAIN(TestTexts)
#include "tst_texts.moc"
