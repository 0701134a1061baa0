#pragma once

#include <array>
#include <filesystem>
#include <string>
#include <string_view>

namespace coinlight {

// The names of the catalogue's files. Those in `output` are made from MAME's lists; those
// in `support` come with Coinlight or from the user.
inline constexpr std::string_view kMachineXml = "machine.xml";
inline constexpr std::string_view kSoftwareXml = "software.xml";
inline constexpr std::string_view kArcadeInfo = "arcadeinfo.txt";
inline constexpr std::string_view kOtherInfo = "otherinfo.txt";
inline constexpr std::string_view kArcadeFavs = "arcadefavs.txt";
inline constexpr std::string_view kOtherFavs = "otherfavs.txt";
inline constexpr std::string_view kCrcInfo = "crcinfo.txt";
inline constexpr std::string_view kCrcInfoLast = "crcinfolast.txt";
inline constexpr std::string_view kBiosFilter = "biosfilter.txt";
inline constexpr std::string_view kBiosFilterLast = "biosfilterlast.txt";
inline constexpr std::string_view kArcadeBios = "arcadebios.txt";
inline constexpr std::string_view kOtherBios = "otherbios.txt";
inline constexpr std::string_view kBiosIni = "bios.ini";
inline constexpr std::string_view kSoftFilterIni = "softfilter.ini";
inline constexpr std::string_view kUnlistedTxt = "unlisted.txt";
inline constexpr std::string_view kListsTxt = "lists.txt";
inline constexpr std::string_view kCatverIni = "catver.ini";
inline constexpr std::string_view kNPlayersIni = "nplayers.ini";
inline constexpr std::string_view kMonochromeIni = "monochrome.ini";

/// The ten files without which the lists cannot load; a missing one means a rebuild.
inline constexpr std::array<std::string_view, 10> kRequiredCatalogueFiles = {
    kMachineXml, kSoftwareXml, kArcadeInfo, kOtherInfo, kCrcInfo,
    kBiosFilter, kArcadeBios,  kOtherBios,  kBiosIni,   kSoftFilterIni,
};

/// The copy that a new MAME's capture keeps of the old one: the plain concatenation
/// "machine.xml" + "last.xml".
inline std::filesystem::path LastCopyName(std::string_view fileName) {
    return std::string(fileName) + "last.xml";
}

} // namespace coinlight
