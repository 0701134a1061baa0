#pragma once

#include <memory>
#include <unordered_map>
#include <vector>

#include <QAbstractTableModel>

#include "lists/ListColumns.h"
#include "lists/MachineRows.h"

namespace coinlight {

/// A machine list over rows that several lists share: the model holds the order of its own
/// rows and nothing else. Emptying it is a reset, never a removal row by row.
class MachineListModel final : public QAbstractTableModel {
    Q_OBJECT
public:
    /// `marksUnavailable`: rows whose files are missing are drawn in red (the other list).
    explicit MachineListModel(bool marksUnavailable, QObject* parent = nullptr);

    void SetColumns(std::vector<ColumnSpec> columns);
    const std::vector<ColumnSpec>& Columns() const { return m_columns; }

    /// Shows `order` (indices into `rows`): in that order until the list is first sorted,
    /// then sorted as the list last was.
    void Reset(std::shared_ptr<const MachineRows> rows, std::vector<std::uint32_t> order);
    void Clear();

    const MachineRow* Row(int row) const;
    /// The row of a machine, or -1: the lists' "k.<short name>" keys.
    int RowOfShortName(std::string_view shortName) const;

    /// Sorts by a column; `descending` as the list's sort order 1.
    void Sort(int column, bool descending);
    int SortKey() const { return m_sortKey; }
    int SortOrder() const { return m_descending ? 1 : 0; }

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    void sort(int column, Qt::SortOrder order) override;

private:
    bool m_marksUnavailable;
    std::vector<ColumnSpec> m_columns;
    std::shared_ptr<const MachineRows> m_rows;
    std::vector<std::uint32_t> m_order;
    mutable std::unordered_map<std::string_view, int> m_rowOfName; // built on first lookup
    int m_sortKey = 0;
    bool m_descending = false;
    bool m_sorted = false;
};

} // namespace coinlight
