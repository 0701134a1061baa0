#include "RejectedValues.h"

#include "OptionSupport.h"

namespace coinlight {

namespace {

constexpr std::string_view kValueFor = " value for ";

bool IsNameCharacter(char c) {
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') || c == '_';
}

} // namespace

std::optional<RejectedValue> RejectedValueOf(std::string_view line) {
    // MAME's own words, from its option parser: the kind of value sits between them.
    if (!line.starts_with("Illegal ") && !line.starts_with("Out-of-range ")) {
        return std::nullopt;
    }
    const std::size_t valueFor = line.find(kValueFor);
    if (valueFor == std::string_view::npos) {
        return std::nullopt;
    }
    const std::size_t begin = valueFor + kValueFor.size();
    std::size_t end = begin;
    while (end < line.size() && IsNameCharacter(line[end])) {
        ++end;
    }
    if (end == begin || end >= line.size() || line[end] != ':') {
        return std::nullopt;
    }
    RejectedValue rejected{std::string(line.substr(begin, end - begin)), {}, {}};
    if (const OptionRow* row = RowOfIniOption(rejected.option)) {
        rejected.key = row->key;
        rejected.control = row->control;
    }
    return rejected;
}

std::string NameRejectingControls(std::string_view errorOutput) {
    std::string named;
    named.reserve(errorOutput.size());
    while (!errorOutput.empty()) {
        const std::size_t newline = errorOutput.find('\n');
        std::string_view line = errorOutput.substr(0, newline);
        std::string_view ending = newline == std::string_view::npos ? "" : "\n";
        if (line.ends_with('\r')) {
            line.remove_suffix(1);
            ending = newline == std::string_view::npos ? "\r" : "\r\n";
        }
        named.append(line);
        if (const auto rejected = RejectedValueOf(line); rejected && !rejected->control.empty()) {
            named.append("  <- ").append(rejected->key).append(" (").append(rejected->control);
            named.push_back(')');
        }
        named.append(ending);
        errorOutput = newline == std::string_view::npos ? std::string_view()
                                                        : errorOutput.substr(newline + 1);
    }
    return named;
}

} // namespace coinlight
