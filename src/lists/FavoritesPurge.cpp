// The refresh of a favourites file from a new catalogue. The catalogue is read once, line by
// line, and each line's name looked up among the favourites': some 45,000 lookups that
// nearly all miss, so they must cost next to nothing.
#include <algorithm>
#include <array>
#include <cstdint>

#include "Favorites.h"
#include "QuotedLine.h"
#include "ShortNameHash.h"
#include "core/BigMemory.h"
#include "core/CommandLine.h"
#include "core/LineReader.h"
#include "core/TextCase.h"
#include "core/TextFile.h"

namespace coinlight {

namespace {

/// The favourites' names, lower-cased, in an open table that is looked up without copying
/// the name looked for. A slot keeps part of its name's hash, so that a miss, which is what
/// nearly every catalogue line is, seldom touches a name.
class WantedNames {
public:
    explicit WantedNames(const std::vector<std::string>& names) {
        std::size_t slots = 16;
        while (slots < names.size() * 4) {
            slots *= 2;
        }
        m_slots.assign(slots, Slot{});
        m_mask = slots - 1;
        for (const auto& name : names) {
            const std::string lowered = ToLowerAscii(name);
            if (Find(lowered) < 0) {
                const std::size_t hash = ShortNameHash()(lowered);
                std::size_t slot = hash & m_mask;
                while (m_slots[slot].index >= 0) {
                    slot = (slot + 1) & m_mask;
                }
                m_slots[slot] = {Fingerprint(hash), static_cast<std::int32_t>(m_lowered.size())};
                m_lowered.push_back(lowered);
            }
        }
    }

    std::size_t Count() const { return m_lowered.size(); }

    /// The number of a name, compared without case; -1 for one not wanted.
    int Find(std::string_view name) const {
        std::array<char, 32> buffer;
        std::string longer;
        std::string_view lowered;
        if (name.size() <= buffer.size()) {
            std::transform(name.begin(), name.end(), buffer.begin(), LowerAscii);
            lowered = std::string_view(buffer.data(), name.size());
        } else {
            longer = ToLowerAscii(name);
            lowered = longer;
        }
        const std::size_t hash = ShortNameHash()(lowered);
        const std::uint32_t fingerprint = Fingerprint(hash);
        for (std::size_t slot = hash & m_mask;; slot = (slot + 1) & m_mask) {
            const Slot& here = m_slots[slot];
            if (here.index < 0) {
                return -1;
            }
            if (here.fingerprint == fingerprint &&
                m_lowered[static_cast<std::size_t>(here.index)] == lowered) {
                return here.index;
            }
        }
    }

private:
    struct Slot {
        std::uint32_t fingerprint = 0;
        std::int32_t index = -1;
    };

    static std::uint32_t Fingerprint(std::size_t hash) {
        return static_cast<std::uint32_t>(static_cast<std::uint64_t>(hash) >> 32);
    }

