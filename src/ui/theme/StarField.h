#pragma once

#include <QBrush>
#include <QPixmap>

namespace coinlight {

/// The night sky behind the lists of the classic theme: a dark tile with stars, made for a
/// screen of `devicePixelRatio` so that the stars stay points when the desktop is scaled.
QPixmap StarFieldTile(qreal devicePixelRatio = 1.0);
QBrush StarFieldBrush(qreal devicePixelRatio);

/// The sky's own colour, against which list text is chosen.
QColor StarFieldSky();

} // namespace coinlight
