#include "OptionSupport.h"

#include <algorithm>

#include "BuildIni.h"
#include "core/TextCase.h"

namespace coinlight {

std::vector<std::string> WrittenOptionNames() {
    // The lines a profile at its defaults gives: every option appears whatever its value.
    std::vector<std::string> names;
    for (const std::string& line : ProfileSectionLines(OptionValues()).lines) {
        if (line.empty() || line.front() == '#') {
            continue;
        }
        std::string name = line.substr(0, line.find('\t'));
        if (std::find(names.begin(), names.end(), name) == names.end()) {
            names.push_back(std::move(name));
        }
    }
    return names;
}

std::vector<std::string> UnknownOptionNames(const KnownMameOptions& known) {
    std::vector<std::string> unknown;
    for (std::string& name : WrittenOptionNames()) {
        if (!known.Knows(name)) {
            unknown.push_back(std::move(name));
        }
    }
    return unknown;
}

std::vector<std::string> UnsupportedControls(const KnownMameOptions& known) {
    std::vector<std::string> controls;
    for (const OptionRow& row : OptionCatalogue()) {
        const auto options = IniOptionNames(row);
        if (row.rule == IniRule::NotWritten || options.empty()) {
            continue;
        }
        const bool anyKnown = std::any_of(options.begin(), options.end(),
                                          [&known](auto option) { return known.Knows(option); });
        if (!anyKnown) {
            controls.emplace_back(row.control);
        }
    }
    return controls;
}

const OptionRow* RowOfIniOption(std::string_view option) {
    for (const OptionRow& row : OptionCatalogue()) {
        if (row.rule == IniRule::NotWritten) {
            continue;
        }
        for (const std::string_view name : IniOptionNames(row)) {
            if (EqualsIgnoringCase(name, option)) {
                return &row;
            }
        }
    }
    return nullptr;
}

std::string MameOptionsReport(const KnownMameOptions& known) {
    const auto unknown = UnknownOptionNames(known);
    std::string report = "This MAME knows " + std::to_string(known.Size()) + " options.  ";
    if (unknown.empty()) {
        return report + "It takes every option Coinlight writes into mame.ini.\n";
    }
    report += "It does not know " + std::to_string(unknown.size()) + " of the " +
              std::to_string(WrittenOptionNames().size()) +
              " options Coinlight writes into mame.ini, and ignores them without a word:\n\n";
    for (const std::string& option : unknown) {
        report += option + "\t";
        if (const OptionRow* row = RowOfIniOption(option)) {
            report.append(row->key).append(" (").append(row->control).append(")");
        } else {
            report += "(a fixed line of mame.ini)";
        }
        report += "\n";
    }
    return report;
}

} // namespace coinlight
