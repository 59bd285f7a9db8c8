// SPDX-License-Identifier: MIT
#include "gallery/pages/typepage.h"

#include "gallery/measures.h"

#include <ScalingInfo>

#include <QFontMetrics>
#include <QGridLayout>
#include <QLabel>

using vexo::hox::qt::ui::ScalingInfo;

namespace {

// Puts a caption on the baseline of a text that is \a pt high.
void alignBaseline(QLabel *caption, double pt)
{
    const int descent = QFontMetrics(ptFont(pt)).descent() - caption->fontMetrics().descent();
    caption->setContentsMargins(0, 0, 0, descent);
}

QGridLayout *createTable()
{
    auto *table = new QGridLayout;
    table->setHorizontalSpacing(mmX(4));
    table->setVerticalSpacing(mmY(2));
    table->setColumnMinimumWidth(0, mmX(16));
    table->setColumnStretch(1, 1);
    return table;
}

} // namespace

TypePage::TypePage()
    : Page("Type",
        QString("Heights are points of the panel, cut to whole pixels. On this panel glyphs are "
                "drawn %1 % wide.")
            .arg(ScalingInfo::inst()->fontStretch()))
{
    for (const double pt : { 7.0, 9.0, 10.0, 13.0 })
        addWeights(pt);
    addLanguages();
}

void TypePage::addWeights(double pt)
{
    addSection(QString("%1 pt, %2 px").arg(pt).arg(ptFont(pt).pixelSize()));
    QGridLayout *table = createTable();
    const auto add = [table, pt](const QString &name, int weight) {
        const int row = table->rowCount();
        QLabel *caption = createText(name);
        alignBaseline(caption, pt);
        table->addWidget(caption, row, 0, Qt::AlignBottom);
        table->addWidget(createText("Handgloves 0123456789", pt, weight), row, 1);
    };
    add("Light", QFont::Light);
    add("Regular", QFont::Normal);
    add("Medium", QFont::Medium);
    add("Bold", QFont::Bold);
    addBlock(table);
}

void TypePage::addLanguages()
{
    addSection("Languages");
    addBlock(createText("What the text font has no glyphs for comes from the fallback font."));
    QGridLayout *table = createTable();
    const auto add = [table](const QString &language, const QString &sample) {
        const int row = table->rowCount();
        QLabel *caption = createText(language);
        alignBaseline(caption, 10);
        table->addWidget(caption, row, 0, Qt::AlignBottom);
        table->addWidget(createText(sample, 10), row, 1);
    };
    add("German", "Größe, Maßstab, Übertragung: „Weiter“");
    add("Greek", "Μέγεθος οθόνης");
    add("Russian", "Размер экрана");
    add("Chinese", "屏幕尺寸：七英寸触摸屏");
    add("Japanese", "画面の大きさを確認する");
    addBlock(table);
}
