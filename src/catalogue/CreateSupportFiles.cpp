#include "CreateSupportFiles.h"

#include <chrono>
#include <thread>
#include <variant>

#include "CatalogueAbort.h"
#include "CatalogueFiles.h"
#include "DeviceRomScan.h"
#include "FileCopy.h"
#include "core/ProfileFile.h"
#include "core/TextFile.h"
#include "core/UserMessage.h"

namespace coinlight {

namespace {

constexpr const char* kRoutine = "CreateSupportFiles";
constexpr const char* kUnlistedHeader =
    "The machines below were not found in lists.txt and have not been added to any lists.  "
    "You can add them to lists.txt or wait for an updated lists.txt to be available.  This "
    "report will be removed when a complete lists.txt is found.";

// "Line Number: " of a failure: the step of the routine.
constexpr int kLocationKeepLastRun = 30;
constexpr int kLocationOpenOutputs = 70;
constexpr int kLocationMachinePass = 80;
constexpr int kLocationSoftFilter = 110;
constexpr int kLocationCommit = 120;

/// Step 3: the previous run's BIOS filter and checksums stay for comparison; the profile
/// files and the report are made anew.
void KeepLastRun(const std::filesystem::path& output) {
    const std::pair<std::string_view, std::string_view> kept[] = {{kBiosFilter, kBiosFilterLast},
                                                                  {kCrcInfo, kCrcInfoLast}};
    for (const auto& [current, last] : kept) {
        std::error_code error;
        if (std::filesystem::exists(output / current, error)) {
            if (auto failure = CopyFileReplacing(output / current, output / last)) {
                Abort(kErrorFileAccess, *failure, kLocationKeepLastRun);
            }
        }
    }
    for (const auto name : {kBiosIni, kSoftFilterIni, kUnlistedTxt}) {
        std::error_code error;
        std::filesystem::remove(output / name, error);
        if (error) {
            Abort(kErrorFileAccess, "Cannot delete " + (output / name).string(),
                  kLocationKeepLastRun);
        }
    }
}

void OpenOrAbort(const LineReader& reader, int location) {
    if (!reader.IsOpen()) {
        Abort(kErrorFileNotFound, kFileNotFoundText, location);
    }
}

MachineLists ReadListsOrAbort(const std::filesystem::path& file) {
    auto lists = ReadListsFile(file);
    if (auto* error = std::get_if<RunTimeError>(&lists)) {
        throw CatalogueAbort{*error};
    }
    return std::move(std::get<MachineLists>(lists));
}

void CheckWriters(CatalogueWriters& writers) {
    for (AtomicFileWriter* writer : writers.All()) {
        if (!writer->IsOpen()) {
            Abort(kErrorFileAccess, writer->Error(), kLocationOpenOutputs);
        }
    }
}

void CommitOrAbort(AtomicFileWriter& writer) {
    if (!writer.Commit()) {
        Abort(kErrorFileAccess, writer.Error(), kLocationCommit);
    }
}

void WriteOrAbort(const std::filesystem::path& file, std::string_view bytes) {
    std::string error;
    if (!WriteFileBytes(file, bytes, &error)) {
        Abort(kErrorFileAccess, error, kLocationCommit);
    }
}

/// softfilter.ini is spaced at the end, which has always needed the file to exist: a MAME
/// without any filtered software list fails here, before anything is stored.
void CheckSoftFilter(const CatalogueBuilder& builder) {
    if (builder.SoftFilterIni().Empty()) {
        Abort(kErrorFileNotFound, kFileNotFoundText, kLocationSoftFilter);
    }
}

/// Steps 9 to 12: everything is in hand, so the files replace the old ones one by one.
void StoreCatalogue(CatalogueWriters& writers, const CatalogueBuilder& builder,
                    const std::filesystem::path& output) {
    for (AtomicFileWriter* writer : writers.All()) {
        CommitOrAbort(*writer);
    }
    if (!builder.BiosIni().Empty()) {
        WriteOrAbort(output / kBiosIni, builder.BiosIni().Text(false));
    }
    WriteOrAbort(output / kSoftFilterIni, builder.SoftFilterIni().Text(true));
    if (!builder.UnlistedMachines().empty()) {
        WriteOrAbort(output / kUnlistedTxt, std::string(kUnlistedHeader) + "\r\n\r\n" +
                                                builder.UnlistedMachines() + "\r\n");
    }
}

/// Thrown when `beforeReplacing` withholds the catalogue.
struct Withheld {};

/// The device pass, waited for with the interface alive: a pass that follows MAME ends only
/// when MAME does, which after a failure early in the file can be many seconds away.
class PumpedDeviceRoms final : public DeviceRomSource {
public:
    PumpedDeviceRoms(DeviceRomScanner& scanner, CatalogueProgress& progress)
        : m_scanner(scanner), m_progress(progress) {}
    bool Done() const override { return m_scanner.Done(); }
    const NameList& Wait() override {
        while (!m_scanner.Done()) {
            m_progress.Pump();
            std::this_thread::sleep_for(std::chrono::milliseconds(4));
        }
        return m_scanner.Wait();
    }

private:
    DeviceRomScanner& m_scanner;
    CatalogueProgress& m_progress;
};

/// Steps 5 to 12, while the device pass of step 4 runs on its own thread.
CatalogueCounts BuildCatalogue(const CatalogueSources& sources, DeviceRomSource& devices,
                               CatalogueProgress& progress) {
    const MachineLists lists = ReadListsOrAbort(sources.listsTxt);
    progress.ShowCountsHeading("Other Machines:");

    CatalogueWriters writers(sources.outputFolder);
    CheckWriters(writers);
    std::shared_ptr<const ProfileDocument> catver;
    if (sources.catverIni) {
        catver = LoadProfile(*sources.catverIni);
    }

    LineReader machinePass(sources.machineXml);
    OpenOrAbort(machinePass, kLocationMachinePass);
    machinePass.OnBlockRead([&progress] { progress.Pump(); });
    if (sources.machineXmlFinished) {
        machinePass.FollowWriter(sources.machineXmlFinished);
    }
    CatalogueBuilder builder(lists, devices, catver.get(), writers, progress);
    builder.Run(machinePass);
    CheckSoftFilter(builder);
    if (sources.beforeReplacing) {
        // The last run is kept and cleared only now, so that a failure before this point
        // leaves it whole.
        if (!sources.beforeReplacing()) {
            throw Withheld{};
        }
        KeepLastRun(sources.outputFolder);
    }
    StoreCatalogue(writers, builder, sources.outputFolder);
    return builder.Counts();
}

CatalogueOutcome FailedOutcome(const RunTimeError& error, const std::filesystem::path& output) {
    std::string text = HandlerMessage(kRoutine, error);
    if (error.number == kErrorFileNotFound) {
        text += "\n\n" + NoPermissionSentence(output);
    }
    return {{{std::move(text), true}}, true};
}

} // namespace

CatalogueSources CatalogueSourcesIn(const DataLayout& data, bool hasCatver) {
    CatalogueSources sources;
    sources.machineXml = data.Output() / kMachineXml;
    sources.listsTxt = data.Support() / kListsTxt;
    if (hasCatver) {
        sources.catverIni = data.Support() / kCatverIni;
    }
    sources.outputFolder = data.Output();
    return sources;
}

SupportFilesResult CreateSupportFiles(const CatalogueSources& sources,
                                      CatalogueProgress& progress) {
    SupportFilesResult result;
    try {
        progress.ShowStep("Creating Coinlight assist files...");
        if (!sources.beforeReplacing) {
            KeepLastRun(sources.outputFolder);
        }
        DeviceRomScanner scanner(sources.machineXml, sources.machineXmlFinished);
        PumpedDeviceRoms devices(scanner, progress);
        try {
            result.counts = BuildCatalogue(sources, devices, progress);
        } catch (const CatalogueAbort&) {
            // The device pass comes first in the file: its failure is the one to report.
            devices.Wait();
            throw;
        }
        progress.ShowOtherCount(result.counts.other);
        progress.ShowArcadeCount(result.counts.arcade);
        progress.ClearStep();
    } catch (const std::bad_alloc&) {
        result.outcome =
            FailedOutcome({kErrorOutOfMemory, kOutOfMemoryText, 0}, sources.outputFolder);
    } catch (const CatalogueAbort& abort) {
        result.outcome = FailedOutcome(abort.error, sources.outputFolder);
    } catch (const Withheld&) {
        result.outcome.fatalError = true;
        result.withheld = true;
    }
    return result;
}

} // namespace coinlight
