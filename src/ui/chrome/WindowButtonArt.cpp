#include "WindowButtonArt.h"

#include <array>

#include <QPainter>

#include "ui/theme/TitleArt.h"

namespace coinlight {

namespace {

constexpr std::array<std::string_view, 8> kPictures = {"MinN",     "MinH",     "MaxN",   "MaxH",
                                                       "RestoreN", "RestoreH", "CloseN", "CloseH"};

const QColor kCloseHover(0xC4, 0x2B, 0x1C);

} // namespace

bool IsWindowButtonPicture(std::string_view key) {
    for (std::string_view picture : kPictures) {
        if (picture == key) {
            return true;
        }
    }
    return false;
}

void PaintWindowButton(QPainter& painter, const QRectF& area, std::string_view key,
                       const TitleStyle& style) {
    const bool hover = key.ends_with('H');
    const bool close = key.starts_with("Close");
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    if (hover) {
        painter.fillRect(area, close ? kCloseHover : style.hover);
    }
    const QColor ink = hover && close ? QColor(Qt::white) : style.glyph;
    // A sign of 10 by 10 pixels in the middle, drawn with a one-pixel pen at any scale.
    const qreal half = 5;
    const QPointF centre = area.center();
    const QRectF sign(centre.x() - half, centre.y() - half, 2 * half, 2 * half);
    painter.setPen(QPen(ink, 1.0, Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin));
    painter.setBrush(Qt::NoBrush);
    if (key.starts_with("Min")) {
        painter.drawLine(QPointF(sign.left(), centre.y()), QPointF(sign.right(), centre.y()));
    } else if (key.starts_with("Max")) {
        painter.drawRect(sign);
    } else if (key.starts_with("Restore")) {
        const qreal step = 2;
        painter.drawRect(sign.adjusted(0, step, -step, 0));
        painter.drawPolyline(
            QPolygonF({QPointF(sign.left() + step, sign.top() + step),
                       QPointF(sign.left() + step, sign.top()), QPointF(sign.right(), sign.top()),
                       QPointF(sign.right(), sign.bottom() - step),
                       QPointF(sign.right() - step, sign.bottom() - step)}));
    } else if (close) {
        painter.drawLine(sign.topLeft(), sign.bottomRight());
        painter.drawLine(sign.topRight(), sign.bottomLeft());
    }
    painter.restore();
}

} // namespace coinlight
