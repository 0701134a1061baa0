#include "DesktopTrash.h"

#include <QFile>

namespace coinlight {

std::error_code MoveToDesktopTrash(const std::filesystem::path& path) {
    if (QFile::moveToTrash(QString::fromStdString(path.string()))) {
        return {};
    }
    // No trash on that file system, or none allowed: what the user asked for is deletion.
    std::error_code error;
    std::filesystem::remove_all(path, error);
    return error;
}

} // namespace coinlight
