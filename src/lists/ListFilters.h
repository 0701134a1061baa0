#pragma once

#include <string>
#include <unordered_set>
#include <vector>

#include "MachineRow.h"
#include "ShortNameHash.h"
#include "core/Preferences.h"

namespace coinlight {

/// What the filters of one family of machines hide, made ready to compare once per load.
struct ListFilterSettings {
    std::vector<std::string> biosSets;   // lower case: the part after ": " of each entry
    std::vector<std::string> categories; // lower case
    bool hideClones = false;
    bool hidePreliminary = false;
    bool hideVs = false;
    bool hideYear = false;
    bool hideBootleg = false;
    bool hideChd = false;
    bool hideImperfect = false;
    std::string year;

    static ListFilterSettings ForArcade(const Preferences& preferences);
    /// Other machines know only the BIOS, category, clone and CHD filters.
    static ListFilterSettings ForOther(const Preferences& preferences);
};

/// Decides, record by record in file order, what the filters hide. It remembers the
/// machines hidden through a BIOS, so that a machine whose BIOS set was itself hidden
/// earlier in the file goes too.
class MachineFilter {
public:
    explicit MachineFilter(ListFilterSettings settings);

    bool Hides(const std::array<std::string_view, kRecordFieldCount>& fields);

private:
    bool HidesByBios(std::string_view romOf, std::string_view shortName);

    ListFilterSettings m_settings;
    std::unordered_set<std::string, ShortNameHash, std::equal_to<>> m_skipList;
};

} // namespace coinlight
