#pragma once

#include <array>
#include <filesystem>

#include "core/AtomicFileWriter.h"

namespace coinlight {

/// The files the second pass writes as it goes; they replace the old ones only when the
/// whole run succeeded.
struct CatalogueWriters {
    explicit CatalogueWriters(const std::filesystem::path& outputFolder);

    AtomicFileWriter arcadeInfo;
    AtomicFileWriter biosFilter;
    AtomicFileWriter crcInfo;
    AtomicFileWriter otherInfo;
    AtomicFileWriter arcadeBios;
    AtomicFileWriter otherBios;

    std::array<AtomicFileWriter*, 6> All() {
        return {&arcadeInfo, &biosFilter, &crcInfo, &otherInfo, &arcadeBios, &otherBios};
    }
};

} // namespace coinlight
