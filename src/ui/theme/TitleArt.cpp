#include "TitleArt.h"

#include <array>

#include <QFont>
#include <QLinearGradient>
#include <QPainter>
#include <QPainterPath>
#include <QRadialGradient>

namespace coinlight {

namespace {

struct KeyedStyle {
    std::string_view key;
    TitleStyle style;
};

const QColor kWhite(255, 255, 255);
const QColor kLightHover(255, 255, 255, 48);
const QColor kDarkHover(0, 0, 0, 36);

// Strips behind yellow or white links are dark all along. Those behind blue links are light
// where the links stand and darken towards the right, where a white version number and the
// window buttons sit.
const std::array<KeyedStyle, 14> kStyles = {{
    {"TitleHeritage",
     {QColor(0x17, 0x42, 0x86), QColor(0x10, 0x30, 0x66), QColor(0x07, 0x16, 0x36),
      QColor(0xF2, 0xC2, 0x30), kWhite, kWhite, kLightHover}},
    {"TitleAmethyst",
     {QColor(0x6A, 0x34, 0x96), QColor(0x4C, 0x24, 0x70), QColor(0x26, 0x10, 0x3C),
      QColor(0xE9, 0xC4, 0x6A), kWhite, kWhite, kLightHover}},
    {"TitleBlack",
     {QColor(0x2C, 0x2C, 0x2C), QColor(0x16, 0x16, 0x16), QColor(0x00, 0x00, 0x00),
      QColor(0x9A, 0x9A, 0x9A), kWhite, kWhite, kLightHover}},
    {"TitleBronze",
     {QColor(0x6E, 0x40, 0x16), QColor(0x55, 0x31, 0x10), QColor(0x2E, 0x19, 0x07),
      QColor(0xE8, 0xA8, 0x5C), kWhite, kWhite, kLightHover}},
    {"TitleEmerald",
     {QColor(0x1C, 0x66, 0x31), QColor(0x13, 0x4C, 0x24), QColor(0x08, 0x2A, 0x13),
      QColor(0x7B, 0xE3, 0x9A), kWhite, kWhite, kLightHover}},
    {"TitleGold",
     {QColor(0xFF, 0xF4, 0xC0), QColor(0xF5, 0xD8, 0x70), QColor(0x6E, 0x4A, 0x00),
      QColor(0xB8, 0x86, 0x0B), QColor(0x3A, 0x2A, 0x00), kWhite, kLightHover}},
    {"TitleOnyx",
     {QColor(0x50, 0x4E, 0x4A), QColor(0x38, 0x37, 0x34), QColor(0x18, 0x17, 0x16),
      QColor(0xB8, 0xB0, 0xA0), kWhite, kWhite, kLightHover}},
    {"TitlePearl",
     {QColor(0xFF, 0xFD, 0xF8), QColor(0xEF, 0xE6, 0xD2), QColor(0x62, 0x55, 0x3E),
      QColor(0xC8, 0xA8, 0x78), QColor(0x3B, 0x32, 0x26), kWhite, kLightHover}},
    {"TitleRuby",
     {QColor(0x96, 0x12, 0x24), QColor(0x6E, 0x0A, 0x18), QColor(0x33, 0x00, 0x08),
      QColor(0xFF, 0x8A, 0x96), kWhite, kWhite, kLightHover}},
    {"TitleSapphire",
     {QColor(0x16, 0x56, 0xB8), QColor(0x0E, 0x3C, 0x88), QColor(0x05, 0x18, 0x40),
      QColor(0x8C, 0xC8, 0xFF), kWhite, kWhite, kLightHover}},
    {"TitleSilver",
     {QColor(0xFB, 0xFB, 0xFB), QColor(0xE0, 0xE0, 0xE0), QColor(0x58, 0x58, 0x58),
      QColor(0x90, 0x90, 0x90), QColor(0x22, 0x22, 0x22), kWhite, kLightHover}},
    {"TitleWhite",
     {QColor(0xFF, 0xFF, 0xFF), QColor(0xFA, 0xFA, 0xFA), QColor(0xEC, 0xEC, 0xEC),
      QColor(0x00, 0x78, 0xD7), QColor(0x1A, 0x1A, 0x1A), QColor(0x20, 0x20, 0x20), kDarkHover}},
    {"TitleDark",
     {QColor(0x30, 0x30, 0x30), QColor(0x28, 0x28, 0x28), QColor(0x1C, 0x1C, 0x1C),
      QColor(0x60, 0xCD, 0xFF), kWhite, kWhite, kLightHover}},
    {"TitleLight",
     {QColor(0xFF, 0xFF, 0xFF), QColor(0xF7, 0xF9, 0xFB), QColor(0xE8, 0xEC, 0xF2),
      QColor(0x00, 0x67, 0xC0), QColor(0x1A, 0x1A, 0x1A), QColor(0x1A, 0x1A, 0x1A), kDarkHover}},
}};

void PaintBand(QPainter& painter, const QRectF& area, const TitleStyle& style) {
    QLinearGradient band(area.topLeft(), area.topRight());
    band.setColorAt(0, style.left);
    band.setColorAt(0.45, style.middle);
    band.setColorAt(1, style.right);
    painter.fillRect(area, band);
    // A faint sheen over the upper half gives the band some depth.
    QLinearGradient sheen(area.topLeft(), area.bottomLeft());
    sheen.setColorAt(0, QColor(255, 255, 255, 46));
    sheen.setColorAt(0.5, QColor(255, 255, 255, 0));
    painter.fillRect(area, sheen);
    painter.fillRect(QRectF(area.left(), area.bottom() - 2, area.width(), 2), style.accent);
}

void PaintCoin(QPainter& painter, QPointF centre, qreal radius, const TitleStyle& style) {
    QRadialGradient face(centre - QPointF(radius / 3, radius / 3), radius * 1.4);
    face.setColorAt(0, style.accent.lighter(150));
    face.setColorAt(0.6, style.accent);
    face.setColorAt(1, style.accent.darker(160));
    painter.setPen(QPen(style.accent.darker(190), radius / 8));
    painter.setBrush(face);
    painter.drawEllipse(centre, radius, radius);
    painter.setPen(QPen(style.accent.darker(140), radius / 12));
    painter.setBrush(Qt::NoBrush);
    painter.drawEllipse(centre, radius * 0.72, radius * 0.72);
    // The light: a four-pointed glint on the coin's upper right.
    const QPointF glint = centre + QPointF(radius * 0.55, -radius * 0.55);
    const qreal arm = radius * 0.62;
    const qreal waist = radius * 0.12;
    QPainterPath star;
    star.moveTo(glint + QPointF(0, -arm));
    star.lineTo(glint + QPointF(waist, -waist));
    star.lineTo(glint + QPointF(arm, 0));
    star.lineTo(glint + QPointF(waist, waist));
    star.lineTo(glint + QPointF(0, arm));
    star.lineTo(glint + QPointF(-waist, waist));
    star.lineTo(glint + QPointF(-arm, 0));
    star.lineTo(glint + QPointF(-waist, -waist));
    star.closeSubpath();
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(255, 255, 255, 235));
    painter.drawPath(star);
}

} // namespace

const TitleStyle& TitleStyleOf(std::string_view key) {
    for (const KeyedStyle& keyed : kStyles) {
        if (keyed.key == key) {
            return keyed.style;
        }
    }
    return kStyles.front().style;
}

void PaintTitleStrip(QPainter& painter, const QRectF& area, std::string_view key) {
    const TitleStyle& style = TitleStyleOf(key);
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    PaintBand(painter, area, style);
    const qreal radius = 14;
    PaintCoin(painter, area.topLeft() + QPointF(12 + radius, 6 + radius), radius, style);
    QFont font(QStringLiteral("DejaVu Sans"));
    font.setPixelSize(22);
    font.setBold(true);
    font.setLetterSpacing(QFont::PercentageSpacing, 104);
    painter.setFont(font);
    painter.setPen(style.titleText);
    painter.drawText(QRectF(area.left() + 12 + 2 * radius + 10, area.top() + 4, 240, 32),
                     Qt::AlignLeft | Qt::AlignVCenter, QStringLiteral("Coinlight"));
    painter.restore();
}

} // namespace coinlight
