// SPDX-License-Identifier: MIT
#include "designer/dress.h"

#include <ActiveButton>
#include <CachedVectorIcon>
#include <PageStack>
#include <RowList>
#include <ScaleDisplayWidget>
#include <ScalingInfo>
#include <VexoColors>
#include <VexoFunctionButton>
#include <VexoHorizontalTextIconButton>
#include <VexoImageHeadline>
#include <VexoLabeledContainer>
#include <VexoLineEdit>
#include <VexoPushButton>
#include <VexoSlider>
#include <VexoSliderDecoration>
#include <VexoTextEnumeration>
#include <VexoVerticalScrollArea>
#include <VexoVerticalScrollContent>
#include <VideoCapturePanning>

#include <QFile>
#include <QLabel>
#include <QPainter>
#include <QPalette>
#include <QPushButton>
#include <QStandardItemModel>

using namespace vexo::hox::qt::panel;
using namespace vexo::hox::qt::ui;

namespace {

void addIcon(QWidget *button, const char *file)
{
    auto *active = static_cast<ActiveButton *>(button);
    active->setIconSize(QSize(80, 80));
    active->addIcon(QStringLiteral("DEFAULT"), QString::fromLatin1(file));
}

void addRow(QWidget *content, bool is_dark)
{
    auto *row = new VexoFunctionButton;
    row->setButtonType(VexoFunctionButton::FullsizeRadiobuttonType);
    row->setText(QStringLiteral("ab"));
    row->setChecked(is_dark);
    static_cast<VexoVerticalScrollContent *>(content)->addFromForm(row);
}

// A hill under the sun.
QPixmap picture(int px)
{
    QPixmap pixmap(px, px);
    pixmap.fill(QColor(0x78, 0xa8, 0xe0));
    QPainter painter(&pixmap);
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(0xff, 0xd8, 0x40));
    painter.drawEllipse(QPointF(px * 0.7, px * 0.3), px * 0.16, px * 0.16);
    painter.setBrush(QColor(0x40, 0x78, 0x38));
    painter.drawEllipse(QPointF(px * 0.3, px * 1.1), px * 0.8, px * 0.55);
    return pixmap;
}

void setGround(QWidget *widget, const QBrush &brush)
{
    QPalette palette;
    palette.setBrush(QPalette::Window, brush);
    widget->parentWidget()->setPalette(palette);
}

} // namespace

void dressAsItem(QWidget *enumeration)
{
    static_cast<VexoTextEnumeration *>(enumeration)->setText(QStringLiteral("ab cd ef"), 1);
}

void dressInLargeLetters(QWidget *bar)
{
    QFont font;
    font.setPixelSize(48);
    const auto buttons = bar->findChildren<QPushButton *>();
    for (QPushButton *button : buttons)
        button->setFont(font);
}

void dressInSheet(QWidget *widget)
{
    QFile sheet(QStringLiteral(":/css/vexo-AAL.qs"));
    if (sheet.open(QFile::ReadOnly))
        widget->setStyleSheet(QString::fromUtf8(sheet.readAll()));
}

void dressOnDarkGround(QWidget *widget)
{
    setGround(widget, VexoColors::C3);
}

void dressOnPicture(QWidget *widget)
{
    setGround(widget, picture(widget->parentWidget()->width()));
}

void dressTightly(QWidget *push_button)
{
    static_cast<VexoPushButton *>(push_button)->setMmMargin(QSizeF(0.3, 1.0));
}

void dressWidely(QWidget *widget)
{
    widget->setMinimumWidth(int(ScalingInfo::inst()->mm2px_X(58)));
}

void dressWithArrow(QWidget *row)
{
    CachedVectorIcon arrow(
        QStringLiteral(":/widgetimages/VexoIconGeneralArrowListRight_44px_C0.svg"), QSizeF(4, 4));
    row->setProperty("default_image", arrow.toPixmap());
}

void dressWithField(QWidget *container)
{
    auto *field = new VexoLineEdit;
    field->setBorderColor(VexoColors::C4);
    field->setMmPenLine(0.5);
    static_cast<VexoLabeledContainer *>(container)->addFromForm(field);
}

void dressWithInfo(QWidget *headline)
{
    static_cast<VexoImageHeadline *>(headline)->setSvgImage(
        QStringLiteral(":/VexoIconGeneralInfoSvg"), QSizeF(0, 8));
}

void dressWithList(QWidget *area)
{
    auto *content = new VexoVerticalScrollContent;
    for (const bool is_dark : { false, true, false })
        addRow(content, is_dark);
    static_cast<VexoVerticalScrollArea *>(area)->setWidget(content);
}

void dressWithMenu(QWidget *button)
{
    addIcon(button, ":/generalmenuSvg");
}

void dressWithModel(QWidget *list)
{
    auto *model = new QStandardItemModel(list);
    for (const char *text : { "ab", "cd", "ef", "gh" })
        model->appendRow(new QStandardItem(QLatin1String(text)));
    static_cast<RowList *>(list)->setModel(model);
}

void dressWithPicture(QWidget *panning)
{
    setGround(panning, Qt::black);
    const int px = panning->parentWidget()->width();
    auto *view = new QLabel(panning);
    view->setPixmap(picture(2 * px).copy(px / 2, px / 2, px, px * 2 / 3));
    view->setGeometry(px / 8, px / 5, px * 3 / 4, px * 3 / 5);
}

// The way back on a page.
void dressWithPages(QWidget *stack)
{
    auto *pages = static_cast<PageStack *>(stack);
    pages->addPage(QStringLiteral("a"), [] {
        auto *page = new QLabel;
        page->setPalette(VexoColors::C0);
        page->setAutoFillBackground(true);
        CachedVectorIcon back(QStringLiteral(":/arrowListLeftSvg"), QSizeF(0, 14));
        page->setPixmap(back.toPixmap());
        page->setAlignment(Qt::AlignCenter);
        return page;
    });
    pages->open(QStringLiteral("a"));
}

void dressWithPlus(QWidget *button)
{
    addIcon(button, ":/VexoIconGeneralPlusSvg");
}

void dressWithReset(QWidget *button)
{
    addIcon(button, ":/VexoIconGeneralReset");
}

void dressWithRows(QWidget *content)
{
    addRow(content, false);
    addRow(content, true);
}

void dressWithSlider(QWidget *decoration)
{
    auto *slider = new VexoSlider(Qt::Horizontal);
    slider->setMaximum(100);
    slider->setValue(15);
    dressInSheet(slider);
    auto *decorated = static_cast<VexoSliderDecoration *>(decoration);
    decorated->addFromForm(slider);
    decorated->setScaleText({ QStringLiteral("0"), QStringLiteral("1"), QStringLiteral("2"),
        QStringLiteral("3"), QStringLiteral("4"), QStringLiteral("5") });
    decoration->findChild<ScaleDisplayWidget *>()->setTextColor(VexoColors::C3);
}

void dressWithTick(QWidget *button)
{
    addIcon(button, ":/VexoIconGeneralTickSvg");
}
