#include "ThemeTable.h"

#include <array>
#include <cstdint>

namespace coinlight {

namespace {

constexpr Colour kButtonFace{0x8000000Fu};
constexpr Colour kActiveCaption{0x80000002u};
constexpr Colour kBlack{0x000000u};
constexpr Colour kWhite{0xFFFFFFu};
constexpr Colour kYellow{0x00FFFFu};
constexpr Colour kBlue{0xFF0000u};
constexpr Colour kGreen{0x00FF00u};

constexpr Theme Dark(std::string_view name, std::string_view title, Colour back, Colour version,
                     Colour links, Colour otherItems) {
    return {name,  title,      back,   kWhite, version,     links,
            links, otherItems, kWhite, kWhite, std::nullopt};
}

constexpr Theme Light(std::string_view name, std::string_view title, Colour back, Colour version,
                      Colour links) {
    return {name, title, back, kBlack, version, links, links, kBlack, kBlack, kBlack, std::nullopt};
}

constexpr Theme Heritage(std::string_view name) {
    return {name,  "TitleHeritage", kButtonFace, kBlack, kActiveCaption, kYellow,
            kBlue, kBlack,          kBlack,      kBlack, std::nullopt};
}

constexpr Theme WithPanel(Theme theme, Colour panel) {
    theme.panel = panel;
    return theme;
}

constexpr std::array<Theme, 15> kThemes = {
    Heritage("Heritage"),
    Heritage("Heritage II"),
    Dark("Amethyst", "TitleAmethyst", Colour{0xCC6699u}, kWhite, kYellow, kWhite),
    Dark("Black", "TitleBlack", kBlack, kWhite, kWhite, kGreen),
    Light("Bronze", "TitleBronze", Colour{0x327FCDu}, kWhite, kYellow),
    Light("Emerald", "TitleEmerald", Colour{0x337228u}, kWhite, kYellow),
    Light("Gold", "TitleGold", Colour{0x00D7FFu}, kWhite, kBlue),
    Dark("Onyx", "TitleOnyx", Colour{0x393835u}, kWhite, kWhite, kGreen),
    Light("Pearl", "TitlePearl", Colour{0xC8E0EAu}, kWhite, kBlue),
    Dark("Ruby", "TitleRuby", Colour{0x1E119Bu}, kActiveCaption, kYellow, kWhite),
    Dark("Sapphire", "TitleSapphire", Colour{0xBA520Fu}, kActiveCaption, kYellow, kWhite),
    Light("Silver", "TitleSilver", Colour{0xC0C0C0u}, kWhite, kBlue),
    Light("White", "TitleWhite", kWhite, kActiveCaption, kBlue),
    WithPanel(Dark("Windows 11 Dark", "TitleDark", Colour{0x202020u}, kWhite, kWhite, kGreen),
              Colour{0x2B2B2Bu}),
    WithPanel(Light("Windows 11 Light", "TitleLight", Colour{0xF3F3F3u}, kBlack, kBlue),
              Colour{0xFBFBFBu}),
};

} // namespace

std::span<const Theme> AllThemes() {
    return kThemes;
}

const Theme* FindTheme(std::string_view name) {
    for (const Theme& theme : kThemes) {
        if (theme.name == name) {
            return &theme;
        }
    }
    return nullptr;
}

bool IsHeritageTheme(std::string_view name) {
    return name == "Heritage" || name == "Heritage II";
}

bool ShowsStarField(std::string_view name) {
    return name == "Heritage";
}

ThemePreview PreviewOfTheme(std::string_view name, Colour listBack, Colour listText) {
    const Theme* theme = FindTheme(name);
    if (theme == nullptr) {
        theme = &kThemes.front();
    }
    ThemePreview preview;
    preview.starField = ShowsStarField(theme->name);
    preview.listBackChoice = theme->name == "Heritage II";
    preview.colourControls = preview.listBackChoice;
    const bool heritage = IsHeritageTheme(theme->name);
    preview.back = heritage ? listBack : theme->back;
    preview.text = heritage ? listText : theme->text;
    return preview;
}

bool UserListColourApplies(Colour colour) {
    return static_cast<std::int32_t>(colour.value) > 0;
}

} // namespace coinlight
