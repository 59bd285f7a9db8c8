#pragma once

#include <QByteArray>

namespace vexo::hox::qt::ui {

/// The bytes of an SVG file as text: gzip is unpacked. Empty when that fails or unpacks to more
/// than 64 MB.
QByteArray svgText(const QByteArray &bytes);

/// Whether rendering \a text stays within bounds of time and memory that the renderer does not set
/// itself. Refused are images that are not embedded, embedded images of more than 64 Mpx together,
/// and uses of shapes that multiply through several levels.
bool isHarmlessSvg(const QByteArray &text);

} // namespace vexo::hox::qt::ui
