#include "NPlayersFile.h"

#include "core/ProfileFile.h"

namespace coinlight {

NPlayersFile::NPlayersFile(const std::filesystem::path& file) : m_document(LoadProfile(file)) {}

std::string NPlayersFile::PlayersOf(std::string_view shortName) const {
    return ReadProfileValue(*m_document, "NPlayers", shortName, "Unknown");
}

} // namespace coinlight
