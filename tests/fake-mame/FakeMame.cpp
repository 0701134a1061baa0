// Plays MAME for the tests. It answers the list and verify options from fixture files and
// records every launch, so that flows can be tested without the emulator.
//
// Beside the executable (found through argv[0], which is how Coinlight starts it):
//   fake-mame-data/        the fixtures: listxml.xml, listsoftware.xml, <option>.txt and
//                          <option>-<machine>.txt for -verifyroms, -listroms, -verifysamples,
//                          -listsamples, -listslots, -verifysoftware; version.txt
//   fake-mame-behaviour.txt optional lines: "exit N", "sleep MS", "garbage", "truncate",
//                          "slowlines MS" (reports come a line at a time, MS apart);
//                          for one list option ("listxml", "listsoftware"): "fail OPTION"
//                          (half the list, then exit 1), "die OPTION" (half, then killed),
//                          "hold OPTION" (half, then waits up to 30 s for the file
//                          fake-mame-release to appear before the rest; a wait that ran out
//                          leaves fake-mame-held-out); "drop OPTION" leaves that option out
//                          of -showconfig (fixture showconfig.txt); "reject OPTION" makes a
//                          launch refuse the mame.ini value of that option on its error output
//   fake-mame-launches.txt  one line per run: the working folder, then each argument,
//                          separated by TABs
#include <chrono>
#include <csignal>
#include <cstdio>
#include <cstdlib>
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
    std::string failOption;            // the list option that fails half-way
    std::string dieOption;             // the list option that is killed half-way
    std::string holdOption;            // the list option that waits half-way
    std::set<std::string> dropped;     // options -showconfig does not list
    std::vector<std::string> rejected; // options whose value a launch refuses
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
        } else if (word == "fail") {
            in >> behaviour.failOption;
        } else if (word == "die") {
            in >> behaviour.dieOption;
        } else if (word == "hold") {
            in >> behaviour.holdOption;
        } else if (word == "drop" && in >> word) {
            behaviour.dropped.insert(word);
        } else if (word == "reject" && in >> word) {
            behaviour.rejected.push_back(word);
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

/// A list that stops half-way as the behaviour says: exits 1, is killed, or waits for the
/// test's word before it goes on. Nothing (false) when the option is not one of those.
bool PrintListHalted(const fs::path& folder, const fs::path& file, const std::string& option,
                     const Behaviour& behaviour) {
    if (option != behaviour.failOption && option != behaviour.dieOption &&
        option != behaviour.holdOption) {
        return false;
    }
    std::ifstream in(file, std::ios::binary);
    std::ostringstream content;
    content << in.rdbuf();
    const std::string text = content.str();
    const std::size_t half = text.size() / 2;
    std::fwrite(text.data(), 1, half, stdout);
    std::fflush(stdout);
    if (option == behaviour.failOption) {
        std::exit(1);
    }
    if (option == behaviour.dieOption) {
        std::raise(SIGKILL);
    }
    bool released = false;
    for (int waited = 0; waited < 3000 && !released; ++waited) {
        std::this_thread::sleep_for(std::chrono::milliseconds(10));
        released = fs::exists(folder / "fake-mame-release");
    }
    if (!released) {
        std::ofstream(folder / "fake-mame-held-out") << "nobody read the first half\n";
    }
    std::fwrite(text.data() + half, 1, text.size() - half, stdout);
    return true;
}

/// -showconfig: the fixture's lines, but for those of the options a build of MAME lacks.
int PrintOptions(const fs::path& file, const Behaviour& behaviour) {
    if (behaviour.garbage) {
        PrintGarbage();
        return behaviour.exitCode;
    }
    std::ifstream in(file, std::ios::binary);
    if (!in) {
        std::cerr << "fake-mame: no fixture for -showconfig\n";
        return 1;
    }
    std::string line;
    while (std::getline(in, line)) {
        const std::string name = line.substr(0, line.find_first_of(" \t\r"));
        if (behaviour.dropped.count(name) == 0) {
            std::cout << line << '\n';
        }
    }
    return behaviour.exitCode;
}

/// What MAME says of a mame.ini value it cannot take, once for each option told.
void RejectValues(const Behaviour& behaviour) {
    for (const auto& option : behaviour.rejected) {
        std::cerr << "Illegal float value for " << option << ": \"x\"; reverting to 1.0\n";
    }
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
        if (argument == "-showconfig") {
            return PrintOptions(data / "showconfig.txt", behaviour);
        }
        if (argument == "-listxml" || argument == "-listsoftware") {
            if (behaviour.garbage) {
                PrintGarbage();
            } else if (PrintListHalted(folder, data / (argument.substr(1) + ".xml"),
                                       argument.substr(1), behaviour)) {
                return behaviour.exitCode;
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
    RejectValues(behaviour);
    return behaviour.exitCode;
}
