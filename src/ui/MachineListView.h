#pragma once

#include <set>

#include <QElapsedTimer>
#include <QTreeView>

#include "MachineListModel.h"

namespace coinlight {

/// A machine list as the user sees it: one line per machine, fixed row height, columns as
/// wide as designed, a sort arrow on the sorted column. Clicking a header asks the owner to
/// sort (the owner keeps the saved sort state); the view never sorts by itself.
class MachineListView final : public QTreeView {
    Q_OBJECT
public:
    MachineListView(const char* name, bool marksUnavailable, QWidget* parent = nullptr);

    MachineListModel& Model() { return m_model; }
    const MachineListModel& Model() const { return m_model; }

    /// Sets the columns with their designed widths; `hidden` columns get no width at all.
    void SetColumns(std::vector<ColumnLayout> columns, const std::set<int>& hidden);
    bool IsColumnHidden(int column) const;

    /// The arrow on one column only, pointing by `order` (0 up, 1 down).
    void ShowHeaderIcon(int column, int order);

    /// The selected row, or -1.
    int SelectedRow() const;
    void SelectRow(int row);
    const MachineRow* SelectedMachine() const { return m_model.Row(SelectedRow()); }

    /// Shows only the rows that hold every word of `query` (an empty one shows them all),
    /// keeping the selected machine selected while it is on show, else selecting the first
    /// row; false when the list already showed that.
    bool Narrow(const SearchQuery& query);

    /// Type-ahead: the next row whose first column (the description) starts with what was
    /// typed, whatever column the list is sorted by.
    void keyboardSearch(const QString& search) override;

signals:
    void ColumnClicked(int column);
    void RowSelected(int row);
    /// A double click or Enter on a row. Enter stops here: the window around the list never
    /// sees it, so one key press starts one action.
    void RowActivated(int row);
    /// "/" in the list: the user wants the search field.
    void FindRequested();

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    MachineListModel m_model;
    QString m_typed;
    QElapsedTimer m_sinceTyped;
};

} // namespace coinlight
