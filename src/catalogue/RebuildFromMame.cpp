#include "RebuildFromMame.h"

#include "CatalogueFiles.h"
#include "core/OutputCapture.h"

namespace coinlight {

namespace {

/// What the user is told of a capture that did not end well.
CatalogueOutcome FailedCapture(const OutputCapture& capture, const DataLayout& data) {
    return CaptureOutcome(capture.Result(), false, data);
}

} // namespace

SupportFilesResult RebuildFromMame(const MameProgram& mame, const DataLayout& data, bool hasCatver,
                                   CatalogueProgress& progress,
                                   const std::function<void()>& capturesEnded) {
    if (auto missing = MissingListsTxt(data)) {
        return {std::move(*missing), {}, false};
    }
    progress.ShowCapture("Creating " + std::string(kMachineXml) + "...");
    OutputCapture machine(mame.folder, mame.executable, {"-listxml", "-nodtd"},
                          data.Output() / kMachineXml);
    OutputCapture software(mame.folder, mame.executable, {"-listsoftware", "-nodtd"},
                           data.Output() / kSoftwareXml);
    for (const OutputCapture* capture : {&machine, &software}) {
        if (capture->TemporaryFile().empty()) {
            return {FailedCapture(*capture, data), {}, false};
        }
    }
    const auto pump = [&progress] {
        progress.Pump();
    };

    bool committed = false;
    CatalogueSources sources = CatalogueSourcesIn(data, hasCatver);
    sources.machineXml = machine.TemporaryFile();
    sources.machineXmlFinished = [&machine] {
        return machine.Finished();
    };
    sources.beforeReplacing = [&] {
        if (!software.Finished()) {
            progress.ShowStep("Creating " + std::string(kSoftwareXml) + "...");
        }
        software.Wait(pump);
        machine.Wait(pump);
        if (!machine.Succeeded() || !software.Succeeded()) {
            return false;
        }
        if (capturesEnded) {
            capturesEnded();
        }
        committed = software.Commit() && machine.Commit();
        return committed;
    };
    SupportFilesResult result = CreateSupportFiles(sources, progress);

    // A catalogue that failed early leaves MAME running: it is ended, and what it would
    // have said no longer counts.
    const bool machineEnded = machine.Finished();
    const bool softwareEnded = software.Finished();
    machine.Cancel();
    software.Cancel();
    if (machineEnded && !machine.Succeeded()) {
        return {FailedCapture(machine, data), {}, false};
    }
    if (softwareEnded && !software.Succeeded()) {
        return {FailedCapture(software, data), {}, false};
    }
    if (result.withheld && !committed) {
        // The lists could not be put in place: they count as not created.
        return {CaptureOutcome({}, false, data), {}, false};
    }
    return result;
}

} // namespace coinlight
