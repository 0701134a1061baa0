#include "SlotListing.h"

#include "core/CommandLine.h"
#include "core/FileTests.h"
#include "core/TextFile.h"

namespace coinlight {

std::filesystem::path SlotListingFile(const DataLayout& data, std::string_view machine) {
    return data.Temp() / (std::string(machine) + "_slots.txt");
}

std::optional<std::string> SlotListingCommand(const Preferences& preferences,
                                              const DataLayout& data, std::string_view machine) {
    if (!IsShortName(machine)) {
        return std::nullopt;
    }
    CommandLine line(preferences.searchPaths.mame, preferences.mame.executable);
    line.ShortName(machine).Word("-listslots").RedirectOutput(SlotListingFile(data, machine));
    return line.Text();
}

SlotListing ListSlots(const Preferences& preferences, const DataLayout& data,
                      std::string_view machine, const ExecPump& pump) {
    SlotListing listing;
    const auto command = SlotListingCommand(preferences, data, machine);
    if (!command) {
        listing.refusal = "\"" + std::string(machine) +
                          "\" is not the short name of a machine, so Coinlight will not hand it "
                          "to MAME.";
        return listing;
    }
    const auto file = SlotListingFile(data, machine);
    if (FileSize(file).value_or(0) == 0) {
        std::error_code ignored;
        std::filesystem::create_directories(data.Temp(), ignored);
        listing.run = ExecCmd(*command, preferences.searchPaths.mame, pump);
        listing.ranMame = true;
    }
    listing.text = ReadFileBytes(file).value_or(std::string());
    return listing;
}

} // namespace coinlight
