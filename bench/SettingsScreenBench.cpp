// Opening a settings screen on a profile that holds every key, against opening the same
// screen at its defaults. Both take the steps of the screen routine: the profile read and
// checked (or the defaults), the controls filled, the rules run, the page put on show and
// painted. The page is made once before, as the program makes it at first use.
//
// usage: settings_screen_bench [MACHINE_XML]
// With MAME's -listxml output the BIOS list of the screen is that of a real machine.
#include <cstdio>
#include <filesystem>

#include <QApplication>
#include <QElapsedTimer>
#include <QMainWindow>
#include <QStackedWidget>

#include "BenchSupport.h"
#include "SettingsBenchSupport.h"
#include "settings/ProfileLoad.h"
#include "settings/ProfileSave.h"
#include "ui/settings/SettingsPage.h"
#include "ui/settings/SystemComboSources.h"

using namespace coinlight;

namespace {

constexpr int kRounds = 15;

/// The best time of `open`, measured from a hidden page to a painted one.
double TimeOpening(QStackedWidget& pages, QWidget& other, SettingsPage& page,
                   const std::function<void()>& open) {
    double best = 1e300;
    for (int round = 0; round < kRounds; ++round) {
        pages.setCurrentWidget(&other);
        QApplication::processEvents();
        QElapsedTimer timer;
        timer.start();
        open();
        pages.setCurrentWidget(&page);
        page.repaint();
        QApplication::processEvents();
        best = std::min(best, static_cast<double>(timer.nsecsElapsed()) / 1e6);
    }
    return best;
}

} // namespace

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    int qtArgc = 1;
    QApplication application(qtArgc, argv);
    const bench::MachineBios machines = bench::ReadMachineBios(argc > 1 ? argv[1] : nullptr, 0);
    std::vector<std::string> bios = {"Default"};
    std::string machine = "(none)";
    for (const auto& [name, entries] : machines.bios) {
        if (entries.size() > 200) { // a machine with a long list, as neogeo has
            machine = name;
            for (std::size_t at = 0; at != std::string::npos;) {
                const std::size_t next = entries.find(";;", at);
                bios.push_back(entries.substr(at, next == std::string::npos ? next : next - at));
                at = next == std::string::npos ? next : next + 2;
            }
            break;
        }
    }

    QMainWindow window;
    auto* pages = new QStackedWidget;
    auto* other = new QWidget;
    auto* page = new SettingsPage;
    pages->addWidget(other);
    pages->addWidget(page);
    window.setCentralWidget(pages);
    window.resize(1100, 720);
    window.show();
    QApplication::processEvents();

    QElapsedTimer made;
    made.start();
    ComboSources sources;
    sources.processors = 4;
    AddSystemComboSources(sources);
    page->DefineCombos(ComboChoices(sources));
    page->SetBiosItems(bios);
    const double making = static_cast<double>(made.nsecsElapsed()) / 1e6;
    bool loading = false;
    page->UseLoadingFlag(loading);

    const auto profile = std::filesystem::temp_directory_path() / "coinlight-screen-bench.cfg";
    OptionValues full = bench::FullProfile(page->Choices(), 7);
    WriteOptionValues(profile, full);
    std::size_t items = 0;
    for (std::size_t row = 0; row < OptionCatalogue().size(); ++row) {
        items += page->Choices().Items(row).size();
    }
    std::printf("page of %zu controls, %zu drop-down items, %zu fonts; BIOS list of %s: %zu "
                "entries; profile of %zu keys, %ju bytes\n",
                OptionCatalogue().size(), items, sources.fonts.size(), machine.c_str(), bios.size(),
                OptionCatalogue().size(),
                static_cast<std::uintmax_t>(std::filesystem::file_size(profile)));

    const double defaults = TimeOpening(*pages, *other, *page, [&] {
        loading = true;
        page->SetDefaults();
        page->ApplyScreen(SettingsScreen::Raster);
        page->ControlStateAll();
    });
    std::size_t refused = 0;
    const double filled = TimeOpening(*pages, *other, *page, [&] {
        loading = true;
        const LoadedProfile loaded = LoadProfileValues(profile, page->Choices());
        refused += loaded.refused.size();
        page->SetValues(loaded.values);
        page->ApplyScreen(SettingsScreen::Raster);
        page->ControlStateAll();
    });
    bench::PrintFigure("making the page once (first use)", making);
    bench::PrintFigure("opening the screen at its defaults", defaults);
    bench::PrintFigure("opening the screen on the full profile", filled);
    std::printf("  ratio to the defaults: %.2f; refused values: %zu\n", filled / defaults, refused);
    std::filesystem::remove(profile);
    return refused == 0 ? 0 : 1;
}
