#include "InfoTestSupport.h"

#include <archive.h>
#include <archive_entry.h>
#include <cstdlib>
#include <gtest/gtest.h>

namespace coinlight::test {

void MakeArchive(const std::filesystem::path& file,
                 const std::vector<std::pair<std::string, std::string>>& entries) {
    std::filesystem::create_directories(file.parent_path());
    archive* writer = archive_write_new();
    ASSERT_EQ(archive_write_set_format_7zip(writer), ARCHIVE_OK);
    ASSERT_EQ(archive_write_open_filename(writer, file.c_str()), ARCHIVE_OK);
    for (const auto& [name, content] : entries) {
        archive_entry* entry = archive_entry_new();
        archive_entry_set_pathname(entry, name.c_str());
        archive_entry_set_filetype(entry, AE_IFREG);
        archive_entry_set_perm(entry, 0644);
        archive_entry_set_size(entry, static_cast<la_int64_t>(content.size()));
        ASSERT_EQ(archive_write_header(writer, entry), ARCHIVE_OK) << name;
        archive_write_data(writer, content.data(), content.size());
        archive_entry_free(entry);
    }
    ASSERT_EQ(archive_write_close(writer), ARCHIVE_OK);
    archive_write_free(writer);
}

std::optional<std::filesystem::path> RealDataFolder() {
    if (const char* chosen = std::getenv("COINLIGHT_REALDATA")) {
        return std::filesystem::is_directory(chosen) ? std::optional<std::filesystem::path>(chosen)
                                                     : std::nullopt;
    }
    // Beside the main checkout, or beside the folder of working trees.
    const std::filesystem::path source = COINLIGHT_SOURCE_DIR;
    for (const auto& candidate : {source.parent_path() / "shared" / "realdata",
                                  source.parent_path().parent_path() / "shared" / "realdata"}) {
        if (std::filesystem::is_directory(candidate)) {
            return candidate;
        }
    }
    return std::nullopt;
}

InfoSelection ArcadeSelection(const std::string& machine) {
    InfoSelection selection;
    selection.listView = "Available Arcade Machines";
    selection.arcadeMachine = machine;
    return selection;
}

InfoSelection OtherSelection(const std::string& machine, const std::string& machineText,
                             const std::string& software, const std::string& list,
                             const std::string& softwareText) {
    InfoSelection selection;
    selection.listView = "Other Machines";
    selection.inOtherView = true;
    selection.otherMachine = machine;
    selection.otherMachineText = machineText;
    selection.softwareCaption = true;
    selection.softwareListEmpty = software.empty();
    if (!software.empty()) {
        selection.softwareSelected = true;
        selection.softwareName = software;
        selection.softwareList = list;
        selection.softwareText = softwareText;
    }
    return selection;
}

} // namespace coinlight::test
