#include "Preferences.h"

namespace coinlight {

bool CheckFilters(const Preferences& preferences) {
    const auto listFilters = [](const std::vector<FilterEntry>& list) {
        return !list.empty() && !list.front().name.empty();
    };
    const OtherPreferences& other = preferences.other;
    return listFilters(preferences.biosFilter) || listFilters(preferences.categoryFilter) ||
           other.hideArcadeClones || other.hideOtherClones || other.hidePreliminary ||
           other.hideVs || other.hideYear || other.hideBootleg || other.hideChd ||
           other.hideImperfect;
}

} // namespace coinlight
