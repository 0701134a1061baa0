#include "ListAppearance.h"

#include <QTreeView>

#include "ColourConvert.h"
#include "theme/StarField.h"

namespace coinlight {

void ApplyListAppearance(QTreeView& list, const OtherPreferences& preferences, bool starField,
                         bool ownTextColour) {
    QPalette palette = list.palette();
    if (starField) {
        const QBrush sky = StarFieldBrush(list.devicePixelRatioF());
        palette.setBrush(QPalette::Base, sky);
        palette.setBrush(QPalette::AlternateBase, sky);
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
