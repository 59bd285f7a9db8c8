// SPDX-License-Identifier: MIT
#include "ui/buttons/row/rowlayout_p.h"

#include "ui/buttons/row/rowlabel_p.h"

namespace vexo::hox::qt::ui {

/// A label with room for one line takes all the width that is left. As long as it is not measured,
/// that is all the layout knows of it.
class RowLayout::LabelItem : public QWidgetItem
{
public:
    explicit LabelItem(RowLabel *label)
        : QWidgetItem(label)
        , m_label(label)
    {
    }

    const RowLabel &label() const { return *m_label; }
    bool isMeasured() const { return m_is_measured; }
    void setMeasured(bool is_measured) { m_is_measured = is_measured; }

    QSize sizeHint() const override
    {
        return isLine() ? QSize(0, m_label->lineHeight()) : QWidgetItem::sizeHint();
    }

    QSize minimumSize() const override
    {
        return isLine() ? QSize(0, m_label->lineHeight()) : QWidgetItem::minimumSize();
    }

    QSize maximumSize() const override
    {
        return isLine() ? QSize(QLAYOUTSIZE_MAX, m_label->lineHeight())
                        : QWidgetItem::maximumSize();
    }

private:
    bool isLine() const { return !m_is_measured && !isEmpty(); }

    RowLabel *const m_label;
    bool m_is_measured = false;
};

void RowLayout::addLabel(RowLabel *label)
{
    addChildWidget(label);
    addItem(new LabelItem(label));
}

QSpacerItem *RowLayout::replaceGap(QSpacerItem *gap, int px)
{
    if (gap)
        removeItem(gap);
    delete gap;
    gap = new QSpacerItem(px, px, QSizePolicy::Fixed, QSizePolicy::Fixed);
    gap->setAlignment(Qt::AlignRight);
    addItem(gap);
    return gap;
}

// No screen need know how high the text of a row of fixed height would be in some width.
bool RowLayout::hasHeightForWidth() const
{
    if (hasFixedHeight())
        return false;
    setMeasured(true);
    return QHBoxLayout::hasHeightForWidth();
}

QSize RowLayout::sizeHint() const
{
    setMeasured(true);
    return QHBoxLayout::sizeHint();
}

QSize RowLayout::minimumSize() const
{
    setMeasured(true);
    return QHBoxLayout::minimumSize();
}

void RowLayout::setGeometry(const QRect &rect)
{
    const LabelItem *item = labelItem();
    setMeasured(
        !hasFixedHeight() || !item || !item->label().isSurelyOneLine(labelWidth(rect.width())));
    QHBoxLayout::setGeometry(rect);
}

// Null once an application has taken the label out.
RowLayout::LabelItem *RowLayout::labelItem() const
{
    return dynamic_cast<LabelItem *>(itemAt(0));
}

bool RowLayout::hasFixedHeight() const
{
    const QWidget *row = parentWidget();
    return row && row->minimumHeight() == row->maximumHeight();
}

// What the other items leave of \a width_px.
int RowLayout::labelWidth(int width_px) const
{
    int left_px = width_px;
    for (int i = 1; i < count(); ++i)
        left_px -= itemAt(i)->sizeHint().width() + qMax(0, spacing());
    return left_px;
}

void RowLayout::setMeasured(bool is_measured) const
{
    LabelItem *item = labelItem();
    if (!item || item->isMeasured() == is_measured)
        return;
    item->setMeasured(is_measured);
    const_cast<RowLayout *>(this)->invalidate();
}

} // namespace vexo::hox::qt::ui