    std::vector<std::string> m_lowered;
    std::vector<Slot> m_slots;
    std::size_t m_mask = 0;
};

/// The name of a line as the favourites routines read it: field 12 of a record, else the
/// line's first field, which is the whole of an old release's line.
std::string_view NameOfLine(std::string_view line, std::string& scratch) {
    if (const auto name = QuotedShortName(line)) {
        return *name;
    }
    scratch = FavoriteShortName(SplitFavoriteLine(line));
    return scratch;
}

/// The short names of a favourites file's lines, in order; lines that name nothing are
/// passed over. Only the name is read of a record: the new record comes from the catalogue.
std::vector<std::string> FavoriteNames(const std::filesystem::path& file) {
    std::vector<std::string> names;
    LineReader reader(file);
    std::string_view line;
    while (reader.Next(line)) {
        const auto name = QuotedShortName(line);
        if (name && IsShortName(ToLowerAscii(*name))) {
            names.emplace_back(*name);
        } else if (!name && NamesAMachine(line)) {
            names.push_back(FavoriteShortName(SplitFavoriteLine(line)));
        }
    }
    return names;
}

/// The first line of each wanted name in the catalogue's text; a name not found has none.
std::vector<std::string_view> FindCatalogueLines(std::string_view catalogue,
                                                 const WantedNames& wanted) {
    std::vector<std::string_view> lines(wanted.Count());
    std::string scratch;
    for (std::size_t at = 0; at < catalogue.size();) {
        std::size_t end = catalogue.find('\n', at);
        const std::size_t next = end == std::string_view::npos ? catalogue.size() : end + 1;
        end = end == std::string_view::npos ? catalogue.size() : end;
        if (end > at && catalogue[end - 1] == '\r') {
            --end;
        }
        const std::string_view line = catalogue.substr(at, end - at);
        at = next;
        const int index = wanted.Find(NameOfLine(line, scratch));
        if (index >= 0 && lines[static_cast<std::size_t>(index)].data() == nullptr) {
            lines[static_cast<std::size_t>(index)] = line;
        }
    }
    return lines;
}

FavoritesMessage RemovedMessage(std::string_view word) {
    return {"Verify Favorites",
            "At least one machine was removed from your favorites list because there were "
            "changes to it in this version of MAME.  You can see a list of the machines removed "
            "by selecting Favorite " +
                std::string(word) + " Machine Changes from the Reports pull-down menu.",
            true};
}

FavoritesMessage EmptiedMessage(std::string_view word) {
    return {"Verify Favorites",
            "Your favorite " + std::string(word) +
                " Machine list is now empty.  Coinlight will now load the full " +
                std::string(word) + " Machine list.",
            false};
}

/// Adds the names to the end of the changes report, which only ever grows.
bool AppendChanges(const std::filesystem::path& file, const std::vector<std::string>& names,
                   std::string& error) {
    std::string changes = ReadFileBytes(file).value_or(std::string());
    if (!changes.empty() && !changes.ends_with('\n')) {
        changes.append("\r\n");
    }
    for (const auto& name : names) {
        changes.append(name);
        changes.append("\r\n");
    }
    return WriteFileBytes(file, changes, &error);
}

} // namespace

PurgeOutcome PurgeFavorites(const std::filesystem::path& favoritesFile,
                            const std::filesystem::path& infoFile,
                            const std::filesystem::path& changesFile, std::string_view word) {
    PurgeOutcome outcome;
    if (!std::filesystem::exists(favoritesFile)) {
        return outcome;
    }
    const std::vector<std::string> names = FavoriteNames(favoritesFile);
    const WantedNames wanted(names);
    // Read whole, so that the kept lines are taken from its bytes without a copy of each.
    const auto catalogue = ReadFileBig(infoFile);
    const std::vector<std::string_view> found =
        FindCatalogueLines(catalogue ? catalogue->View() : std::string_view(), wanted);
    std::string kept;
    std::vector<std::string> removed;
    for (const auto& name : names) {
        const std::string_view line = found[static_cast<std::size_t>(wanted.Find(name))];
        if (line.data() != nullptr) {
            kept.append(line);
            kept.append("\r\n");
        } else {
            removed.push_back(name);
        }
    }
    if (!removed.empty()) {
        if (!AppendChanges(changesFile, removed, outcome.error)) {
            return outcome;
        }
        outcome.removedAny = true;
        outcome.messages.push_back(RemovedMessage(word));
    }
    if (!kept.empty()) {
        WriteFileBytes(favoritesFile, kept, &outcome.error);
        return outcome;
    }
    std::error_code removeError;
    std::filesystem::remove(favoritesFile, removeError);
    if (removeError) {
        outcome.error = "Cannot delete " + favoritesFile.string() + ": " + removeError.message();
        return outcome;
    }
    outcome.nowEmpty = true;
    outcome.messages.push_back(EmptiedMessage(word));
    return outcome;
}

} // namespace coinlight
