#include "MameIniText.h"

namespace coinlight {

std::string IniLine(std::string_view name, std::string_view value) {
    std::string line(name);
    line.push_back('\t');
    line.append(value);
    return line;
}

void AppendHeading(std::vector<std::string>& lines, std::string_view text, bool opensFile) {
    if (!opensFile) {
        lines.emplace_back();
    }
    lines.emplace_back("#");
    lines.emplace_back(text);
    lines.emplace_back("#");
}

} // namespace coinlight
