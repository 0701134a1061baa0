#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace coinlight::test {

/// A fresh folder for one test, removed with everything in it at the end.
class TempFolder {
public:
    TempFolder();
    ~TempFolder();
    TempFolder(const TempFolder&) = delete;
    TempFolder& operator=(const TempFolder&) = delete;

    const std::filesystem::path& Path() const { return m_path; }
    std::filesystem::path operator/(const std::filesystem::path& relative) const {
        return m_path / relative;
    }

private:
    std::filesystem::path m_path;
};

/// Writes the bytes as they are, making the folders on the way.
void WriteFile(const std::filesystem::path& file, std::string_view bytes);
/// A small shell script that anyone may run: a stand-in wherever a program must exist.
void MakeExecutable(const std::filesystem::path& file);
/// The file's bytes; empty when it cannot be read.
std::string ReadFile(const std::filesystem::path& file);
/// The folder of the hand-written fixture files.
std::filesystem::path FixturesFolder();
/// Files of a folder other than those named, for "nothing was left behind" checks.
std::size_t CountFiles(const std::filesystem::path& folder);

/// A MAME folder holding the fake emulator as `executable`, playing the fixtures of
/// `fixtures` (a folder under FixturesFolder(), or an absolute path).
struct FakeMame {
    std::filesystem::path folder;
    std::string executable;

    std::filesystem::path Data() const { return folder / "fake-mame-data"; }
    std::filesystem::path Launches() const { return folder / "fake-mame-launches.txt"; }
    void SetBehaviour(std::string_view lines) const;
};
FakeMame InstallFakeMame(const std::filesystem::path& folder,
                         const std::filesystem::path& fixtures = "fake-mame",
                         const std::string& executable = "mame");

/// The paths of programs built beside the tests.
std::filesystem::path ToolProgram();
std::filesystem::path CoinlightProgram();

/// Runs a shell line and gives its standard output and exit status.
struct ShellResult {
    std::string output;
    int status = -1;
};
ShellResult RunShell(const std::string& line);

} // namespace coinlight::test
