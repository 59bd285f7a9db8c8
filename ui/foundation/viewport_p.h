#pragma once
// SPDX-License-Identifier: MIT

#include <QWidget>

#include <cstddef>

namespace vexo::hox::qt::ui {

/// The viewport of a scroll area, as the toolkit makes it. Under a stylesheet the toolkit notes
/// something for each viewport that it paints, by its address, and never forgets it; so addresses
/// are used again, and what is noted grows no further than to the most areas that there were.
class Viewport : public QWidget
{
public:
    Viewport();

    static void *operator new(std::size_t size);
    static void operator delete(void *block);
};

} // namespace vexo::hox::qt::ui
