// SPDX-License-Identifier: MIT
#include "panel/panel.h"

#include "panel/mmstylesheet.h"
#include "panel/paneltranslations.h"
#include "panel/screendoctor.h"

#include <BounceFilter>
#include <FontLoader>
#include <ScalingInfo>
#include <TapDistance>

#include <QApplication>
#include <QPalette>
#include <QPointer>
#include <QScreen>

#include <algorithm>
#include <memory>

namespace vexo::hox::qt::panel {

using ui::ScalingInfo;

namespace {

// Sizes that an application has given itself are its own affair. A size that is made up may be
// right, and is told by each screen without a panel.
void warnOfScreen(const QScreen *screen)
{
    const ScalingInfo &scaling = *ScalingInfo::inst();
    if (!screen || scaling.m_pixels != screen->size()
        || scaling.m_size_mm != screen->physicalSize())
        return;
    QVector<ScreenFinding> findings = ScreenDoctor::findings();
    const auto end = std::remove_if(findings.begin(), findings.end(),
        [](const ScreenFinding &finding) { return finding.fault == ScreenFinding::InventedSize; });
    findings.erase(end, findings.end());
    if (!findings.isEmpty())
        qWarning("HoxqUi: %s", qPrintable(ScreenDoctor::report(findings).simplified()));
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

void setUpSheets(QApplication *application, const QStringList &files)
{
    static QPointer<MmStylesheet> shown;
    if (files.isEmpty())
        return;
    delete shown.data();
    shown = new MmStylesheet(files, application);
    shown->set();
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
        application.setPalette(MmStylesheet::palette(MmStylesheet::Day));
    if (options.use_fonts)
        ui::FontLoader();
    setUpSheets(&application, options.sheets);
    if (options.use_translations)
        PanelTranslations::setLocale();
    ui::TapDistance::setMm(options.tap_mm);
    ui::BounceFilter::install();
}

} // namespace vexo::hox::qt::panel
