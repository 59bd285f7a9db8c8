// SPDX-License-Identifier: MIT
#include "gallery/pages/screenpage.h"

#include "gallery/widgets/measure.h"

#include <ScreenDoctor>

#include <QLabel>

using namespace vexo::hox::qt::panel;

ScreenPage::ScreenPage()
    : Page("Screen",
        "Lay a ruler on the panel. When bar and square are not as long as they say, the panel's "
        "size is told wrong, and each measure of each widget with it.")
{
    addSection("50 mm");
    addBlock(new Measure(QSizeF(50, 6), 5));
    addSection("10 x 10 mm");
    addBlock(new Measure(QSizeF(10, 10), 5));
    addSection("What the figures tell");
    const ScreenFacts facts = ScreenFacts::inUse();
    const auto findings = ScreenDoctor::findings(facts);
    addBlock(createText(facts.text() + '.', 7, QFont::Normal));
    for (const ScreenFinding &finding : findings)
        addBlock(createText(finding.text));
    addBlock(
        createText(findings.isEmpty() ? "Nothing looks wrong about it." : findings.first().cure));
}
