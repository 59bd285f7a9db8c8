// SPDX-License-Identifier: MIT
#include "ui/foundation/viewport_p.h"

#include <new>

namespace vexo::hox::qt::ui {

namespace {

// What a viewport that is gone leaves at its address.
struct Block
{
    Block *next;
};

Block *free_blocks = nullptr;

} // namespace

Viewport::Viewport()
{
    setObjectName(QStringLiteral("qt_scrollarea_viewport")); // the toolkit's name, for stylesheets
    setAutoFillBackground(true);
}

void *Viewport::operator new(std::size_t size)
{
    if (!free_blocks)
        return ::operator new(size);
    Block *block = free_blocks;
    free_blocks = block->next;
    return block;
}

void Viewport::operator delete(void *block)
{
    free_blocks = new (block) Block{ free_blocks };
}

} // namespace vexo::hox::qt::ui
