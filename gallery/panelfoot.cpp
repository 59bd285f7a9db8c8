// SPDX-License-Identifier: MIT
#include "gallery/panelfoot.h"

#include "gallery/measures.h"
#include "gallery/widgets/lamp.h"

#include <ScalingInfo>
#include <VexoColors>

#include <QHBoxLayout>
#include <QLabel>

using namespace vexo::hox::qt::ui;

namespace {

QString noBreak(QString text)
{
    const QChar word_joiner(0x2060);
    return text.replace(' ', QChar::Nbsp).replace("/", QString("/") + word_joiner);
}

QString pair(double first, double second, const char *unit)
{
    return noBreak(QString("%1 × %2 %3").arg(first).arg(second).arg(unit));
}

QString figures(const ScalingInfo &scaling)
{
    const double x = qRound(scaling.m_px_per_mm_x * 100) / 100.0;
    const double y = qRound(scaling.m_px_per_mm_y * 100) / 100.0;
    const QStringList parts{
        pair(scaling.m_pixels.width(), scaling.m_pixels.height(), "px"),
        pair(scaling.m_size_mm.width(), scaling.m_size_mm.height(), "mm"),
        x == y ? noBreak(QString("%1 px/mm").arg(x)) : pair(x, y, "px/mm"),
    };
    return parts.join("     "); // wraps here only
}

QLabel *createText(const QString &text, int weight)
{
    auto *label = new QLabel(text);
    label->setFont(ptFont(7, weight));
    return label;
}

} // namespace

PanelFoot::PanelFoot(QWidget *parent)
    : QWidget(parent)
{
    setUpGround();
    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(mmX(5), mmY(2), mmX(6), mmY(2));
    layout->setSpacing(mmX(2));
    layout->addWidget(createText("Panel", QFont::Medium));
    layout->addSpacing(mmX(2));
    QLabel *text = createText(figures(*ScalingInfo::inst()), QFont::Normal);
    text->setWordWrap(true);
    layout->addWidget(text, 1);
    layout->addWidget(createText("Tone", QFont::Normal));
    layout->addWidget(new Lamp(2.5, this));
}

void PanelFoot::setUpGround()
{
    QPalette colors = palette();
    colors.setColor(QPalette::Window, VexoColors::C3);
    colors.setColor(QPalette::WindowText, VexoColors::C0);
    setPalette(colors);
    setAutoFillBackground(true);
}
