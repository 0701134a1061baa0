#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace coinlight {

/// What kind of control edits an option: a check box (stored as 0 or 1), a drop-down whose
/// text is stored, or a text box.
enum class OptionKind : std::uint8_t { Check, Combo, Text };

/// How a profile value becomes its mame.ini line or lines.
enum class IniRule : std::uint8_t {
    Copy,         // as read
    Lower,        // lower-cased
    FrameSkip,    // "Auto", "None" or "n Of 12" into autoframeskip and frameskip
    Speed,        // "150%" into 1.50
    Roll,         // one of five words into ror, rol, autoror, autorol
    Flip,         // one of four words into flipx, flipy (axes crossed)
    Volume,       // "-12dB" into -12
    Controller,   // "None" or a .cfg file name
    Bios,         // "Default" or a "description> name" text
    Language,     // "Default" or a folder name
    AudioLatency, // the old "1/5 To 2/5" texts into their numbers
    Screen,       // lower-cased only when it says "Auto"
    Path,         // a folder: never lower-cased
    NotWritten,   // reaches the command line instead
};

/// What a save does to the text of a control before it is written. The control itself
/// takes the result, so the screen shows what the file holds.
enum class SaveRule : std::uint8_t {
    AsIs,
    LowerCase,   // MAME reads the value without regard to case
    EmptyToZero, // an empty box means no integer scaling
    EmptyToAuto, // an empty box means MAME's own choice
    EmptyToNone, // an empty box means no shader
};

/// One emulator option as Coinlight offers it: where a profile keeps it, which control
/// edits it, its default, and the mame.ini option or options it gives.
struct OptionRow {
    std::string_view section;
    std::string_view key;
    std::string_view control;
    OptionKind kind;
    std::string_view defaultValue;
    std::string_view iniOptions; // blank-separated when one setting gives several lines
    IniRule rule;
    SaveRule save = SaveRule::AsIs;
    std::string_view tag = {}; // how messages and reports name the control, when not its key
};

/// The profile sections, in the order a profile holds them.
namespace section {
inline constexpr std::string_view kCorePerformance = "Core Performance Options";
inline constexpr std::string_view kCoreRender = "Core Render Options";
inline constexpr std::string_view kCoreRotation = "Core Rotation Options";
inline constexpr std::string_view kCoreArtwork = "Core Artwork Options";
inline constexpr std::string_view kCoreScreen = "Core Screen Options";
inline constexpr std::string_view kCoreVector = "Core Vector Options";
inline constexpr std::string_view kCoreSound = "Core Sound Options";
inline constexpr std::string_view kCoreInput = "Core Input Options";
inline constexpr std::string_view kCoreInputAutomaticEnable = "Core Input Automatic Enable Options";
inline constexpr std::string_view kCoreMisc = "Core Misc Options";
inline constexpr std::string_view kScripting = "Scripting Options";
inline constexpr std::string_view kOSDInputMapping = "OSD Input Mapping Options";
inline constexpr std::string_view kOSDInput = "OSD Input Options";
inline constexpr std::string_view kOSDPerformance = "OSD Performance Options";
inline constexpr std::string_view kOSDVideo = "OSD Video Options";
inline constexpr std::string_view kOSDPerWindowVideo = "OSD Per-Window Video Options";
inline constexpr std::string_view kOSDFullScreen = "OSD Full Screen Options";
inline constexpr std::string_view kOSDAcceleratedVideo = "OSD Accelerated Video Options";
inline constexpr std::string_view kOpenGLSpecific = "OpenGL-Specific Options";
inline constexpr std::string_view kOSDSound = "OSD Sound Options";
inline constexpr std::string_view kBGFXPostProcessing = "BGFX Post-Processing Options";
inline constexpr std::string_view kWindowsPerformance = "Windows Performance Options";
inline constexpr std::string_view kDirect3DPostProcessing = "Direct3D Post-Processing Options";
inline constexpr std::string_view kNTSCPostProcessing = "NTSC Post-Processing Options";
inline constexpr std::string_view kVectorPostProcessing = "Vector Post-Processing Options";
inline constexpr std::string_view kBloomPostProcessing = "Bloom Post-Processing Options";
inline constexpr std::string_view kFullScreen = "Full Screen Options";
inline constexpr std::string_view kInputDevice = "Input Device Options";
inline constexpr std::string_view kMiscellaneous = "Miscellaneous";
} // namespace section

/// Every option, in the order a profile holds them.
std::span<const OptionRow> OptionCatalogue();

/// The row of a profile key, found without regard to case.
std::optional<std::size_t> FindOptionByKey(std::string_view key);
/// The row whose first mame.ini option is `iniOption`.
std::optional<std::size_t> FindOptionByIniName(std::string_view iniOption);
/// The mame.ini options of a row, in the order their lines are written.
std::vector<std::string_view> IniOptionNames(const OptionRow& row);

/// The row edited by a control ("cboVideo", "txtHLSL(17)").
std::optional<std::size_t> FindOptionByControl(std::string_view control);
/// The row of a control, for names the program itself spells: a name that is no control of
/// the catalogue is a mistake in the program, and stops it.
std::size_t RowOfControl(std::string_view control);
/// How messages and the rebuild report name a row's control: its Tag, or its caption for a
/// check box. Both are the key, but for the BIOS list.
std::string_view OptionTag(const OptionRow& row);

/// A control name without its array index ("txtHLSL" for "txtHLSL(17)"), and the index
/// (nothing for a control that is no array element).
std::string_view ControlFamily(std::string_view control);
std::optional<int> ControlIndex(std::string_view control);

} // namespace coinlight
