#include "AboutArt.h"

#include <QLinearGradient>
#include <QPainter>
#include <QPainterPath>

#include "ui/theme/TitleArt.h"

namespace coinlight {

namespace {

QPixmap Canvas(QSize size, qreal ratio) {
    QPixmap pixmap(size * ratio);
    pixmap.setDevicePixelRatio(ratio);
    pixmap.fill(Qt::transparent);
    return pixmap;
}

} // namespace

QPixmap AboutTitlePicture(int width, qreal devicePixelRatio) {
    QPixmap pixmap = Canvas(QSize(width, kTitleStripHeight), devicePixelRatio);
    QPainter painter(&pixmap);
    PaintTitleStrip(painter, QRectF(0, 0, width, kTitleStripHeight), "TitleHeritage");
    return pixmap;
}

QPixmap AboutCabinetPicture(qreal devicePixelRatio) {
    const QSize size(110, 200);
    QPixmap pixmap = Canvas(size, devicePixelRatio);
    QPainter painter(&pixmap);
    painter.setRenderHint(QPainter::Antialiasing);
    const QColor body(0x17, 0x42, 0x86);
    const QColor edge(0x07, 0x16, 0x36);
    // The side of the cabinet: upright, with the control panel jutting out.
    QPainterPath side;
    side.moveTo(18, 4);
    side.lineTo(92, 4);
    side.lineTo(92, 196);
    side.lineTo(18, 196);
    side.lineTo(18, 132);
    side.lineTo(8, 120);
    side.lineTo(8, 108);
    side.lineTo(22, 100);
    side.lineTo(22, 34);
    side.closeSubpath();
    QLinearGradient shade(0, 0, size.width(), 0);
    shade.setColorAt(0, body.lighter(130));
    shade.setColorAt(1, body);
    painter.setPen(QPen(edge, 2));
    painter.setBrush(shade);
    painter.drawPath(side);
    // Marquee, glowing.
    QLinearGradient glow(0, 8, 0, 30);
    glow.setColorAt(0, QColor(0xFF, 0xE2, 0x7A));
    glow.setColorAt(1, QColor(0xF2, 0xA2, 0x20));
    painter.setPen(QPen(edge, 1.5));
    painter.setBrush(glow);
    painter.drawRoundedRect(QRectF(24, 9, 64, 20), 3, 3);
    // The screen with a few stars on it.
    painter.setBrush(QColor(6, 8, 24));
    painter.drawRoundedRect(QRectF(28, 38, 58, 56), 4, 4);
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(220, 220, 255));
    for (const QPointF star : {QPointF(38, 50), QPointF(70, 46), QPointF(55, 62), QPointF(44, 80),
                               QPointF(76, 74), QPointF(62, 86)}) {
        painter.drawEllipse(star, 1.2, 1.2);
    }
    // The stick and two buttons on the panel.
    painter.setPen(QPen(QColor(0x20, 0x20, 0x20), 2.4, Qt::SolidLine, Qt::RoundCap));
    painter.drawLine(QPointF(36, 108), QPointF(36, 96));
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(0xE0, 0x20, 0x20));
    painter.drawEllipse(QPointF(36, 95), 4, 4);
    painter.setBrush(QColor(0xF2, 0xC2, 0x30));
    painter.drawEllipse(QPointF(56, 108), 4, 3);
    painter.drawEllipse(QPointF(70, 108), 4, 3);
    // The coin door.
    painter.setPen(QPen(edge, 1.5));
    painter.setBrush(body.darker(130));
    painter.drawRoundedRect(QRectF(40, 150, 34, 34), 2, 2);
    painter.setBrush(QColor(0xE0, 0x20, 0x20));
    painter.drawRect(QRectF(48, 158, 5, 9));
    painter.drawRect(QRectF(61, 158, 5, 9));
    return pixmap;
}

} // namespace coinlight
