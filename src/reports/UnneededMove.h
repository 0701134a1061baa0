#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

#include "UnneededFiles.h"
#include "core/UserMessage.h"

namespace coinlight {

/// Where surplus files go: "unneeded files" in the MAME folder when the user may write
/// there, otherwise in the data folder (a packaged MAME lives in a system folder).
std::filesystem::path UnneededFilesFolder(const std::filesystem::path& mameFolder,
                                          const std::filesystem::path& dataFolder);

UserMessage EmptyRemovalSelectionMessage();

/// The question before anything moves; it names the folder the files go to.
UserMessage ConfirmRemovalQuestion(const std::filesystem::path& unneededFolder);

/// One file moved aside. Nothing is ever deleted: a file that cannot be moved stays where
/// it was, and `message` says why.
struct UnneededMove {
    bool moved = false;
    std::optional<UserMessage> message;
};
UnneededMove MoveUnneededFile(const RomFolderFile& entry,
                              const std::filesystem::path& unneededFolder,
                              const std::vector<std::string>& arcadeFolders);

} // namespace coinlight
