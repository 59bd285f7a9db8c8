#pragma once
// SPDX-License-Identifier: MIT

#include "ui/hoxqui_export.h"

#include <QWidget>

#include <memory>

class Ui_UpdatePage;

namespace vexo::hox::qt::ui {

/// What the panel shows while an update runs: the logo for dark grounds and below it "Updating
/// ...", centred. It has no ground of its own and does not move; for a busy animation put a label
/// beside it that shows the frames of a RotationPixmap. Its labels have the object names
/// "VexoIconLabel" and "VexoSubTextLabel"; the text is translated in the context "UpdatePage". The
/// form is Ui_UpdatePage in the header of that name, for a page of your own.
class HOXQUI_EXPORT UpdatePage : public QWidget
{
    Q_OBJECT

public:
    explicit UpdatePage(QWidget *parent = nullptr);
    ~UpdatePage() override;

private:
    void setupUi();

    const std::unique_ptr<Ui_UpdatePage> m_ui;
};

} // namespace vexo::hox::qt::ui
