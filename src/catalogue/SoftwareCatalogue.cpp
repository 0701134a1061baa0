#include "SoftwareCatalogue.h"

#include <algorithm>
#include <array>
#include <new>
#include <optional>

#include "SoftwareListReader.h"
#include "TextFunctions.h"
#include "core/AtomicFileWriter.h"
#include "core/CommandLine.h"

namespace coinlight {

namespace {

constexpr const char* kRoutine = "CreateSoftwareFile";

std::string FailureText(const RunTimeError& error, std::string_view list, std::string_view devices,
                        std::string_view name) {
    return HandlerMessage(kRoutine, error) + "\n\nSoftware List: " + std::string(list) +
           "\nDevice Type: " + std::string(devices) + "\nSoftware: " + std::string(name);
}

} // namespace

SoftwareFileResult CreateSoftwareFile(const SoftwareSources& sources, std::string_view machine,
                                      std::string_view list, AtomicFileWriter& out) {
    SoftwareFileResult result;
    try {
        SoftwareListReader reader(sources, machine, list, out);
        const auto error = reader.Run();
        result.records = reader.Records();
        if (error) {
            result.outcome.messages.push_back(
                {FailureText(*error, list, reader.Devices(), reader.Name()), false});
        }
    } catch (const std::bad_alloc&) {
        result.outcome.messages.push_back(
            {FailureText({kErrorOutOfMemory, kOutOfMemoryText, 0}, list, {}, {}), false});
    }
    return result;
}

SoftwareFileResult WriteSoftwareFile(const SoftwareSources& sources, std::string_view machine,
                                     const std::vector<std::string>& lists,
                                     const std::filesystem::path& file) {
    SoftwareFileResult result;
    AtomicFileWriter out(file);
    for (const auto& list : lists) {
        SoftwareFileResult listResult = CreateSoftwareFile(sources, machine, list, out);
        result.records += listResult.records;
        if (!listResult.outcome.messages.empty()) {
            std::error_code ignored;
            std::filesystem::remove(file, ignored);
            return listResult;
        }
    }
    if (!out.Commit()) {
        result.outcome.messages.push_back(
            {FailureText({kErrorFileAccess, out.Error(), 0}, {}, {}, {}), false});
    }
    return result;
}

bool SoftwareIsAvailable(bool hasDisk, std::string_view softwareName, std::string_view listName,
                         const std::vector<std::filesystem::path>& paths) {
    for (const auto& path : paths) {
        std::error_code error;
        const auto item = path / listName / softwareName;
        if (hasDisk) {
            if (std::filesystem::is_directory(item, error)) {
                return true;
            }
            continue;
        }
        for (const char* extension : {".zip", ".7z"}) {
            auto archive = item;
            archive += extension;
            if (std::filesystem::exists(archive, error)) {
                return true;
            }
        }
    }
    return false;
}

bool KillSoftsOther(const std::filesystem::path& softFolder, std::string_view machine) {
    std::error_code error;
    if (!machine.empty()) {
        if (!IsShortName(machine)) {
            return false;
        }
        std::filesystem::remove(softFolder / (std::string(machine) + ".txt"), error);
        return !error;
    }
    bool removedAll = true;
    for (const auto& entry : std::filesystem::directory_iterator(softFolder, error)) {
        if (entry.path().extension() == ".txt" && entry.is_regular_file(error)) {
            removedAll = std::filesystem::remove(entry.path(), error) && removedAll;
        }
    }
    return removedAll;
}

std::vector<std::string> SoftwareListsOf(std::string_view field) {
    if (field == "N/A") {
        return {};
    }
    return SplitPieces(field, ';');
}

} // namespace coinlight
