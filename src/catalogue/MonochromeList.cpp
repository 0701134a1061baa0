#include "MonochromeList.h"

#include "TextFunctions.h"
#include "core/TextFile.h"

namespace coinlight {

MonochromeList::MonochromeList(const std::filesystem::path& file) {
    const auto lines = ReadTextLines(file);
    if (!lines) {
        return;
    }
    m_exists = true;
    for (const auto& line : *lines) {
        m_names.insert(LowerCase(line));
    }
}

bool MonochromeList::Contains(std::string_view shortName) const {
    return m_names.count(LowerCase(shortName)) != 0;
}

} // namespace coinlight
