// Start-up to a shown, usable main window on a real catalogue, against the start of an
// empty Qt main window measured the same way: each is a fresh process, timed from its
// launch until its window is exposed and its events are handled.
//
// usage: startup_bench CATALOGUE_OUTPUT_DIR
// The folder is what `coinlight-tool catalogue` writes for MAME's -listxml output. The
// benchmark makes a data folder around it (options, a ROM folder with a few thousand sets,
// a players list) in a temporary folder, and reports the peak memory of the started window.
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iostream>

#include <QApplication>
#include <QElapsedTimer>
#include <QMainWindow>
#include <QProcess>
#include <QWindow>

#include "BenchSupport.h"
#include "core/AppContext.h"
#include "core/TextFile.h"
#include "ui/QtPrompter.h"
#include "ui/frmMain.h"

using namespace coinlight;

namespace {

constexpr int kRomSets = 3000;
constexpr int kRounds = 7;

/// Runs the event loop until the window is on the screen and nothing is left to do.
void WaitUntilUsable(QWidget& window) {
    window.show();
    QElapsedTimer limit;
    limit.start();
    while ((window.windowHandle() == nullptr || !window.windowHandle()->isExposed()) &&
           limit.elapsed() < 10000) {
        QApplication::processEvents(QEventLoop::AllEvents, 5);
    }
    QApplication::processEvents();
}

long PeakKilobytes() {
    std::ifstream status("/proc/self/status");
    std::string word;
    while (status >> word) {
        if (word == "VmHWM:") {
            long kilobytes = 0;
            status >> kilobytes;
            return kilobytes;
        }
    }
    return 0;
}

int ShowEmptyWindow(int argc, char** argv) {
    QApplication application(argc, argv);
    QMainWindow window;
    window.resize(1100, 720);
    WaitUntilUsable(window);
    return 0;
}

int StartCoinlight(int argc, char** argv, const std::filesystem::path& dataFolder) {
    QApplication application(argc, argv);
    AppContext context;
    context.appFolder = dataFolder / "app";
    context.data.root = dataFolder;
    QtPrompter prompter;
    frmMain form(context, prompter);
    if (!form.FormLoad()) {
        std::cerr << "the start failed\n";
        return 1;
    }
    WaitUntilUsable(form);
    form.UnloadCover();
    QApplication::processEvents();
    std::printf("%ld\n", PeakKilobytes());
    return 0;
}

/// A data folder around the catalogue, as a user's would be after a start.
std::filesystem::path MakeDataFolder(const std::filesystem::path& catalogue) {
    const auto work = std::filesystem::temp_directory_path() / "coinlight-startup-bench";
    std::filesystem::remove_all(work);
    const auto data = work / "Coinlight";
    for (const char* folder :
         {"output/soft", "settings", "temp", "support", "roms", "mame", "app"}) {
        std::filesystem::create_directories(data / folder);
    }
    for (const auto& entry : std::filesystem::directory_iterator(catalogue)) {
        if (entry.is_regular_file()) {
            std::filesystem::copy_file(entry.path(), data / "output" / entry.path().filename());
        }
    }
    // The two captures are only looked for at start.
    for (const char* capture : {"machine.xml", "software.xml"}) {
        std::ofstream(data / "output" / capture, std::ios::app);
    }
    std::ofstream(data / "mame" / "mame") << "stands in for the emulator";
    std::vector<std::string> players = {"[NPlayers]"};
    const auto lines =
        ReadTextLines(catalogue / "arcadeinfo.txt").value_or(std::vector<std::string>{});
    for (std::size_t i = 0; i < lines.size(); ++i) {
        std::size_t at = 0;
        for (int quote = 0; quote < 25 && at != std::string::npos; ++quote) {
            at = lines[i].find('"', at + 1);
        }
        const std::string name = lines[i].substr(at + 1, lines[i].find('"', at + 1) - at - 1);
        if (i < kRomSets) {
            std::ofstream(data / "roms" / (name + ".zip"));
        }
        players.push_back(name + "=" + (i % 2 == 0 ? "2P alt" : "1P"));
    }
    WriteTextLines(data / "support" / "nplayers.ini", players);
    const std::string roms = (data / "roms").string();
    WriteTextLines(
        data / "settings" / "options.ini",
        {"[Miscellaneous]", "Coinlight Version=26.02.0", "", "[MAME]", "Executable=mame",
         "Mame.exe Size=" + std::to_string(std::filesystem::file_size(data / "mame" / "mame")), "",
         "[Core Search Path Options]", "MAME=" + (data / "mame").string(), "Arcade ROMs=" + roms,
         "Other ROMs=" + roms, "Ini=" + (data / "temp").string()});
    return data;
}

/// Best wall time of a child run of this program in `mode`, and what the child printed.
double TimeChild(const QStringList& arguments, QString& output) {
    return bench::BestMilliseconds(kRounds, [&] {
        QProcess child;
        child.start(QCoreApplication::applicationFilePath(), arguments);
        child.waitForFinished(60000);
        output = QString::fromUtf8(child.readAllStandardOutput()).trimmed();
        if (child.exitCode() != 0) {
            std::cerr << child.readAllStandardError().toStdString();
            std::exit(1);
        }
    });
}

} // namespace

int main(int argc, char** argv) {
    // On a desktop the real display is measured; without one, the offscreen platform.
    if (std::getenv("DISPLAY") == nullptr) {
        ::setenv("QT_QPA_PLATFORM", "offscreen", 0);
    }
    if (argc == 2 && std::string(argv[1]) == "--empty-window") {
        return ShowEmptyWindow(argc, argv);
    }
    if (argc == 3 && std::string(argv[1]) == "--coinlight") {
        return StartCoinlight(argc, argv, argv[2]);
    }
    if (argc != 2) {
        std::cerr << "usage: startup_bench CATALOGUE_OUTPUT_DIR\n";
        return 2;
    }
    QCoreApplication application(argc, argv);
    const auto data = MakeDataFolder(argv[1]);
    QString ignored;
    QString peak;
    const double empty = TimeChild({QStringLiteral("--empty-window")}, ignored);
    const double coinlight =
        TimeChild({QStringLiteral("--coinlight"), QString::fromStdString(data.string())}, peak);
    const QByteArray platform = qgetenv("QT_QPA_PLATFORM");
    std::printf("catalogue %s, %d ROM sets, platform %s\n", argv[1], kRomSets,
                platform.isEmpty() ? "the desktop's" : platform.constData());
    bench::PrintFigure("floor: an empty Qt main window, start to shown", empty);
    bench::PrintFigure("Coinlight with the catalogue, start to usable", coinlight);
    std::printf("  ratio %.2f, peak memory of the started window %.1f MB\n", coinlight / empty,
                peak.toDouble() / 1024.0);
    std::filesystem::remove_all(data.parent_path());
    return 0;
}
