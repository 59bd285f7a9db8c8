/* What Panel::setUp() dresses in millimetres: slider, check box and radio button, by day. Colours:
   ground #ffffff, filled #b4c800, empty #c8c8c8, empty and off #dcdcdc. */

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

/* Check box and radio button, as high as a finger needs. An image keeps its shape in pixels. */
QCheckBox, QRadioButton { spacing: 1.5mm; min-height: 7mm; }
QCheckBox::indicator { width: 7.1mm; height: 4mm; }
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
