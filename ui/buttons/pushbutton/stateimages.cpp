// SPDX-License-Identifier: MIT
#include "ui/buttons/pushbutton/stateimages_p.h"

#include <stdexcept>

namespace vexo::hox::qt::ui {

ButtonState imageState(bool is_hidden, bool is_enabled, bool is_down)
{
    if (is_hidden)
        return Hidden;
    if (!is_enabled)
        return Inactive;
    return is_down ? Clicked : Standard;
}

const CachedVectorIcon &renderImage(
    StateImages *images, const QString &path, const QSizeF &mm, ButtonState state)
{
    const CachedVectorIcon image(path, mm);
    images->remove(state); // an assignment would keep the earlier rendering beside the new one
    return images->insert(state, image).value();
}

CachedVectorIcon &imageOf(StateImages *images, ButtonState state)
{
    for (const ButtonState wanted : { state, Standard }) {
        const auto image = images->find(wanted);
        if (image != images->end())
            return image.value();
    }
    throw std::logic_error("No standard icon for VexoPushButton set");
}

const QIcon *shownImage(StateImages *images, ButtonState state)
{
    const bool has_only_hidden = images->size() == 1 && images->firstKey() == Hidden;
    if (images->isEmpty() || (has_only_hidden && state != Hidden))
        return nullptr;
    return &imageOf(images, state);
}

} // namespace vexo::hox::qt::ui
