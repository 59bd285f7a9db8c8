// SPDX-License-Identifier: MIT
//! [page]
#include <ScalingInfo>
#include <VexoLineSpacer>

#include <QHBoxLayout>

using namespace vexo::hox::qt::ui;

// An engraved line between two columns, 0.3 mm dark beside 0.2 mm light.
void addSeparator(QHBoxLayout *columns)
{
    auto *line = new VexoLineSpacer;
    line->setDarkLineThickness(0.3);
    line->setFixedWidth(int(ScalingInfo::inst()->mm2px_X(0.5F)));
    columns->addWidget(line);
}
//! [page]
