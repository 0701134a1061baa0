#include "UnneededMove.h"

#include <algorithm>
#include <cerrno>
#include <unistd.h>

#include "PermissionAdvice.h"
#include "core/UserMessage.h"

namespace coinlight {

namespace {

constexpr const char* kTitle = "Unneeded ROMs & Files";
constexpr const char* kRenameTitle = "Orphan ROM Finder";
constexpr int kFolderStep = 4;
constexpr int kRenameStep = 6;

UserMessage Failure(const char* title, const std::error_code& error, int line,
                    const std::filesystem::path& where) {
    UserMessage message;
    message.title = title;
    message.text = "Error in UnneededFileRemove: " + FailureDescription(error) +
                   "\nLine Number: " + std::to_string(line);
    if (IsPermissionFailure(error)) {
        message.text += "\n\n" + NoPermissionSentence(where);
    } else {
        message.title = kTitle;
    }
    message.icon = MessageIcon::Information;
    return message;
}

bool MakeFolder(const std::filesystem::path& folder, std::error_code& error) {
    if (std::filesystem::is_directory(folder, error)) {
        return true;
    }
    std::filesystem::create_directory(folder, error);
    return !error;
}

/// A rename that never replaces; across file systems a copy that is removed once whole.
std::error_code MoveWithoutReplacing(const std::filesystem::path& from,
                                     const std::filesystem::path& to) {
    std::error_code error;
    if (std::filesystem::exists(std::filesystem::symlink_status(to, error))) {
        return std::make_error_code(std::errc::file_exists);
    }
    std::filesystem::rename(from, to, error);
    if (error != std::errc::cross_device_link) {
        return error;
    }
    error.clear();
    if (!std::filesystem::copy_file(from, to, std::filesystem::copy_options::none, error)) {
        return error;
    }
    std::filesystem::remove(from, error);
    return error;
}

} // namespace

std::filesystem::path UnneededFilesFolder(const std::filesystem::path& mameFolder,
                                          const std::filesystem::path& dataFolder) {
    const bool mameWritable = !mameFolder.empty() && ::access(mameFolder.c_str(), W_OK) == 0;
    return (mameWritable ? mameFolder : dataFolder) / "unneeded files";
}

UserMessage EmptyRemovalSelectionMessage() {
    UserMessage message;
    message.title = kTitle;
    message.text = "You must select at least 1 file to remove.";
    message.icon = MessageIcon::Information;
    return message;
}

UserMessage ConfirmRemovalQuestion(const std::filesystem::path& unneededFolder) {
    UserMessage question;
    question.title = "Confirm Removal";
    question.text = "Are you sure you want to remove the selected file(s) from your ROM(s) "
                    "folders?  They will be moved to an \"unneeded files\" folder in " +
                    unneededFolder.parent_path().string() + ".";
    question.icon = MessageIcon::Question;
    question.buttons = MessageButtons::YesNo;
    question.noIsDefault = true;
    return question;
}

UnneededMove MoveUnneededFile(const RomFolderFile& entry,
                              const std::filesystem::path& unneededFolder,
                              const std::vector<std::string>& arcadeFolders) {
    const bool arcade =
        std::find(arcadeFolders.begin(), arcadeFolders.end(), entry.folder) != arcadeFolders.end();
    const auto destination = unneededFolder / (arcade ? "arcade" : "other");
    UnneededMove move;
    std::error_code error;
    if (!MakeFolder(unneededFolder, error)) {
        move.message = Failure(kTitle, error, kFolderStep, unneededFolder.parent_path());
        return move;
    }
    if (!MakeFolder(destination, error)) {
        move.message = Failure(kTitle, error, kFolderStep, unneededFolder);
        return move;
    }
    // A duplicate is listed with its mark; on disk it has its plain name.
    const auto target = destination / entry.file;
    error = MoveWithoutReplacing(std::filesystem::path(entry.folder) / entry.file, target);
    if (error == std::errc::file_exists) {
        UserMessage exists;
        exists.title = kTitle;
        exists.text = "Cannot move file.  File already exists in destination folder.";
        exists.icon = MessageIcon::Information;
        move.message = exists;
    } else if (error) {
        const bool sourceWritable = ::access(entry.folder.c_str(), W_OK) == 0;
        move.message = Failure(kRenameTitle, error, kRenameStep,
                               sourceWritable ? destination : std::filesystem::path(entry.folder));
    }
    move.moved = std::filesystem::exists(target, error) &&
                 !std::filesystem::exists(std::filesystem::path(entry.folder) / entry.file, error);
    return move;
}

} // namespace coinlight
