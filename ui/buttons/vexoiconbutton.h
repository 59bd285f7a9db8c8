#pragma once
// SPDX-License-Identifier: MIT

#include "ui/buttons/activevectorbutton.h"
#include "ui/buttons/easyaccessbutton.h"

#include <memory>

namespace vexo::hox::qt::ui {

class IconRendering;
class StyledBackground;

/// The panel's plain icon button: draws nothing but the icon of its state, centred. While pressed
/// or checked it shows the icon of "CLICKED", or without one the inverse icon in a one-pixel
/// outline on the ground as it is; while disabled the icon of "INACTIVE" if there is one; otherwise
/// "DEFAULT". A finger that slides up to 20 px off the button still clicks. The width that it asks
/// for is that of iconSize(), whatever its icons: set its size.
///
/// The paint itself sets the state that goes with the look. So another state that an application
/// sets, and a blink started before the first paint, give way to "DEFAULT" at the next paint of a
/// button that is enabled and up.
class HOXQUI_EXPORT VexoIconButton : public ActiveVectorButton, public EasyAccessButton
{
    Q_OBJECT

    /// Whether a pressed or checked button looks different. Default true. A change shows with the
    /// next paint.
    Q_PROPERTY(bool m_can_background_color_change MEMBER m_can_background_color_change WRITE
            setCanChangeBackgroundColor)

public:
    explicit VexoIconButton(QWidget *parent = nullptr);
    ~VexoIconButton() override;

    void setCanChangeBackgroundColor(bool can_change);
    /// Sets \a state unless it is current; the first call sets it in any case.
    void initialize(const QString &state);

protected:
    bool event(QEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    using ActiveVectorButton::mouseReleaseEvent;
    void mouseMoveEvent(QMouseEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    QIcon takePressedLook(QPainter *painter);
    void drawOutline(QPainter *painter) const;

    bool m_is_initialized = false;
    bool m_can_background_color_change = true;
    const std::unique_ptr<IconRendering> m_icon_rendering;
    const std::unique_ptr<StyledBackground> m_styled_background;
};

} // namespace vexo::hox::qt::ui
