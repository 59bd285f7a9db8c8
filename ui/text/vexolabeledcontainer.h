#pragma once
// SPDX-License-Identifier: MIT

#include "ui/hoxqui_export.h"

#include <QFont>
#include <QPointer>
#include <QWidget>

#include <memory>

class QGridLayout;
class QLabel;

namespace vexo::hox::qt::ui {

class ScalingInfo;
class VisibleBuddies;

/// A caption above one widget, its payload, at a fixed physical height with margins. It suits some
/// payloads to itself: a VexoLineEdit loses its margin, a VexoSliderDecoration with a scale makes
/// the container 25 mm high, a label is wrapped in the caption's size at light weight. A payload
/// that has no text of its own is named after the caption for assistive technology. The container
/// shows and hides other widgets together with itself. The caption's object name is
/// "vexoLabeledContainerLabel". The panel's sheet gives the container the ground C1 while its
/// window is active.
class HOXQUI_EXPORT VexoLabeledContainer : public QWidget
{
    Q_OBJECT

    /// Caption. Default empty.
    Q_PROPERTY(QString label_text READ labelText WRITE setLabelText)
    /// Height of the caption, pt. Default 9.0.
    Q_PROPERTY(double pt_font_size READ ptFontSize WRITE setPtFontSize)
    /// Below the payload, mm. Default 0.0.
    Q_PROPERTY(double mm_bottom_margin READ bottomMarginMm WRITE setBottomMarginMm)
    /// Above the caption, mm. Default 3.0.
    Q_PROPERTY(double mm_top_margin READ topMarginMm WRITE setTopMarginMm)
    /// At the left of both, mm. Default 3.0.
    Q_PROPERTY(double mm_left_margin READ leftMarginMm WRITE setLeftMarginMm)
    /// At the right of both, mm. Default 3.0.
    Q_PROPERTY(double mm_right_margin READ rightMarginMm WRITE setRightMarginMm)
    /// Fixed height, mm. Default 19.8.
    Q_PROPERTY(double mm_height READ mmHeight WRITE setMmHeight)

public:
    /// \a payload may be null; the container takes it as its child.
    explicit VexoLabeledContainer(QWidget *parent = nullptr, QWidget *payload = nullptr);
    ~VexoLabeledContainer() override;

    QString labelText() const;
    void setLabelText(const QString &text);
    double ptFontSize() const { return m_pt_font_size; }
    void setPtFontSize(double pt);
    double bottomMarginMm() const { return m_mm_bottom_margin; }
    void setBottomMarginMm(double mm);
    double topMarginMm() const { return m_mm_top_margin; }
    void setTopMarginMm(double mm);
    double leftMarginMm() const { return m_mm_left_margin; }
    void setLeftMarginMm(double mm);
    double rightMarginMm() const { return m_mm_right_margin; }
    void setRightMarginMm(double mm);
    double mmHeight() const { return m_mm_height; }
    void setMmHeight(double mm);

    /// Adopts \a widget as payload without placing it below the caption; null is ignored. To show
    /// another payload, use swapWidget().
    void setWidget(QWidget *widget);
    /// Shows \a new_widget as the payload. \a old_widget is hidden, loses its parent and belongs to
    /// the caller. Null is skipped.
    void swapWidget(QWidget *old_widget, QWidget *new_widget);
    /// The payload is hidden, loses its parent and belongs to the caller.
    void removeWidget();
    /// Shows \a widget as the payload if there is none. Forms call it for each child of the
    /// container; null is ignored, a second child stays where the form puts it.
    Q_INVOKABLE void addFromForm(QWidget *widget);

    /// Hides \a buddy at once, and shows and hides it with the container from the next setVisible()
    /// on, in the order of the calls. Not owned; null is ignored. Returns \a buddy.
    QWidget *addVisibleBuddy(QWidget *buddy);
    /// Forgets the buddies; they keep their visibility.
    void clearVisibleBuddies();

public Q_SLOTS:
    void setVisible(bool visible) override;

private:
    void setupUi();
    void setupCaption();
    QWidget *addSpacer(int row, int column, QSizePolicy::Policy vertical);
    void setPayloadWidgetProperties();
    void placePayload();
    void release(QWidget *widget);

    QPointer<QWidget> m_payload;
    QLabel *m_label = nullptr;
    QGridLayout *m_layout = nullptr;
    QWidget *m_bottom_spacer = nullptr;
    QWidget *m_top_spacer = nullptr;
    QWidget *m_left_spacer = nullptr;
    QWidget *m_right_spacer = nullptr;
    const ScalingInfo *const m_scaling;
    const std::unique_ptr<VisibleBuddies> m_visible_buddies;
    QFont m_font;
    double m_pt_font_size = 9.0;
    double m_mm_bottom_margin = 0.0;
    double m_mm_top_margin = 3.0;
    double m_mm_left_margin = 3.0;
    double m_mm_right_margin = 3.0;
    double m_mm_height = 19.8;
};

} // namespace vexo::hox::qt::ui
