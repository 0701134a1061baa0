#include "CrcComparison.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <numeric>
#include <unordered_map>

#include "catalogue/QuotedFieldReader.h"

namespace coinlight {

namespace {

constexpr int kReadStep = 5;

/// A table of records that shrinks from the front: the live records stand at First and
/// after. Removing one moves the record at First into its place, so nothing ever shifts.
class CrcList {
public:
    explicit CrcList(std::span<const CrcEntry> entries)
        : m_entries(entries), m_order(entries.size()) {
        std::iota(m_order.begin(), m_order.end(), 0u);
    }

    std::size_t First() const { return m_first; }
    std::size_t Count() const { return m_order.size(); }
    const CrcEntry& At(std::size_t position) const { return m_entries[m_order[position]]; }

    void Remove(std::size_t position) {
        std::swap(m_order[m_first], m_order[position]);
        ++m_first;
    }

    std::vector<CrcEntry> Live() const {
        std::vector<CrcEntry> live;
        live.reserve(Count() - m_first);
        for (std::size_t position = m_first; position < Count(); ++position) {
            live.push_back(At(position));
        }
        return live;
    }

private:
    std::span<const CrcEntry> m_entries;
    std::vector<std::uint32_t> m_order;
    std::size_t m_first = 0;
};

/// A CrcList that knows where each name lies among its live records, lowest position
/// first, so that the first live match of a name is found without a scan.
class IndexedCrcList {
public:
    explicit IndexedCrcList(std::span<const CrcEntry> entries) : m_list(entries) {
        m_positions.reserve(entries.size());
        for (std::size_t position = 0; position < m_list.Count(); ++position) {
            m_positions[m_list.At(position).name].push_back(static_cast<std::uint32_t>(position));
        }
    }

    const CrcList& List() const { return m_list; }

    /// The live positions of a name, in ascending order.
    std::span<const std::uint32_t> PositionsOf(std::string_view name) const {
        const auto found = m_positions.find(name);
        return found == m_positions.end() ? std::span<const std::uint32_t>()
                                          : std::span<const std::uint32_t>(found->second);
    }

    void Remove(std::size_t position) {
        const std::size_t first = m_list.First();
        auto& removed = m_positions[m_list.At(position).name];
        removed.erase(std::find(removed.begin(), removed.end(), position));
        if (position != first) {
            // The record at First takes the removed one's place.
            auto& moved = m_positions[m_list.At(first).name];
            moved.erase(std::find(moved.begin(), moved.end(), first));
            moved.insert(std::upper_bound(moved.begin(), moved.end(), position),
                         static_cast<std::uint32_t>(position));
        }
        m_list.Remove(position);
    }

private:
    CrcList m_list;
    std::unordered_map<std::string_view, std::vector<std::uint32_t>> m_positions;
};

/// The first live record of `last` that `matches` the new record, by the scan order the
/// report has always used.
template <class Match>
std::optional<std::size_t> FirstMatch(const IndexedCrcList& last, const CrcEntry& entry,
                                      Match matches) {
    for (const std::uint32_t position : last.PositionsOf(entry.name)) {
        if (matches(last.List().At(position))) {
            return position;
        }
    }
    return std::nullopt;
}

void AppendSection(std::string& text, std::string_view heading,
                   const std::vector<CrcEntry>& entries, std::string_view none) {
    text.append(heading).append("\t\r\n\r\n");
    for (const auto& entry : entries) {
        text.append(entry.name).append("\t").append(entry.description).append("\r\n");
    }
    if (entries.empty()) {
        text.append(none).append("\r\n");
    }
}

} // namespace

CrcFile ParseCrcFile(std::string bytes) {
    CrcFile file;
    file.bytes = std::move(bytes);
    QuotedFieldReader reader(file.bytes);
    std::array<std::string_view, 3> fields;
    while (!reader.AtEnd()) {
        std::size_t filled = 0;
        if (!reader.ReadFields(fields, filled)) {
            file.error = RunTimeError{kErrorPastEnd, kPastEndText, kReadStep};
            break;
        }
        file.entries.push_back({fields[0], fields[1], fields[2]});
    }
    return file;
}

CrcChanges CompareCrcLists(std::span<const CrcEntry> newList, std::span<const CrcEntry> lastList) {
    CrcList added(newList);
    IndexedCrcList removed(lastList);
    CrcChanges changes;

    // Machines that stayed as they were leave both tables.
    for (std::size_t i = added.First(), end = added.Count(); i < end; ++i) {
        const CrcEntry& entry = added.At(i);
        const auto same = FirstMatch(
            removed, entry, [&entry](const CrcEntry& old) { return old.crcs == entry.crcs; });
        if (same) {
            added.Remove(i);
            removed.Remove(*same);
        }
    }
    // A name in both tables now is a machine whose ROMs changed.
    for (std::size_t i = added.First(), end = added.Count(); i < end; ++i) {
        const auto renamed = FirstMatch(removed, added.At(i), [](const CrcEntry&) { return true; });
        if (renamed) {
            changes.changed.push_back(removed.List().At(*renamed));
            added.Remove(i);
            removed.Remove(*renamed);
        }
    }
    changes.added = added.Live();
    changes.removed = removed.List().Live();
    return changes;
}

std::string WhatRomsChangedText(const CrcChanges& changes) {
    std::string text =
        "These ROMs have changed in this version of MAME.  BIOS or Device files are not "
        "tested.  ROMs requiring a BIOS or Device that has changed will not be listed "
        "here.\r\n\r\n\r\n";
    AppendSection(text, "Added", changes.added, "No additions found.");
    text.append("\r\n\r\n");
    AppendSection(text, "Removed", changes.removed, "No removals found.");
    text.append("\r\n\r\n");
    AppendSection(text, "Changed", changes.changed, "No changes found.");
    return text;
}

std::string ElapsedTimeText(double seconds) {
    const long whole = std::lround(seconds);
    if (whole < 60) {
        return " Elapsed Time: " + std::to_string(whole) + " Seconds";
    }
    return " Elapsed Time: " + std::to_string(std::lround(seconds / 60.0)) + " Minute(s)";
}

} // namespace coinlight
