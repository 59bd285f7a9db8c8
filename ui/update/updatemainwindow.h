#pragma once
// SPDX-License-Identifier: MIT

#include "ui/hoxqui_export.h"

#include <QMainWindow>

class QVBoxLayout;

namespace vexo::hox::qt::ui {

class UpdatePage;

/// A window of fixed physical size that holds an UpdatePage. It is hidden until the application
/// shows it.
class HOXQUI_EXPORT UpdateMainWindow : public QMainWindow
{
    Q_OBJECT

public:
    /// \a width_mm and \a height_mm in mm; the defaults are those of the common panel.
    explicit UpdateMainWindow(
        QWidget *parent = nullptr, float width_mm = 152.0F, float height_mm = 95.0F);

private:
    void setupUi();

    const float m_width_mm;
    const float m_height_mm;
    QWidget *m_central_widget = nullptr;
    QVBoxLayout *m_layout = nullptr;
    UpdatePage *m_update_page = nullptr;
};

} // namespace vexo::hox::qt::ui
