#pragma once

#include <QPixmap>

namespace coinlight {

/// The pictures of the About box, drawn for the screen's scale: the title strip with the
/// program's name, and an arcade cabinet.
QPixmap AboutTitlePicture(int width, qreal devicePixelRatio);
QPixmap AboutCabinetPicture(qreal devicePixelRatio);

} // namespace coinlight
