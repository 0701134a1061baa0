// Rebuild Settings over 2,000 machines' own profiles, every one holding all the keys of the
// catalogue, against reading the same files once line by line.
//
// usage: rebuild_settings_bench [MACHINE_XML]
// With MAME's -listxml output the profiles are named after its first machines that have
// BIOS sets, and bios.ini holds their real entries; without it the names are made up.
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iostream>

#include <QGuiApplication>

#include "BenchSupport.h"
#include "SettingsBenchSupport.h"
#include "core/DataLayout.h"
#include "core/TextFile.h"
#include "settings/ProfileSave.h"
#include "settings/RebuildSettings.h"
#include "ui/settings/SystemComboSources.h"

using namespace coinlight;

namespace {

constexpr std::size_t kProfiles = 2000;

/// Writes the profiles (every `step`th of them); every tenth holds a value that a rebuild
/// must repair.
void WriteProfiles(const DataLayout& data, const bench::MachineBios& machines,
                   const std::vector<std::string>& names, const ComboChoices& choices,
                   std::size_t step = 1) {
    for (std::size_t i = 0; i < names.size(); i += step) {
        ComboChoices own = choices;
        std::vector<std::string> bios = {"Default"};
        if (const auto found = machines.bios.find(names[i]); found != machines.bios.end()) {
            bios.push_back(found->second.substr(0, found->second.find(";;")));
        }
        own.SetBiosItems(bios);
        OptionValues values = bench::FullProfile(own, i);
        if (i % 10 == 0) {
            values[RowOfControl("cboFrameSkip")] = "13 Of 12";
        }
        WriteOptionValues(data.Settings() / (names[i] + ".cfg"), values);
    }
}

} // namespace

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    int qtArgc = 1;
    QGuiApplication application(qtArgc, argv);
    const bench::MachineBios machines =
        bench::ReadMachineBios(argc > 1 ? argv[1] : nullptr, kProfiles);
    // Machines with BIOS sets first: their profiles are the ones bios.ini decides.
    std::vector<std::string> names;
    for (const auto& [machine, entries] : machines.bios) {
        if (names.size() < kProfiles && machine.find_first_of("-") == std::string::npos) {
            names.push_back(machine);
        }
    }
    for (std::size_t i = 0; names.size() < kProfiles && i < machines.machines.size(); ++i) {
        if (!machines.bios.contains(machines.machines[i])) {
            names.push_back(machines.machines[i]);
        }
    }

    const auto folder = std::filesystem::temp_directory_path() / "coinlight-rebuild-bench";
    std::filesystem::remove_all(folder);
    const DataLayout data{folder};
    std::filesystem::create_directories(data.Settings());
    std::vector<std::string> biosLines = {"[BIOS]"};
    for (const auto& [machine, entries] : machines.bios) {
        biosLines.push_back(machine + "=" + entries);
    }
    WriteTextLines(data.Output() / "bios.ini", biosLines);
    ComboSources sources;
    sources.processors = 4;
    AddSystemComboSources(sources);
    const ComboChoices choices(sources);
    WriteProfiles(data, machines, names, choices);

    std::uintmax_t bytes = 0;
    for (const auto& file : SettingsFiles(data)) {
        bytes += std::filesystem::file_size(file);
    }
    std::printf("%zu profiles of %zu keys, %ju bytes; bios.ini: %zu machines (%s)\n", names.size(),
                OptionCatalogue().size(), static_cast<std::uintmax_t>(bytes), machines.bios.size(),
                argc > 1 ? argv[1] : "made-up names");

    std::size_t sink = 0;
    const double floor = bench::BestMilliseconds(7, [&] {
        for (const auto& file : SettingsFiles(data)) {
            LineReader reader(file);
            std::string_view line;
            while (reader.Next(line)) {
                sink += line.size();
            }
        }
    });
    const double getlineFloor = bench::BestMilliseconds(7, [&] {
        for (const auto& file : SettingsFiles(data)) {
            std::ifstream in(file);
            std::string line;
            while (std::getline(in, line)) {
                sink += line.size();
            }
        }
    });
    RebuildOutcome first = RebuildSettings(data, choices);
    std::printf("  first run: %s\n", first.changed ? "repaired every tenth profile" : "nothing");
    const double clean =
        bench::BestMilliseconds(7, [&] { sink += RebuildSettings(data, choices).text.size(); });
    double repairing = 1e300;
    for (int round = 0; round < 5; ++round) {
        WriteProfiles(data, machines, names, choices, 10); // the tenth that need repairs
        repairing = std::min(repairing, bench::BestMilliseconds(1, [&] {
                                 sink += RebuildSettings(data, choices).text.size();
                             }));
    }
    bench::PrintFigure("floor: every profile read line by line", floor);
    bench::PrintFigure("floor: the same with std::getline", getlineFloor);
    bench::PrintFigure("rebuild-settings, nothing to repair", clean);
    bench::PrintFigure("rebuild-settings, repairing 200 profiles", repairing);
    std::printf("  ratio to the floor: %.2f (nothing to repair), %.2f (repairing); to getline: "
                "%.2f, %.2f\n",
                clean / floor, repairing / floor, clean / getlineFloor, repairing / getlineFloor);
    std::filesystem::remove_all(folder);
    return sink == 0 ? 1 : 0;
}
