#pragma once

#include <cstdint>
#include <filesystem>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "InfoError.h"

namespace coinlight {

/// How much an archive may ask of us before it is refused. A cheat file of one machine is
/// a few hundred kilobytes and the whole cheat collection some tens of thousands of
/// entries; anything far beyond is damaged or hostile.
struct ArchiveLimits {
    std::uint64_t archiveBytes = 1ull << 30; // the archive file itself
    std::uint64_t entryBytes = 64ull << 20;  // one extracted entry
    std::uint64_t passedBytes = 4ull << 30;  // entries decoded on the way to the wanted ones
    std::uint64_t entryCount = 2'000'000;
};

/// The names of an archive's entries with their inner paths, in archive order.
struct ArchiveListing {
    std::vector<std::string> names;
    std::optional<InfoError> error;
};
ArchiveListing ListArchiveEntries(const std::filesystem::path& archive,
                                  const ArchiveLimits& limits = {});

/// The entry's name with the inner path dropped: what extraction calls the file. Nothing
/// for a name that leaves no file name of its own ("dir/", "..", "a/.").
std::optional<std::string> ExtractedName(std::string_view entryName);

/// Extracts the first file entry that `wanted` accepts into `folder`, its inner path
/// dropped, so that nothing is ever written outside it; a symbolic link waiting there is
/// not followed. Names are given to `wanted` with `/` as the separator, whichever one the
/// archive used. An error leaves no half-written file behind; no match is no error.
using EntrySelector = std::function<bool(std::string_view name)>;
std::optional<InfoError> ExtractArchiveEntry(const std::filesystem::path& archive,
                                             const EntrySelector& wanted,
                                             const std::filesystem::path& folder,
                                             const ArchiveLimits& limits = {});

} // namespace coinlight
