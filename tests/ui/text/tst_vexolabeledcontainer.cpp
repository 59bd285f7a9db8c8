// SPDX-License-Identifier: MIT
#include "support/panelscale.h"
#include "support/testcase.h"

#include <VexoLabeledContainer>
#include <VexoLineEdit>
#include <VexoSlider>
#include <VexoSliderDecoration>

#include <QPushButton>

using namespace vexo::hox::qt::ui;

namespace {

const QString caption = "Name";

const QLabel *captionOf(const VexoLabeledContainer &container)
{
    return container.findChild<QLabel *>("vexoLabeledContainerLabel");
}

void lay(VexoLabeledContainer *container)
{
    container->resize(800, container->height());
    container->layout()->activate();
}

} // namespace

class TestVexoLabeledContainer : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void isMeasuredInMillimetres();
    void suitsItsPayload_data();
    void suitsItsPayload();
    void wrapsALabel();
    void swapsAndRemoves();
    void namesItsPayload();
};

void TestVexoLabeledContainer::isMeasuredInMillimetres()
{
    const PanelScale scale(10, 20);
    auto *payload = new QWidget;
    payload->setFixedHeight(50);
    VexoLabeledContainer container(nullptr, payload);
    container.setLabelText(caption);
    lay(&container);
    const QLabel *label = captionOf(container);
    QCOMPARE(container.height(), 396);
    QCOMPARE(label->font().pixelSize(), 63); // 9 pt = 63.5 px
    QCOMPARE(label->font().weight(), 57);
    QCOMPARE(label->x(), 30);
    QCOMPARE(payload->x(), 30);
    QCOMPARE(payload->width(), 740);
    QVERIFY(label->y() >= 60 && payload->y() >= label->geometry().bottom());
    const int top = label->y();
    container.setTopMarginMm(4);
    container.setBottomMarginMm(1);
    container.setLeftMarginMm(5);
    container.setRightMarginMm(6);
    container.setMmHeight(22.84); // 456.8 px
    lay(&container);
    QCOMPARE(container.height(), 456);
    QVERIFY(label->y() > top);
    QCOMPARE(payload->x(), 50);
    QCOMPARE(payload->width(), 690);
}

void TestVexoLabeledContainer::suitsItsPayload_data()
{
    QTest::addColumn<int>("style"); // of a slider; -1 for a line edit
    QTest::addColumn<int>("height");
    QTest::newRow("level") << int(VexoSliderDecoration::HorizontalWithoutScale) << 198;
    QTest::newRow("level with scale") << int(VexoSliderDecoration::HorizontalWithScale) << 250;
    QTest::newRow("upright") << int(VexoSliderDecoration::VerticalWithoutScale) << 198;
    QTest::newRow("upright with scale") << int(VexoSliderDecoration::VerticalWithScale) << 250;
    QTest::newRow("line edit") << -1 << 198;
}

void TestVexoLabeledContainer::suitsItsPayload()
{
    using Decoration = VexoSliderDecoration;
    QFETCH(int, style);
    const PanelScale scale(10, 10);
    auto *field = style < 0 ? new VexoLineEdit : nullptr;
    QWidget *payload = field;
    if (!payload)
        payload = new Decoration(nullptr, Decoration::SliderDecorationStyle(style));
    const VexoLabeledContainer container(nullptr, payload);
    QTEST(container.height(), "height");
    QVERIFY(!field || field->mmMargin() == QSizeF(0, 0));
    QCOMPARE(payload->sizePolicy().horizontalPolicy(), QSizePolicy::Ignored);
    QCOMPARE(payload->sizePolicy().verticalPolicy(), QSizePolicy::Fixed);
}

void TestVexoLabeledContainer::wrapsALabel()
{
    const PanelScale scale(10, 10);
    auto *text = new QLabel("Installed");
    VexoLabeledContainer container(nullptr, text);
    QVERIFY(text->wordWrap());
    QCOMPARE(text->font().pixelSize(), 31);
    QCOMPARE(text->font().weight(), int(QFont::Light));
    QCOMPARE(captionOf(container)->font().weight(), 57);
    container.setPtFontSize(12); // of the caption, which turns light with it
    QCOMPARE(captionOf(container)->font().weight(), int(QFont::Light));
    QCOMPARE(captionOf(container)->font().pixelSize(), 42);
}

void TestVexoLabeledContainer::swapsAndRemoves()
{
    const auto first = std::make_unique<QLabel>(caption);
    const auto second = std::make_unique<QPushButton>(caption);
    QWidget window;
    VexoLabeledContainer container(&window, first.get());
    window.show();
    container.swapWidget(first.get(), second.get());
    QVERIFY(!first->parent() && first->isHidden());
    QTRY_VERIFY(second->isVisible());
    QVERIFY(second->y() > captionOf(container)->y());
    QCOMPARE(container.layout()->count(), 6);
    container.removeWidget();
    container.removeWidget();
    QVERIFY(!second->parent() && second->isHidden());
    container.swapWidget(nullptr, nullptr);
    container.setWidget(nullptr);
    QCOMPARE(container.layout()->count(), 5);
    auto *wrapped = new QLabel("a text that does not fit on one line of the window");
    container.resize(200, 300);
    container.swapWidget(nullptr, wrapped);
    QTRY_VERIFY(wrapped->height() >= wrapped->heightForWidth(wrapped->width()));
    QVERIFY(wrapped->height() > 2 * QFontMetrics(wrapped->font()).height());
    delete container.layout()->itemAt(5)->widget();
    container.removeWidget(); // nothing is left to remove
    QCOMPARE(container.layout()->count(), 5);
}

void TestVexoLabeledContainer::namesItsPayload()
{
    VexoLineEdit first;
    QPushButton button("Save");
    VexoLabeledContainer container;
    container.setLabelText(caption);
    container.swapWidget(nullptr, &first);
    QCOMPARE(first.accessibleName(), caption);
    container.setLabelText("Street");
    QCOMPARE(first.accessibleName(), "Street");
    container.swapWidget(&first, &button);
    QCOMPARE(first.accessibleName() + button.accessibleName(), QString());
    container.removeWidget();
}

QTEST_MAIN(TestVexoLabeledContainer)
#include "tst_vexolabeledcontainer.moc"
