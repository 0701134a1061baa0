#include "MachineSearchField.h"

#include <QKeyEvent>

namespace coinlight {

MachineSearchField::MachineSearchField(QWidget* parent) : QLineEdit(parent) {
    setObjectName(QStringLiteral("txtSearch"));
    setPlaceholderText(
        QStringLiteral("Find a machine by description, name, manufacturer, year or category"));
    setToolTip(QStringLiteral("Shows only the machines that hold every word typed (Ctrl+F or /)"));
    setClearButtonEnabled(true);
}

void MachineSearchField::keyPressEvent(QKeyEvent* event) {
    switch (event->key()) {
    case Qt::Key_Escape:
        clear();
        [[fallthrough]];
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Down:
        // Enter must not reach the window: there it would start the selected machine.
        event->accept();
        emit ReturnToList();
        return;
    default:
        QLineEdit::keyPressEvent(event);
    }
}

} // namespace coinlight
