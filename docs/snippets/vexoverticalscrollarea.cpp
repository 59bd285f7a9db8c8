// SPDX-License-Identifier: MIT
//! [page]
#include <VexoFunctionButton>
#include <VexoSlider>
#include <VexoVerticalScrollArea>
#include <VexoVerticalScrollContent>

#include <QLayout>

using namespace vexo::hox::qt::ui;

// A list that is flicked with a finger, also where the finger hits the groove of the slider.
VexoVerticalScrollArea *createList(QLayout *place, const QStringList &titles, VexoSlider *volume)
{
    auto *area = new VexoVerticalScrollArea;
    place->addWidget(area); // first, since a stylesheet is applied anew for another place
    auto *content = new VexoVerticalScrollContent;
    for (const QString &title : titles) {
        auto *row = new VexoFunctionButton(nullptr, VexoFunctionButton::ActionType);
        row->setText(title);
        content->layout()->addWidget(row);
    }
    content->layout()->addWidget(volume);
    area->setWidget(content);
    area->forwardSliderEvents(volume);
    return area;
}
//! [page]
