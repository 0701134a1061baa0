#include "Readability.h"

#include <algorithm>
#include <cmath>

namespace coinlight {

namespace {

double Channel(int value) {
    const double c = value / 255.0;
    return c <= 0.03928 ? c / 12.92 : std::pow((c + 0.055) / 1.055, 2.4);
}

double Luminance(const QColor& colour) {
    const QColor rgb = colour.toRgb();
    return 0.2126 * Channel(rgb.red()) + 0.7152 * Channel(rgb.green()) +
           0.0722 * Channel(rgb.blue());
}

} // namespace

double ContrastRatio(const QColor& a, const QColor& b) {
    const double la = Luminance(a);
    const double lb = Luminance(b);
    return (std::max(la, lb) + 0.05) / (std::min(la, lb) + 0.05);
}

QColor ReadableRed(const QColor& back) {
    const QColor pure(0xFF, 0x00, 0x00);
    if (Readable(pure, back)) {
        return pure;
    }
    QColor best = pure;
    for (const QColor red : {QColor(0xB0, 0x00, 0x00), QColor(0x80, 0x00, 0x00),
                             QColor(0xFF, 0x80, 0x80), QColor(0xFF, 0xB0, 0xB0)}) {
        if (ContrastRatio(red, back) > ContrastRatio(best, back)) {
            best = red;
        }
    }
    return best;
}

} // namespace coinlight
