// SPDX-License-Identifier: MIT
#include "ui/update/updatepage.h"

#include "ui/foundation/languagefollower_p.h"
#include "ui/foundation/pixels_p.h"
#include "ui/ui_updatepage.h"

namespace vexo::hox::qt::ui {

UpdatePage::UpdatePage(QWidget *parent)
    : QWidget(parent)
    , m_ui(std::make_unique<Ui_UpdatePage>())
{
    setupUi();
}

UpdatePage::~UpdatePage() = default;

void UpdatePage::setupUi()
{
    const ScalingInfo &scaling = *ScalingInfo::inst();
    m_ui->setupUi(this);
    followLanguage(m_ui->VexoSubTextLabel, "text",
        [] { return QCoreApplication::translate("UpdatePage", "Updating ..."); });
    m_ui->VexoIconLabel->setPixmap(QStringLiteral(":/widgetimages/vexo-inverted.png"));
    m_ui->VexoIconLabel->setAccessibleName(QStringLiteral("vexo"));
    fixHeight(m_ui->VexoIconLabel, scaling, 7.0);
    const QSize gap = pxSize(scaling, QSizeF(6.0, 6.0));
    m_ui->middleSpacer->changeSize(
        widgetPx(gap.width()), widgetPx(gap.height()), QSizePolicy::Fixed, QSizePolicy::Fixed);
    m_ui->middleSpacer->invalidate();
    QFont font = m_ui->VexoSubTextLabel->font();
    font.setPointSize(10);
    font.setWeight(QFont::Normal);
    m_ui->VexoSubTextLabel->setFont(font);
}

} // namespace vexo::hox::qt::ui
