#include "SoftwareFile.h"

#include "SoftwareRows.h"
#include "catalogue/SoftwareCatalogue.h"
#include "core/CommandLine.h"
#include "core/FileTests.h"

namespace coinlight {

namespace {

UserMessage Information(std::string title, std::string text) {
    UserMessage message;
    message.title = std::move(title);
    message.text = std::move(text);
    message.icon = MessageIcon::Information;
    return message;
}

} // namespace

std::filesystem::path SoftwareFileOf(const DataLayout& data, std::string_view machine) {
    return data.Software() / (std::string(machine) + ".txt");
}

bool SoftwareFileTakesLong(const std::filesystem::path& file) {
    return FileSize(file).value_or(0) >= kLongSoftwareFile;
}

SoftwareFilePreparation PrepareSoftwareFile(const DataLayout& data,
                                            const std::vector<std::filesystem::path>& softwarePaths,
                                            std::string_view machine,
                                            std::string_view softwareListsField,
                                            const std::function<void()>& announce) {
    SoftwareFilePreparation preparation;
    // The name becomes a file name: nothing else may reach the folder.
    if (!IsShortName(machine)) {
        preparation.status = SoftwareFileStatus::Failed;
        preparation.message =
            Information("LoadSoftwareLists", "\"" + std::string(machine) +
                                                 "\" is not the short name of a machine, so "
                                                 "Coinlight will not look for its software.");
        return preparation;
    }
    const auto file = SoftwareFileOf(data, machine);
    if (FileExists(file)) {
        return preparation;
    }
    const auto softwareXml = data.Output() / "software.xml";
    if (!FileExists(softwareXml)) {
        preparation.status = SoftwareFileStatus::NoSoftwareXml;
        preparation.message =
            Information("LoadSoftwareLists", "Cannot find software.xml.  Exiting sub.");
        return preparation;
    }
    const std::vector<std::string> lists = SoftwareListsOf(softwareListsField);
    if (softwareListsField.substr(0, softwareListsField.find(';')) == "N/A") {
        preparation.status = SoftwareFileStatus::NoLists;
        return preparation;
    }
    if (announce) {
        announce();
    }
    std::error_code ignored;
    std::filesystem::create_directories(data.Software(), ignored);
    const SoftwareSources sources{softwareXml, data.Output() / "softfilter.ini", softwarePaths};
    const SoftwareFileResult result = WriteSoftwareFile(sources, machine, lists, file);
    if (!result.outcome.messages.empty()) {
        preparation.status = SoftwareFileStatus::Failed;
        preparation.message = Information("Coinlight", result.outcome.messages.front().text);
    }
    return preparation;
}

} // namespace coinlight
