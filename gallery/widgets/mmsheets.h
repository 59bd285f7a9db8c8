#pragma once

class QColor;
class QString;

/// Sheets that give a parent's children in millimetres what the panel's sheets give in pixels.

/// Level sliders as high as those of a VexoSliderDecoration.
QString sliderSheet();
/// The indicators of check boxes and radio buttons, and the colour of their \a text.
QString indicatorSheet(const QColor &text);
