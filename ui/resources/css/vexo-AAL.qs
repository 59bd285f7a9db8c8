MainWindow {
    background: white;
}

QSlider::groove:horizontal {
    border: 1px solid #b4c800;
    height: 10px;
    border-radius: 5px;
}

QSlider:horizontal {
    height: 80px;
}

QSlider::handle:horizontal {
    width: 72px;
    height: 72px;
    margin-top: -32px;
    margin-bottom: -60px;
    background-image: url(:knob_shadow);
}

QSlider::add-page:qlineargradient:horizontal {
    background: #c8c8c8;
    border-top-right-radius: 5px;
    border-bottom-right-radius: 5px;
    border-top-left-radius: 0px;
    border-bottom-left-radius: 0px;
}

QSlider::sub-page:qlineargradient:horizontal {
    background: #b4c800;
    border-top-right-radius: 0px;
    border-bottom-right-radius: 0px;
    border-top-left-radius: 5px;
    border-bottom-left-radius: 5px;
}

#volumeSliderDecoration {
    qproperty-imageSpacingMM: 1;
    qproperty-maxImageHeightMM: 5.0;
    qproperty-minImageHeightMM: 5.0;
    qproperty-minImage: ":volume_min";
    qproperty-maxImage: ":volume_max";
}

QSlider::groove:vertical {
    border: 1px solid #b4c800;
    width: 10px;
    border-radius: 5px;
}

QSlider:vertical {
    width: 80px;
}

QSlider::handle:vertical {
    width: 64px;
    height: 64px;
    margin-left: -32px;
    margin-right: -20px;
    margin-top: -20px;
    margin-bottom: -5px;
    background-image: url(:knob_shadow);
}

QSlider::add-page:qlineargradient:vertical {
    background: #b4c800;
    border-top-right-radius: 0px;
    border-bottom-right-radius: 5px;
    border-top-left-radius: 0px;
    border-bottom-left-radius: 5px;
}

QSlider::sub-page:qlineargradient:vertical {
    background: #c8c8c8;
    border-top-right-radius: 5px;
    border-bottom-right-radius: 0px;
    border-top-left-radius: 5px;
    border-bottom-left-radius: 0px;
}

QFrame {
    background: transparent;
}

VexoAlerMessageFrame {
    background: #f5f5f5;
}

vexo--hox--qt--ui--VexoLabel {
    background: #ebebeb;
}

vexo--hox--qt--ui--ActiveVectorButton {
    border: 0;
}

QCheckBox::indicator:unchecked {
    image: url(:/cb_unchecked);
}

QCheckBox::indicator:checked {
    image: url(:/cb_checked);
}

VexoFunctionButton:pressed {
    color: red;
}

QRadioButton::indicator:checked {
    image: url(:/rb_checked);
}

QRadioButton::indicator:unchecked {
    image: url(:/rb_unchecked);
}
