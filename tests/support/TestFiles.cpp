#include "TestFiles.h"

#include <array>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <sstream>
#include <stdexcept>
#include <sys/wait.h>

namespace coinlight::test {

TempFolder::TempFolder() {
    std::string pattern =
        (std::filesystem::temp_directory_path() / "coinlight-test-XXXXXX").string();
    if (::mkdtemp(pattern.data()) == nullptr) {
        throw std::runtime_error("cannot make a temporary folder");
    }
    m_path = pattern;
}

TempFolder::~TempFolder() {
    std::error_code ignored;
    std::filesystem::permissions(m_path, std::filesystem::perms::owner_all,
                                 std::filesystem::perm_options::add, ignored);
    std::filesystem::remove_all(m_path, ignored);
}

void WriteFile(const std::filesystem::path& file, std::string_view bytes) {
    std::filesystem::create_directories(file.parent_path());
    std::ofstream out(file, std::ios::binary | std::ios::trunc);
    out.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
}

void MakeExecutable(const std::filesystem::path& file) {
    WriteFile(file, "#!/bin/sh\n");
    std::filesystem::permissions(file, std::filesystem::perms::owner_all |
                                           std::filesystem::perms::group_exec |
                                           std::filesystem::perms::others_exec);
}

std::string ReadFile(const std::filesystem::path& file) {
    std::ifstream in(file, std::ios::binary);
    std::ostringstream content;
    content << in.rdbuf();
    return content.str();
}

std::filesystem::path FixturesFolder() {
    return COINLIGHT_FIXTURES_DIR;
}

std::size_t CountFiles(const std::filesystem::path& folder) {
    std::size_t count = 0;
    std::error_code error;
    for (const auto& entry : std::filesystem::recursive_directory_iterator(folder, error)) {
        count += entry.is_regular_file() ? 1 : 0;
    }
    return count;
}

void FakeMame::SetBehaviour(std::string_view lines) const {
    WriteFile(folder / "fake-mame-behaviour.txt", lines);
}

FakeMame InstallFakeMame(const std::filesystem::path& folder, const std::filesystem::path& fixtures,
                         const std::string& executable) {
    std::filesystem::create_directories(folder);
    std::filesystem::create_symlink(COINLIGHT_FAKE_MAME, folder / executable);
    const auto data = fixtures.is_absolute() ? fixtures : FixturesFolder() / fixtures;
    std::filesystem::create_directory_symlink(data, folder / "fake-mame-data");
    return {folder, executable};
}

std::filesystem::path ToolProgram() {
    return COINLIGHT_TOOL;
}
std::filesystem::path CoinlightProgram() {
    return COINLIGHT_APP;
}

ShellResult RunShell(const std::string& line) {
    ShellResult result;
    FILE* pipe = ::popen(line.c_str(), "r");
    if (pipe == nullptr) {
        return result;
    }
    std::array<char, 4096> chunk{};
    std::size_t got = 0;
    while ((got = std::fread(chunk.data(), 1, chunk.size(), pipe)) > 0) {
        result.output.append(chunk.data(), got);
    }
    const int status = ::pclose(pipe);
    result.status = WIFEXITED(status) ? WEXITSTATUS(status) : -1;
    return result;
}

} // namespace coinlight::test
