#pragma once

#include <filesystem>
#include <functional>
#include <string>
#include <string_view>
#include <variant>

#include "catalogue/NameList.h"
#include "core/ProfileDocument.h"

namespace coinlight {

/// What a new catver.ini is made from: MAME's machine list, the other list of lists.txt, the
/// previous catver.ini, and the running MAME's version and today's date for its header.
struct CatverSources {
    /// Gives the next line of MAME's machine list that holds "<mach"; false at its end.
    std::function<bool(std::string_view&)> nextMachineLine;
    const NameList* otherList = nullptr;
    const ProfileDocument* previous = nullptr;
    std::string_view mameVersion;
    std::string_view today;
};

struct MadeCatver {
    std::string text; // the whole file, CR LF line ends
    std::size_t machines = 0;
    std::size_t newMachines = 0; // those the previous file did not know
};

/// The category of every machine of the list: the previous file's, or for a machine it did
/// not know one made from what MAME says (BIOS, device, arcade or other, clone of what,
/// mechanical); the version it was added in likewise. Keys stand in the order of a list
/// sorted on version, category and name.
MadeCatver MakeCatver(const CatverSources& sources);

/// The lines of a machine list in memory, as `nextMachineLine` gives them.
std::function<bool(std::string_view&)> MachineLinesOf(std::string_view machineXml);

/// The same over files: the machine list, lists.txt and the previous catver.ini. An error
/// text when one of them cannot be read.
std::variant<MadeCatver, std::string> MakeCatverFromFiles(const std::filesystem::path& machineXml,
                                                          const std::filesystem::path& listsTxt,
                                                          const std::filesystem::path& previous,
                                                          std::string_view mameVersion,
                                                          std::string_view today);

/// The version MAME wrote at the head of its list (`<mame build="0.251 (unknown)" ...>`), for
/// a catver.ini made without running MAME. Empty when the list has none.
std::string MameVersionOfList(const std::filesystem::path& machineXml);

inline constexpr const char* kCreateCatverTitle = "Create catver.ini";
inline constexpr const char* kCreateCatverQuestion =
    "Previous version of catver.ini and new lists.txt must be in the apppath\\support folder.";

} // namespace coinlight
