#pragma once

#include <filesystem>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "ProfileDocument.h"

namespace coinlight {

/// Longest value a read gives back; a longer one is cut (the classic 4096-byte buffer).
inline constexpr std::size_t kProfileValueLimit = 4095;

/// The parsed file, shared by every reader until the file changes: a write through these
/// functions or a new size, time or identity on disk. A missing or unreadable file reads
/// as an empty document. A loop that reads many keys holds the document and reads through
/// it: every load looks at the file on disk, which costs more than a lookup.
std::shared_ptr<const ProfileDocument> LoadProfile(const std::filesystem::path& file);

/// Drops the parsed copy of a file (to free memory after a one-off bulk read).
void ForgetProfile(const std::filesystem::path& file);

std::string ReadProfileValue(const std::filesystem::path& file, std::string_view section,
                             std::string_view key, std::string_view defaultValue);
/// The same read on a document already loaded.
std::string ReadProfileValue(const ProfileDocument& document, std::string_view section,
                             std::string_view key, std::string_view defaultValue);
std::string ReadProfileValue(const std::filesystem::path& file, std::string_view section,
                             std::string_view key, long long defaultValue);

/// Sets a key, replacing its line in place or adding it at the end of its section; CR and
/// LF in the value become blanks. The file is replaced atomically.
bool WriteProfileValue(const std::filesystem::path& file, std::string_view section,
                       std::string_view key, std::string_view value, std::string* error = nullptr);
bool DeleteProfileKey(const std::filesystem::path& file, std::string_view section,
                      std::string_view key, std::string* error = nullptr);
bool DeleteProfileSection(const std::filesystem::path& file, std::string_view section,
                          std::string* error = nullptr);
/// Keeps the section's header and removes its keys.
bool ClearProfileSection(const std::filesystem::path& file, std::string_view section,
                         std::string* error = nullptr);

/// Puts one empty line before every section header but the first, cuts the file at its
/// first NUL byte, and ends every line with CR LF.
bool INISpacing(const std::filesystem::path& file, std::string* error = nullptr);

/// Several changes to one file written in one atomic replace, for writers that set many
/// keys in a row (the view state at exit). The outcome is that of the same writes made one
/// by one.
class ProfileEditor {
public:
    explicit ProfileEditor(std::filesystem::path file);

    void Set(std::string_view section, std::string_view key, std::string_view value);
    void RemoveKey(std::string_view section, std::string_view key);
    void ClearSection(std::string_view section);

    /// Writes the file; with `spacing` also does what INISpacing does.
    bool Commit(bool spacing, std::string* error = nullptr);

private:
    std::filesystem::path m_file;
    std::shared_ptr<const ProfileDocument> m_document;
    bool m_changed = false;
};

/// The INISpacing rule on text: returns the lines to write.
std::vector<std::string> SpacedLines(std::string_view bytes);

} // namespace coinlight
