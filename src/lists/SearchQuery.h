#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace coinlight {

/// What the user typed into the search field, as words to find: split at blanks, folded
/// (see SearchFolding.h). A row matches when it holds every word somewhere; an empty
/// query matches every row.
class SearchQuery {
public:
    SearchQuery() = default;
    explicit SearchQuery(std::string_view typed);

    bool Empty() const { return m_words.empty(); }
    const std::vector<std::string>& Words() const { return m_words; }

    /// True when every row this query matches is also matched by `broader`: each word of
    /// `broader` lies within a word of this one. Typing on narrows what is already shown,
    /// so only those rows need to be looked at again.
    bool Refines(const SearchQuery& broader) const;

    bool operator==(const SearchQuery&) const = default;

private:
    std::vector<std::string> m_words;
};

} // namespace coinlight
