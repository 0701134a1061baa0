#pragma once

#include <filesystem>

#include <QImage>
#include <QSize>

namespace coinlight {

/// The picture in a file, or a null image when the file is missing or not a picture that
/// can be decoded (a broken PNG is an empty result, never a failure).
QImage LoadSnapshotImage(const std::filesystem::path& file);

/// The picture as large as fits `room` with its proportions kept, smoothly scaled.
QImage ScaledForDisplay(const QImage& picture, QSize room);

} // namespace coinlight
