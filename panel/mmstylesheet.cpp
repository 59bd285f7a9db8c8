// SPDX-License-Identifier: MIT
#include "panel/mmstylesheet.h"

#include "panel/mmrule_p.h"
#include "panel/paneloptions.h"

#include <ScalingInfo>
#include <VexoColors>
#include <VexoStylesheet>

#include <QAbstractEventDispatcher>
#include <QApplication>
#include <QFile>
#include <QFileInfo>
#include <QPalette>

namespace vexo::hox::qt::panel {

using ui::ScalingInfo;
using ui::VexoColors;

namespace {

const int most_bytes = 1 << 17;

QPalette paletteOf(const QColor &ground, const QColor &base, const QColor &ink, const QColor &off)
{
    QPalette palette(base, ground);
    palette.setColor(QPalette::Base, base);
    for (const auto role : { QPalette::WindowText, QPalette::Text, QPalette::ButtonText }) {
        palette.setColor(role, ink);
        palette.setColor(QPalette::Disabled, role, off);
    }
    return palette;
}

} // namespace

MmStylesheet::MmStylesheet(const QStringList &files, QObject *parent)
    : QObject(parent)
{
    for (const QString &name : files)
        addFile(name);
    // Emitted in each round of the event loop; no timer has to wake an idle panel.
    if (auto *loop = QAbstractEventDispatcher::instance())
        connect(loop, &QAbstractEventDispatcher::awake, this, &MmStylesheet::followScale);
}

MmStylesheet::~MmStylesheet() = default;

QStringList MmStylesheet::files(Look look)
{
    QStringList names = PanelOptions().sheets;
    names += QStringLiteral(":/sheets/panel.qs");
    if (look == Night)
        names += QStringLiteral(":/sheets/night.qs");
    return names;
}

QPalette MmStylesheet::palette(Look look)
{
    if (look == Night) {
        const QColor ground = VexoColors::C3.darker(200);
        QPalette night
            = paletteOf(ground, VexoColors::C3.darker(150), VexoColors::C1, VexoColors::C5);
        night.setColor(QPalette::Highlight, VexoColors::C1);
        night.setColor(QPalette::HighlightedText, ground);
        return night;
    }
    QPalette day = paletteOf(VexoColors::C0, VexoColors::C1, VexoColors::C3, VexoColors::C6);
    day.setColor(QPalette::Highlight, VexoColors::C4);
    day.setColor(QPalette::HighlightedText, VexoColors::C0);
    return day;
}

bool MmStylesheet::addFile(const QString &name)
{
    QFile file(name);
    const QFileInfo info(file);
    if (!info.exists())
        return refuse(QStringLiteral("%1: does not exist").arg(name));
    // A pipe would block and a device never end.
    if (!info.isFile() || info.size() > most_bytes || !file.open(QIODevice::ReadOnly))
        return refuse(QStringLiteral("%1: cannot be read, or has more than %2 bytes")
                          .arg(name)
                          .arg(most_bytes));
    return addText(QString::fromUtf8(file.read(most_bytes)), name);
}

bool MmStylesheet::addText(const QString &rules, const QString &name)
{
    const MmSheetReader reader(rules);
    if (!reader.fault().isEmpty())
        return refuse(name + QLatin1Char(':') + reader.fault());
    const QVector<SheetRule> rules_read = reader.rules();
    for (const SheetRule &rule : rules_read)
        append(rule);
    return true;
}

void MmStylesheet::append(const SheetRule &rule)
{
    const auto former = m_places.constFind(rule.selector);
    if (former != m_places.constEnd())
        dropReplaced(&m_rules[*former], rule);
    m_places.insert(rule.selector, m_rules.size());
    m_rules.push_back(rule);
}

bool MmStylesheet::refuse(const QString &fault)
{
    m_faults += fault;
    qWarning("HoxqUi: %s", qPrintable(fault));
    return false;
}

QString MmStylesheet::inPixels() const
{
    const ScalingInfo &scaling = *ScalingInfo::inst();
    QString text;
    for (const SheetRule &rule : m_rules)
        printInPixels(rule, scaling, &text);
    return text;
}

void MmStylesheet::set()
{
    m_shown = inPixels();
    m_px_per_mm_x = ScalingInfo::inst()->m_px_per_mm_x;
    m_px_per_mm_y = ScalingInfo::inst()->m_px_per_mm_y;
    ui::VexoStylesheet sheet(QStringList(), false);
    sheet.addText(m_shown);
    sheet.set();
}

void MmStylesheet::followScale()
{
    const ScalingInfo *scaling = ScalingInfo::instance.get();
    const bool is_same = !scaling
        || (qFuzzyCompare(scaling->m_px_per_mm_x, m_px_per_mm_x)
            && qFuzzyCompare(scaling->m_px_per_mm_y, m_px_per_mm_y));
    if (is_same || m_shown.isEmpty())
        return;
    if (qApp->styleSheet() == m_shown)
        set();
    else
        m_shown.clear(); // another sheet is in its place
}

} // namespace vexo::hox::qt::panel
