#pragma once
// SPDX-License-Identifier: MIT

#include <QByteArray>

namespace vexo::hox::qt::ui {

/// Memory that a bitmap takes once it is decoded, bytes, as its header promises. 0 when it is none
/// that can be read; -1 when decoding might take longer or more than that, and for a vector, which
/// could hold anything again.
qint64 decodedBytes(const QByteArray &bitmap);

} // namespace vexo::hox::qt::ui
