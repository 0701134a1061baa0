#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace coinlight {

/// A set of names compared without regard to (ASCII) case, held in one block of text with
/// an open-addressed table over it: tens of thousands of short names cost a few allocations
/// rather than one each, which is most of what a search of the ROM folders would spend.
class CaseFoldedNames {
public:
    CaseFoldedNames();

    /// Adds a name; false when it was there already.
    bool Insert(std::string_view name);
    bool Contains(std::string_view name) const;
    std::size_t Size() const { return m_begin.size() - 1; }
    void Reserve(std::size_t names);

private:
    /// The slot that holds `folded`, or the empty one where it would go.
    std::size_t SlotOf(std::string_view folded) const;
    std::string_view Name(std::uint32_t index) const;
    void Rehash(std::size_t slots);

    std::string m_text;                 // the folded names one after the other
    std::vector<std::uint32_t> m_begin; // where each name begins, and where the last ends
    std::vector<std::uint32_t> m_slots; // a name's index + 1; 0 for an empty slot
};

} // namespace coinlight
