#pragma once

#include <QObject>

class QWidget;

namespace coinlight {

/// Whether Shift was held at the last key press in the watched lists, so that a double
/// click can ask for something other than a start. A key release ends it.
class ShiftKeyWatch final : public QObject {
public:
    using QObject::QObject;

    void Watch(QWidget* list);
    bool Down() const { return m_down; }
    void Clear() { m_down = false; }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    bool m_down = false;
};

} // namespace coinlight
