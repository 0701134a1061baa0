#include "BiosChoices.h"

#include "core/ProfileFile.h"
#include "core/TextCase.h"

#ifndef COINLIGHT_CONTACT
#define COINLIGHT_CONTACT ""
#endif

namespace coinlight {

namespace {

constexpr std::string_view kDefault = "Default";

std::vector<std::string> SplitEntries(std::string_view value) {
    std::vector<std::string> entries;
    while (true) {
        const std::size_t separator = value.find(";;");
        entries.emplace_back(value.substr(0, separator));
        if (separator == std::string_view::npos) {
            return entries;
        }
        value.remove_prefix(separator + 2);
    }
}

} // namespace

BiosChoices ClassBiosChoices() {
    return {{std::string(kDefault)}, std::nullopt};
}

BiosChoices MachineBiosChoices(const std::filesystem::path& biosIni, std::string_view machine) {
    return MachineBiosChoices(*LoadProfile(biosIni), machine);
}

BiosChoices MachineBiosChoices(const ProfileDocument& biosIni, std::string_view machine) {
    BiosChoices choices;
    const auto stored = biosIni.Find("BIOS", machine);
    if (stored && stored->size() > kProfileValueLimit) {
        choices.overflowLength = stored->size();
    }
    const std::string value = ReadProfileValue(biosIni, "BIOS", machine, kDefault);
    if (value != kDefault) {
        choices.items.emplace_back(kDefault);
    }
    for (auto& entry : SplitEntries(value)) {
        if (!entry.empty()) {
            choices.items.push_back(std::move(entry));
        }
    }
    return choices;
}

UserMessage BiosOverflowMessage(std::size_t length) {
    const std::string_view contact = COINLIGHT_CONTACT;
    UserMessage message;
    message.title = "LoadcboBIOS";
    message.text =
        "Please send an email to " +
        (contact.empty() ? std::string("the makers of Coinlight") : std::string(contact)) +
        ".\n\nPut Coinlight - Buffer Overflow(" + std::to_string(length) +
        ") in the Subject field.\n\nCoinlight must be in the Subject field so the email "
        "doesn't get discarded as SPAM.  Thank you.";
    return message;
}

bool IsClassProfileFileName(std::string_view fileName) {
    const std::string name = ToLowerAscii(fileName);
    for (std::string_view word : {"vector", "raster", "lcd", "other"}) {
        if (name.find(word) != std::string::npos) {
            return true;
        }
    }
    return false;
}

} // namespace coinlight
