/* The panel's look for widgets of the toolkit, by day. Lengths are in mm, fonts in pt. Colours are
   those of the panel's palette: ground #ffffff, fields #f5f5f5, lines #b4b4b4, ink #3c3c3c, what is
   chosen #505050, what is filled #b4c800, what is off #c8c8c8. */

/* Another sheet makes frames transparent; one that is a window would show nothing behind it. */
QFrame:window { background: palette(window); }

/* Slider: filled on the side of its minimum, left or below. */
QSlider:horizontal { height: 6.5mm; }
QSlider:vertical { width: 6.5mm; }
QSlider::groove:horizontal { height: 1mm; border: none; }
QSlider::groove:vertical { width: 1mm; border: none; }
/* Across its way a handle is as large as groove and margins; the size is told for its corners. */
QSlider::handle:horizontal {
    width: calc(6.4mm - 0.4mm - 0.4mm);
    height: calc(1mm + 2.7mm + 2.7mm - 0.4mm - 0.4mm);
    margin: -2.7mm 0;
    background: #ffffff;
    border: 0.4mm solid #b4c800;
    border-radius: 3.2mm;
}
QSlider::handle:vertical {
    width: calc(1mm + 2.7mm + 2.7mm - 0.4mm - 0.4mm);
    height: calc(6.4mm - 0.4mm - 0.4mm);
    margin: 0 -2.7mm;
    background: #ffffff;
    border: 0.4mm solid #b4c800;
    border-radius: 3.2mm;
}
QSlider::handle:horizontal:disabled, QSlider::handle:vertical:disabled { border-color: #c8c8c8; }
QSlider::sub-page:horizontal:enabled, QSlider::add-page:vertical:enabled,
QSlider[layoutDirection="1"]::add-page:horizontal:enabled {
    background: #b4c800;
    border-radius: 0.5mm;
}
QSlider::add-page:horizontal:enabled, QSlider::sub-page:vertical:enabled,
QSlider[layoutDirection="1"]::sub-page:horizontal:enabled {
    background: #c8c8c8;
    border-radius: 0.5mm;
}
QSlider::sub-page:horizontal:disabled, QSlider::add-page:vertical:disabled,
QSlider[layoutDirection="1"]::add-page:horizontal:disabled {
    background: #c8c8c8;
    border-radius: 0.5mm;
}
QSlider::add-page:horizontal:disabled, QSlider::sub-page:vertical:disabled,
QSlider[layoutDirection="1"]::sub-page:horizontal:disabled {
    background: #dcdcdc;
    border-radius: 0.5mm;
}
/* Beside a scale the middle of the handle gets to the first and the last mark, 3 mm from its ends;
   an upright scale is 10 px longer than its slider. */
vexo--hox--qt--ui--VexoSliderDecoration[m_style="HorizontalWithScale"] QSlider::groove:horizontal {
    padding-bottom: 0;
}
vexo--hox--qt--ui--VexoSliderDecoration[m_style="HorizontalWithScale"] QSlider::handle:horizontal {
    width: calc(3mm + 3mm - 0.4mm - 0.4mm);
    height: calc(1mm + 2.7mm + 2.7mm - 0.4mm - 0.4mm);
    border: 0.4mm solid #b4c800;
    border-radius: 3mm;
}
vexo--hox--qt--ui--VexoSliderDecoration[m_style="VerticalWithScale"] QSlider::groove:vertical {
    padding-bottom: 10px;
}
vexo--hox--qt--ui--VexoSliderDecoration[m_style="VerticalWithScale"] QSlider::handle:vertical {
    width: calc(1mm + 2.7mm + 2.7mm - 0.4mm - 0.4mm);
    height: calc(3mm + 3mm - 10px - 0.4mm - 0.4mm);
    border: 0.4mm solid #b4c800;
    border-radius: calc(3mm - 5px);
}

/* Check box and radio button */
QCheckBox, QRadioButton { spacing: 2mm; min-height: 7mm; }
QCheckBox::indicator { width: 7.1mm; height: 4mm; }
QCheckBox::indicator:unchecked, QCheckBox::indicator:checked { border-image: none; }
QRadioButton::indicator:unchecked, QRadioButton::indicator:checked { border-image: none; }
QCheckBox::indicator:unchecked { image: url(:/sheets/images/switch-day.svg); }
QCheckBox::indicator:checked { image: url(:/sheets/images/switch-on-day.svg); }
QCheckBox::indicator:unchecked:disabled { image: url(:/sheets/images/switch-off-day.svg); }
QCheckBox::indicator:checked:disabled { image: url(:/sheets/images/switch-on-off-day.svg); }
QRadioButton::indicator { width: 4mm; height: 4mm; }
QRadioButton::indicator:unchecked { image: url(:/sheets/images/radio-day.svg); }
QRadioButton::indicator:checked { image: url(:/sheets/images/radio-on-day.svg); }
QRadioButton::indicator:unchecked:disabled { image: url(:/sheets/images/radio-off-day.svg); }
QRadioButton::indicator:checked:disabled { image: url(:/sheets/images/radio-on-off-day.svg); }
QCheckBox:disabled, QRadioButton:disabled { color: #c8c8c8; }

/* Combo box; its list opens below it. The rows of the list are high enough for a finger with
   QComboBox::setItemDelegate(new QStyledItemDelegate): the usual one knows no sheet. */
QComboBox {
    combobox-popup: 0;
    min-height: 9.2mm;
    padding: 0 2mm 0 4.5mm;
    border: 0.2mm solid #b4b4b4;
    border-radius: 4.8mm;
    background: #ffffff;
    color: #3c3c3c;
}
QComboBox:focus, QComboBox:on { border-color: #505050; }
QComboBox:disabled { color: #c8c8c8; border-color: #dcdcdc; }
QComboBox::drop-down { width: 8mm; border: none; }
QComboBox::down-arrow { width: 3.4mm; height: 3.4mm; image: url(:/sheets/images/down-day.svg); }
QComboBox::down-arrow:disabled { image: url(:/sheets/images/down-off-day.svg); }
QComboBox QAbstractItemView {
    border: 0.2mm solid #b4b4b4;
    background: #ffffff;
    color: #3c3c3c;
    selection-background-color: #505050;
    selection-color: #ffffff;
    outline: none;
}

/* Spin box: minus at its left end, plus at its right one. */
QAbstractSpinBox {
    min-height: 9.2mm;
    padding: 0 10mm;
    border: 0.2mm solid #b4b4b4;
    border-radius: 4.8mm;
    background: #ffffff;
    color: #3c3c3c;
    selection-background-color: #505050;
    selection-color: #ffffff;
    qproperty-alignment: AlignCenter;
}
QAbstractSpinBox:focus { border-color: #505050; }
QAbstractSpinBox:disabled { color: #c8c8c8; border-color: #dcdcdc; }
QAbstractSpinBox::up-button {
    subcontrol-origin: border;
    subcontrol-position: center right;
    width: 10mm;
    height: 9.6mm;
    border: none;
    background: transparent;
}
QAbstractSpinBox::down-button {
    subcontrol-origin: border;
    subcontrol-position: center left;
    width: 10mm;
    height: 9.6mm;
    border: none;
    background: transparent;
}
QAbstractSpinBox::up-arrow { width: 4mm; height: 4mm; image: url(:/sheets/images/plus-day.svg); }
QAbstractSpinBox::down-arrow { width: 4mm; height: 4mm; image: url(:/sheets/images/minus-day.svg); }
QAbstractSpinBox::up-arrow:disabled, QAbstractSpinBox::up-arrow:off {
    image: url(:/sheets/images/plus-off-day.svg);
}
QAbstractSpinBox::down-arrow:disabled, QAbstractSpinBox::down-arrow:off {
    image: url(:/sheets/images/minus-off-day.svg);
}

/* Progress bar */
QProgressBar {
    min-height: 4.4mm;
    max-height: 4.4mm;
    border: none;
    border-radius: 0.5mm;
    background: #dcdcdc;
    color: #3c3c3c;
    text-align: center;
}
QProgressBar::chunk { background: #b4c800; border-radius: 0.5mm; }
QProgressBar:disabled { color: #a0a0a0; }
QProgressBar::chunk:disabled { background: #c8c8c8; }

/* Tab bar: what is shown is underlined. */
QTabBar { background: transparent; qproperty-drawBase: false; }
QTabBar::tab {
    min-width: 10mm;
    height: 8.6mm;
    padding: 0 4mm;
    border: none;
    border-bottom: 0.8mm solid #dcdcdc;
    background: transparent;
    color: #505050;
}
QTabBar::tab:selected { border-bottom: 0.8mm solid #b4c800; color: #3c3c3c; }
QTabBar::tab:pressed { background: #ebebeb; }
QTabBar::tab:disabled { color: #c8c8c8; }
QTabWidget::pane { border: none; }

/* Lists, trees and tables. The rows of a table are as high as its vertical header says, with
   QHeaderView::setDefaultSectionSize(): that knows no sheet. */
QListView, QTreeView, QTableView {
    border: none;
    outline: none;
    background: #ffffff;
    color: #3c3c3c;
    gridline-color: #dcdcdc;
    selection-background-color: #505050;
    selection-color: #ffffff;
}
QListView::item, QTreeView::item {
    min-height: 9.6mm;
    padding: 0 3mm;
    border: none;
    border-bottom: 0.2mm solid #dcdcdc;
    color: #3c3c3c;
}
QTableView::item { padding: 0 2mm; border: none; color: #3c3c3c; }
QListView::item:selected, QTreeView::item:selected, QTableView::item:selected {
    background: #505050;
    color: #ffffff;
}
QListView::item:disabled, QTreeView::item:disabled, QTableView::item:disabled { color: #c8c8c8; }
QHeaderView { border: none; background: #ebebeb; }
QHeaderView::section {
    min-height: 9.2mm;
    padding: 0 2mm;
    border: none;
    border-bottom: 0.2mm solid #c8c8c8;
    background: #ebebeb;
    color: #3c3c3c;
}
QTableView QTableCornerButton::section { border: none; background: #ebebeb; }

/* Scroll bar: where one is. A finger scrolls on what lies beside it. */
QScrollBar:vertical { width: 2.4mm; margin: 0; border: none; background: transparent; }
QScrollBar:horizontal { height: 2.4mm; margin: 0; border: none; background: transparent; }
QScrollBar::handle:vertical {
    min-height: 8mm;
    margin: 0 0.6mm;
    border-radius: 0.5mm;
    background: #c8c8c8;
}
QScrollBar::handle:horizontal {
    min-width: 8mm;
    margin: 0.6mm 0;
    border-radius: 0.5mm;
    background: #c8c8c8;
}
QScrollBar::handle:pressed { background: #a0a0a0; }
QScrollBar::add-line, QScrollBar::sub-line { width: 0; height: 0; border: none; }
QScrollBar::add-page, QScrollBar::sub-page { background: none; }
