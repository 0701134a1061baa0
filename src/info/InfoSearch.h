#pragma once

#include <filesystem>
#include <string>

#include "CheatArchive.h"
#include "InfoSelection.h"

namespace coinlight {

/// One click on a source of the information panel.
struct InfoSearchRequest {
    std::string source; // the name as listed
    std::filesystem::path mameFolder;
    std::filesystem::path supportFolder;
    std::filesystem::path tempFolder;
    InfoSelection selection;
    ArchiveLimits limits;
};

/// What the panel shows: the source's name in lower case as a bold header line, two empty
/// lines and what the search found; or, after a failure, the error alone and nothing bold.
struct InfoPanel {
    std::string text;
    bool boldHeader = true;
};

InfoPanel RunInfoSearch(const InfoSearchRequest& request);

} // namespace coinlight
