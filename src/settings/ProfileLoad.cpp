#include "ProfileLoad.h"

#include <charconv>
#include <cmath>

#include "OptionCatalogue.h"
#include "core/ProfileFile.h"
#include "core/TextFile.h"

namespace coinlight {

std::optional<long long> CheckNumber(std::string_view text) {
    text = TrimBlanks(text);
    if (text.starts_with('+')) {
        text.remove_prefix(1);
    }
    double number = 0;
    const auto [end, error] =
        std::from_chars(text.data(), text.data() + text.size(), number, std::chars_format::fixed);
    if (text.empty() || error != std::errc() || end != text.data() + text.size() ||
        !std::isfinite(number) || std::fabs(number) > 32767.0) {
        return std::nullopt; // a check box holds a 16-bit integer; anything else is refused
    }
    // To the nearest integer, halves to even, as an integer conversion has always done.
    return static_cast<long long>(std::nearbyint(number));
}

bool ControlAccepts(std::size_t row, std::string_view value, const ComboChoices& choices) {
    switch (OptionCatalogue()[row].kind) {
    case OptionKind::Combo:
        return choices.Accepts(row, value);
    case OptionKind::Check:
        return CheckNumber(value).has_value();
    case OptionKind::Text:
        break;
    }
    return true;
}

std::string ShownValue(std::size_t row, std::string value) {
    if (OptionCatalogue()[row].kind == OptionKind::Check) {
        return CheckNumber(value).value_or(0) != 0 ? "1" : "0";
    }
    return value;
}

LoadedProfile LoadProfileValues(const ProfileDocument& profile, const ComboChoices& choices) {
    LoadedProfile loaded;
    const auto catalogue = OptionCatalogue();
    std::string_view section;
    int sectionOrdinal = -1;
    for (std::size_t row = 0; row < catalogue.size(); ++row) {
        const OptionRow& option = catalogue[row];
        if (option.section != section) {
            section = option.section;
            sectionOrdinal = profile.SectionOrdinal(section);
        }
        const auto stored = profile.FindInSection(sectionOrdinal, option.key);
        if (!stored) {
            continue; // the default stands, and says nothing
        }
        const std::string_view value = stored->substr(0, kProfileValueLimit);
        if (ControlAccepts(row, value, choices)) {
            loaded.values[row] = ShownValue(row, std::string(value));
        } else {
            loaded.refused.push_back(row);
        }
    }
    return loaded;
}

LoadedProfile LoadProfileValues(const std::filesystem::path& profile, const ComboChoices& choices) {
    return LoadProfileValues(*LoadProfile(profile), choices);
}

UserMessage RefusalMessage(std::size_t row, std::string_view screenCaption) {
    const OptionRow& option = OptionCatalogue()[row];
    UserMessage message;
    if (option.control == "cboBIOS") {
        // The list differs from machine to machine: a rebuild would not help.
        message.text = "BIOS options are different with this machine.  If any are available, "
                       "they will appear in the BIOS drop-down menu.  Otherwise, the MAME "
                       "default value will be used.";
        return message;
    }
    message.title = std::string(screenCaption);
    message.icon = MessageIcon::Information;
    message.text = "Error loading " + std::string(OptionTag(option)) +
                   ".  The MAME default value \"" + std::string(option.defaultValue) +
                   "\" will be used.\nYou should run Rebuild Settings from the Tools pull-down "
                   "menu above to correct this problem.";
    return message;
}

std::optional<std::vector<std::size_t>> RepairProfile(const std::filesystem::path& profile,
                                                      const ComboChoices& choices,
                                                      std::string* error) {
    // Read past the shared cache: a rebuild reads thousands of profiles once each, and
    // keeping them parsed would only cost time and memory.
    auto bytes = ReadFileBytes(profile);
    if (!bytes) {
        if (error != nullptr) {
            *error = "Cannot read " + profile.string();
        }
        return std::nullopt;
    }
    LoadedProfile loaded = LoadProfileValues(ProfileDocument(std::move(*bytes)), choices);
    if (loaded.refused.empty()) {
        return std::move(loaded.refused);
    }
    ProfileEditor editor(profile);
    const auto catalogue = OptionCatalogue();
    for (std::size_t row : loaded.refused) {
        editor.Set(catalogue[row].section, catalogue[row].key, catalogue[row].defaultValue);
    }
    const bool written = editor.Commit(true, error);
    ForgetProfile(profile);
    if (!written) {
        return std::nullopt;
    }
    return std::move(loaded.refused);
}

} // namespace coinlight
