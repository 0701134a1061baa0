#include "DesktopTrash.h"

#include <QDir>
#include <QFile>
#include <QStandardPaths>

namespace coinlight {

std::error_code MoveToDesktopTrash(const std::filesystem::path& path) {
    // Where the user's data folder is missing, Qt falls back on the current folder and
    // would make a trash there.
    const QString data = QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation);
    const bool hasHomeTrash = !data.isEmpty() && QDir(data).exists();
    if (hasHomeTrash && QFile::moveToTrash(QString::fromStdString(path.string()))) {
        return {};
    }
    // No trash on that file system, or none allowed: what the user asked for is deletion.
    std::error_code error;
    std::filesystem::remove_all(path, error);
    return error;
}

} // namespace coinlight
