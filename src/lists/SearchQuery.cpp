#include "SearchQuery.h"

#include <algorithm>

#include "SearchFolding.h"

namespace coinlight {

namespace {

bool IsBlank(char c) {
    return c == ' ' || c == '\t' || c == '\r' || c == '\n' || c == '\f' || c == '\v';
}

} // namespace

SearchQuery::SearchQuery(std::string_view typed) {
    std::size_t at = 0;
    while (at < typed.size()) {
        while (at < typed.size() && IsBlank(typed[at])) {
            ++at;
        }
        std::size_t end = at;
        while (end < typed.size() && !IsBlank(typed[end])) {
            ++end;
        }
        if (end > at) {
            std::string word = Folded(typed.substr(at, end - at));
            if (std::find(m_words.begin(), m_words.end(), word) == m_words.end()) {
                m_words.push_back(std::move(word));
            }
        }
        at = end;
    }
}

bool SearchQuery::Refines(const SearchQuery& broader) const {
    return std::all_of(broader.m_words.begin(), broader.m_words.end(), [this](const auto& word) {
        return std::any_of(m_words.begin(), m_words.end(), [&word](const std::string& mine) {
            return mine.find(word) != std::string::npos;
        });
    });
}

} // namespace coinlight
