#pragma once

#include <optional>
#include <span>

#include <QPalette>

namespace coinlight {

/// One of the system colours a stored colour may name (its index with the top bit set).
/// There is no system palette of that kind here: each index stands for the role of the
/// running style's palette that plays the same part.
struct SystemColour {
    unsigned index;
    const char* name;
    QPalette::ColorGroup group;
    QPalette::ColorRole role;
};

/// The 25 classic system colours, by index, as a colour chooser lists them.
std::span<const SystemColour> ClassicSystemColours();

/// The three later ones (hot tracking, the two caption gradients), in the order the
/// gradient chooser adds them.
std::span<const SystemColour> LaterSystemColours();

/// The entry of an index, or nothing for one no table knows.
std::optional<SystemColour> FindSystemColour(unsigned index);

} // namespace coinlight
