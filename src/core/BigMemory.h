#pragma once

#include <cstddef>
#include <filesystem>
#include <memory>
#include <new>
#include <optional>
#include <string_view>

namespace coinlight {

// Memory for large data that lives long: a catalogue file and the list rows made from it.
// Taken from the system in 2 MB pages where the kernel allows it. A list of 45,000 machines
// touches some 16 MB; in 4 KB pages that is thousands of page faults, which cost more than
// reading and parsing the whole catalogue.

inline constexpr std::size_t kBigMemoryThreshold = std::size_t{1} << 20;

void* AllocateBig(std::size_t bytes);
void FreeBig(void* memory, std::size_t bytes);

/// An allocator for containers that may grow large: small requests go to the usual heap,
/// large ones to AllocateBig.
template <class T> struct BigAllocator {
    using value_type = T;

    BigAllocator() = default;
    template <class U> BigAllocator(const BigAllocator<U>&) noexcept {}

    T* allocate(std::size_t count) {
        const std::size_t bytes = count * sizeof(T);
        if (bytes < kBigMemoryThreshold) {
            return std::allocator<T>().allocate(count);
        }
        return static_cast<T*>(AllocateBig(bytes));
    }
    void deallocate(T* memory, std::size_t count) noexcept {
        const std::size_t bytes = count * sizeof(T);
        if (bytes < kBigMemoryThreshold) {
            std::allocator<T>().deallocate(memory, count);
        } else {
            FreeBig(memory, bytes);
        }
    }
    template <class U> bool operator==(const BigAllocator<U>&) const noexcept { return true; }
};

/// A block of bytes from AllocateBig, not cleared.
class BigBuffer {
public:
    BigBuffer() = default;
    explicit BigBuffer(std::size_t size);
    ~BigBuffer();
    BigBuffer(BigBuffer&& other) noexcept;
    BigBuffer& operator=(BigBuffer&& other) noexcept;
    BigBuffer(const BigBuffer&) = delete;
    BigBuffer& operator=(const BigBuffer&) = delete;

    char* Data() { return m_data; }
    std::size_t Size() const { return m_size; }
    std::string_view View() const { return {m_data, m_size}; }
    void Shrink(std::size_t size) { m_size = size < m_size ? size : m_size; }

private:
    char* m_data = nullptr;
    std::size_t m_size = 0;
    std::size_t m_capacity = 0;
};

/// A whole file in a BigBuffer; nothing when it cannot be read. The bytes are a copy of our
/// own rather than a mapping: another program may truncate or rewrite a catalogue file at
/// any time, and a mapped page that vanishes kills the process that touches it.
std::optional<BigBuffer> ReadFileBig(const std::filesystem::path& file);

} // namespace coinlight
