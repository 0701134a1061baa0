#pragma once

#include <QColor>
#include <QPalette>

#include "core/ValueText.h"

namespace coinlight {

/// A stored 0xBBGGRR colour as Qt's; a system colour takes the matching role of `palette`.
QColor ToQColor(Colour colour, const QPalette& palette);

/// A Qt colour as the 0xBBGGRR value the files keep.
Colour FromQColor(const QColor& colour);

} // namespace coinlight
