#pragma once

#include <cstdint>
#include <memory>
#include <vector>

#include <QAbstractTableModel>

#include "lists/ListColumns.h"
#include "lists/SoftwareRows.h"

namespace coinlight {

/// The titles of a machine's software file: the description as the row's text, then the
/// other fields as sub-items in file order. Emptying it is a reset.
class SoftwareListModel final : public QAbstractTableModel {
    Q_OBJECT
public:
    explicit SoftwareListModel(QObject* parent = nullptr);

    /// Sub-items counted as the list counts them: 0 is the description, 4 the parts, 5 the
    /// short name, 6 the requirement, 7 the disk, 8 the list.
    enum SubItem : int { Description = 0, Parts = 4, ShortName = 5, Requirement = 6, Disk = 7 };
    /// The columns that hold a field; the last one only closes the list.
    static constexpr int kSubItemCount = static_cast<int>(SoftwareRows::kFields) - 1;

    /// Shows the rows in file order, sorted by the kept sort column when `sorted`.
    void Reset(std::shared_ptr<const SoftwareRows> rows, bool sorted);
    void Clear();

    /// A cell's text by row and sub-item; empty outside the list.
    std::string_view Text(int row, int subItem) const;

    void Sort(int column, bool descending);
    int SortKey() const { return m_sortKey; }
    int SortOrder() const { return m_descending ? 1 : 0; }

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    std::vector<ColumnLayout> m_columns;
    std::shared_ptr<const SoftwareRows> m_rows;
    std::vector<std::uint32_t> m_order;
    int m_sortKey = 0;
    bool m_descending = false;
};

} // namespace coinlight
