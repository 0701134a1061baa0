#include "LayoutFill.h"

#include <array>
#include <span>

namespace coinlight {

namespace {

enum class Base { Mame, DistributionData, UserFolder };
enum class When { Always, IfExists };

struct LayoutEntry {
    PathField field;
    Base base;
    const char* folder;
    When when;
    std::array<const char*, 2> extras{}; // appended as further paths when they exist
};

using enum PathField;

constexpr std::array kBesideMame = {
    LayoutEntry{ArcadeRoms,
                Base::Mame,
                "roms/arcade",
                When::Always,
                {"roms/arcade/bios", "roms/arcade/device"}},
    LayoutEntry{OtherRoms,
                Base::Mame,
                "roms/other",
                When::IfExists,
                {"roms/other/bios", "roms/other/device"}},
    LayoutEntry{Hash, Base::Mame, "hash", When::IfExists},
    LayoutEntry{Software, Base::Mame, "roms/software", When::IfExists},
    LayoutEntry{Samples, Base::Mame, "samples", When::Always},
    LayoutEntry{Artwork, Base::Mame, "artwork", When::Always, {"artwork/cabinet"}},
    LayoutEntry{Controller, Base::Mame, "ctrlr", When::Always},
    LayoutEntry{Cheat, Base::Mame, "cheat", When::Always},
    LayoutEntry{Plugins, Base::Mame, "plugins", When::Always},
    LayoutEntry{Language, Base::Mame, "language", When::Always},
    LayoutEntry{Cfg, Base::Mame, "cfg", When::Always},
    LayoutEntry{Nvram, Base::Mame, "nvram", When::Always},
    LayoutEntry{Input, Base::Mame, "inp", When::Always},
    LayoutEntry{State, Base::Mame, "sta", When::Always},
    LayoutEntry{Snapshot, Base::Mame, "snap", When::Always},
    LayoutEntry{Diff, Base::Mame, "diff", When::Always},
};

// A packaged MAME keeps all ROMs, of either family and of the software lists, in one folder
// of the user's. All three fields name it whether it exists yet or not: OK makes it, so a
// first run gets the same fields as any later one.
constexpr std::array kDistribution = {
    LayoutEntry{ArcadeRoms, Base::UserFolder, "roms", When::Always},
    LayoutEntry{OtherRoms, Base::UserFolder, "roms", When::Always},
    LayoutEntry{Hash, Base::DistributionData, "hash", When::IfExists},
    LayoutEntry{Software, Base::UserFolder, "roms", When::Always},
    LayoutEntry{Samples, Base::DistributionData, "samples", When::Always},
    LayoutEntry{Artwork, Base::DistributionData, "artwork", When::Always, {"artwork/cabinet"}},
    LayoutEntry{Controller, Base::DistributionData, "ctrlr", When::Always},
    LayoutEntry{Cheat, Base::DistributionData, "cheat", When::Always},
    LayoutEntry{Plugins, Base::DistributionData, "plugins", When::Always},
    LayoutEntry{Language, Base::DistributionData, "language", When::Always},
    LayoutEntry{Cfg, Base::UserFolder, "cfg", When::Always},
    LayoutEntry{Nvram, Base::UserFolder, "nvram", When::Always},
    LayoutEntry{Input, Base::UserFolder, "inp", When::Always},
    LayoutEntry{State, Base::UserFolder, "sta", When::Always},
    LayoutEntry{Snapshot, Base::UserFolder, "snap", When::Always},
    LayoutEntry{Diff, Base::UserFolder, "diff", When::Always},
};

bool IsFolder(const std::filesystem::path& folder) {
    std::error_code error;
    return std::filesystem::is_directory(folder, error);
}

/// The first part of a layout folder: "roms" for "roms/arcade".
std::filesystem::path TopFolder(const char* folder) {
    return *std::filesystem::path(folder).begin();
}

void Fill(std::span<const LayoutEntry> layout, const std::filesystem::path& mameFolder,
          const MameLocations& locations, PathTexts& texts) {
    for (const LayoutEntry& entry : layout) {
        std::string& text = texts[entry.field];
        if (!text.empty()) {
            continue;
        }
        const std::filesystem::path base = entry.base == Base::Mame ? mameFolder
                                           : entry.base == Base::DistributionData
                                               ? locations.distributionData
                                               : locations.UserFolder();
        if (base.empty()) {
            continue; // no home folder: nothing sensible to offer
        }
        const std::filesystem::path folder = base / entry.folder;
        if (entry.when == When::IfExists && !IsFolder(folder)) {
            continue;
        }
        text = folder.string();
        for (const char* extra : entry.extras) {
            if (extra != nullptr && IsFolder(base / extra)) {
                text += ";" + (base / extra).string();
            }
        }
    }
}

} // namespace

FolderLayout ChooseLayout(const std::filesystem::path& mameFolder) {
    for (const LayoutEntry& entry : kBesideMame) {
        if (IsFolder(mameFolder / TopFolder(entry.folder))) {
            return FolderLayout::BesideMame;
        }
    }
    return FolderLayout::Distribution;
}

void PrepareUserRomFolder(const MameLocations& locations, const PathTexts& texts) {
    if (locations.UserFolder().empty()) {
        return;
    }
    const std::filesystem::path roms = locations.UserFolder() / kDistribution.front().folder;
    for (PathField field : {ArcadeRoms, OtherRoms, Software}) {
        if (texts[field] == roms.string()) {
            std::error_code ignored; // a folder that cannot be made is reported as missing
            std::filesystem::create_directories(roms, ignored);
            return;
        }
    }
}

FolderLayout FillFromLayout(const std::filesystem::path& mameFolder, const MameLocations& locations,
                            PathTexts& texts) {
    const FolderLayout layout = ChooseLayout(mameFolder);
    if (layout == FolderLayout::BesideMame) {
        Fill(kBesideMame, mameFolder, locations, texts);
    } else {
        Fill(kDistribution, mameFolder, locations, texts);
    }
    return layout;
}

} // namespace coinlight
