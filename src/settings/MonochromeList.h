#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "core/DataLayout.h"

namespace coinlight {

/// The machines whose screens have one colour, which get their own class profiles.
class MonochromeList {
public:
    /// support/monochrome.ini when it exists (one short name a line), otherwise the list
    /// that comes with Coinlight. The file replaces that list; it does not add to it.
    static MonochromeList Load(const DataLayout& data);

    explicit MonochromeList(std::vector<std::string> names);

    /// Compared in lower case.
    bool Contains(std::string_view machine) const;

    static std::span<const std::string_view> BuiltIn();

private:
    std::vector<std::string> m_names; // lower case, sorted
};

} // namespace coinlight
