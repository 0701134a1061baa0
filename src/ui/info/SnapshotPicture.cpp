#include "SnapshotPicture.h"

#include <QImageReader>

namespace coinlight {

QImage LoadSnapshotImage(const std::filesystem::path& file) {
    QImageReader reader(QString::fromStdString(file.string()));
    reader.setAutoTransform(true);
    // Refuse absurd dimensions before decoding: a damaged header must not cost gigabytes.
    const QSize size = reader.size();
    if (size.isValid() && static_cast<qint64>(size.width()) * size.height() > 64ll << 20) {
        return {};
    }
    return reader.read();
}

QImage ScaledForDisplay(const QImage& picture, QSize room) {
    if (picture.isNull() || room.isEmpty()) {
        return {};
    }
    const QSize target = picture.size().scaled(room, Qt::KeepAspectRatio);
    if (target == picture.size()) {
        return picture;
    }
    return picture.scaled(target, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
}

} // namespace coinlight
