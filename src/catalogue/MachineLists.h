#pragma once

#include <filesystem>
#include <optional>
#include <string_view>
#include <variant>

#include "NameList.h"
#include "RunTimeError.h"

namespace coinlight {

/// The two lines of `lists.txt` that decide where a machine belongs.
struct MachineLists {
    NameList arcade;
    NameList other;

    enum class Placement { Arcade, Other, Unlisted };

    /// A machine in both lines is Other.
    Placement Place(std::string_view shortName) const {
        if (other.Contains(shortName)) {
            return Placement::Other;
        }
        return arcade.Contains(shortName) ? Placement::Arcade : Placement::Unlisted;
    }
};

/// Reads `lists.txt`: the line after the first line "Arcade" is the arcade list, the line
/// after the next line "Other" the other list; whatever stands before, between or after is
/// not looked at. A file that ends before both are found is a read past its end.
std::variant<MachineLists, RunTimeError> ReadListsFile(const std::filesystem::path& file);

/// The same on text in memory.
std::variant<MachineLists, RunTimeError> ParseListsText(std::string_view text);

} // namespace coinlight
