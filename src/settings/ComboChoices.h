#pragma once

#include <cstddef>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "ComboItems.h"

namespace coinlight {

/// The items of every drop-down of the settings screens, one list per row of the option
/// catalogue (empty for the rows that are no drop-down). A drop-down refuses a text that is
/// not among its items, and that refusal is the program's only test of a stored value: the
/// screens and Rebuild Settings both ask it here.
class ComboChoices {
public:
    /// No items anywhere: every stored drop-down value is refused.
    ComboChoices();
    /// The lists as the system offers them now (DefineCombos).
    explicit ComboChoices(const ComboSources& sources);

    const std::vector<std::string>& Items(std::size_t row) const { return m_lists[row].items; }
    /// The position of `value` among the row's items, compared exactly; the first of equal
    /// items wins.
    std::optional<int> IndexOf(std::size_t row, std::string_view value) const;
    bool Accepts(std::size_t row, std::string_view value) const {
        return IndexOf(row, value).has_value();
    }

    /// The BIOS list differs from machine to machine: each screen sets it before loading.
    void SetBiosItems(std::vector<std::string> items);

private:
    struct List {
        std::vector<std::string> items;
        std::map<std::string, int, std::less<>> positions;
    };
    void SetItems(std::size_t row, std::vector<std::string> items);

    std::vector<List> m_lists;
};

} // namespace coinlight
