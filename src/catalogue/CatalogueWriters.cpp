#include "CatalogueWriters.h"

#include "CatalogueFiles.h"

namespace coinlight {

CatalogueWriters::CatalogueWriters(const std::filesystem::path& outputFolder)
    : arcadeInfo(outputFolder / kArcadeInfo), biosFilter(outputFolder / kBiosFilter),
      crcInfo(outputFolder / kCrcInfo), otherInfo(outputFolder / kOtherInfo),
      arcadeBios(outputFolder / kArcadeBios), otherBios(outputFolder / kOtherBios) {}

} // namespace coinlight
