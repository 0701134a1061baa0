#include "ColourList.h"

#include <array>
#include <vector>

#include <QPainter>
#include <QPixmap>

#include "SystemColourTable.h"
#include "ui/ColourConvert.h"

namespace coinlight {

namespace {

constexpr Colour System(unsigned index) {
    return Colour{0x80000000u | index};
}

std::vector<NamedColour> SystemEntries(std::span<const SystemColour> table) {
    std::vector<NamedColour> entries;
    for (const SystemColour& colour : table) {
        entries.push_back({colour.name, System(colour.index)});
    }
    return entries;
}

constexpr std::array<NamedColour, 18> kPlainColours = {{
    {"White", Colour{0xFFFFFFu}},
    {"Black", Colour{0x000000u}},
    {"Silver", Colour{0xC0C0C0u}},
    {"Grey", Colour{0x808080u}},
    {"Ivory", Colour{0xF0FFFFu}},
    {"Cream", Colour{0xD0F0FFu}},
    {"Pale Green", Colour{0xD0F0D0u}},
    {"Pale Blue", Colour{0xFAE6D8u}},
    {"Lavender", Colour{0xFAE6E6u}},
    {"Navy", Colour{0x800000u}},
    {"Blue", Colour{0xFF0000u}},
    {"Teal", Colour{0x808000u}},
    {"Green", Colour{0x008000u}},
    {"Olive", Colour{0x008080u}},
    {"Maroon", Colour{0x000080u}},
    {"Purple", Colour{0x800080u}},
    {"Midnight", Colour{0x401A0Au}},
    {"Charcoal", Colour{0x2B2B2Bu}},
}};

} // namespace

std::span<const NamedColour> ListBackColours() {
    static const std::vector<NamedColour> entries = [] {
        std::vector<NamedColour> all = SystemEntries(ClassicSystemColours());
        all.insert(all.end(), kPlainColours.begin(), kPlainColours.end());
        return all;
    }();
    return entries;
}

std::span<const NamedColour> GradientColours() {
    static const std::vector<NamedColour> entries = [] {
        std::vector<NamedColour> all = SystemEntries(ClassicSystemColours());
        const auto later = SystemEntries(LaterSystemColours());
        all.insert(all.end(), later.begin(), later.end());
        return all;
    }();
    return entries;
}

int IndexOfColour(std::span<const NamedColour> colours, Colour colour) {
    for (std::size_t index = 0; index < colours.size(); ++index) {
        if (colours[index].colour == colour) {
            return static_cast<int>(index);
        }
    }
    return -1;
}

void FillColourCombo(QComboBox& combo, std::span<const NamedColour> colours) {
    combo.clear();
    const QPalette palette = combo.palette();
    const int side = combo.fontMetrics().height();
    for (const NamedColour& entry : colours) {
        QPixmap swatch(side * 2, side);
        swatch.fill(ToQColor(entry.colour, palette));
        QPainter frame(&swatch);
        frame.setPen(palette.color(QPalette::Text));
        frame.drawRect(swatch.rect().adjusted(0, 0, -1, -1));
        frame.end();
        combo.addItem(
            QIcon(swatch),
            QString::fromUtf8(entry.name.data(), static_cast<qsizetype>(entry.name.size())),
            QVariant::fromValue(entry.colour.value));
    }
    combo.setIconSize(QSize(side * 2, side));
}

Colour ColourAt(const QComboBox& combo, int index) {
    return Colour{combo.itemData(index).value<std::uint32_t>()};
}

} // namespace coinlight
