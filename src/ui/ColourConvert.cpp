#include "ColourConvert.h"

#include "theme/SystemColourTable.h"

namespace coinlight {

QColor ToQColor(Colour colour, const QPalette& palette) {
    if (colour.IsSystemColour()) {
        // An index no table knows reads as the window's colour rather than failing.
        const auto system = FindSystemColour(colour.value & 0xFFu);
        return system ? palette.color(system->group, system->role)
                      : palette.color(QPalette::Window);
    }
    const std::uint32_t value = colour.value;
    return QColor(static_cast<int>(value & 0xFFu), static_cast<int>((value >> 8) & 0xFFu),
                  static_cast<int>((value >> 16) & 0xFFu));
}

Colour FromQColor(const QColor& colour) {
    return Colour{static_cast<std::uint32_t>(colour.red()) |
                  (static_cast<std::uint32_t>(colour.green()) << 8) |
                  (static_cast<std::uint32_t>(colour.blue()) << 16)};
}

} // namespace coinlight
