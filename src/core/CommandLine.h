#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

namespace coinlight {

/// A path in double quotes with `\`, `"`, `$` and backquote escaped, so that the shell
/// reads it literally whatever it holds.
std::string QuotePath(std::string_view path);

/// Machine and software short names as MAME makes them: `[a-z0-9_]+`. Anything else from a
/// catalogue file is refused before it can reach the shell.
bool IsShortName(std::string_view name);

/// A software requirement or device switch, which may also hold ':'.
bool IsShortNameWithColons(std::string_view name);

/// Builds the one shell line of a MAME run. Paths are quoted and keep their case; words,
/// short names and the user's own text may be lower-cased without touching a path. A short
/// name that fails its test makes the whole line invalid.
class CommandLine {
public:
    /// Starts the line with the quoted full path of the emulator.
    CommandLine(const std::filesystem::path& mameFolder, std::string_view executable);

    CommandLine& Word(std::string_view word);
    CommandLine& Path(const std::filesystem::path& path);
    CommandLine& ShortName(std::string_view name);
    /// What the user typed ("Other Commands"), appended as it stands.
    CommandLine& UserText(std::string_view text);
    CommandLine& RedirectOutput(const std::filesystem::path& file);
    CommandLine& RedirectError(const std::filesystem::path& file);

    bool IsValid() const { return m_valid; }
    /// The line for the shell; empty when the line is invalid.
    std::string Text() const;
    /// Text() with everything but the quoted paths lower-cased.
    std::string LowerCasedText() const;

private:
    struct Piece {
        std::string separator; // never lower-cased, never part of a path
        std::string text;
        bool isPath = false;
    };
    CommandLine& Add(std::string separator, std::string text, bool isPath);
    std::string Join(bool lowerCase) const;

    std::vector<Piece> m_pieces;
    bool m_valid = true;
};

} // namespace coinlight
