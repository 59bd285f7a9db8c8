// SPDX-License-Identifier: MIT
#include "panel/screendoctor.h"

#include <ScalingInfo>

#include <QCoreApplication>
#include <QGuiApplication>
#include <QScreen>
#include <QStringList>

#include <cmath>

namespace vexo::hox::qt::panel {

namespace {

struct Words
{
    Q_DECLARE_TR_FUNCTIONS(ScreenDoctor)
};

const double mm_per_inch = 25.4;

double densityX(const ScreenFacts &facts)
{
    return facts.px.width() / facts.mm.width();
}

double densityY(const ScreenFacts &facts)
{
    return facts.px.height() / facts.mm.height();
}

QString figures(double across, double up)
{
    return QStringLiteral("%1 x %2").arg(across, 0, 'g', 3).arg(up, 0, 'g', 3);
}

bool isDensityOf(const ScreenFacts &facts, double dpi)
{
    const double rounding_mm = 0.51; // some platforms tell whole millimetres
    const QSizeF mm = QSizeF(facts.px) * (mm_per_inch / dpi);
    return std::abs(mm.width() - facts.mm.width()) < rounding_mm
        && std::abs(mm.height() - facts.mm.height()) < rounding_mm;
}

bool isUneven(double ratio)
{
    return std::abs(ratio - 1) > 0.05;
}

bool isUnlikely(double px_per_mm)
{
    return !(px_per_mm >= 2 && px_per_mm <= 25);
}

bool isOne(double px_per_mm)
{
    return px_per_mm > 0.9 && px_per_mm < 1.1;
}

QString platformsCure(const QString &platform)
{
    if (platform == QLatin1String("eglfs"))
        return Words::tr(
            "QT_QPA_EGLFS_PHYSICAL_WIDTH=160 and QT_QPA_EGLFS_PHYSICAL_HEIGHT=100 in the "
            "environment (pixels: QT_QPA_EGLFS_WIDTH and QT_QPA_EGLFS_HEIGHT), or physicalWidth "
            "and physicalHeight in the file that QT_QPA_EGLFS_KMS_CONFIG names");
    if (platform == QLatin1String("linuxfb"))
        return Words::tr("QT_QPA_PLATFORM=linuxfb:mmsize=160x100 in the environment (pixels: "
                         "linuxfb:size=1280x800:mmsize=160x100)");
    if (platform.startsWith(QLatin1String("wayland")))
        return Words::tr("the size of the output in the set-up of the compositor, which no "
                         "variable of the application changes");
    if (platform == QLatin1String("xcb"))
        return Words::tr("DisplaySize 160 100 in the section Monitor of xorg.conf (a server "
                         "without one: its option -dpi)");
    return QString();
}

QString cureOn(const QString &platform)
{
    const QString cure = platformsCure(platform);
    const QString call = Words::tr("PanelOptions::mm = QSizeF(160, 100) for Panel::setUp() in "
                                   "the application (pixels: PanelOptions::px)");
    const QString way = cure.isEmpty() ? call : Words::tr("%1; or %2").arg(cure, call);
    return Words::tr("For a panel of 160 x 100 mm: %1.").arg(way);
}

ScreenFinding withoutSize(const ScreenFacts &facts)
{
    const QString what = facts.px.isEmpty()
        ? Words::tr("There is no screen, or it tells no size in pixels.")
        : Words::tr("The screen tells no size in millimetres.");
    return { ScreenFinding::NoSize, what, cureOn(facts.platform) };
}

QString invented(const ScreenFacts &facts)
{
    for (const int dpi : { 100, 96 }) {
        if (isDensityOf(facts, dpi))
            return Words::tr("%1 are exactly %2 dpi in both directions: that is made up where "
                             "the size is not known.")
                .arg(facts.text())
                .arg(dpi);
    }
    return QString();
}

QString uneven(const ScreenFacts &facts)
{
    const double ratio = densityX(facts) / densityY(facts);
    if (!isUneven(ratio))
        return QString();
    const double turned = densityX({ {}, facts.px, facts.mm.transposed() })
        / densityY({ {}, facts.px, facts.mm.transposed() });
    const QString text = isUneven(turned)
        ? Words::tr("%1: a pixel is %2 times as high as wide.")
        : Words::tr("%1: a pixel is %2 times as high as wide; width and height in mm look "
                    "swapped.");
    return text.arg(facts.text()).arg(ratio, 0, 'g', 3);
}

} // namespace

ScreenFacts ScreenFacts::of(const QScreen *screen)
{
    if (!screen)
        return { QGuiApplication::platformName(), QSize(), QSizeF() };
    return { QGuiApplication::platformName(), screen->size(), screen->physicalSize() };
}

ScreenFacts ScreenFacts::inUse()
{
    const auto &scaling = ui::ScalingInfo::instance;
    if (scaling)
        return { QGuiApplication::platformName(), scaling->m_pixels, scaling->m_size_mm };
    return of(QGuiApplication::primaryScreen());
}

QString ScreenFacts::text() const
{
    QString text = Words::tr("%1 x %2 px on %3 x %4 mm")
                       .arg(px.width())
                       .arg(px.height())
                       .arg(mm.width())
                       .arg(mm.height());
    if (!px.isEmpty() && !mm.isEmpty())
        text += QStringLiteral(", %1 px/mm").arg(figures(densityX(*this), densityY(*this)));
    return text;
}

QVector<ScreenFinding> ScreenDoctor::findings()
{
    return findings(ScreenFacts::inUse());
}

QVector<ScreenFinding> ScreenDoctor::findings(const ScreenFacts &facts)
{
    const bool has_mm = facts.mm.width() > 0 && facts.mm.height() > 0; // NaN is none
    if (facts.px.isEmpty() || !has_mm)
        return { withoutSize(facts) };
    QVector<ScreenFinding> found;
    const auto add = [&](ScreenFinding::Fault fault, const QString &text) {
        if (!text.isEmpty())
            found += { fault, text, cureOn(facts.platform) };
    };
    add(ScreenFinding::InventedSize, invented(facts));
    const double across = densityX(facts);
    const double up = densityY(facts);
    if (isOne(across) || isOne(up))
        add(ScreenFinding::PixelsAsMillimetres,
            Words::tr("%1: the millimetres look like pixels.").arg(facts.text()));
    else if (isUnlikely(across) || isUnlikely(up))
        add(ScreenFinding::UnlikelyDensity,
            Words::tr("%1: panels have 2 to 25 px/mm.").arg(facts.text()));
    add(ScreenFinding::UnevenPixels, uneven(facts));
    return found;
}

QString ScreenDoctor::report(const QVector<ScreenFinding> &findings)
{
    QStringList lines;
    QStringList cures;
    for (const ScreenFinding &finding : findings) {
        lines += finding.text;
        if (!cures.contains(finding.cure))
            cures += finding.cure;
    }
    lines += cures;
    return lines.isEmpty() ? QString() : lines.join(QLatin1Char('\n')) + QLatin1Char('\n');
}

} // namespace vexo::hox::qt::panel
