#include "SoftwareArgs.h"

#include "core/CommandLine.h"

namespace coinlight {

namespace {

constexpr std::string_view kNone = "N/A";

std::string NotForMame(std::string_view text, std::string_view what) {
    return "\"" + std::string(text) + "\" is not " + std::string(what) +
           ", so Coinlight will not hand it to MAME.";
}

} // namespace

std::string ComposeSoftwareArgs(std::string_view requirement, std::string_view deviceSwitch,
                                std::string_view software) {
    if (requirement != kNone) {
        const std::string_view device = requirement == "scharger" ? "cass" : deviceSwitch;
        return std::string(requirement) + " -" + std::string(device) + " " + std::string(software);
    }
    if (!deviceSwitch.empty()) {
        return "-" + std::string(deviceSwitch) + " " + std::string(software);
    }
    return " " + std::string(software);
}

std::optional<std::string> RefuseSoftwareNames(const SoftwareTitle& title,
                                               std::string_view deviceSwitch) {
    if (!IsShortName(title.name)) {
        return NotForMame(title.name, "the short name of a software title");
    }
    if (!deviceSwitch.empty() && !IsShortName(deviceSwitch)) {
        return NotForMame(deviceSwitch, "the name of a device");
    }
    if (title.requirement != kNone && !IsShortNameWithColons(title.requirement)) {
        return NotForMame(title.requirement, "the name of a software requirement");
    }
    return std::nullopt;
}

} // namespace coinlight
