// SPDX-License-Identifier: MIT
#include "screen.h"

#include <PageStack>
#include <VexoIconButton>
#include <VexoVerticalScrollArea>
#include <VexoVerticalScrollContent>

#include <QLabel>
#include <QVBoxLayout>

using namespace vexo::hox::qt::panel;
using namespace vexo::hox::qt::ui;

Screen::Screen(PanelWindow *panel)
    : m_panel(panel)
    , m_column(new QVBoxLayout(this))
{
    m_column->setContentsMargins(0, 0, 0, 0);
    m_column->setSpacing(0);
    follow([this] { setGround(this, look().ground); });
}

QHBoxLayout *Screen::addHead(const Text &title)
{
    auto *head = new QWidget;
    head->setFixedHeight(mmY(12));
    auto *row = new QHBoxLayout(head);
    row->setContentsMargins(0, 0, mmX(3), 0);
    row->setSpacing(mmX(1));
    VexoIconButton *back = createIconButton();
    connect(back, &VexoIconButton::clicked, m_panel->stack(), &PageStack::back);
    QLabel *text = createText(13);
    row->addWidget(back);
    row->addWidget(text);
    row->addStretch(1);
    m_column->addWidget(head);
    m_column->addWidget(createLine());
    follow([=] {
        setGround(head, look().surface);
        dress(back, look(), "back");
        back->setAccessibleName(tr("Back"));
        text->setText(title());
        setWindowTitle(title()); // assistive technology reads it when the screen comes up
    });
    return row;
}

QWidget *Screen::createLine()
{
    auto *line = new QWidget;
    line->setFixedHeight(1);
    m_panel->follow(line, [=] { setGround(line, look().line); }); // a list may delete it
    return line;
}

QVBoxLayout *Screen::addList()
{
    auto *area = new VexoVerticalScrollArea;
    m_column->addWidget(area, 1); // first, so that its rows are styled only once
    auto *content = new VexoVerticalScrollContent;
    follow([=] { setGround(content, look().ground); });
    area->setWidget(content);
    return qobject_cast<QVBoxLayout *>(content->layout());
}
