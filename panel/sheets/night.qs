/* The same by night: colours only. Ground #1e1e1e, fields #282828, lines #5a5a5a, ink #f5f5f5, what
   is off #6e6e6e. */
QSlider::handle:horizontal, QSlider::handle:vertical { background: #1e1e1e; }
QSlider::handle:horizontal:disabled, QSlider::handle:vertical:disabled { border-color: #5a5a5a; }
QSlider::add-page:horizontal:enabled, QSlider::sub-page:vertical:enabled,
QSlider[layoutDirection="1"]::sub-page:horizontal:enabled { background: #5a5a5a; }
QSlider::sub-page:horizontal:disabled, QSlider::add-page:vertical:disabled,
QSlider[layoutDirection="1"]::add-page:horizontal:disabled { background: #5a5a5a; }
QSlider::add-page:horizontal:disabled, QSlider::sub-page:vertical:disabled,
QSlider[layoutDirection="1"]::sub-page:horizontal:disabled { background: #3c3c3c; }

QCheckBox, QRadioButton { color: #f5f5f5; }
QCheckBox::indicator:unchecked { image: url(:/sheets/images/switch-night.svg); }
QCheckBox::indicator:checked { image: url(:/sheets/images/switch-on-night.svg); }
QCheckBox::indicator:unchecked:disabled { image: url(:/sheets/images/switch-off-night.svg); }
QCheckBox::indicator:checked:disabled { image: url(:/sheets/images/switch-on-off-night.svg); }
QRadioButton::indicator:unchecked { image: url(:/sheets/images/radio-night.svg); }
QRadioButton::indicator:checked { image: url(:/sheets/images/radio-on-night.svg); }
QRadioButton::indicator:unchecked:disabled { image: url(:/sheets/images/radio-off-night.svg); }
QRadioButton::indicator:checked:disabled { image: url(:/sheets/images/radio-on-off-night.svg); }
QCheckBox:disabled, QRadioButton:disabled { color: #6e6e6e; }

QComboBox, QAbstractSpinBox { border-color: #5a5a5a; background: #282828; color: #f5f5f5; }
QComboBox:focus, QComboBox:on, QAbstractSpinBox:focus { border-color: #c8c8c8; }
QComboBox:disabled, QAbstractSpinBox:disabled { border-color: #3c3c3c; color: #6e6e6e; }
QAbstractSpinBox, QComboBox QAbstractItemView {
    selection-background-color: #f5f5f5;
    selection-color: #1e1e1e;
}
QComboBox::down-arrow { image: url(:/sheets/images/down-night.svg); }
QComboBox::down-arrow:disabled { image: url(:/sheets/images/down-off-night.svg); }
QComboBox QAbstractItemView { border-color: #5a5a5a; background: #282828; color: #f5f5f5; }
QAbstractSpinBox::up-arrow { image: url(:/sheets/images/plus-night.svg); }
QAbstractSpinBox::down-arrow { image: url(:/sheets/images/minus-night.svg); }
QAbstractSpinBox::up-arrow:disabled, QAbstractSpinBox::up-arrow:off {
    image: url(:/sheets/images/plus-off-night.svg);
}
QAbstractSpinBox::down-arrow:disabled, QAbstractSpinBox::down-arrow:off {
    image: url(:/sheets/images/minus-off-night.svg);
}

QProgressBar { background: #3c3c3c; color: #f5f5f5; }
QProgressBar::chunk { background: #646e00; }
QProgressBar:disabled { color: #6e6e6e; }
QProgressBar::chunk:disabled { background: #5a5a5a; }

QTabBar::tab { border-bottom-color: #3c3c3c; color: #c8c8c8; }
QTabBar::tab:selected { border-bottom-color: #b4c800; color: #f5f5f5; }
QTabBar::tab:pressed { background: #3c3c3c; }
QTabBar::tab:disabled { color: #6e6e6e; }

QListView, QTreeView, QTableView {
    background: #1e1e1e;
    color: #f5f5f5;
    gridline-color: #3c3c3c;
    selection-background-color: #f5f5f5;
    selection-color: #1e1e1e;
}
QListView::item, QTreeView::item { border-bottom-color: #3c3c3c; color: #f5f5f5; }
QTableView::item { color: #f5f5f5; }
QListView::item:selected, QTreeView::item:selected, QTableView::item:selected {
    background: #f5f5f5;
    color: #1e1e1e;
}
QListView::item:disabled, QTreeView::item:disabled, QTableView::item:disabled { color: #6e6e6e; }
QHeaderView, QTableView QTableCornerButton::section { background: #282828; }
QHeaderView::section { border-bottom-color: #5a5a5a; background: #282828; color: #f5f5f5; }

QScrollBar::handle:vertical, QScrollBar::handle:horizontal { background: #5a5a5a; }
QScrollBar::handle:pressed { background: #a0a0a0; }
