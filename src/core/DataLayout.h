#pragma once

#include <filesystem>
#include <string_view>

namespace coinlight {

/// Where Coinlight's own files lie below the data folder.
struct DataLayout {
    std::filesystem::path root;

    std::filesystem::path Settings() const { return root / "settings"; }
    std::filesystem::path Output() const { return root / "output"; }
    std::filesystem::path Software() const { return root / "output" / "soft"; }
    std::filesystem::path Temp() const { return root / "temp"; }
    std::filesystem::path Support() const { return root / "support"; }
    std::filesystem::path OptionsIni() const { return Settings() / "options.ini"; }
    std::filesystem::path Marker(std::string_view name) const { return Settings() / name; }
};

} // namespace coinlight
