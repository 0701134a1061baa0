#include "online/AssetDownload.h"

#include <gtest/gtest.h>

#include "core/CommandLine.h"
#include "support/TestFiles.h"

namespace coinlight {
namespace {

using test::FakeMame;
using test::ReadFile;
using test::TempFolder;
using test::WriteFile;

TEST(AssetDownload, AddressesAndFoldersFollowTheSitesLayout) {
    EXPECT_EQ(ArtworkUrl("http://art.example", "pacman.zip"),
              "http://art.example/artwork/pacman.zip");
    EXPECT_EQ(SamplesUrl("http://sam.example", "zaxxon.zip"),
              "http://sam.example/download?tipo=samples&file=/samples/zip/zaxxon.zip");
    DataLayout data{"/data"};
    EXPECT_EQ(BulkDownloadFolder(data, AssetKind::Artwork), "/data/artworkdl");
    EXPECT_EQ(BulkDownloadFolder(data, AssetKind::Samples), "/data/samplesdl");
}

class SamplesQuestion : public ::testing::Test {
protected:
    SamplesQuestion() {
        // Fixtures of the test's own: the shared ones must not be written to.
        std::filesystem::create_directories(m_folder / "fixtures");
        m_mame = test::InstallFakeMame(m_folder / "mame folder", m_folder / "fixtures");
        m_data.root = m_folder / "data";
        std::filesystem::create_directories(m_data.Temp());
        m_run = {m_mame.folder, m_mame.executable, m_data.Temp()};
    }
    SamplesQuery Ask(const std::string& name) {
        return AskMameForSamples(m_run, name, m_data, [] { return true; });
    }

    TempFolder m_folder;
    FakeMame m_mame;
    DataLayout m_data;
    MameRun m_run;
};

TEST_F(SamplesQuestion, OnlyAHeadingAndASampleMakeAMachineWithSamples) {
    WriteFile(m_mame.Data() / "listsamples-zaxxon.txt",
              "Samples required for driver \"zaxxon\".\r\n03\r\n05\r\n");
    WriteFile(m_mame.Data() / "listsamples-pacman.txt",
              "Samples required for driver \"pacman\".\n");
    WriteFile(m_mame.Data() / "listsamples-galaga.txt", "");
    EXPECT_EQ(Ask("zaxxon").answer, SamplesAnswer::Has);
    EXPECT_EQ(Ask("pacman").answer, SamplesAnswer::HasNone) << "the heading alone";
    EXPECT_EQ(Ask("galaga").answer, SamplesAnswer::HasNone);
    EXPECT_FALSE(std::filesystem::exists(m_data.Temp() / "lsamples.txt")) << "deleted after";
    const std::string launches = ReadFile(m_mame.Launches());
    EXPECT_NE(launches.find("\t-inipath\t" + m_data.Temp().string() + "\tzaxxon\t-listsamples\n"),
              std::string::npos)
        << launches;
}

TEST_F(SamplesQuestion, ANameThatIsNotAShortNameNeverReachesTheShell) {
    EXPECT_EQ(ListSamplesCommand(m_run, "a;rm -rf x", m_data.Temp() / "l.txt"), "");
    EXPECT_EQ(Ask("$(touch pwned)").answer, SamplesAnswer::HasNone);
    EXPECT_FALSE(std::filesystem::exists(m_mame.Launches()));
    EXPECT_EQ(ListSamplesCommand(m_run, "zaxxon", m_data.Temp() / "l.txt"),
              QuotePath((m_mame.folder / "mame").string()) + " -inipath " +
                  QuotePath(m_data.Temp().string()) + " zaxxon -listsamples > " +
                  QuotePath((m_data.Temp() / "l.txt").string()));
}

TEST_F(SamplesQuestion, NoAnswerFileIsAFailureWithAMessage) {
    std::filesystem::remove_all(m_data.Temp());
    const SamplesQuery query = Ask("zaxxon");
    EXPECT_EQ(query.answer, SamplesAnswer::Failed);
    EXPECT_NE(query.message.find("lsamples.txt"), std::string::npos) << query.message;
    EXPECT_FALSE(query.fatal);
}

TEST_F(SamplesQuestion, TheUserCanStopTheQuestionWhileMameRuns) {
    m_mame.SetBehaviour("sleep 3000");
    const SamplesQuery query = AskMameForSamples(m_run, "zaxxon", m_data, [] { return false; });
    EXPECT_EQ(query.answer, SamplesAnswer::Cancelled);
}

/// A bulk job with scripted steps: which machines have samples, which downloads work.
class BulkJob : public ::testing::Test {
protected:
    BulkJob() { m_data.root = m_folder / "data"; }

