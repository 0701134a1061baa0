#include "SoftwareListModel.h"

#include "lists/RowSort.h"

namespace coinlight {

SoftwareListModel::SoftwareListModel(QObject* parent)
    : QAbstractTableModel(parent), m_columns(SoftwareListColumns()) {}

void SoftwareListModel::Reset(std::shared_ptr<const SoftwareRows> rows, bool sorted) {
    beginResetModel();
    m_rows = std::move(rows);
    m_order.resize(m_rows ? m_rows->size() : 0);
    for (std::uint32_t i = 0; i < m_order.size(); ++i) {
        m_order[i] = i;
    }
    if (sorted && m_rows) {
        SortOrderByText(
            m_order,
            [this](std::uint32_t row) {
                return m_rows->Field(row, static_cast<std::size_t>(m_sortKey + 1));
            },
            m_descending);
    }
    endResetModel();
}

void SoftwareListModel::Clear() {
    Reset(nullptr, false);
}

std::string_view SoftwareListModel::Text(int row, int subItem) const {
    if (!m_rows || row < 0 || row >= static_cast<int>(m_order.size()) || subItem < 0 ||
        subItem >= kSubItemCount) {
        return {};
    }
    return m_rows->Field(m_order[static_cast<std::size_t>(row)],
                         static_cast<std::size_t>(subItem + 1));
}

void SoftwareListModel::Sort(int column, bool descending) {
    if (column < 0 || column >= kSubItemCount) {
        return;
    }
    m_sortKey = column;
    m_descending = descending;
    if (!m_rows) {
        return;
    }
    emit layoutAboutToBeChanged({}, QAbstractItemModel::VerticalSortHint);
    const QModelIndexList before = persistentIndexList();
    std::vector<std::uint32_t> recordsBefore;
    for (const QModelIndex& index : before) {
        recordsBefore.push_back(m_order[static_cast<std::size_t>(index.row())]);
    }
    SortOrderByText(
        m_order,
        [this](std::uint32_t row) {
            return m_rows->Field(row, static_cast<std::size_t>(m_sortKey + 1));
        },
        m_descending);
    std::vector<int> rowOfRecord(m_order.size());
    for (std::size_t row = 0; row < m_order.size(); ++row) {
        rowOfRecord[m_order[row]] = static_cast<int>(row);
    }
    QModelIndexList after;
    for (qsizetype i = 0; i < before.size(); ++i) {
        after.push_back(
            index(rowOfRecord[recordsBefore[static_cast<std::size_t>(i)]], before[i].column()));
    }
    changePersistentIndexList(before, after);
    emit layoutChanged({}, QAbstractItemModel::VerticalSortHint);
}

int SoftwareListModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(m_order.size());
}

int SoftwareListModel::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(m_columns.size());
}

QVariant SoftwareListModel::data(const QModelIndex& index, int role) const {
    if (role != Qt::DisplayRole) {
        return {};
    }
    const std::string_view text = Text(index.row(), index.column());
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

QVariant SoftwareListModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation != Qt::Horizontal || section < 0 ||
        section >= static_cast<int>(m_columns.size()) || role != Qt::DisplayRole) {
        return {};
    }
    const std::string_view header = m_columns[static_cast<std::size_t>(section)].header;
    return QString::fromUtf8(header.data(), static_cast<qsizetype>(header.size()));
}

} // namespace coinlight
