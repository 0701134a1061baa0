#pragma once

#include <string>
#include <string_view>

#include "core/ProfileDocument.h"

namespace coinlight {

// The optional support files keyed by short name. Load each once (LoadProfile) and look
// up every machine through the document.

/// `support/catver.ini`, section `Category`; "Unknown" for a machine it does not name.
std::string CategoryOf(const ProfileDocument& catver, std::string_view shortName);

/// `support/nplayers.ini`, section `NPlayers`: the Players column as it stands; "Unknown"
/// for a machine it does not name.
std::string PlayersOf(const ProfileDocument& nplayers, std::string_view shortName);

} // namespace coinlight
