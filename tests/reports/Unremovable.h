#pragma once

#include <fcntl.h>
#include <filesystem>
#include <linux/fs.h>
#include <sys/ioctl.h>
#include <unistd.h>

namespace coinlight::test {

/// Makes a file or folder impossible to remove for the user the tests run as, for as long
/// as it lives: a read-only parent folder, or the immutable flag for root, whom
/// permissions do not stop. Holds() is false where the file system allows neither.
class Unremovable {
public:
    explicit Unremovable(std::filesystem::path path) : m_path(std::move(path)) {
        if (::geteuid() != 0) {
            std::filesystem::permissions(m_path.parent_path(),
                                         std::filesystem::perms::owner_read |
                                             std::filesystem::perms::owner_exec);
            m_holds = true;
            return;
        }
        m_holds = SetImmutable(true);
    }
    ~Unremovable() {
        if (!m_holds) {
            return;
        }
        if (::geteuid() != 0) {
            std::filesystem::permissions(m_path.parent_path(), std::filesystem::perms::owner_all);
        } else {
            SetImmutable(false);
        }
    }
    Unremovable(const Unremovable&) = delete;
    Unremovable& operator=(const Unremovable&) = delete;

    bool Holds() const { return m_holds; }

private:
    bool SetImmutable(bool on) const {
        const int descriptor = ::open(m_path.c_str(), O_RDONLY | O_NONBLOCK);
        if (descriptor < 0) {
            return false;
        }
        int flags = 0;
        bool done = ::ioctl(descriptor, FS_IOC_GETFLAGS, &flags) == 0;
        if (done) {
            flags = on ? (flags | FS_IMMUTABLE_FL) : (flags & ~FS_IMMUTABLE_FL);
            done = ::ioctl(descriptor, FS_IOC_SETFLAGS, &flags) == 0;
        }
        ::close(descriptor);
        return done;
    }

    std::filesystem::path m_path;
    bool m_holds = false;
};

} // namespace coinlight::test
