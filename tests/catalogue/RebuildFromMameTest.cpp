// MAME's two lists made at once, and the catalogue built while MAME writes.
#include "catalogue/RebuildFromMame.h"

#include <gtest/gtest.h>
#include <map>
#include <sys/stat.h>

#include "CatalogueTestSupport.h"

using namespace coinlight;
using namespace coinlight::test;

namespace {

constexpr const char* kNotCreated =
    "The machine.xml was not created.  Coinlight will now close.\n\nThis may mean you do not "
    "have permission to read or write files in ";

struct RebuildFolder {
    TempFolder temp;
    DataLayout data{temp / "data $folder"};
    FakeMame mame;

    RebuildFolder() : mame(InstallFakeMame(temp / "mame dir", "fake-mame", "mame")) {
        std::filesystem::create_directories(data.Output());
        std::filesystem::create_directories(data.Support());
        std::filesystem::copy_file(FixturesFolder() / "catalogue" / "lists.txt",
                                   data.Support() / "lists.txt");
    }
    SupportFilesResult Rebuild(CatalogueProgress& progress) const {
        return RebuildFromMame({mame.folder, mame.executable}, data, false, progress);
    }
    /// A catalogue of an earlier MAME, as a user's output folder holds it.
    void PutOldCatalogue() const {
        for (const auto& entry :
             std::filesystem::directory_iterator(FixturesFolder() / "catalogue-small" / "output")) {
            std::filesystem::copy_file(entry.path(), data.Output() / entry.path().filename());
        }
        WriteFile(data.Output() / "unlisted.txt", "old report\r\n");
    }
    /// Every file of the output folder with its bytes.
    std::map<std::string, std::string> OutputFiles() const {
        std::map<std::string, std::string> files;
        for (const auto& entry : std::filesystem::directory_iterator(data.Output())) {
            files[entry.path().filename().string()] = ReadFile(entry.path());
        }
        return files;
    }
};

/// The names of the files added, changed or removed between two looks at a folder.
std::vector<std::string> Changed(const std::map<std::string, std::string>& before,
                                 const std::map<std::string, std::string>& after) {
    std::vector<std::string> changed;
    for (const auto& [name, bytes] : before) {
        const auto now = after.find(name);
        if (now == after.end() || now->second != bytes) {
            changed.push_back(name);
        }
    }
    for (const auto& [name, bytes] : after) {
        if (before.count(name) == 0) {
            changed.push_back(name);
        }
    }
    return changed;
}

/// Counts the machines and, at the first count, lets a held MAME go on.
class ReleasingProgress : public RecordingProgress {
public:
    explicit ReleasingProgress(std::filesystem::path release) : m_release(std::move(release)) {}
    void ShowArcadeCount(std::int32_t count) override {
        Release();
        RecordingProgress::ShowArcadeCount(count);
    }
    void ShowOtherCount(std::int32_t count) override {
        Release();
        RecordingProgress::ShowOtherCount(count);
    }

private:
    void Release() {
        if (!std::filesystem::exists(m_release)) {
            WriteFile(m_release, "go on");
        }
    }
    std::filesystem::path m_release;
};

} // namespace

TEST(RebuildFromMame, GivesMamesBytesAndTheCatalogueOneStepAfterAnotherWould) {
    RebuildFolder folder;
    RecordingProgress progress;
    const SupportFilesResult result = folder.Rebuild(progress);
    ASSERT_TRUE(result.outcome.Succeeded()) << result.outcome.messages.front().text;
    const auto output = folder.data.Output();
    EXPECT_EQ(ReadFile(output / "machine.xml"), ReadFile(folder.mame.Data() / "listxml.xml"));
    EXPECT_EQ(ReadFile(output / "software.xml"), ReadFile(folder.mame.Data() / "listsoftware.xml"));

    // The same catalogue from the finished list, the way it has always been made.
    CatalogueFolder sequential;
    RecordingProgress quiet;
    ASSERT_TRUE(CreateSupportFiles(sequential.Sources(), quiet).outcome.Succeeded());
    for (const char* file : {"arcadeinfo.txt", "otherinfo.txt", "crcinfo.txt", "biosfilter.txt",
                             "arcadebios.txt", "otherbios.txt", "bios.ini", "softfilter.ini"}) {
        EXPECT_EQ(ReadFile(output / file), ReadFile(sequential.Output() / file)) << file;
    }
    EXPECT_EQ(result.counts.arcade, 4);
    EXPECT_EQ(progress.events.front(), "capture Creating machine.xml...");
    EXPECT_EQ(progress.events.back(), "clear");

    const std::string launches = ReadFile(folder.mame.Launches());
    EXPECT_NE(launches.find("\t-listxml\t-nodtd\n"), std::string::npos) << launches;
    EXPECT_NE(launches.find("\t-listsoftware\t-nodtd\n"), std::string::npos) << launches;
    for (const auto& [name, bytes] : folder.OutputFiles()) {
        EXPECT_EQ(name.find(".tmp-"), std::string::npos) << name << " was left behind";
    }
    // What the shell would have made, not the private rights of a temporary file.
    struct stat info {};
    ASSERT_EQ(::stat((output / "machine.xml").c_str(), &info), 0);
    const mode_t mask = ::umask(0);
    ::umask(mask);
    EXPECT_EQ(info.st_mode & 0777, 0666 & ~mask);
}

