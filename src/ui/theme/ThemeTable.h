#pragma once

#include <optional>
#include <span>
#include <string_view>

#include "core/ValueText.h"

namespace coinlight {

/// The colouring of the main window under one theme. Colours are as the preferences keep
/// them: 0xBBGGRR, or a system colour index with the top bit set.
struct Theme {
    std::string_view name;
    std::string_view titleImage; // key of the strip drawn at the top of the window
    Colour back;                 // the window and every control the theme reaches
    Colour text;                 // their text
    Colour version;              // lblVersion
    Colour menuLinks;            // lblMLinks
    Colour otherLinks;           // lblBLinks and the controller-map link
    Colour otherItems;           // the rows of the other list that are not red
    Colour otherList;            // the other list's own text colour
    Colour richText;             // the report page's text
    /// The lists and the details strip of the two Windows 11 themes.
    std::optional<Colour> panel;
};

/// Every theme, in the order the Options dialog offers them.
std::span<const Theme> AllThemes();

/// The theme of that name, or nothing for a name no release knows.
const Theme* FindTheme(std::string_view name);

/// "Heritage" and "Heritage II": raised controls, the title gradient, the user's list colours.
bool IsHeritageTheme(std::string_view name);

/// Only the first of the two heritage themes shows the star field behind the lists.
bool ShowsStarField(std::string_view name);

/// The user's list text colour is taken only when greater than 0 as a signed 32-bit value:
/// black and every system colour leave the theme's text colour in place.
bool UserListColourApplies(Colour colour);

/// What the Options dialog's sample of the lists shows for a theme, and which of its colour
/// controls the user may touch.
struct ThemePreview {
    bool starField = false;      // imgStarfield
    bool listBackChoice = false; // odclListBackColor shown and enabled
    bool colourControls = false; // its caption, the font colour's and cmdFontColor enabled
    Colour back;                 // lblListBack
    Colour text;                 // lblListText
};

/// The heritage themes show the user's list colours; the others their own back and text.
/// An unknown theme previews as the first.
ThemePreview PreviewOfTheme(std::string_view name, Colour listBack, Colour listText);

inline constexpr const char* kUnknownThemeTitle = "Theme";
inline constexpr const char* kUnknownThemeMessage =
    "Unable to find theme.  Perhaps the theme you were using has been depreciated.  Coinlight "
    "will now exit.  Please start Coinlight again so the option.ini file can be recreated.";

} // namespace coinlight
