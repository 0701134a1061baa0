#include "SystemColourTable.h"

#include <array>

namespace coinlight {

namespace {

constexpr auto kActive = QPalette::Active;
constexpr auto kDisabled = QPalette::Disabled;
constexpr auto kInactive = QPalette::Inactive;

constexpr std::array<SystemColour, 25> kClassic = {{
    {0, "Scroll Bars", kActive, QPalette::Midlight},
    {1, "Desktop", kActive, QPalette::Dark},
    {2, "Active Title Bar", kActive, QPalette::Highlight},
    {3, "Inactive Title Bar", kInactive, QPalette::Mid},
    {4, "Menu Bar", kActive, QPalette::Window},
    {5, "Window Background", kActive, QPalette::Base},
    {6, "Window Frame", kActive, QPalette::Shadow},
    {7, "Menu Text", kActive, QPalette::WindowText},
    {8, "Window Text", kActive, QPalette::Text},
    {9, "Active Title Bar Text", kActive, QPalette::HighlightedText},
    {10, "Active Border", kActive, QPalette::Button},
    {11, "Inactive Border", kInactive, QPalette::Button},
    {12, "Application Workspace", kActive, QPalette::Mid},
    {13, "Highlight", kActive, QPalette::Highlight},
    {14, "Highlight Text", kActive, QPalette::HighlightedText},
    {15, "Button Face", kActive, QPalette::Button},
    {16, "Button Shadow", kActive, QPalette::Dark},
    {17, "Disabled Text", kDisabled, QPalette::Text},
    {18, "Button Text", kActive, QPalette::ButtonText},
    {19, "Inactive Title Bar Text", kDisabled, QPalette::WindowText},
    {20, "Button Highlight", kActive, QPalette::Light},
    {21, "Button Dark Shadow", kActive, QPalette::Shadow},
    {22, "Button Light Shadow", kActive, QPalette::Midlight},
    {23, "ToolTip Text", kActive, QPalette::ToolTipText},
    {24, "ToolTip", kActive, QPalette::ToolTipBase},
}};

constexpr std::array<SystemColour, 3> kLater = {{
    {27, "ActiveTitleBarGradient", kActive, QPalette::AlternateBase},
    {28, "InactiveTitleBarGradient", kInactive, QPalette::AlternateBase},
    {26, "HotTracking", kActive, QPalette::Link},
}};

} // namespace

std::span<const SystemColour> ClassicSystemColours() {
    return kClassic;
}

std::span<const SystemColour> LaterSystemColours() {
    return kLater;
}

std::optional<SystemColour> FindSystemColour(unsigned index) {
    if (index < kClassic.size()) {
        return kClassic[index];
    }
    for (const SystemColour& colour : kLater) {
        if (colour.index == index) {
            return colour;
        }
    }
    return std::nullopt;
}

} // namespace coinlight
