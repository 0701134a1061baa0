#include "MachineListModel.h"

#include <QColor>

#include "lists/RowSort.h"

namespace coinlight {

MachineListModel::MachineListModel(bool marksUnavailable, QObject* parent)
    : QAbstractTableModel(parent), m_marksUnavailable(marksUnavailable) {}

void MachineListModel::SetColumns(std::vector<ColumnSpec> columns) {
    beginResetModel();
    m_columns = std::move(columns);
    endResetModel();
}

void MachineListModel::Reset(std::shared_ptr<const MachineRows> rows,
                             std::vector<std::uint32_t> order) {
    beginResetModel();
    m_rows = std::move(rows);
    m_order = std::move(order);
    m_rowOfName.clear();
    if (m_sorted && m_rows) {
        // New rows come in file order; a list that was sorted stays sorted the same way.
        SortRows(m_order, *m_rows, 0, false);
        if (m_sortKey != 0 || m_descending) {
            SortRows(m_order, *m_rows, m_sortKey, m_descending);
        }
    }
    endResetModel();
}

void MachineListModel::Clear() {
    Reset(nullptr, {});
}

const MachineRow* MachineListModel::Row(int row) const {
    if (!m_rows || row < 0 || row >= static_cast<int>(m_order.size())) {
        return nullptr;
    }
    return &m_rows->rows[m_order[static_cast<std::size_t>(row)]];
}

int MachineListModel::RowOfShortName(std::string_view shortName) const {
    if (m_rowOfName.empty() && !m_order.empty()) {
        m_rowOfName.reserve(m_order.size());
        for (std::size_t row = 0; row < m_order.size(); ++row) {
            m_rowOfName.emplace(m_rows->rows[m_order[row]].ShortName(), static_cast<int>(row));
        }
    }
    const auto found = m_rowOfName.find(shortName);
    return found == m_rowOfName.end() ? -1 : found->second;
}

void MachineListModel::Sort(int column, bool descending) {
    m_sortKey = column;
    m_descending = descending;
    m_sorted = true;
    if (!m_rows || column < 0 || column >= MachineRow::kColumns) {
        return;
    }
    emit layoutAboutToBeChanged({}, QAbstractItemModel::VerticalSortHint);
    const QModelIndexList before = persistentIndexList();
    std::vector<const MachineRow*> rowsBefore;
    for (const QModelIndex& index : before) {
        rowsBefore.push_back(Row(index.row()));
    }
    SortRows(m_order, *m_rows, column, descending);
    m_rowOfName.clear();
    QModelIndexList after;
    for (std::size_t i = 0; i < rowsBefore.size(); ++i) {
        const int row = rowsBefore[i] != nullptr ? RowOfShortName(rowsBefore[i]->ShortName()) : -1;
        after.push_back(row < 0 ? QModelIndex()
                                : index(row, before[static_cast<qsizetype>(i)].column()));
    }
    changePersistentIndexList(before, after);
    emit layoutChanged({}, QAbstractItemModel::VerticalSortHint);
}

void MachineListModel::sort(int column, Qt::SortOrder order) {
    Sort(column, order == Qt::DescendingOrder);
}

int MachineListModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(m_order.size());
}

int MachineListModel::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(m_columns.size());
}

QVariant MachineListModel::data(const QModelIndex& index, int role) const {
    const MachineRow* row = Row(index.row());
    if (row == nullptr) {
        return {};
    }
    if (role == Qt::DisplayRole) {
        const std::string_view text = row->Field(index.column());
        return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
    }
    if (role == Qt::ForegroundRole && m_marksUnavailable && !row->Available()) {
        return QColor(Qt::red);
    }
    return {};
}

QVariant MachineListModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation != Qt::Horizontal || section < 0 ||
        section >= static_cast<int>(m_columns.size()) || role != Qt::DisplayRole) {
        return {};
    }
    const std::string_view header = m_columns[static_cast<std::size_t>(section)].header;
    return QString::fromUtf8(header.data(), static_cast<qsizetype>(header.size()));
}

} // namespace coinlight
