/* The panel's look for widgets of the toolkit that controls.qs leaves alone, by day. Lengths are in
   mm, fonts in pt. Colours are those of the panel's palette: ground #ffffff, fields #f5f5f5, lines
   #b4b4b4, ink #3c3c3c, what is chosen #505050, what is filled #b4c800, what is off #c8c8c8. */

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
