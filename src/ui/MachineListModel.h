#pragma once

#include <memory>
#include <vector>

#include <QAbstractTableModel>
#include <QColor>
#include <QIcon>

#include "lists/ListColumns.h"
#include "lists/MachineRows.h"
#include "lists/MachineSearchIndex.h"
#include "lists/SearchQuery.h"

namespace coinlight {

/// A machine list over rows that several lists share: the model holds the order of its own
/// rows and nothing else. Emptying it is a reset, never a removal row by row. A search can
/// narrow what it shows to part of its rows; rows, row numbers and counts are then those
/// on show, and the whole list comes back, in its order, when the search is cleared.
class MachineListModel final : public QAbstractTableModel {
    Q_OBJECT
public:
    /// `marksUnavailable`: rows whose files are missing are drawn in red (the other list).
    explicit MachineListModel(bool marksUnavailable, QObject* parent = nullptr);

    void SetColumns(std::vector<ColumnLayout> columns);
    const std::vector<ColumnLayout>& Columns() const { return m_columns; }

    /// Shows `order` (indices into `rows`): in that order until the list is first sorted,
    /// then sorted as the list last was.
    void Reset(std::shared_ptr<const MachineRows> rows, std::vector<std::uint32_t> order);
    void Clear();

    /// Shows only the rows that hold every word of `query`; an empty query shows them all.
    /// A new Reset keeps the query and narrows the new rows by it.
    void Narrow(const SearchQuery& query);
    const SearchQuery& Query() const { return m_query; }
    bool IsNarrowed() const { return !m_query.Empty(); }
    /// The rows of the list, shown or not.
    int TotalRows() const { return static_cast<int>(m_order.size()); }

    const MachineRow* Row(int row) const;
    /// The row of a machine, or -1: the lists' "k.<short name>" keys.
    int RowOfShortName(std::string_view shortName) const;

    /// Sorts by a column; `descending` as the list's sort order 1.
    void Sort(int column, bool descending);

    /// The text colours of a list that marks missing files: its ordinary rows take `regular`
    /// (an invalid colour leaves them to the view's palette), the missing ones `unavailable`.
    /// A theme changes two values here instead of touching every row.
    void SetItemColours(QColor regular, QColor unavailable);
    QColor ItemColour(int row) const;

    /// The marker beside one machine (SetIconOther); the other rows get `blank`, so that every
    /// description starts at the same place. An empty name marks none.
    void SetMarkedMachine(std::string shortName, QIcon marker, QIcon blank);
    const std::string& MarkedMachine() const { return m_markedMachine; }

    int SortKey() const { return m_sortKey; }
    int SortOrder() const { return m_descending ? 1 : 0; }

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    void sort(int column, Qt::SortOrder order) override;

private:
    /// The rows on show: the whole order, or the narrowed part of it.
    const std::vector<std::uint32_t>& Shown() const { return IsNarrowed() ? m_narrowed : m_order; }
    /// Works out the narrowed rows anew from the whole order.
    void NarrowOrder();

    bool m_marksUnavailable;
    std::vector<ColumnLayout> m_columns;
    std::shared_ptr<const MachineRows> m_rows;
    std::vector<std::uint32_t> m_order;
    SearchQuery m_query;
    std::vector<std::uint32_t> m_narrowed;
    std::unique_ptr<MachineSearchIndex> m_searchIndex; // made at the first search of the rows
    int m_sortKey = 0;
    bool m_descending = false;
    bool m_sorted = false;
    QColor m_regularColour;
    QColor m_unavailableColour = QColor(Qt::red);
    std::string m_markedMachine;
    QIcon m_markerIcon;
    QIcon m_blankIcon;
};

} // namespace coinlight
