#include "MachineLists.h"

#include <string>

#include "core/TextFile.h"

namespace coinlight {

namespace {

constexpr int kLocationArcadeLine = 51;
constexpr int kLocationOtherLine = 52;

/// The line after the first line from `line` on that equals `heading`.
std::optional<std::string> LineAfter(const std::vector<std::string>& lines, std::size_t& line,
                                     std::string_view heading) {
    while (line < lines.size() && lines[line] != heading) {
        ++line;
    }
    if (line + 1 >= lines.size()) {
        return std::nullopt;
    }
    line += 2;
    return lines[line - 1];
}

} // namespace

std::variant<MachineLists, RunTimeError> ParseListsText(std::string_view text) {
    const auto lines = SplitLines(text);
    std::size_t line = 0;
    auto arcade = LineAfter(lines, line, "Arcade");
    if (!arcade) {
        return RunTimeError{kErrorPastEnd, kPastEndText, kLocationArcadeLine};
    }
    auto other = LineAfter(lines, line, "Other");
    if (!other) {
        return RunTimeError{kErrorPastEnd, kPastEndText, kLocationOtherLine};
    }
    return MachineLists{NameList(std::move(*arcade)), NameList(std::move(*other))};
}

std::variant<MachineLists, RunTimeError> ReadListsFile(const std::filesystem::path& file) {
    const auto bytes = ReadFileBytes(file);
    if (!bytes) {
        return RunTimeError{kErrorFileNotFound, kFileNotFoundText, kLocationArcadeLine};
    }
    return ParseListsText(*bytes);
}

} // namespace coinlight
