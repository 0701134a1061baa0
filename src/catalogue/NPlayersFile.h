#pragma once

#include <filesystem>
#include <memory>
#include <string>
#include <string_view>

#include "core/ProfileDocument.h"

namespace coinlight {

/// `support/nplayers.ini`: the text of the Players column, "Unknown" when there is none.
class NPlayersFile {
public:
    explicit NPlayersFile(const std::filesystem::path& file);
    std::string PlayersOf(std::string_view shortName) const;

private:
    std::shared_ptr<const ProfileDocument> m_document;
};

} // namespace coinlight
