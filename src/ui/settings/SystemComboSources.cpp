#include "SystemComboSources.h"

#include <QFontDatabase>
#include <QGuiApplication>
#include <QScreen>

namespace coinlight {

void AddSystemComboSources(ComboSources& sources) {
    for (const QString& family : QFontDatabase::families()) {
        sources.fonts.push_back(family.toStdString());
    }
    const QList<QScreen*> screens = QGuiApplication::screens();
    sources.monitors = static_cast<int>(screens.size());
    for (const QScreen* screen : screens) {
        // MAME counts device pixels, whatever scale the desktop draws at.
        const QSize pixels = screen->size() * screen->devicePixelRatio();
        sources.displayModes.push_back(
            {pixels.width(), pixels.height(), qRound(screen->refreshRate())});
    }
}

} // namespace coinlight
