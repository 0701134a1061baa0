#include "ColourConvert.h"

namespace coinlight {

namespace {

QPalette::ColorRole SystemRole(std::uint32_t index) {
    switch (index) {
    case 2: // active caption
    case 27:
        return QPalette::Highlight;
    case 5: // window background
        return QPalette::Base;
    case 8: // window text
        return QPalette::Text;
    case 15: // button face
        return QPalette::Button;
    case 16: // button shadow
        return QPalette::Dark;
    case 26: // hot-tracked item
        return QPalette::Link;
    case 28:
        return QPalette::Midlight;
    default:
        return QPalette::Window;
    }
}

} // namespace

QColor ToQColor(Colour colour, const QPalette& palette) {
    if (colour.IsSystemColour()) {
        return palette.color(SystemRole(colour.value & 0xFFu));
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
