#include "WindowCloseWatch.h"

#include <QEvent>
#include <QWidget>

namespace coinlight {

void WindowCloseWatch::Watch(QWidget* window) {
    window->installEventFilter(this);
}

bool WindowCloseWatch::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::Close) {
        m_closed = true;
    }
    return QObject::eventFilter(watched, event);
}

} // namespace coinlight
