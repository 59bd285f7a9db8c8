vexo--hox--qt--ui--VexoDesignVectorButton {
    background: rgb(245, 245, 245);
}

vexo--hox--qt--ui--VexoCenteredVectorButton {
    background: rgb(245, 245, 245);
}

vexo--hox--qt--ui--VexoLabel {
    background: rgb(235, 235, 235);
}

vexo--hox--qt--ui--VexoLabeledContainer:active {
    background: rgb(245, 245, 245);
}

vexo--hox--qt--ui--VexoLineEdit {
    background: rgb(245, 245, 245);
}

vexo--hox--qt--ui--VexoPushButton {
    background: rgb(245, 245, 245);
}

vexo--hox--qt--ui--VexoVerticalButtonScrollArea [objectName^="letterButton"] {
    color: white;
    border: none;
    outline: none;
}

vexo--hox--qt--ui--VexoVerticalButtonScrollArea [objectName^="upButton"] {
    border: none;
    outline: none;
}

vexo--hox--qt--ui--VexoVerticalButtonScrollArea [objectName^="downButton"] {
    border: none;
    outline: none;
}
