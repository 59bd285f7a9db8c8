#pragma once
// SPDX-License-Identifier: MIT

#include <QHBoxLayout>

namespace vexo::hox::qt::ui {

class RowLabel;

/// The layout of a row. To measure its text takes as long as all the rest of it, so that is done
/// only where the text may be short of room.
class RowLayout : public QHBoxLayout
{
public:
    /// The first item, without stretch and alignment. The row already has \a label as its child.
    void addLabel(RowLabel *label);

    /// Deletes \a gap, which may be null, and appends one of \a px, which it returns.
    QSpacerItem *replaceGap(QSpacerItem *gap, int px);

    bool hasHeightForWidth() const override;
    QSize sizeHint() const override;
    QSize minimumSize() const override;
    void setGeometry(const QRect &rect) override;

private:
    class LabelItem;

    LabelItem *labelItem() const;
    bool hasFixedHeight() const;
    int labelWidth(int width_px) const;
    void setMeasured(bool is_measured) const;
};

} // namespace vexo::hox::qt::ui
