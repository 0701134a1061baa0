#pragma once

#include <string_view>

#include <QColor>
#include <QRectF>

class QPainter;

namespace coinlight {

/// The colours of one title strip. The strips are drawn at the size and scale of the moment
/// rather than stored, so that they stay sharp on every screen.
struct TitleStyle {
    QColor left;      // the band's colour at its left end
    QColor middle;    // at 45% of its width
    QColor right;     // at its right end, behind the version and the window buttons
    QColor accent;    // the coin and the line under the band
    QColor titleText; // the program's name, on the left part
    QColor glyph;     // the window buttons' signs, on the right part
    QColor hover;     // behind a window button under the mouse
};

/// The style of a title image key ("TitleHeritage" ...); an unknown key draws as the first.
const TitleStyle& TitleStyleOf(std::string_view key);

/// Height of the strip in device-independent pixels; the title gradient starts below it.
inline constexpr int kTitleStripHeight = 66;

/// Paints the strip of `key` into `area`: the band, the coin and the program's name.
void PaintTitleStrip(QPainter& painter, const QRectF& area, std::string_view key);

} // namespace coinlight
