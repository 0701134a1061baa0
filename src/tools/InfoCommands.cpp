#include <cstdlib>
#include <iostream>

#include "ToolCommand.h"
#include "info/InfoSearch.h"

namespace coinlight {

namespace {

/// A folder of our own for the cheat file on its way through, gone again at the end.
class ScratchFolder {
public:
    ScratchFolder() {
        std::string pattern = (std::filesystem::temp_directory_path() / "coinlight-info-XXXXXX");
        if (::mkdtemp(pattern.data()) != nullptr) {
            m_path = pattern;
        }
    }
    ~ScratchFolder() {
        std::error_code ignored;
        if (!m_path.empty()) {
            std::filesystem::remove_all(m_path, ignored);
        }
    }
    ScratchFolder(const ScratchFolder&) = delete;
    ScratchFolder& operator=(const ScratchFolder&) = delete;

    const std::filesystem::path& Path() const { return m_path; }

private:
    std::filesystem::path m_path;
};

struct InfoOptions {
    std::vector<std::string> positional;
    bool other = false;
    std::optional<std::string> software;
    std::optional<std::string> list;
    std::optional<std::string> title;
    std::optional<std::string> softwareTitle;
    std::optional<std::string> mameFolder;
};

std::optional<InfoOptions> ParseInfoOptions(const ToolArguments& arguments) {
    InfoOptions options;
    for (std::size_t i = 0; i < arguments.size(); ++i) {
        const std::string& argument = arguments[i];
        if (argument == "--other") {
            options.other = true;
            continue;
        }
        std::optional<std::string>* target = nullptr;
        if (argument == "--software") {
            target = &options.software;
        } else if (argument == "--list") {
            target = &options.list;
        } else if (argument == "--title") {
            target = &options.title;
        } else if (argument == "--software-title") {
            target = &options.softwareTitle;
        } else if (argument == "--mame-folder") {
            target = &options.mameFolder;
        } else if (argument.starts_with("--")) {
            return std::nullopt;
        } else {
            options.positional.push_back(argument);
            continue;
        }
        if (i + 1 >= arguments.size()) {
            return std::nullopt;
        }
        *target = arguments[++i];
    }
    const bool softwareWithoutOther = (options.software || options.list) && !options.other;
    if (options.positional.size() != 2 || softwareWithoutOther) {
        return std::nullopt;
    }
    return options;
}

/// What the window would hold: the machine selected in the view the options name.
InfoSelection SelectionOf(const InfoOptions& options) {
    const std::string& machine = options.positional[1];
    InfoSelection selection;
    if (!options.other) {
        selection.listView = "All Arcade Machines";
        selection.arcadeMachine = machine;
        return selection;
    }
    selection.listView = "Other Machines";
    selection.inOtherView = true;
    selection.otherMachine = machine;
    selection.otherMachineText = options.title.value_or(machine);
    if (options.software) {
        selection.softwareCaption = true;
        selection.softwareSelected = true;
        selection.softwareListEmpty = false;
        selection.softwareName = *options.software;
        selection.softwareList = options.list.value_or("");
        selection.softwareText = options.softwareTitle.value_or(*options.software);
    }
    return selection;
}

int InfoCommand(const ToolArguments& arguments) {
    const auto options = ParseInfoOptions(arguments);
    if (!options) {
        return -1;
    }
    const std::filesystem::path source = options->positional[0];
    const auto folder = source.has_parent_path() ? source.parent_path() : ".";
    ScratchFolder scratch;
    InfoSearchRequest request;
    request.source = source.filename().string();
    request.supportFolder = folder;
    request.mameFolder = options->mameFolder.value_or(folder.string());
    request.tempFolder = scratch.Path();
    request.selection = SelectionOf(*options);
    const InfoPanel panel = RunInfoSearch(request);
    std::cout << panel.text;
    if (!panel.text.ends_with('\n')) {
        std::cout << '\n';
    }
    return 0;
}

} // namespace

std::vector<ToolCommand> InfoCommands() {
    return {
        {"info",
         "info SOURCE MACHINE [--other [--software NAME --list LIST] [--title TEXT] "
         "[--software-title TEXT]] [--mame-folder DIR]",
         InfoCommand},
    };
}

} // namespace coinlight
