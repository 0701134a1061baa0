#include "MachineLookups.h"

#include "core/ProfileFile.h"

namespace coinlight {

std::string CategoryOf(const ProfileDocument& catver, std::string_view shortName) {
    return ReadProfileValue(catver, "Category", shortName, "Unknown");
}

std::string PlayersOf(const ProfileDocument& nplayers, std::string_view shortName) {
    return ReadProfileValue(nplayers, "NPlayers", shortName, "Unknown");
}

} // namespace coinlight
