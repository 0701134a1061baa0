#pragma once

#include <string_view>
#include <vector>

namespace coinlight {

/// The columns of the machine lists. Column n holds field n of the catalogue record, so a
/// row's details are read back by column number; Players is read from nplayers.ini while a
/// list fills.
enum Column : int {
    ColMachine = 0,
    ColYear,
    ColDriver,
    ColPalette,
    ColSound,
    ColGraphics,
    ColControlType,
    ColManufacturer,
    ColImages,
    ColResolutions,
    ColOrientations,
    ColRefreshRates,
    ColName,
    ColSetType,
    ColBriefNames,
    ColSoftwareLists,
    ColSource,
    ColRomOf,
    ColRomRequired,
    ColDeviceRomsRequired,
    ColChdRequired,
    ColCategory,
    ColPlayers,
    kRecordFieldCount = ColPlayers,
};

struct ColumnLayout {
    std::string_view header;
    int twips; // the width as designed; 15 twips make a pixel
};

/// The columns of the arcade lists, Players included only when nplayers.ini exists, and the
/// empty spacer that closes every list.
std::vector<ColumnLayout> ArcadeListColumns(bool hasNPlayers);
/// The other-machine list: the same record columns, a wider Brief Name(s), no Players.
std::vector<ColumnLayout> OtherListColumns();
/// The software of the selected other machine: the fields of its software file.
std::vector<ColumnLayout> SoftwareListColumns();

inline constexpr int kTwipsPerPixel = 15;

} // namespace coinlight
