#include "BigMemory.h"

#include <cerrno>
#include <cstdint>
#include <fcntl.h>
#include <sys/mman.h>
#include <sys/stat.h>
#include <unistd.h>

namespace coinlight {

namespace {

constexpr std::size_t kHugePage = std::size_t{2} << 20;

std::size_t RoundUp(std::size_t bytes) {
    return (bytes + kHugePage - 1) / kHugePage * kHugePage;
}

} // namespace

void* AllocateBig(std::size_t bytes) {
    const std::size_t size = RoundUp(bytes == 0 ? 1 : bytes);
    void* memory =
        ::mmap(nullptr, size, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
    if (memory == MAP_FAILED) {
        throw std::bad_alloc();
    }
#ifdef MADV_HUGEPAGE
    ::madvise(memory, size, MADV_HUGEPAGE); // a hint: without huge pages it works the same
#endif
    return memory;
}

void FreeBig(void* memory, std::size_t bytes) {
    if (memory != nullptr) {
        ::munmap(memory, RoundUp(bytes == 0 ? 1 : bytes));
    }
}

BigBuffer::BigBuffer(std::size_t size)
    : m_data(static_cast<char*>(AllocateBig(size))), m_size(size), m_capacity(size) {}

BigBuffer::~BigBuffer() {
    FreeBig(m_data, m_capacity);
}

BigBuffer::BigBuffer(BigBuffer&& other) noexcept
    : m_data(other.m_data), m_size(other.m_size), m_capacity(other.m_capacity) {
    other.m_data = nullptr;
    other.m_size = other.m_capacity = 0;
}

BigBuffer& BigBuffer::operator=(BigBuffer&& other) noexcept {
    if (this != &other) {
        FreeBig(m_data, m_capacity);
        m_data = other.m_data;
        m_size = other.m_size;
        m_capacity = other.m_capacity;
        other.m_data = nullptr;
        other.m_size = other.m_capacity = 0;
    }
    return *this;
}

std::optional<BigBuffer> ReadFileBig(const std::filesystem::path& file) {
    const int descriptor = ::open(file.c_str(), O_RDONLY | O_CLOEXEC);
    if (descriptor < 0) {
        return std::nullopt;
    }
    struct stat info {};
    if (::fstat(descriptor, &info) != 0 || !S_ISREG(info.st_mode)) {
        ::close(descriptor);
        return std::nullopt;
    }
    BigBuffer buffer(static_cast<std::size_t>(info.st_size));
    std::size_t filled = 0;
    while (filled < buffer.Size()) {
        const ssize_t got = ::read(descriptor, buffer.Data() + filled, buffer.Size() - filled);
        if (got < 0 && errno == EINTR) {
            continue;
        }
        if (got < 0) {
            ::close(descriptor);
            return std::nullopt;
        }
        if (got == 0) {
            break; // the file shrank while we read it
        }
        filled += static_cast<std::size_t>(got);
    }
    ::close(descriptor);
    buffer.Shrink(filled);
    return buffer;
}

} // namespace coinlight
