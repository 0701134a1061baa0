#include "AssetDownload.h"

#include "core/AtomicFileWriter.h"
#include "core/CommandLine.h"
#include "core/TextFile.h"

namespace coinlight {

namespace {

constexpr const char* kListSamplesFile = "lsamples.txt";

/// A heading line, then one line per sample.
constexpr std::size_t kLinesOfAMachineWithSamples = 2;

std::string ZipName(std::string_view name) {
    return std::string(name) + ".zip";
}

std::string UrlOf(AssetKind kind, const std::string& site, std::string_view file) {
    return kind == AssetKind::Artwork ? ArtworkUrl(site, file) : SamplesUrl(site, file);
}

} // namespace

std::string ArtworkUrl(const std::string& site, std::string_view file) {
    return site + "/artwork/" + std::string(file);
}

std::string SamplesUrl(const std::string& site, std::string_view file) {
    return site + "/download?tipo=samples&file=/samples/zip/" + std::string(file);
}

std::filesystem::path BulkDownloadFolder(const DataLayout& data, AssetKind kind) {
    return data.root / (kind == AssetKind::Artwork ? "artworkdl" : "samplesdl");
}

std::string ListSamplesCommand(const MameRun& mame, std::string_view name,
                               const std::filesystem::path& output) {
    CommandLine line(mame.folder, mame.executable);
    line.Word("-inipath").Path(mame.iniFolder).ShortName(name).Word("-listsamples");
    line.RedirectOutput(output);
    return line.Text();
}

SamplesQuery AskMameForSamples(const MameRun& mame, std::string_view name, const DataLayout& data,
                               const ExecPump& pump) {
    const std::filesystem::path output = data.Temp() / kListSamplesFile;
    const std::string command = ListSamplesCommand(mame, name, output);
    if (command.empty()) {
        return {SamplesAnswer::HasNone, {}, false}; // nothing that is not a short name is asked
    }
    const ExecResult run = ExecCmd(command, mame.folder, pump);
    if (run.outcome == ExecOutcome::Cancelled) {
        std::error_code ignored;
        std::filesystem::remove(output, ignored);
        return {SamplesAnswer::Cancelled, {}, false};
    }
    if (run.IsFatal()) {
        return {SamplesAnswer::Failed, run.message, true};
    }
    const auto lines = ReadTextLines(output);
    std::error_code ignored;
    std::filesystem::remove(output, ignored);
    if (!lines) {
        std::string message = run.message.empty() ? std::string() : run.message + "\n\n";
        return {SamplesAnswer::Failed, message + "File not found: " + output.string(), false};
    }
    return {lines->size() >= kLinesOfAMachineWithSamples ? SamplesAnswer::Has
                                                         : SamplesAnswer::HasNone,
            {},
            false};
}

BulkDownloadResult RunBulkDownload(AssetKind kind, const std::vector<std::string>& names,
                                   const std::string& site, const DataLayout& data,
                                   const BulkDownloadSteps& steps) {
    BulkDownloadResult result;
    const std::filesystem::path folder = BulkDownloadFolder(data, kind);
    std::error_code error;
    std::filesystem::create_directories(folder, error);
    if (error) {
        result.error = "Cannot make the folder " + folder.string() + ": " + error.message();
        return result;
    }
    // A download cut short by a killed program leaves its temporary file here.
    RemoveOrphanedTemporaries(folder);
    for (const std::string& name : names) {
        if (steps.cancelled()) {
            result.cancelled = true;
            break;
        }
        if (kind == AssetKind::Samples) {
            const SamplesQuery query = steps.askSamples(name);
            if (query.answer == SamplesAnswer::Cancelled) {
                result.cancelled = true;
                break;
            }
            if (query.answer == SamplesAnswer::Failed) {
                result.error = query.message;
                result.fatal = query.fatal;
                return result;
            }
            if (query.answer == SamplesAnswer::HasNone) {
                continue;
            }
        }
        const std::string file = ZipName(name);
        steps.showStatus("Trying " + file);
        ++result.tried;
        // A name that is not a short name could lead the file out of its folder: it is
        // never fetched.
        const DownloadOutcome outcome = IsShortName(name)
                                            ? steps.download(UrlOf(kind, site, file), folder / file)
                                            : DownloadOutcome::Failed;
        if (outcome == DownloadOutcome::Cancelled) {
            result.cancelled = true;
            break;
        }
        if (outcome == DownloadOutcome::Succeeded) {
            ++result.succeeded;
        }
        steps.showStatus(outcome == DownloadOutcome::Succeeded ? "Download Successful"
                                                               : "Download Failed");
    }
    steps.showStatus(result.cancelled ? "Operation Cancelled" : "Operation Completed");
    return result;
}

} // namespace coinlight
