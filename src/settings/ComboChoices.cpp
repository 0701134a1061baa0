#include "ComboChoices.h"

#include "OptionCatalogue.h"

namespace coinlight {

ComboChoices::ComboChoices() : m_lists(OptionCatalogue().size()) {}

ComboChoices::ComboChoices(const ComboSources& sources) : ComboChoices() {
    const auto catalogue = OptionCatalogue();
    for (std::size_t row = 0; row < catalogue.size(); ++row) {
        if (catalogue[row].kind == OptionKind::Combo) {
            SetItems(row, ComboItems(catalogue[row].control, sources));
        }
    }
}

std::optional<int> ComboChoices::IndexOf(std::size_t row, std::string_view value) const {
    const auto& positions = m_lists[row].positions;
    const auto found = positions.find(value);
    return found == positions.end() ? std::nullopt : std::optional(found->second);
}

void ComboChoices::SetBiosItems(std::vector<std::string> items) {
    SetItems(RowOfControl("cboBIOS"), std::move(items));
}

void ComboChoices::SetItems(std::size_t row, std::vector<std::string> items) {
    List& list = m_lists[row];
    list.items = std::move(items);
    list.positions.clear();
    for (std::size_t at = 0; at < list.items.size(); ++at) {
        list.positions.emplace(list.items[at], static_cast<int>(at));
    }
}

} // namespace coinlight
