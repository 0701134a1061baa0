#pragma once

#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "core/LineReader.h"
#include "settings/ComboChoices.h"
#include "settings/OptionCatalogue.h"
#include "settings/OptionValues.h"

namespace coinlight::bench {

/// The machines of MAME's -listxml output with the BIOS entries of each, as bios.ini holds
/// them ("description> name" joined by ";;"); made-up names without the file.
struct MachineBios {
    std::vector<std::string> machines;
    std::map<std::string, std::string> bios;
};

inline std::string Attribute(std::string_view line, std::string_view name) {
    const std::string key = std::string(name) + "=\"";
    const std::size_t at = line.find(key);
    if (at == std::string_view::npos) {
        return {};
    }
    const std::size_t begin = at + key.size();
    return std::string(line.substr(begin, line.find('"', begin) - begin));
}

inline MachineBios ReadMachineBios(const char* machineXml, std::size_t wanted) {
    MachineBios found;
    if (machineXml != nullptr) {
        LineReader reader(machineXml);
        std::string_view line;
        std::string machine;
        while (reader.Next(line)) {
            if (line.find("<machine name=\"") != std::string_view::npos) {
                machine = Attribute(line, "name");
                found.machines.push_back(machine);
            } else if (line.find("<biosset ") != std::string_view::npos) {
                std::string& entries = found.bios[machine];
                entries += (entries.empty() ? "" : ";;") + Attribute(line, "description") + "> " +
                           Attribute(line, "name");
            }
        }
    }
    for (std::size_t i = found.machines.size(); i < wanted; ++i) {
        found.machines.push_back("machine" + std::to_string(i));
    }
    return found;
}

/// A profile of every row with a value its control takes and, where the control offers
/// one, a value other than the default: the most a screen ever has to show.
inline OptionValues FullProfile(const ComboChoices& choices, std::size_t seed) {
    OptionValues values;
    const auto catalogue = OptionCatalogue();
    for (std::size_t row = 0; row < catalogue.size(); ++row) {
        const OptionRow& option = catalogue[row];
        switch (option.kind) {
        case OptionKind::Check:
            values[row] = option.defaultValue == "1" ? "0" : "1";
            break;
        case OptionKind::Combo: {
            const auto& items = choices.Items(row);
            if (!items.empty()) {
                values[row] = items[(seed + row) % items.size()];
            }
            break;
        }
        case OptionKind::Text:
            values[row] = std::string(option.defaultValue) + "1";
            break;
        }
    }
    return values;
}

} // namespace coinlight::bench
