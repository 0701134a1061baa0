#include "ProfileChoice.h"

#include "core/FileTests.h"
#include "core/TextCase.h"

namespace coinlight {

std::string ChooseProfileName(const ProfileClassFacts& facts, std::string_view current) {
    std::string name;
    if (facts.displayType == "LCD") {
        return "lcd";
    }
    if (facts.displayType == "Raster" || facts.displayType == "N/A") {
        name = "raster";
    } else if (facts.displayType == "Vector") {
        name = "vector";
    } else {
        return std::string(current);
    }
    switch (facts.settingsLevel) {
    case 0:
        return name;
    case 1:
        return name + (facts.monochrome ? "-m" : "-c");
    case 2:
        return name + (facts.monochrome ? "-m" : "-c") + ToLowerAscii(facts.orientation);
    default:
        return std::string(current);
    }
}

std::filesystem::path ProfilePath(const DataLayout& data, std::string_view name) {
    return data.Settings() / (std::string(name) + ".cfg");
}

std::optional<std::filesystem::path>
ArcadeStartProfile(const DataLayout& data, std::string_view machine, std::string_view profileName) {
    for (const auto& candidate :
         {ProfilePath(data, machine), ProfilePath(data, ToLowerAscii(profileName))}) {
        if (FileExists(candidate)) {
            return candidate;
        }
    }
    return std::nullopt;
}

std::filesystem::path OtherStartProfile(const DataLayout& data, std::string_view machine,
                                        const std::filesystem::path& currentProfile) {
    for (const auto& candidate : {ProfilePath(data, machine), ProfilePath(data, "other")}) {
        if (FileExists(candidate)) {
            return candidate;
        }
    }
    return currentProfile;
}

} // namespace coinlight
