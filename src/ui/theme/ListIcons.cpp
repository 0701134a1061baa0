#include "ListIcons.h"

#include <QPainter>
#include <QPixmap>

namespace coinlight {

namespace {

constexpr int kSide = 16;

QPixmap Canvas(qreal ratio) {
    QPixmap pixmap(static_cast<int>(kSide * ratio), static_cast<int>(kSide * ratio));
    pixmap.setDevicePixelRatio(ratio);
    pixmap.fill(Qt::transparent);
    return pixmap;
}

QPixmap Console(qreal ratio) {
    QPixmap pixmap = Canvas(ratio);
    QPainter painter(&pixmap);
    painter.setRenderHint(QPainter::Antialiasing);
    // The box, wood-fronted, and a stick with its red knob standing beside it.
    painter.setPen(QPen(QColor(0x20, 0x20, 0x20), 1));
    painter.setBrush(QColor(0x3A, 0x3A, 0x3A));
    painter.drawRoundedRect(QRectF(0.5, 8.5, 10, 6), 1.2, 1.2);
    painter.setBrush(QColor(0xA0, 0x62, 0x2D));
    painter.drawRect(QRectF(1.5, 11.5, 8, 2));
    painter.setPen(QPen(QColor(0x20, 0x20, 0x20), 1.6, Qt::SolidLine, Qt::RoundCap));
    painter.drawLine(QPointF(13, 14), QPointF(13, 5));
    painter.setPen(QPen(QColor(0x60, 0x08, 0x08), 0.8));
    painter.setBrush(QColor(0xE0, 0x20, 0x20));
    painter.drawEllipse(QPointF(13, 4), 2.4, 2.4);
    return pixmap;
}

} // namespace

QIcon OtherMarkerIcon() {
    static const QIcon icon = [] {
        QIcon made;
        made.addPixmap(Console(1.0));
        made.addPixmap(Console(2.0));
        return made;
    }();
    return icon;
}

QIcon BlankListIcon() {
    static const QIcon icon = [] {
        QIcon made;
        made.addPixmap(Canvas(1.0));
        made.addPixmap(Canvas(2.0));
        return made;
    }();
    return icon;
}

} // namespace coinlight
