#include "OkPaths.h"

#include "PathRules.h"
#include "TestPaths.h"

namespace coinlight {

namespace {

constexpr const char* kBadMamePath =
    "It appears that something is wrong with your MAME path.  Please try again.";
constexpr const char* kNoExecutable = "You must select your MAME executable.";
constexpr const char* kMameInRoot = "MAME should not reside in the root.";
constexpr const char* kOtherRomsInUse =
    "You cannot remove the Other ROMs path while viewing Other Machines.  You can remove it when "
    "you are viewing Arcade Machines.  The original path will still be used.";

/// The order in which OK checks and takes over the fields; the Ini folder is set, not checked.
constexpr PathField kCheckOrder[] = {
    PathField::ArcadeRoms, PathField::OtherRoms, PathField::Hash,       PathField::Software,
    PathField::Samples,    PathField::Artwork,   PathField::Controller, PathField::Ini,
    PathField::Cheat,      PathField::Plugins,   PathField::Language,   PathField::Cfg,
    PathField::Nvram,      PathField::Input,     PathField::State,      PathField::Snapshot,
    PathField::Diff,
};

OkPathsResult FailOnMamePath(OkPathsResult result, const char* message, bool clear) {
    result.messages.push_back(message);
    if (clear) {
        result.mamePath.clear();
    }
    return result;
}

} // namespace

OkPathsResult CheckPathsForOk(const OkPathsInput& input) {
    OkPathsResult result;
    result.mamePath = input.mamePath;
    result.texts = input.texts;

    const auto executable = SplitExecutablePath(input.mamePath);
    if (!executable) {
        return FailOnMamePath(std::move(result), kBadMamePath, false);
    }
    if (executable->name.empty()) {
        return FailOnMamePath(std::move(result), kNoExecutable, false);
    }
    if (IsRootOrRelative(executable->folder)) {
        return FailOnMamePath(std::move(result), kMameInRoot, true);
    }
    // A path to nothing would be stored, and every later start would run nothing.
    if (!IsExecutableFile(input.mamePath)) {
        return FailOnMamePath(std::move(result), kBadMamePath, false);
    }
    result.executable = executable->name;
    result.mameFolder = executable->folder;

    for (const PathField field : kCheckOrder) {
        const PathFieldInfo& info = InfoOf(field);
        if (field == PathField::Ini) {
            result.values[field] = input.iniFolder.string();
            result.texts[field] = result.values[field];
            continue;
        }
        std::string text = result.texts[field];
        const std::string& previous = input.previous->searchPaths.otherRoms;
        if (field == PathField::OtherRoms && text.empty() && !previous.empty() &&
            input.inOtherView) {
            // The Other list on show was loaded from these folders.
            result.messages.push_back(kOtherRomsInUse);
            text = previous;
            result.texts[field] = previous;
        }
        PathTest test = TestPaths(info, text);
        result.messages.insert(result.messages.end(), test.messages.begin(), test.messages.end());
        result.texts[field] = test.text;
        if (test.failed) {
            result.focusField = field;
            return result;
        }
        result.values[field] = test.value;
    }
    result.ok = true;
    return result;
}

void TakeOverPaths(const OkPathsResult& result, Preferences& preferences) {
    preferences.mame.executable = result.executable;
    preferences.searchPaths.mame = result.mameFolder;
    StoreTexts(result.values, preferences);
}

} // namespace coinlight
