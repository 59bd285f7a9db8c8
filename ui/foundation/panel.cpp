// SPDX-License-Identifier: MIT
#include "ui/foundation/panel.h"

#include "ui/foundation/fontloader.h"
#include "ui/foundation/mmsheet_p.h"
#include "ui/foundation/scalecheck_p.h"
#include "ui/foundation/vexocolors.h"
#include "ui/foundation/vexostylesheet.h"
#include "ui/touch/tapdistance.h"

#include <QApplication>
#include <QPalette>
#include <QScreen>

namespace vexo::hox::qt::ui {

namespace {

// Sizes that an application has given itself are its own affair.
void warnOfScreen(const QScreen *screen)
{
    const ScalingInfo &scaling = *ScalingInfo::inst();
    const bool is_screens = screen && scaling.m_pixels == screen->size()
        && scaling.m_size_mm == screen->physicalSize();
    const QString fault = is_screens ? scaleFault(scaling) : QString();
    if (!fault.isEmpty())
        qWarning("HoxqUi: the screen tells %s; if that is wrong, give the panel's size in "
                 "PanelOptions or to the platform",
            qPrintable(fault));
}

// Throws before anything is changed.
void setUpScale(const PanelOptions &options)
{
    const QScreen *screen = QGuiApplication::primaryScreen();
    if (!options.px && !options.mm) {
        warnOfScreen(screen);
        return;
    }
    const ScalingInfo given(options.px.value_or(screen ? screen->size() : QSize()),
        options.mm.value_or(screen ? screen->physicalSize() : QSizeF()));
    if (ScalingInfo::instance)
        *ScalingInfo::instance = given; // widgets keep its address
    else
        ScalingInfo::instance = std::make_unique<ScalingInfo>(given);
}

void setUpSheets(const PanelOptions &options)
{
    VexoStylesheet sheet(options.sheets, false);
    if (options.use_mm_sheet)
        sheet.addText(mmSheetText(*ScalingInfo::inst()));
    if (options.use_mm_sheet || !options.sheets.isEmpty())
        sheet.set();
}

} // namespace

void Panel::setUp(QApplication &application, const PanelOptions &options)
{
    setUpScale(options);
    if (application.devicePixelRatio() > 1)
        QApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
    if (options.use_style)
        application.setStyle(QStringLiteral("fusion")); // brings a palette of its own
    if (options.use_palette)
        application.setPalette(palette());
    if (options.use_fonts)
        FontLoader();
    setUpSheets(options);
    TapDistance::setMm(options.tap_mm);
}

QPalette Panel::palette()
{
    QPalette palette(VexoColors::C1, VexoColors::C0);
    for (const auto role : { QPalette::WindowText, QPalette::Text, QPalette::ButtonText }) {
        palette.setColor(role, VexoColors::C3);
        palette.setColor(QPalette::Disabled, role, VexoColors::C6);
    }
    palette.setColor(QPalette::Highlight, VexoColors::C4);
    palette.setColor(QPalette::HighlightedText, VexoColors::C0);
    return palette;
}

QString Panel::mmSheet()
{
    return mmSheetText(*ScalingInfo::inst());
}

} // namespace vexo::hox::qt::ui
