#include "MachineListModel.h"

#include <QColor>

#include "lists/RowSort.h"

namespace coinlight {

MachineListModel::MachineListModel(bool marksUnavailable, QObject* parent)
    : QAbstractTableModel(parent), m_marksUnavailable(marksUnavailable) {}

void MachineListModel::SetColumns(std::vector<ColumnLayout> columns) {
    beginResetModel();
    m_columns = std::move(columns);
    endResetModel();
}

void MachineListModel::Reset(std::shared_ptr<const MachineRows> rows,
                             std::vector<std::uint32_t> order) {
    beginResetModel();
    m_rows = std::move(rows);
    m_order = std::move(order);
    m_searchIndex.reset();
    if (m_sorted && m_rows) {
        // New rows come in file order; a list that was sorted stays sorted the same way.
        SortRows(m_order, *m_rows, 0, false);
        if (m_sortKey != 0 || m_descending) {
            SortRows(m_order, *m_rows, m_sortKey, m_descending);
        }
    }
    NarrowOrder();
    endResetModel();
}

void MachineListModel::Narrow(const SearchQuery& query) {
    if (query == m_query) {
        return;
    }
    beginResetModel();
    const bool refines = IsNarrowed() && query.Refines(m_query);
    m_query = query;
    if (refines && m_searchIndex) {
        // Typing on: only what is on show can still match.
        m_narrowed = m_searchIndex->Narrow(m_narrowed, m_query);
    } else {
        NarrowOrder();
    }
    endResetModel();
}

void MachineListModel::NarrowOrder() {
    if (!IsNarrowed() || !m_rows) {
        m_narrowed.clear();
        m_narrowed.shrink_to_fit();
        return;
    }
    if (!m_searchIndex) {
        m_searchIndex = std::make_unique<MachineSearchIndex>(*m_rows, m_order);
    }
    m_narrowed = m_searchIndex->Narrow(m_order, m_query);
}

void MachineListModel::Clear() {
    Reset(nullptr, {});
}

const MachineRow* MachineListModel::Row(int row) const {
    const auto& shown = Shown();
    if (!m_rows || row < 0 || row >= static_cast<int>(shown.size())) {
        return nullptr;
    }
    return &m_rows->rows[shown[static_cast<std::size_t>(row)]];
}

int MachineListModel::RowOfShortName(std::string_view shortName) const {
    // A plain pass: lookups come one at a time, and a map would cost more to build anew
    // after each sort or search than the pass does.
    const auto& shown = Shown();
    for (std::size_t row = 0; row < shown.size(); ++row) {
        if (m_rows->rows[shown[row]].ShortName() == shortName) {
            return static_cast<int>(row);
        }
    }
    return -1;
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
    if (IsNarrowed()) {
        // A stable sort of the part gives the order the part has in the sorted whole.
        SortRows(m_narrowed, *m_rows, column, descending);
    }
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

void MachineListModel::SetItemColours(QColor regular, QColor unavailable) {
    if (regular == m_regularColour && unavailable == m_unavailableColour) {
        return;
    }
    m_regularColour = regular;
    m_unavailableColour = unavailable;
    if (!m_order.empty()) {
        emit dataChanged(index(0, 0), index(rowCount() - 1, columnCount() - 1),
                         {Qt::ForegroundRole});
    }
}

QColor MachineListModel::ItemColour(int row) const {
    return data(index(row, 0), Qt::ForegroundRole).value<QColor>();
}

void MachineListModel::SetMarkedMachine(std::string shortName, QIcon marker, QIcon blank) {
    const int before = RowOfShortName(m_markedMachine);
    m_markedMachine = std::move(shortName);
    m_markerIcon = std::move(marker);
    m_blankIcon = std::move(blank);
    for (const int row : {before, RowOfShortName(m_markedMachine)}) {
        if (row >= 0) {
            emit dataChanged(index(row, 0), index(row, 0), {Qt::DecorationRole});
        }
    }
}

int MachineListModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(Shown().size());
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
    if (role == Qt::ForegroundRole && m_marksUnavailable) {
        const QColor colour = row->Available() ? m_regularColour : m_unavailableColour;
        return colour.isValid() ? QVariant(colour) : QVariant();
    }
    if (role == Qt::DecorationRole && index.column() == 0 && !m_markerIcon.isNull()) {
        return row->ShortName() == m_markedMachine ? m_markerIcon : m_blankIcon;
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
