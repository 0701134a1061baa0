#pragma once

#include <QObject>

class QWidget;

namespace coinlight {

/// Tells a long job on the window's event loop that the window has been closed, so that it
/// stops rather than going on unseen. Being hidden (while the emulator runs) is not closing.
class WindowCloseWatch final : public QObject {
public:
    using QObject::QObject;

    void Watch(QWidget* window);
    bool Closed() const { return m_closed; }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    bool m_closed = false;
};

} // namespace coinlight
