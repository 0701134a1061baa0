// Reading a file while another process writes it, and MAME's output captured on a thread.
#include "core/OutputCapture.h"

#include <atomic>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>

#include "core/AtomicFileWriter.h"
#include "core/LineReader.h"
#include "core/TemporaryFile.h"
#include "support/TestFiles.h"

namespace coinlight::test {
namespace {

/// Appends `pieces` to `file` one by one with a pause between them, then says it is done.
class SlowWriter {
public:
    SlowWriter(std::filesystem::path file, std::vector<std::string> pieces)
        : m_thread([this, file = std::move(file), pieces = std::move(pieces)] {
              for (const auto& piece : pieces) {
                  std::this_thread::sleep_for(std::chrono::milliseconds(15));
                  std::FILE* out = std::fopen(file.c_str(), "ab");
                  std::fwrite(piece.data(), 1, piece.size(), out);
                  std::fclose(out);
              }
              m_done.store(true);
          }) {}
    ~SlowWriter() { m_thread.join(); }
    bool Done() const { return m_done.load(); }

private:
    std::atomic<bool> m_done{false};
    std::thread m_thread;
};

std::vector<std::string> AllLines(LineReader& reader) {
    std::vector<std::string> lines;
    std::string_view line;
    while (reader.Next(line)) {
        lines.emplace_back(line);
    }
    return lines;
}

TEST(LineReaderFollowingAWriter, WaitsAtTheEndUntilTheWriterIsDone) {
    TempFolder folder;
    const auto file = folder / "growing.xml";
    WriteFile(file, "");
    // Lines cut anywhere, even between CR and LF; the last one has no line feed at all.
    SlowWriter writer(file, {"<mame>\r\n\t<mach", "ine name=\"a\">\r", "\n\t</machine>\r\n", "",
                             "\t<machine name=\"b\">\n", "</mame>"});
    LineReader reader(file);
    int waits = 0;
    reader.OnBlockRead([&waits] { ++waits; });
    reader.FollowWriter([&writer] { return writer.Done(); });
    EXPECT_EQ(AllLines(reader),
              (std::vector<std::string>{"<mame>", "\t<machine name=\"a\">", "\t</machine>",
                                        "\t<machine name=\"b\">", "</mame>"}));
    EXPECT_TRUE(writer.Done()) << "the end came only once the writer was done";
    EXPECT_GT(waits, 0) << "the interface was let to breathe while waiting";
    EXPECT_FALSE(reader.Failed());
}

TEST(LineReaderFollowingAWriter, NextHoldingSkipsAcrossWhatArrivesLater) {
    TempFolder folder;
    const auto file = folder / "growing.xml";
    WriteFile(file, "one\n");
    SlowWriter writer(file, {"two\nthree is", "dev", "ice\nfour\n"});
    LineReader reader(file);
    reader.FollowWriter([&writer] { return writer.Done(); });
    std::string_view line;
    ASSERT_TRUE(reader.NextHolding("isdevice", line));
    EXPECT_EQ(line, "three isdevice");
    ASSERT_TRUE(reader.Next(line));
    EXPECT_EQ(line, "four");
    EXPECT_FALSE(reader.NextHolding("never", line));
}

class Capture : public ::testing::Test {
protected:
    Capture() : m_mame(InstallFakeMame(m_folder / "mame dir")) {}
    std::filesystem::path Target() const { return m_folder / "out $put" / "machine.xml"; }

    TempFolder m_folder;
    FakeMame m_mame;
};

TEST_F(Capture, WritesBesideTheTargetAndPutsTheFileInPlaceOnCommit) {
    std::filesystem::create_directories(Target().parent_path());
    WriteFile(Target(), "the old list");
    OutputCapture capture(m_mame.folder, m_mame.executable, {"-listxml", "-nodtd"}, Target());
    EXPECT_EQ(capture.TemporaryFile().parent_path(), Target().parent_path());
    capture.Wait({});
    ASSERT_TRUE(capture.Succeeded());
    EXPECT_EQ(ReadFile(Target()), "the old list") << "nothing replaced before the commit";
    ASSERT_TRUE(capture.Commit());
    EXPECT_EQ(ReadFile(Target()), ReadFile(m_mame.Data() / "listxml.xml"));
    EXPECT_TRUE(capture.Succeeded());
    EXPECT_EQ(CountFiles(Target().parent_path()), 1u);
}

TEST_F(Capture, AFailedOrCancelledRunLeavesNothingBehind) {
    std::filesystem::create_directories(Target().parent_path());
    m_mame.SetBehaviour("exit 3\n");
    {
        OutputCapture capture(m_mame.folder, m_mame.executable, {"-listxml"}, Target());
        capture.Wait({});
        EXPECT_FALSE(capture.Succeeded());
        EXPECT_EQ(capture.Result().exitStatus, 3);
    }
    m_mame.SetBehaviour("sleep 20000\n");
    {
        OutputCapture capture(m_mame.folder, m_mame.executable, {"-listxml"}, Target());
        const auto start = std::chrono::steady_clock::now();
        capture.Cancel();
        EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(10));
        EXPECT_TRUE(capture.Finished());
        EXPECT_FALSE(capture.Succeeded());
    }
    EXPECT_EQ(CountFiles(Target().parent_path()), 0u);

    OutputCapture nowhere(m_mame.folder, m_mame.executable, {"-listxml"},
                          m_folder / "no such folder" / "machine.xml");
    EXPECT_TRUE(nowhere.Finished());
    EXPECT_TRUE(nowhere.TemporaryFile().empty());
    EXPECT_EQ(nowhere.Result().outcome, ExecOutcome::StartFailed);
}

TEST(TemporaryBeside, TakesTheTargetsRightsAndIsClearedAfterAKilledRun) {
    TempFolder folder;
    WriteFile(folder / "kept.xml", "x");
    std::filesystem::permissions(folder / "kept.xml", std::filesystem::perms::owner_read |
                                                          std::filesystem::perms::owner_write |
                                                          std::filesystem::perms::group_read);
    const auto temporary = MakeTemporaryBeside(folder / "kept.xml");
    ASSERT_TRUE(temporary);
    struct stat info {};
    ASSERT_EQ(::stat(temporary->c_str(), &info), 0);
    EXPECT_EQ(info.st_mode & 0777, 0640u);

    // A process that dies between making its file and renaming it: the next start clears
    // what it left, and leaves the files of the living alone.
    const pid_t child = ::fork();
    if (child == 0) {
        MakeTemporaryBeside(folder / "machine.xml");
        ::_exit(0);
    }
    int status = 0;
    ::waitpid(child, &status, 0);
    EXPECT_EQ(CountFiles(folder.Path()), 3u);
    RemoveOrphanedTemporaries(folder.Path());
    EXPECT_EQ(CountFiles(folder.Path()), 2u) << "the dead process's file is gone, ours stays";
    EXPECT_TRUE(std::filesystem::exists(*temporary));
}

} // namespace
} // namespace coinlight::test
