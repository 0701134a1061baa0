// A change of theme with every list of a real catalogue loaded: the main window's controls
// are made as at start, the four machine lists filled, the window shown, and each of the
// fifteen themes applied in turn. The other list's item colours are a role of its model, so
// the cost must not grow with the number of machines.
//
// Usage: apply_theme_bench CATALOGUE_FOLDER (holding arcadeinfo.txt and otherinfo.txt)
#include <algorithm>
#include <cstdio>
#include <filesystem>
#include <iostream>
#include <string>

#include <QApplication>
#include <QMainWindow>

#include "BenchSupport.h"
#include "core/Preferences.h"
#include "lists/ListLoader.h"
#include "ui/MachineListModel.h"
#include "ui/MachineListView.h"
#include "ui/MainControls.h"
#include "ui/Prompter.h"
#include "ui/options/PreferenceChoices.h"
#include "ui/theme/MainTheme.h"

namespace {

using namespace coinlight;

/// Answers nothing: a theme of the table never asks.
class SilentPrompter final : public Prompter {
public:
    PromptAnswer Message(const QString&, const QString&, PromptIcon, PromptButtons) override {
        return PromptAnswer::Ok;
    }
    std::optional<QString> Input(const QString&, const QString&, const QString&) override {
        return std::nullopt;
    }
    std::optional<QString> OpenFile(const QString&, const QString&, const QString&) override {
        return std::nullopt;
    }
    std::optional<QString> SaveFile(const QString&, const QString&, const QString&) override {
        return std::nullopt;
    }
    std::optional<QString> Folder(const QString&, const QString&) override { return std::nullopt; }
    std::optional<QColor> Colour(const QString&, const QColor&) override { return std::nullopt; }
};

LoadedList LoadOrExit(const std::filesystem::path& file, bool arcade) {
    ListLoadOptions options;
    options.skipSearch = true; // which sets are on disk does not change a colour
    LoadedList loaded =
        arcade ? LoadArcadeList(file, options, {}) : LoadOtherList(file, options, {});
    if (!loaded.error.empty()) {
        std::cerr << loaded.error << '\n';
        std::exit(1);
    }
    return loaded;
}

} // namespace

int main(int argc, char** argv) {
    if (argc < 2) {
        std::cerr << "usage: apply_theme_bench CATALOGUE_FOLDER\n";
        return 2;
    }
    const std::filesystem::path folder = argv[1];
    QApplication app(argc, argv);
    QMainWindow window;
    const MainControls controls = BuildMainControls(window);

    LoadedList arcade = LoadOrExit(folder / "arcadeinfo.txt", true);
    LoadedList other = LoadOrExit(folder / "otherinfo.txt", false);
    controls.lvAll->Model().Reset(arcade.machines, AllRows(*arcade.machines));
    controls.lvAvailable->Model().Reset(arcade.machines, arcade.available);
    controls.lvUnavailable->Model().Reset(arcade.machines, arcade.unavailable);
    controls.lvOther->Model().Reset(other.machines, AllRows(*other.machines));
    window.resize(1280, 800);
    window.show();
    QApplication::processEvents();

    std::printf("%zu arcade and %zu other machines in the lists\n", arcade.machines->rows.size(),
                other.machines->rows.size());
    SilentPrompter prompter;
    OtherPreferences look;
    double slowest = 0;
    for (const std::string_view theme : kThemeNames) {
        look.theme = std::string(theme);
        const double first =
            bench::BestMilliseconds(1, [&] { ApplyTheme(window, controls, look, prompter); });
        const double applied = bench::BestMilliseconds(5, [&] {
            if (!ApplyTheme(window, controls, look, prompter)) {
                std::cerr << "theme refused: " << look.theme << '\n';
                std::exit(1);
            }
        });
        // What the user waits for: the colours and the repaint they cause.
        const double painted = bench::BestMilliseconds(3, [&] {
            ApplyTheme(window, controls, look, prompter);
            window.repaint();
        });
        std::printf("  %-20s first %7.2f ms, again %7.2f ms, with the repaint %7.2f ms\n",
                    look.theme.c_str(), first, applied, painted);
        slowest = std::max({slowest, first, applied});
    }
    bench::PrintFigure("slowest ApplyTheme (limit 20 ms)", slowest);
    return 0;
}
