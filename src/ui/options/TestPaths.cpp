#include "TestPaths.h"

#include <filesystem>

#include "PathRules.h"

namespace coinlight {

namespace {

bool FolderExists(const std::string& folder) {
    std::error_code error;
    return !folder.empty() && std::filesystem::is_directory(folder, error);
}

std::string MissingMessage(const std::string& folder) {
    return "The " + folder + " folder does not exist.  Please select an existing folder.";
}

/// Index of the first folder that is not there, if any.
std::optional<std::size_t> FirstMissing(const std::vector<std::string>& folders) {
    for (std::size_t index = 0; index < folders.size(); ++index) {
        if (!FolderExists(folders[index])) {
            return index;
        }
    }
    return std::nullopt;
}

} // namespace

PathTest TestPaths(const PathFieldInfo& info, std::string_view text) {
    PathTest test;
    test.text = std::string(text);
    test.value = test.text;
    if (!test.value.empty() && test.value.back() == '/') {
        test.value.pop_back();
    }
    if (info.multi) {
        test.value = CollapseSeparators(test.value);
    }

    switch (info.rule) {
    case PathRule::Required:
    case PathRule::Fixed:
        if (IsRootOrRelative(test.value)) {
            test.messages.push_back("You must select a " + info.name + " folder.");
            test.text.clear();
            test.failed = true;
            return test;
        }
        break;
    case PathRule::Optional:
        if (test.value.empty()) {
            return test;
        }
        break;
    case PathRule::Output:
        return test;
    }

    const bool several = test.value.find(';') != std::string::npos;
    if (several && !info.multi) {
        // Said, not refused: the folder test below decides whether the text can stand.
        test.messages.push_back("The " + test.value +
                                " folder can only have one path.  Please remove one.");
    }

    if (several && info.multi) {
        std::vector<std::string> folders = SplitPaths(test.value);
        const auto missing = FirstMissing(folders);
        if (!missing) {
            return test;
        }
        test.messages.push_back(MissingMessage(folders[*missing]));
        folders.erase(folders.begin() + static_cast<std::ptrdiff_t>(*missing));
        test.text = JoinPaths(folders);
        test.failed = true;
        return test;
    }

    if (FolderExists(test.value) || info.mayBeMissing) {
        return test;
    }
    test.messages.push_back(MissingMessage(test.value));
    test.text.clear();
    test.failed = true;
    return test;
}

} // namespace coinlight
