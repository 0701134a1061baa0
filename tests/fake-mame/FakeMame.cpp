// Plays MAME for the tests. It answers the list and verify options from fixture files and
// records every launch, so that flows can be tested without the emulator.
//
// Beside the executable (found through argv[0], which is how Coinlight starts it):
//   fake-mame-data/        the fixtures: listxml.xml, listsoftware.xml, <option>.txt and
//                          <option>-<machine>.txt for -verifyroms, -listroms, -verifysamples,
//                          -listsamples, -listslots, -verifysoftware; version.txt
//   fake-mame-behaviour.txt optional lines: "exit N", "sleep MS", "garbage", "truncate",
//                          "slowlines MS" (reports come a line at a time, MS apart)
//   fake-mame-launches.txt  one line per run: the working folder, then each argument,
//                          separated by TABs
#include <chrono>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <set>
#include <sstream>
#include <string>
#include <thread>
#include <unistd.h>
#include <vector>

namespace fs = std::filesystem;

namespace {

struct Behaviour {
    int exitCode = 0;
    int sleepMilliseconds = 0;
    bool garbage = false;
    bool truncate = false;
};

Behaviour ReadBehaviour(const fs::path& folder) {
    Behaviour behaviour;
    std::ifstream in(folder / "fake-mame-behaviour.txt");
    std::string word;
    while (in >> word) {
        if (word == "exit") {
            in >> behaviour.exitCode;
        } else if (word == "sleep") {
            in >> behaviour.sleepMilliseconds;
        } else if (word == "garbage") {
            behaviour.garbage = true;
        } else if (word == "truncate") {
            behaviour.truncate = true;
        }
    }
    return behaviour;
}

bool PrintFile(const fs::path& file, const Behaviour& behaviour) {
    std::ifstream in(file, std::ios::binary);
    if (!in) {
        return false;
    }
    std::ostringstream content;
    content << in.rdbuf();
    std::string text = content.str();
    if (behaviour.truncate) {
        text.resize(text.size() / 2);
    }
    std::fwrite(text.data(), 1, text.size(), stdout);
    return true;
}

void PrintGarbage() {
    std::string noise;
    for (int i = 0; i < 4096; ++i) {
        noise.push_back(static_cast<char>((i * 7919) & 0xFF));
    }
    std::fwrite(noise.data(), 1, noise.size(), stdout);
}

/// The pause between the lines of a report, as a verification of thousands of sets has
/// them; 0 prints the report at once.
int SlowLineMilliseconds(const fs::path& folder) {
    std::ifstream in(folder / "fake-mame-behaviour.txt");
    std::string word;
    int milliseconds = 0;
    while (in >> word) {
        if (word == "slowlines") {
            in >> milliseconds;
        }
    }
    return milliseconds;
}

bool PrintFileSlowly(const fs::path& file, int milliseconds) {
    std::ifstream in(file, std::ios::binary);
    if (!in) {
        return false;
    }
    std::string line;
    while (std::getline(in, line)) {
        line.push_back('\n');
        std::fwrite(line.data(), 1, line.size(), stdout);
        std::fflush(stdout);
        std::this_thread::sleep_for(std::chrono::milliseconds(milliseconds));
    }
    return true;
}

/// The machine named on the line: the first word that is neither an option nor an option's
/// value.
std::string MachineOf(const std::vector<std::string>& arguments) {
    static const std::set<std::string> takesValue = {"-inipath", "-rompath",  "-hashpath",
                                                     "-record",  "-playback", "-cfg_directory",
                                                     "-bios",    "-snapname", "-state"};
    for (std::size_t i = 0; i < arguments.size(); ++i) {
        if (arguments[i].empty() || arguments[i][0] == '-') {
            continue;
        }
        if (i > 0 && takesValue.count(arguments[i - 1]) != 0) {
            continue;
        }
        return arguments[i];
    }
    return {};
}

void RecordLaunch(const fs::path& folder, const std::vector<std::string>& arguments) {
    std::ofstream out(folder / "fake-mame-launches.txt", std::ios::app);
    std::error_code error;
    out << fs::current_path(error).string();
    for (const auto& argument : arguments) {
        out << '\t' << argument;
    }
    out << '\n';
}

} // namespace

int main(int argc, char** argv) {
    const fs::path folder = fs::absolute(fs::path(argv[0])).parent_path();
    const fs::path data = folder / "fake-mame-data";
    const std::vector<std::string> arguments(argv + 1, argv + argc);
    const Behaviour behaviour = ReadBehaviour(folder);
    RecordLaunch(folder, arguments);
    if (behaviour.sleepMilliseconds > 0) {
        std::this_thread::sleep_for(std::chrono::milliseconds(behaviour.sleepMilliseconds));
    }

    static const std::set<std::string> reports = {"-verifyroms",  "-listroms",  "-verifysamples",
                                                  "-listsamples", "-listslots", "-verifysoftware"};
    for (const auto& argument : arguments) {
        if (argument == "-version") {
            if (!PrintFile(data / "version.txt", behaviour)) {
                std::cout << "0.251 (fake)\n";
            }
            return behaviour.exitCode;
        }
        if (argument == "-listxml" || argument == "-listsoftware") {
            if (behaviour.garbage) {
                PrintGarbage();
            } else if (!PrintFile(data / (argument.substr(1) + ".xml"), behaviour)) {
                std::cerr << "fake-mame: no fixture for " << argument << '\n';
                return 1;
            }
            return behaviour.exitCode;
        }
        if (reports.count(argument) != 0) {
            const std::string option = argument.substr(1);
            const std::string machine = MachineOf(arguments);
            if (!(machine.empty() || machine == "*") &&
                PrintFile(data / (option + "-" + machine + ".txt"), behaviour)) {
                return behaviour.exitCode;
            }
            if (const int slow = SlowLineMilliseconds(folder); slow > 0) {
                return PrintFileSlowly(data / (option + ".txt"), slow) ? behaviour.exitCode : 1;
            }
            if (!PrintFile(data / (option + ".txt"), behaviour)) {
                std::cout << "romset \"" << machine << "\" not found!\n";
                return 1;
            }
            return behaviour.exitCode;
        }
    }

    const std::string machine = MachineOf(arguments);
    std::cout << "fake-mame: emulating " << machine << '\n';
    std::cerr << "fake-mame: warning: this is not MAME\n";
    return behaviour.exitCode;
}
