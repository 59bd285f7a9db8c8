// SPDX-License-Identifier: MIT
#include "ui/update/updatemainwindow.h"

#include "ui/foundation/languagefollower_p.h"
#include "ui/foundation/pixels_p.h"
#include "ui/foundation/tightlayout_p.h"
#include "ui/update/updatepage.h"

#include <QCoreApplication>
#include <QVBoxLayout>

namespace vexo::hox::qt::ui {

UpdateMainWindow::UpdateMainWindow(QWidget *parent, float width_mm, float height_mm)
    : QMainWindow(parent)
    , m_width_mm(width_mm)
    , m_height_mm(height_mm)
{
    setupUi();
    hide();
}

void UpdateMainWindow::setupUi()
{
    if (objectName().isEmpty())
        setObjectName(QStringLiteral("UpdateMainWindow"));
    resize(800, 600);
    m_central_widget = new QWidget(this);
    m_central_widget->setObjectName(QStringLiteral("centralwidget"));
    m_layout = new QVBoxLayout(m_central_widget);
    tighten(m_layout);
    m_layout->setObjectName(QStringLiteral("verticalLayout"));
    m_update_page = new UpdatePage(m_central_widget);
    m_update_page->setObjectName(QStringLiteral("UpdatePage"));
    m_layout->addWidget(m_update_page);
    setCentralWidget(m_central_widget);
    followLanguage(this, "windowTitle",
        [] { return QCoreApplication::translate("UpdateMainWindow", "MainWindow"); });
    QMetaObject::connectSlotsByName(this);

    const QSize px = pxSize(*ScalingInfo::inst(), QSizeF(double(m_width_mm), double(m_height_mm)));
    const QSize fixed(widgetPx(px.width()), widgetPx(px.height()));
    setFixedSize(fixed);
    m_update_page->setFixedSize(fixed);
}

} // namespace vexo::hox::qt::ui