TEST(RebuildFromMame, TheCatalogueIsBuiltWhileMameStillWrites) {
    RebuildFolder folder;
    // MAME writes half its list and waits until the catalogue has counted a machine of it.
    folder.mame.SetBehaviour("hold listxml\n");
    ReleasingProgress progress(folder.mame.folder / "fake-mame-release");
    const SupportFilesResult result = folder.Rebuild(progress);
    EXPECT_TRUE(result.outcome.Succeeded());
    EXPECT_FALSE(std::filesystem::exists(folder.mame.folder / "fake-mame-held-out"))
        << "nothing was read before MAME had finished";
    EXPECT_EQ(ReadFile(folder.data.Output() / "machine.xml"),
              ReadFile(folder.mame.Data() / "listxml.xml"));
    EXPECT_EQ(result.counts.arcade, 4);
}

TEST(RebuildFromMame, AMameThatFailsOrIsKilledHalfWayLeavesTheOldCatalogueWhole) {
    for (const char* behaviour :
         {"fail listsoftware\n", "fail listxml\n", "die listxml\n", "die listsoftware\n"}) {
        SCOPED_TRACE(behaviour);
        RebuildFolder folder;
        folder.PutOldCatalogue();
        const auto before = folder.OutputFiles();
        folder.mame.SetBehaviour(behaviour);
        RecordingProgress progress;
        const SupportFilesResult result = folder.Rebuild(progress);
        EXPECT_TRUE(result.outcome.fatalError);
        ASSERT_EQ(result.outcome.messages.size(), 1u);
        EXPECT_EQ(result.outcome.messages[0].text,
                  kNotCreated + folder.data.Output().string() + ".");
        EXPECT_EQ(Changed(before, folder.OutputFiles()), std::vector<std::string>{});
    }
}

TEST(RebuildFromMame, AListTheCatalogueCannotReadGivesItsMessageAndChangesNothing) {
    RebuildFolder folder;
    folder.PutOldCatalogue();
    const auto before = folder.OutputFiles();
    folder.mame.SetBehaviour("garbage\n");
    RecordingProgress progress;
    const SupportFilesResult result = folder.Rebuild(progress);
    EXPECT_TRUE(result.outcome.fatalError);
    ASSERT_FALSE(result.outcome.messages.empty());
    EXPECT_EQ(result.outcome.messages[0].text.rfind("Error In CreateSupportFiles: ", 0), 0u)
        << result.outcome.messages[0].text;
    EXPECT_EQ(Changed(before, folder.OutputFiles()), std::vector<std::string>{});
}

TEST(RebuildFromMame, ABrokenListsTxtEndsTheRunAndChangesNothing) {
    RebuildFolder folder;
    folder.PutOldCatalogue();
    WriteFile(folder.data.Support() / "lists.txt", "Arcade\r\n|alpha|\r\n"); // no Other line
    const auto before = folder.OutputFiles();
    RecordingProgress progress;
    const SupportFilesResult result = folder.Rebuild(progress);
    EXPECT_TRUE(result.outcome.fatalError);
    ASSERT_EQ(result.outcome.messages.size(), 1u);
    EXPECT_EQ(result.outcome.messages[0].text.rfind("Error In CreateSupportFiles: ", 0), 0u);
    EXPECT_EQ(Changed(before, folder.OutputFiles()), std::vector<std::string>{});
}

TEST(RebuildFromMame, WithoutListsTxtOrMameFolderNothingIsMade) {
    RebuildFolder folder;
    std::filesystem::remove(folder.data.Support() / "lists.txt");
    RecordingProgress progress;
    SupportFilesResult result = folder.Rebuild(progress);
    ASSERT_EQ(result.outcome.messages.size(), 1u);
    EXPECT_EQ(result.outcome.messages[0].text.rfind("Cannot find lists.txt.", 0), 0u);
    EXPECT_FALSE(std::filesystem::exists(folder.mame.Launches())) << "MAME was not asked";

    std::filesystem::copy_file(FixturesFolder() / "catalogue" / "lists.txt",
                               folder.data.Support() / "lists.txt");
    result = RebuildFromMame({folder.temp / "gone", "mame"}, folder.data, false, progress);
    EXPECT_TRUE(result.outcome.fatalError);
    ASSERT_EQ(result.outcome.messages.size(), 2u);
    EXPECT_EQ(result.outcome.messages[0].text, "The MAME folder " +
                                                   (folder.temp / "gone").string() +
                                                   " cannot be reached.  Check the MAME path in "
                                                   "Options and try again.");
    EXPECT_EQ(result.outcome.messages[1].text, kNotCreated + folder.data.Output().string() + ".");
    EXPECT_TRUE(folder.OutputFiles().empty());
}
