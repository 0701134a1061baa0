#pragma once

#include <cstddef>
#include <cstdint>

namespace coinlight {

/// What one run wrote, for the progress labels and for maintainers.
struct CatalogueCounts {
    std::int32_t arcade = 0;
    std::int32_t other = 0;
    std::size_t unlisted = 0;
    std::size_t biosSets = 0; // lines of biosfilter.txt
    std::size_t crcRecords = 0;
    std::size_t deviceRoms = 0;
    std::size_t arcadeBiosLines = 0;
    std::size_t otherBiosLines = 0;
    std::size_t biosIniKeys = 0;
    std::size_t softFilterSections = 0;
};

} // namespace coinlight
