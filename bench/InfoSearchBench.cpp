// One click on history.xml or command.dat: a scan from the top for the last machine in the
// file. The floor is `grep -c` of the same needle over the same file, in the same run.
//
//   info_search_bench [folder of the real support files]
//
// MAME's history.xml is some 40 MB; one of that size is made from real history texts (the
// filtered history of shared/realdata) by repeating its entries under new names, in the
// layout of history.xml. The real command.dat is repeated likewise to 40 MB.
#include <cstdio>
#include <fcntl.h>
#include <filesystem>
#include <iostream>
#include <string>
#include <sys/wait.h>
#include <unistd.h>
#include <vector>

#include "BenchSupport.h"
#include "core/TextFile.h"
#include "info/DollarRecordSearch.h"
#include "info/HistorySearch.h"

using namespace coinlight;

namespace {

constexpr std::size_t kTargetBytes = 40u << 20;

/// (names, text) of the records of a history file in the dollar layout, or of a sample.
std::vector<std::pair<std::string, std::string>> HistoryRecords(const std::string& file) {
    std::vector<std::pair<std::string, std::string>> records;
    if (const auto bytes = ReadFileBytes(file)) {
        std::string names;
        std::string text;
        bool inRecord = false;
        for (const auto& line : SplitLines(*bytes)) {
            if (line.starts_with("$info=")) {
                names = line.substr(6);
                text.clear();
                inRecord = true;
            } else if (line.starts_with("$end") && inRecord) {
                records.emplace_back(names, text);
                inRecord = false;
            } else if (inRecord && !line.starts_with("$")) {
                text += line + "\n";
            }
        }
    }
    if (records.empty()) {
        records.emplace_back("sample", std::string(60, 'x') + "\n" + std::string(1800, 'y') + "\n");
    }
    return records;
}

std::string XmlEscaped(const std::string& text) {
    std::string escaped;
    for (const char c : text) {
        escaped += c == '&' ? "&amp;" : c == '<' ? "&lt;" : c == '"' ? "&quot;" : std::string(1, c);
    }
    return escaped;
}

std::filesystem::path MakeHistory(const std::filesystem::path& realData,
                                  const std::filesystem::path& folder, std::string& last) {
    const auto records =
        HistoryRecords((realData / "history_raine-filtered_from-xml-2.50.dat").string());
    std::string xml = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<history version=\"2.50\">\n";
    for (std::size_t round = 0; xml.size() < kTargetBytes; ++round) {
        for (const auto& [names, text] : records) {
            last = "m" + std::to_string(round) + "_" + names.substr(0, names.find(','));
            xml += "\t<entry>\n\t\t<systems>\n\t\t\t<system name=\"" + last +
                   "\" />\n\t\t</systems>\n\t\t<text>\n" + XmlEscaped(text) +
                   "\t\t</text>\n\t</entry>\n";
            if (xml.size() >= kTargetBytes) {
                break;
            }
        }
    }
    xml += "</history>\n";
    const auto file = folder / "history.xml";
    WriteFileBytes(file, xml);
    return file;
}

std::filesystem::path MakeCommandDat(const std::filesystem::path& realData,
                                     const std::filesystem::path& folder, std::string& last) {
    // The real file over and over, each copy's machines renamed, records whole.
    const auto bytes = ReadFileBytes(realData / "command_raine-vendored_2022-09-19.dat");
    const auto lines =
        SplitLines(bytes.value_or("$info=sample\n$cmd\n" + std::string(2000, 'x') + "\n$end\n"));
    std::string dat;
    for (std::size_t round = 0; dat.size() < kTargetBytes; ++round) {
        for (const auto& line : lines) {
            if (line.starts_with("$info=")) {
                last = "c" + std::to_string(round) + "_" + line.substr(6, line.find(',') - 6);
                dat += "$info=c" + std::to_string(round) + "_" + line.substr(6) + "\r\n";
            } else {
                dat += line + "\r\n";
            }
        }
    }
    const auto file = folder / "command.dat";
    WriteFileBytes(file, dat);
    return file;
}

/// grep -c -F needle file, as a separate program, its output thrown away.
void Grep(const std::string& needle, const std::filesystem::path& file) {
    std::fflush(stdout);
    const pid_t child = ::fork();
    if (child == 0) {
        const int null = ::open("/dev/null", O_WRONLY);
        ::dup2(null, STDOUT_FILENO);
        ::execlp("grep", "grep", "-c", "-F", "--", needle.c_str(), file.c_str(), nullptr);
        ::_exit(127);
    }
    int status = 0;
    ::waitpid(child, &status, 0);
}

void Compare(const char* what, const std::filesystem::path& file, const std::string& needle,
             const std::function<void()>& search) {
    const auto bytes = std::filesystem::file_size(file);
    std::printf("%s: %s, %.1f MB, needle %s\n", what, file.c_str(), bytes / 1048576.0,
                needle.c_str());
    search(); // warm the page cache for both
    const double ours = bench::BestMilliseconds(7, search);
    const double grep = bench::BestMilliseconds(7, [&] { Grep(needle, file); });
    bench::PrintFigure("search for the last machine", ours);
    bench::PrintFigure("grep -c of its needle", grep);
    std::printf("  %-48s %10.2f\n", "ratio (limit 2.0)", ours / grep);
}

} // namespace

int main(int argc, char** argv) {
    const std::filesystem::path realData = argc > 1 ? argv[1] : COINLIGHT_REALDATA;
    const auto folder = std::filesystem::temp_directory_path() / "coinlight-info-bench";
    std::filesystem::create_directories(folder);
    InfoSelection selection;
    selection.listView = "All Arcade Machines";

    const auto history = MakeHistory(realData, folder, selection.arcadeMachine);
    Compare("history.xml", history, "<system name=\"" + selection.arcadeMachine + "\"", [&] {
        std::string panel;
        if (SearchHistory(history, selection, panel) || panel.starts_with("No history")) {
            std::cerr << "the last machine was not found\n";
            std::exit(1);
        }
    });

    const auto command = MakeCommandDat(realData, folder, selection.arcadeMachine);
    Compare("command.dat", command, "$info=" + selection.arcadeMachine, [&] {
        std::string panel;
        if (SearchDollarRecords(command, selection, panel) || panel.starts_with("No information")) {
            std::cerr << "the last machine was not found\n";
            std::exit(1);
        }
    });
    std::filesystem::remove_all(folder);
    return 0;
}
