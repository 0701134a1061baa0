#include "ShiftKeyWatch.h"

#include <QKeyEvent>
#include <QWidget>

namespace coinlight {

void ShiftKeyWatch::Watch(QWidget* list) {
    list->installEventFilter(this);
}

bool ShiftKeyWatch::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::KeyPress) {
        const auto* key = static_cast<QKeyEvent*>(event);
        // Enter starts the selected machine whatever else is held: it is not a double click.
        const bool enter = key->key() == Qt::Key_Return || key->key() == Qt::Key_Enter;
        m_down =
            !enter && (key->key() == Qt::Key_Shift || key->modifiers().testFlag(Qt::ShiftModifier));
    } else if (event->type() == QEvent::KeyRelease) {
        m_down = false;
    }
    return QObject::eventFilter(watched, event);
}

} // namespace coinlight
