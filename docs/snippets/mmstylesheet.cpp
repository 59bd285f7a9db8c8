// SPDX-License-Identifier: MIT
//! [page]
#include <MmStylesheet>

#include <QApplication>
#include <QPalette>

using vexo::hox::qt::panel::MmStylesheet;

// Behind Panel::setUp(), and again with the other look. Own rules come last, here one for a label
// 12 mm high with a circle of 8 mm beside it.
void useLook(MmStylesheet::Look look, QObject *owner)
{
    QApplication::setPalette(MmStylesheet::palette(look));
    auto *sheet = new MmStylesheet(MmStylesheet::files(look), owner);
    sheet->addText("#title { min-height: 12mm; font-size: 12pt; padding: 0 3mm; }"
                   "#badge { width: 8mm; height: 8mm; border-radius: 4mm; background: #dc3c3c; }");
    sheet->set();
}
//! [page]
