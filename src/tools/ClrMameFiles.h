#pragma once

#include <filesystem>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace coinlight {

/// The software lists of the favourite other machines as a filter of the outside tool:
/// `xp://softwarelist[@name='a' or @name='b']/software`, a quote in a name doubled.
std::string SoftwareListFilter(const std::vector<std::string>& lists);

/// settings.xml with the rebuilder's and the scanner's filter items replaced by ones holding
/// `filter`, each marked as ours; every other line stays as it was. An item may close on its
/// own line or on a later one.
std::string ReplaceFilterItems(std::string_view settingsXml, std::string_view filter);

/// The machines of MAME's list that use samples, with their description, year, manufacturer
/// and sample lines, as a list of their own; `done` is told how many were taken.
std::string SampleMachinesXml(const std::function<bool(std::string_view&)>& nextLine,
                              std::size_t* taken = nullptr);

/// What CreateClrMAMEFiles needs: Coinlight's data folder (favourites, machine list, temp)
/// and the outside tool's folder, where it writes and whose settings.xml it updates.
struct ClrMameRequest {
    std::filesystem::path dataFolder;
    std::filesystem::path toolFolder;
    /// Told each stage ("Generating ClrMAME files..."), so that a window can show it.
    std::function<void(const char*)> progress;
};

struct ClrMameMessage {
    std::string title;
    std::string text;
    bool information = true; // an information box; otherwise a failure
};

struct ClrMameOutcome {
    std::vector<ClrMameMessage> messages; // to show, in order
    std::size_t favourites = 0;
    std::size_t softwareLists = 0;
    std::size_t sampleMachines = 0;
    bool settingsReplaced = false;
};

/// Writes machine.txt and sample.xml into the tool's folder and puts the software filter
/// into its settings.xml, keeping the old one as settings.bak. A settings.xml that came out
/// small replaces nothing.
ClrMameOutcome CreateClrMAMEFiles(const ClrMameRequest& request);

inline constexpr std::size_t kSmallSettingsLimit = 3001;
inline constexpr const char* kClrMameTitle = "CreateClrMAMEFiles";

} // namespace coinlight
