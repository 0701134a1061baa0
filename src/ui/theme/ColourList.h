#pragma once

#include <span>
#include <string_view>

#include <QComboBox>

#include "core/ValueText.h"

namespace coinlight {

/// One entry of an owner-drawn colour list: a name and the colour it stands for.
struct NamedColour {
    std::string_view name;
    Colour colour;
};

/// What the list colour chooser offers: the system colours, then plain colours from index 25
/// on (white first, the colour the defaults choose).
std::span<const NamedColour> ListBackColours();
inline constexpr int kDefaultListBackIndex = 25;

/// What the gradient chooser offers: the system colours and the three later ones.
std::span<const NamedColour> GradientColours();

/// The entry holding `colour`, or -1.
int IndexOfColour(std::span<const NamedColour> colours, Colour colour);

/// Fills a combo box with the colours, each with a swatch, and the colour as its data.
void FillColourCombo(QComboBox& combo, std::span<const NamedColour> colours);
Colour ColourAt(const QComboBox& combo, int index);

} // namespace coinlight
