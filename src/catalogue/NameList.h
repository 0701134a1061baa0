#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace coinlight {

/// Short names written as one line with a `|` on both sides of each: `|name1|name2|`.
/// Membership means the text holds `|name|`, case-sensitively. The lines run to hundreds
/// of kilobytes and are asked once per machine or device reference, so the names are also
/// indexed in a flat hash table of offsets into the text; only a name that itself holds
/// `|` is looked for in the text.
class NameList {
public:
    NameList();
    explicit NameList(std::string text);

    /// Adds a name and the `|` after it (the list starts as `|`).
    void Add(std::string_view name);

    bool Contains(std::string_view name) const;

    const std::string& Text() const { return m_text; }
    std::size_t Size() const { return m_count; }

private:
    struct Slot {
        std::uint32_t hash = 0;
        std::uint32_t offset = 0; // of the name in m_text
        std::uint32_t length = 0;
        bool used = false;
    };

    void Index(std::size_t offset, std::size_t length);
    void Insert(const Slot& slot);
    void Grow();
    std::string_view NameAt(const Slot& slot) const {
        return std::string_view(m_text).substr(slot.offset, slot.length);
    }

    std::string m_text;
    std::vector<Slot> m_slots; // open addressing, a power of two in size
    std::size_t m_count = 0;
};

} // namespace coinlight
