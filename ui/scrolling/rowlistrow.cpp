// SPDX-License-Identifier: MIT
#include "ui/scrolling/rowlistrow_p.h"

#include "ui/buttons/vexofunctionbutton.h"
#include "ui/buttons/vexohorizontaltexticonbutton.h"
#include "ui/foundation/cachedvectoricon.h"
#include "ui/painting/iconpixmap_p.h"
#include "ui/scrolling/rowlist.h"

namespace vexo::hox::qt::ui {

namespace {

using TextIconButton = VexoHorizontalTextIconButton;

// As a VexoFunctionButton looks.
QWidget *makeTextIconRow()
{
    auto *row = new TextIconButton;
    row->setPtFontSize(9);
    row->setMmIndent(3);
    row->setDefaultTextColor(VexoColors::C3);
    row->setClickedTextColor(VexoColors::C0);
    row->setInactiveTextColor(VexoColors::C6);
    row->setDefaultBackgroundColor(VexoColors::C1);
    row->setClickedBackgroundColor(VexoColors::C4);
    row->setInactiveBackgroundColor(VexoColors::C1);
    return row;
}

QPixmap imageOf(const QModelIndex &index)
{
    const QVariant image = index.data(Qt::DecorationRole);
    if (image.userType() == QMetaType::QPixmap)
        return image.value<QPixmap>();
    const QString file = image.toString();
    if (file.isEmpty())
        return QPixmap();
    return CachedVectorIcon(file, VexoFunctionButton::ICON_SIZE).toPixmap();
}

QPixmap dimmed(const QPixmap &image)
{
    QPixmap dim = QIcon(image).pixmap(image.size(), QIcon::Disabled);
    dim.setDevicePixelRatio(image.devicePixelRatio());
    return dim;
}

void showTextIcon(TextIconButton *row, const QModelIndex &index)
{
    row->setLeftSideText(index.data().toString());
    row->setRightSideText(index.data(RowList::SecondTextRole).toString());
    const QPixmap image = imageOf(index);
    const bool is_drawing = index.data(Qt::DecorationRole).userType() != QMetaType::QPixmap;
    row->setDefaultImage(image);
    row->setClickedImage(is_drawing && !image.isNull() ? inverted(image) : image);
    row->setInactiveImage(dimmed(image));
}

void showText(VexoFunctionButton *row, const QModelIndex &index)
{
    const QString text = index.data().toString();
    if (row->text() != text)
        row->setText(text);
}

void showName(QWidget *row, const QModelIndex &index)
{
    QString name = index.data(Qt::AccessibleTextRole).toString();
    if (name.isEmpty() && !qobject_cast<VexoFunctionButton *>(row)) // which reads its text itself
        name = index.data().toString();
    if (row->accessibleName() != name)
        row->setAccessibleName(name);
}

bool isChecked(const QModelIndex &index)
{
    return index.data(Qt::CheckStateRole).toInt() == Qt::Checked;
}

} // namespace

int RowListRow::typeOf(const QModelIndex &index)
{
    const QVariant type = index.data(RowList::RowTypeRole);
    if (type.isValid())
        return type.toInt();
    if (index.data(Qt::CheckStateRole).isValid())
        return RowList::CheckboxRow;
    const bool is_plain = !index.data(RowList::SecondTextRole).isValid()
        && !index.data(Qt::DecorationRole).isValid();
    return is_plain ? RowList::ActionRow : RowList::TextIconRow;
}

QWidget *RowListRow::make(int type)
{
    using Row = VexoFunctionButton;
    switch (type) {
    case RowList::CheckboxRow:
        return new Row(nullptr, Row::CheckboxType);
    case RowList::RadiobuttonRow:
        return new Row(nullptr, Row::RadiobuttonType);
    case RowList::FullsizeRadiobuttonRow:
        return new Row(nullptr, Row::FullsizeRadiobuttonType);
    case RowList::TickAgreementRow:
        return new Row(nullptr, Row::TickAgreementType);
    case RowList::TextIconRow:
        return makeTextIconRow();
    default:
        return new Row(nullptr, Row::ActionType);
    }
}

void RowListRow::prepare(QWidget *row)
{
    if (QAbstractButton *button = buttonOf(row))
        button->setAutoExclusive(false);
}

void RowListRow::show(QWidget *row, const QModelIndex &index)
{
    if (auto *function = qobject_cast<VexoFunctionButton *>(row))
        showText(function, index);
    else if (auto *text_icon = qobject_cast<TextIconButton *>(row))
        showTextIcon(text_icon, index);
    showName(row, index);
    row->setEnabled(index.flags() & Qt::ItemIsEnabled);
    QAbstractButton *button = buttonOf(row);
    if (button && button->isCheckable())
        button->setChecked(isChecked(index));
}

QAbstractButton *RowListRow::buttonOf(QWidget *row)
{
    if (const auto *function = qobject_cast<VexoFunctionButton *>(row))
        return function->getButtonInstance();
    return qobject_cast<QAbstractButton *>(row);
}

void RowListRow::write(QWidget *row, const QModelIndex &index, QAbstractItemModel *model)
{
    const QAbstractButton *button = buttonOf(row);
    const auto needed = Qt::ItemIsEnabled | Qt::ItemIsUserCheckable;
    if (!model || !button || !button->isCheckable() || (index.flags() & needed) != needed)
        return;
    const int type = typeOf(index);
    const bool is_choice = type > RowList::ActionRow && type < RowList::TextIconRow;
    const bool is_checked = is_choice || button->isChecked();
    model->setData(index, is_checked ? Qt::Checked : Qt::Unchecked, Qt::CheckStateRole);
}

} // namespace vexo::hox::qt::ui
