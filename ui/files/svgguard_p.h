#pragma once
// SPDX-License-Identifier: MIT

#include <QByteArray>

namespace vexo::hox::qt::ui {

/// The bytes of an SVG file as text: gzip is unpacked. Empty when that fails or unpacks to more
/// than the guard lets through.
QByteArray svgText(const QByteArray &bytes);

/// Whether the renderer reads \a text within bounds of time, memory and stack that it does not set
/// itself, and opens no other file for it. Counted are elements and how deep they nest, attributes,
/// gradient stops, letters, rules of stylesheets, what uses of shapes multiply to, and embedded
/// images. One walk, which ends at the first excess. What rendering then costs depends on its size.
bool isHarmlessSvg(const QByteArray &text);

} // namespace vexo::hox::qt::ui
