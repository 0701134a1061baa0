#pragma once

#include <filesystem>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "core/CommandRunner.h"
#include "core/DataLayout.h"

namespace coinlight {

enum class AssetKind { Artwork, Samples };

/// How one transfer ended. Only a finished transfer leaves a file under its name.
enum class DownloadOutcome { Succeeded, Failed, Cancelled };

/// The address of one machine's artwork: the site, "/artwork/", the file.
std::string ArtworkUrl(const std::string& site, std::string_view file);
/// The address of one machine's samples, as that site's download script wants it.
std::string SamplesUrl(const std::string& site, std::string_view file);

/// Where the bulk download of a kind puts its files: `artworkdl` or `samplesdl` in the data
/// folder, left there for the user to move.
std::filesystem::path BulkDownloadFolder(const DataLayout& data, AssetKind kind);

/// What `-listsamples` of one machine said.
enum class SamplesAnswer {
    Has,       // a heading and at least one sample
    HasNone,   // the heading alone, or nothing
    Cancelled, // the user stopped the job while MAME ran
    Failed,    // the answer could not be had; `message` says why
};

struct SamplesQuery {
    SamplesAnswer answer = SamplesAnswer::HasNone;
    std::string message;
    bool fatal = false; // the command runner could not wait: the program ends
};

/// How MAME is run for the question: its folder and file, and the ini folder.
struct MameRun {
    std::filesystem::path folder;
    std::string executable;
    std::filesystem::path iniFolder;
};

/// The shell line that lists a machine's samples into `output`; empty for a name that is not
/// a short name.
std::string ListSamplesCommand(const MameRun& mame, std::string_view name,
                               const std::filesystem::path& output);

/// Asks MAME whether `name` has samples: `-listsamples` into `temp/lsamples.txt`, whose lines
/// are counted and which is then deleted. `pump` runs while MAME does.
SamplesQuery AskMameForSamples(const MameRun& mame, std::string_view name, const DataLayout& data,
                               const ExecPump& pump);

/// What the bulk job needs from the window: the status label, one transfer, the samples
/// question, and the Cancel button.
struct BulkDownloadSteps {
    std::function<void(const std::string& status)> showStatus;
    std::function<DownloadOutcome(const std::string& url, const std::filesystem::path& file)>
        download;
    std::function<SamplesQuery(const std::string& name)> askSamples;
    std::function<bool()> cancelled;
};

struct BulkDownloadResult {
    int tried = 0;
    int succeeded = 0;
    bool cancelled = false;
    std::optional<std::string> error; // the job stopped on it; the user is told
    bool fatal = false;               // ... and the program ends
};

/// Fetches the `kind` of every machine of `names` in order into its bulk folder, telling each
/// step in the status: "Trying <file>", then "Download Failed" or "Download Successful";
/// a failure does not stop the loop. Samples are tried only for machines MAME lists samples
/// for. The job ends with "Operation Completed", or "Operation Cancelled" when the user
/// stopped it; what was fetched stays.
BulkDownloadResult RunBulkDownload(AssetKind kind, const std::vector<std::string>& names,
                                   const std::string& site, const DataLayout& data,
                                   const BulkDownloadSteps& steps);

} // namespace coinlight
