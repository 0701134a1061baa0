#include "CrcComparison.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <numeric>

#include "catalogue/QuotedFieldReader.h"
#include "lists/ShortNameHash.h"

namespace coinlight {

namespace {

constexpr int kReadStep = 5;

/// A table of records that shrinks from the front: the live records stand at First and
/// after. Removing one moves the record at First into its place, so nothing ever shifts.
/// It also knows where each record stands, for the index below.
class CrcList {
public:
    explicit CrcList(std::span<const CrcEntry> entries)
        : m_entries(entries), m_order(entries.size()), m_position(entries.size()) {
        std::iota(m_order.begin(), m_order.end(), 0u);
        std::iota(m_position.begin(), m_position.end(), 0u);
    }

    std::size_t First() const { return m_first; }
    std::size_t Count() const { return m_order.size(); }
    const CrcEntry& At(std::size_t position) const { return m_entries[m_order[position]]; }
    std::span<const CrcEntry> Entries() const { return m_entries; }
    /// Where a record (by its index in the file) stands now; below First it is removed.
    std::size_t PositionOf(std::uint32_t record) const { return m_position[record]; }

    void Remove(std::size_t position) {
        std::swap(m_order[m_first], m_order[position]);
        m_position[m_order[m_first]] = static_cast<std::uint32_t>(m_first);
        m_position[m_order[position]] = static_cast<std::uint32_t>(position);
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
    std::vector<std::uint32_t> m_order;    // position -> record
    std::vector<std::uint32_t> m_position; // record -> position
    std::size_t m_first = 0;
};

/// The records of a list by name: an open-addressed table of the first record of each
/// name, the others of the same name chained behind it. Built once; removals need no
/// update, since the list tells where each record stands.
class NameIndex {
public:
    static constexpr std::uint32_t kNone = 0xFFFFFFFFu;

    explicit NameIndex(std::span<const CrcEntry> entries) : m_entries(entries) {
        std::size_t capacity = 16;
        while (capacity < entries.size() * 2) {
            capacity *= 2;
        }
        m_slots.assign(capacity, kNone);
        m_next.assign(entries.size(), kNone);
        std::vector<std::uint32_t> last(entries.size(), kNone); // the chain's end, by its head
        for (std::uint32_t record = 0; record < entries.size(); ++record) {
            std::uint32_t& slot = m_slots[SlotOf(entries[record].name, entries[record].nameHash)];
            if (slot == kNone) {
                slot = record;
                last[record] = record;
            } else {
                m_next[last[slot]] = record;
                last[slot] = record;
            }
        }
    }

    /// The first record of a name, then the next with Next; kNone at the end.
    std::uint32_t First(const CrcEntry& entry) const {
        return m_slots[SlotOf(entry.name, entry.nameHash)];
    }
    std::uint32_t Next(std::uint32_t record) const { return m_next[record]; }

private:
    /// The slot of a name, or the empty one where it would go.
    std::size_t SlotOf(std::string_view name, std::size_t hash) const {
        const std::size_t mask = m_slots.size() - 1;
        for (std::size_t at = hash & mask;; at = (at + 1) & mask) {
            const std::uint32_t slot = m_slots[at];
            if (slot == kNone ||
                (m_entries[slot].nameHash == hash && m_entries[slot].name == name)) {
                return at;
            }
        }
    }

    std::span<const CrcEntry> m_entries;
    std::vector<std::uint32_t> m_slots;
    std::vector<std::uint32_t> m_next;
};

/// The first live record of `last` that `matches` the new record, in the order a scan from
/// First would meet it.
template <class Match>
std::optional<std::size_t> FirstMatch(const CrcList& last, const NameIndex& names,
                                      const CrcEntry& entry, Match matches) {
    std::optional<std::size_t> first;
    for (std::uint32_t record = names.First(entry); record != NameIndex::kNone;
         record = names.Next(record)) {
        const std::size_t position = last.PositionOf(record);
        if (position >= last.First() && (!first || position < *first) &&
            matches(last.Entries()[record])) {
            first = position;
        }
    }
    return first;
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

CrcEntry CrcEntry::Of(std::string_view name, std::string_view description, std::string_view crcs) {
    return {name, description, crcs, ShortNameHash{}(name)};
}

CrcRecords ParseCrcRecords(std::string_view text) {
    CrcRecords records;
    // MAME's records are some 300 bytes long: enough room for a real file at once.
    records.entries.reserve(text.size() / 256 + 16);
    QuotedFieldReader reader(text);
    std::array<std::string_view, 3> fields;
    while (!reader.AtEnd()) {
        std::size_t filled = 0;
        if (!reader.ReadFields(fields, filled)) {
            records.error = RunTimeError{kErrorPastEnd, kPastEndText, kReadStep};
            break;
        }
        records.entries.push_back(CrcEntry::Of(fields[0], fields[1], fields[2]));
    }
    return records;
}

CrcChanges CompareCrcLists(std::span<const CrcEntry> newList, std::span<const CrcEntry> lastList) {
    CrcList added(newList);
    CrcList removed(lastList);
    const NameIndex names(lastList);
    CrcChanges changes;

    // Machines that stayed as they were leave both tables.
    for (std::size_t i = added.First(), end = added.Count(); i < end; ++i) {
        const CrcEntry& entry = added.At(i);
        const auto same = FirstMatch(removed, names, entry, [&entry](const CrcEntry& old) {
            return old.crcs == entry.crcs;
        });
        if (same) {
            added.Remove(i);
            removed.Remove(*same);
        }
    }
    // A name in both tables now is a machine whose ROMs changed.
    for (std::size_t i = added.First(), end = added.Count(); i < end; ++i) {
        const auto renamed =
            FirstMatch(removed, names, added.At(i), [](const CrcEntry&) { return true; });
        if (renamed) {
            changes.changed.push_back(removed.At(*renamed));
            added.Remove(i);
            removed.Remove(*renamed);
        }
    }
    changes.added = added.Live();
    changes.removed = removed.Live();
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
