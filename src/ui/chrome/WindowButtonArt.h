#pragma once

#include <string_view>

#include <QRectF>

class QPainter;

namespace coinlight {

struct TitleStyle;

/// The eight pictures of the window buttons, by their keys: "MinN", "MinH", "MaxN", "MaxH",
/// "RestoreN", "RestoreH", "CloseN", "CloseH" (N at rest, H under the mouse). Drawn on the
/// strip's colours at the scale of the moment.
void PaintWindowButton(QPainter& painter, const QRectF& area, std::string_view key,
                       const TitleStyle& style);

/// Whether a key names one of the eight pictures.
bool IsWindowButtonPicture(std::string_view key);

} // namespace coinlight