    BulkDownloadResult Run(AssetKind kind, const std::vector<std::string>& names) {
        BulkDownloadSteps steps;
        steps.showStatus = [this](const std::string& status) {
            m_said.push_back(status);
        };
        steps.download = [this](const std::string& url, const std::filesystem::path& file) {
            m_said.push_back("GET " + url + " > " + file.filename().string());
            if (url.find("broken") != std::string::npos) {
                return DownloadOutcome::Failed;
            }
            if (url.find("stopper") != std::string::npos) {
                return DownloadOutcome::Cancelled;
            }
            WriteFile(file, "zip");
            return DownloadOutcome::Succeeded;
        };
        steps.askSamples = [this](const std::string& name) {
            m_said.push_back("ask " + name);
            if (name == "oops") {
                return SamplesQuery{SamplesAnswer::Failed, "File not found", false};
            }
            return SamplesQuery{
                name.starts_with("s") ? SamplesAnswer::Has : SamplesAnswer::HasNone, {}, false};
        };
        steps.cancelled = [this] {
            return m_cancelAfter-- == 0;
        };
        return RunBulkDownload(kind, names, "http://site", m_data, steps);
    }

    TempFolder m_folder;
    DataLayout m_data;
    std::vector<std::string> m_said;
    int m_cancelAfter = -1;
};

TEST_F(BulkJob, EachMachineIsTriedInOrderAndAFailureDoesNotStopTheLoop) {
    const auto result = Run(AssetKind::Artwork, {"pacman", "broken", "galaga"});
    const std::vector<std::string> expected = {"Trying pacman.zip",
                                               "GET http://site/artwork/pacman.zip > pacman.zip",
                                               "Download Successful",
                                               "Trying broken.zip",
                                               "GET http://site/artwork/broken.zip > broken.zip",
                                               "Download Failed",
                                               "Trying galaga.zip",
                                               "GET http://site/artwork/galaga.zip > galaga.zip",
                                               "Download Successful",
                                               "Operation Completed"};
    EXPECT_EQ(m_said, expected);
    EXPECT_EQ(result.tried, 3);
    EXPECT_EQ(result.succeeded, 2);
    EXPECT_TRUE(std::filesystem::exists(m_data.root / "artworkdl" / "galaga.zip"))
        << "the folder is made on demand";
}

TEST_F(BulkJob, TheLeftoverOfADownloadOfAKilledProgramIsCleared) {
    const auto leftover = m_data.root / "artworkdl" / "pacman.zip.tmp-2147483646-ab12CD";
    WriteFile(leftover, "half a zip");
    Run(AssetKind::Artwork, {"galaga"});
    EXPECT_FALSE(std::filesystem::exists(leftover));
}

TEST_F(BulkJob, SamplesAreFetchedOnlyForMachinesThatHaveThem) {
    Run(AssetKind::Samples, {"pacman", "spacefb"});
    const std::vector<std::string> expected = {
        "ask pacman",
        "ask spacefb",
        "Trying spacefb.zip",
        "GET http://site/download?tipo=samples&file=/samples/zip/spacefb.zip > spacefb.zip",
        "Download Successful",
        "Operation Completed"};
    EXPECT_EQ(m_said, expected);
}

TEST_F(BulkJob, ACancelledJobSaysSoAndKeepsWhatItFetched) {
    m_cancelAfter = 1;
    const auto result = Run(AssetKind::Artwork, {"pacman", "galaga", "mspacman"});
    EXPECT_TRUE(result.cancelled);
    EXPECT_EQ(m_said.back(), "Operation Cancelled");
    EXPECT_TRUE(std::filesystem::exists(m_data.root / "artworkdl" / "pacman.zip"));
    EXPECT_FALSE(std::filesystem::exists(m_data.root / "artworkdl" / "galaga.zip"));

    m_said.clear();
    m_cancelAfter = -1;
    EXPECT_TRUE(Run(AssetKind::Artwork, {"stopper", "galaga"}).cancelled)
        << "a transfer cut by Cancel ends the job too";
    EXPECT_EQ(m_said.back(), "Operation Cancelled");
}

TEST_F(BulkJob, AFailedSamplesQuestionEndsTheJobWithItsMessage) {
    const auto result = Run(AssetKind::Samples, {"oops", "spacefb"});
    EXPECT_EQ(result.error, "File not found");
    EXPECT_EQ(m_said, std::vector<std::string>{"ask oops"});
}

TEST_F(BulkJob, NamesThatCouldLeaveTheFolderAreNeverFetched) {
    Run(AssetKind::Artwork, {"../../evil", "ok_1"});
    EXPECT_EQ(m_said[0], "Trying ../../evil.zip");
    EXPECT_EQ(m_said[1], "Download Failed");
    EXPECT_EQ(m_said[2], "Trying ok_1.zip");
}

TEST_F(BulkJob, AFolderThatCannotBeMadeIsTold) {
    WriteFile(m_data.root / "artworkdl", "a file in the way");
    const auto result = Run(AssetKind::Artwork, {"pacman"});
    ASSERT_TRUE(result.error);
    EXPECT_NE(result.error->find("artworkdl"), std::string::npos);
    EXPECT_TRUE(m_said.empty());
}

} // namespace
} // namespace coinlight
