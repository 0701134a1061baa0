#include "StarField.h"

#include <algorithm>
#include <cstdint>
#include <map>

#include <QPainter>

namespace coinlight {

QColor StarFieldSky() {
    return QColor(6, 8, 24);
}

QPixmap StarFieldTile(qreal devicePixelRatio) {
    static std::map<int, QPixmap> made; // by the ratio in hundredths
    const int key = static_cast<int>(devicePixelRatio * 100 + 0.5);
    if (const auto found = made.find(key); found != made.end()) {
        return found->second;
    }
    constexpr int kSide = 256;
    const int side = static_cast<int>(kSide * devicePixelRatio + 0.5);
    QPixmap sky(side, side);
    sky.fill(StarFieldSky());
    QPainter painter(&sky);
    // A fixed little generator: the same sky at every start, no seed to keep.
    std::uint32_t state = 2463534242u;
    const auto next = [&state] {
        state ^= state << 13;
        state ^= state >> 17;
        state ^= state << 5;
        return state;
    };
    const int dot = std::max(1, static_cast<int>(devicePixelRatio + 0.5));
    for (int star = 0; star < 90; ++star) {
        const int x = static_cast<int>(next() % kSide) * side / kSide;
        const int y = static_cast<int>(next() % kSide) * side / kSide;
        const int glow = 120 + static_cast<int>(next() % 136);
        const QColor colour(glow, glow, std::min(255, glow + 30));
        painter.fillRect(x, y, dot, dot, colour);
        if (next() % 9 == 0) {
            painter.fillRect(x + dot, y, dot, dot, colour);
        }
    }
    painter.end();
    sky.setDevicePixelRatio(devicePixelRatio);
    made.emplace(key, sky);
    return sky;
}

QBrush StarFieldBrush(qreal devicePixelRatio) {
    return QBrush(StarFieldTile(devicePixelRatio));
}

} // namespace coinlight
