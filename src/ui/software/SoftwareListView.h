#pragma once

#include <QTreeView>

#include "SoftwareListModel.h"

namespace coinlight {

/// `lvSoftware`: the titles of the selected machine. Like the machine lists it never sorts
/// by itself; a header click asks the owner. Enter and a double click both ask for a start,
/// and Enter is used up here, so the window's own Enter key never acts on the same press.
class SoftwareListView final : public QTreeView {
    Q_OBJECT
public:
    explicit SoftwareListView(QWidget* parent = nullptr);

    SoftwareListModel& Model() { return m_model; }
    const SoftwareListModel& Model() const { return m_model; }

    /// The arrow on one column only, pointing by `order` (0 up, 1 down).
    void ShowHeaderIcon(int column, int order);

    /// The selected row, or -1.
    int SelectedRow() const;
    void SelectRow(int row);
    void Deselect();

signals:
    void ColumnClicked(int column);
    void RowSelected(int row);
    void RowActivated(int row);

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    SoftwareListModel m_model;
};

} // namespace coinlight
