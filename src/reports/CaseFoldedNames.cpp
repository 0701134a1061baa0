#include "CaseFoldedNames.h"

#include <array>

#include "core/TextCase.h"
#include "lists/ShortNameHash.h"

namespace coinlight {

namespace {

/// A name in lower case, on the stack for the usual short one.
class Folded {
public:
    explicit Folded(std::string_view name) {
        char* out = name.size() <= m_local.size() ? m_local.data()
                                                  : (m_long.resize(name.size()), m_long.data());
        for (std::size_t i = 0; i < name.size(); ++i) {
            out[i] = LowerAscii(name[i]);
        }
        m_view = std::string_view(out, name.size());
    }
    Folded(const Folded&) = delete;
    Folded& operator=(const Folded&) = delete;

    std::string_view View() const { return m_view; }

private:
    std::array<char, 64> m_local{};
    std::string m_long;
    std::string_view m_view;
};

} // namespace

CaseFoldedNames::CaseFoldedNames() : m_begin{0}, m_slots(16, 0) {}

std::string_view CaseFoldedNames::Name(std::uint32_t index) const {
    return std::string_view(m_text).substr(m_begin[index], m_begin[index + 1] - m_begin[index]);
}

std::size_t CaseFoldedNames::SlotOf(std::string_view folded) const {
    const std::size_t mask = m_slots.size() - 1;
    for (std::size_t at = ShortNameHash{}(folded)&mask;; at = (at + 1) & mask) {
        const std::uint32_t slot = m_slots[at];
        if (slot == 0 || Name(slot - 1) == folded) {
            return at;
        }
    }
}

void CaseFoldedNames::Rehash(std::size_t slots) {
    m_slots.assign(slots, 0);
    for (std::uint32_t index = 0; index < Size(); ++index) {
        m_slots[SlotOf(Name(index))] = index + 1;
    }
}

void CaseFoldedNames::Reserve(std::size_t names) {
    std::size_t slots = m_slots.size();
    while (slots < names * 2) {
        slots *= 2;
    }
    if (slots != m_slots.size()) {
        Rehash(slots);
    }
    m_begin.reserve(names + 1);
    m_text.reserve(names * 8);
}

bool CaseFoldedNames::Insert(std::string_view name) {
    const Folded folded(name);
    std::size_t slot = SlotOf(folded.View());
    if (m_slots[slot] != 0) {
        return false;
    }
    if ((Size() + 1) * 2 > m_slots.size()) {
        Rehash(m_slots.size() * 2);
        slot = SlotOf(folded.View());
    }
    m_text.append(folded.View());
    m_begin.push_back(static_cast<std::uint32_t>(m_text.size()));
    m_slots[slot] = static_cast<std::uint32_t>(Size());
    return true;
}

bool CaseFoldedNames::Contains(std::string_view name) const {
    const Folded folded(name);
    return m_slots[SlotOf(folded.View())] != 0;
}

} // namespace coinlight
