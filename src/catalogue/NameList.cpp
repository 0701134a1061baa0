#include "NameList.h"

namespace coinlight {

namespace {

constexpr std::size_t kInitialSlots = 64;

/// FNV-1a: short names hash well enough, and it costs a few cycles a byte.
std::uint32_t HashOf(std::string_view name) {
    std::uint32_t hash = 2166136261u;
    for (const char c : name) {
        hash = (hash ^ static_cast<unsigned char>(c)) * 16777619u;
    }
    return hash;
}

} // namespace

NameList::NameList() : m_text("|"), m_slots(kInitialSlots) {}

NameList::NameList(std::string text) : m_text(std::move(text)), m_slots(kInitialSlots) {
    // Only a piece with a `|` on both sides can be found.
    std::size_t bar = m_text.find('|');
    while (bar != std::string::npos) {
        const std::size_t next = m_text.find('|', bar + 1);
        if (next == std::string::npos) {
            break;
        }
        Index(bar + 1, next - bar - 1);
        bar = next;
    }
}

void NameList::Add(std::string_view name) {
    const std::size_t offset = m_text.size();
    m_text.append(name);
    m_text.push_back('|');
    Index(offset, name.size());
}

void NameList::Index(std::size_t offset, std::size_t length) {
    const Slot slot{HashOf(std::string_view(m_text).substr(offset, length)),
                    static_cast<std::uint32_t>(offset), static_cast<std::uint32_t>(length), true};
    if (Contains(NameAt(slot))) {
        return;
    }
    if ((m_count + 1) * 2 > m_slots.size()) {
        Grow();
    }
    Insert(slot);
    ++m_count;
}

void NameList::Insert(const Slot& slot) {
    const std::size_t mask = m_slots.size() - 1;
    std::size_t at = slot.hash & mask;
    while (m_slots[at].used) {
        at = (at + 1) & mask;
    }
    m_slots[at] = slot;
}

void NameList::Grow() {
    std::vector<Slot> old(m_slots.size() * 2);
    old.swap(m_slots);
    for (const Slot& slot : old) {
        if (slot.used) {
            Insert(slot);
        }
    }
}

bool NameList::Contains(std::string_view name) const {
    if (name.find('|') != std::string_view::npos) {
        std::string marked;
        marked.reserve(name.size() + 2);
        marked.append("|").append(name).append("|");
        return m_text.find(marked) != std::string::npos;
    }
    const std::uint32_t hash = HashOf(name);
    const std::size_t mask = m_slots.size() - 1;
    for (std::size_t at = hash & mask; m_slots[at].used; at = (at + 1) & mask) {
        const Slot& slot = m_slots[at];
        if (slot.hash == hash && NameAt(slot) == name) {
            return true;
        }
    }
    return false;
}

} // namespace coinlight
