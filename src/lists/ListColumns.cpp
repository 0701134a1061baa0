#include "ListColumns.h"

namespace coinlight {

namespace {

constexpr ColumnLayout kRecordColumns[kRecordFieldCount] = {
    {"Machine", 7860},        {"Year", 1000},
    {"Driver", 1290},         {"Palette", 1290},
    {"Sound", 1290},          {"Graphics", 1290},
    {"Control Type", 3525},   {"Manufacturer", 7770},
    {"Image(s)", 2430},       {"Resolution(s)", 3015},
    {"Orientation(s)", 3550}, {"Refresh Rate(s)", 3545},
    {"Name", 1845},           {"Set Type", 2220},
    {"Brief Name(s)", 2220},  {"Software List(s)", 3000},
    {"Source", 3000},         {"ROM Of (BIOS)", 3000},
    {"ROM Required", 1550},   {"Device ROM(s) Required", 1550},
    {"CHD Required", 1550},   {"Category", 4065},
};

constexpr ColumnLayout kPlayers = {"Players", 1680};
constexpr ColumnLayout kSpacer = {"", 25};

} // namespace

std::vector<ColumnLayout> ArcadeListColumns(bool hasNPlayers) {
    std::vector<ColumnLayout> columns(std::begin(kRecordColumns), std::end(kRecordColumns));
    if (hasNPlayers) {
        columns.push_back(kPlayers);
    }
    columns.push_back(kSpacer);
    return columns;
}

std::vector<ColumnLayout> OtherListColumns() {
    std::vector<ColumnLayout> columns(std::begin(kRecordColumns), std::end(kRecordColumns));
    columns[ColBriefNames].twips = 3000;
    columns.push_back(kSpacer);
    return columns;
}

std::vector<ColumnLayout> SoftwareListColumns() {
    return {{"Software", 6000},    {"Year", 1000},
            {"Supported", 1300},   {"Publisher", 3500},
            {"Device(s)", 2000},   {"Software", 1800},
            {"Requirement", 2000}, {"Disk", 1500},
            {"List", 2200},        kSpacer};
}

} // namespace coinlight
