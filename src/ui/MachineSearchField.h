#pragma once

#include <QLineEdit>

namespace coinlight {

/// The field above the lists that narrows them as the user types. Esc empties it and goes
/// back to the list; Enter and the down arrow go back to the list and keep the text.
class MachineSearchField final : public QLineEdit {
    Q_OBJECT
public:
    explicit MachineSearchField(QWidget* parent = nullptr);

signals:
    void ReturnToList();

protected:
    void keyPressEvent(QKeyEvent* event) override;
};

} // namespace coinlight
