#include "ListAppearance.h"

#include <QPainter>
#include <QPixmap>
#include <QTreeView>

#include "ColourConvert.h"

namespace coinlight {

QBrush StarFieldBrush() {
    static const QPixmap tile = [] {
        QPixmap sky(256, 256);
        sky.fill(QColor(6, 8, 24));
        QPainter painter(&sky);
        // A fixed little generator: the same sky at every start, no seed to keep.
        std::uint32_t state = 2463534242u;
        const auto next = [&state] {
            state ^= state << 13;
            state ^= state >> 17;
            state ^= state << 5;
            return state;
        };
        for (int star = 0; star < 90; ++star) {
            const int x = static_cast<int>(next() % 256);
            const int y = static_cast<int>(next() % 256);
            const int glow = 120 + static_cast<int>(next() % 136);
            painter.setPen(QColor(glow, glow, std::min(255, glow + 30)));
            painter.drawPoint(x, y);
            if (next() % 9 == 0) {
                painter.drawPoint(x + 1, y);
            }
        }
        return sky;
    }();
    return QBrush(tile);
}

void ApplyListAppearance(QTreeView& list, const OtherPreferences& preferences, bool starField,
                         bool ownTextColour) {
    QPalette palette = list.palette();
    if (starField) {
        palette.setBrush(QPalette::Base, StarFieldBrush());
        palette.setBrush(QPalette::AlternateBase, StarFieldBrush());
    } else {
        palette.setColor(QPalette::Base, ToQColor(preferences.listBackColor, palette));
    }
    if (!ownTextColour) {
        palette.setColor(QPalette::Text, ToQColor(preferences.listFontColor, palette));
    }
    list.setPalette(palette);

    QFont font = list.font();
    bool ok = false;
    const int size = QString::fromStdString(preferences.listFontSize).toInt(&ok);
    if (ok && size > 0 && size < 100) {
        font.setPointSize(size);
    }
    list.setFont(font);
    list.setStyleSheet(
        preferences.listGridlines
            ? QStringLiteral("QTreeView::item { border-right: 1px solid palette(mid); "
                             "border-bottom: 1px solid palette(mid); }")
            : QString());
}

} // namespace coinlight
