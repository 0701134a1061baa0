#include "MachineListView.h"

#include <QApplication>
#include <QHeaderView>
#include <QKeyEvent>

#include "RowListLook.h"

namespace coinlight {

MachineListView::MachineListView(const char* name, bool marksUnavailable, QWidget* parent)
    : QTreeView(parent), m_model(marksUnavailable) {
    setObjectName(QString::fromLatin1(name));
    setModel(&m_model);
    ShowAsRowList(*this);
    connect(header(), &QHeaderView::sectionClicked, this, &MachineListView::ColumnClicked);
    connect(selectionModel(), &QItemSelectionModel::currentRowChanged, this,
            [this](const QModelIndex& current) {
                if (current.isValid()) {
                    emit RowSelected(current.row());
                }
            });
    connect(this, &QTreeView::doubleClicked, this, [this](const QModelIndex& index) {
        if (index.isValid()) {
            emit RowActivated(index.row());
        }
    });
}

void MachineListView::SetColumns(std::vector<ColumnLayout> columns, const std::set<int>& hidden) {
    std::vector<int> widths;
    for (const auto& column : columns) {
        widths.push_back(column.twips / kTwipsPerPixel);
    }
    m_model.SetColumns(std::move(columns));
    for (int column = 0; column < static_cast<int>(widths.size()); ++column) {
        setColumnWidth(column, widths[static_cast<std::size_t>(column)]);
        setColumnHidden(column, hidden.count(column) != 0);
    }
}

bool MachineListView::IsColumnHidden(int column) const {
    return isColumnHidden(column);
}

void MachineListView::ShowHeaderIcon(int column, int order) {
    header()->setSortIndicator(column, order == 1 ? Qt::DescendingOrder : Qt::AscendingOrder);
}

int MachineListView::SelectedRow() const {
    const QModelIndex current = currentIndex();
    return current.isValid() ? current.row() : -1;
}

void MachineListView::SelectRow(int row) {
    if (row < 0 || row >= m_model.rowCount()) {
        return;
    }
    const QModelIndex index = m_model.index(row, 0);
    selectionModel()->setCurrentIndex(index, QItemSelectionModel::ClearAndSelect |
                                                 QItemSelectionModel::Rows);
    scrollTo(index, QAbstractItemView::PositionAtCenter);
}

bool MachineListView::Narrow(const SearchQuery& query) {
    if (m_model.Query() == query) {
        return false;
    }
    const MachineRow* selected = SelectedMachine();
    const std::string selectedName =
        selected != nullptr ? std::string(selected->ShortName()) : std::string();
    m_model.Narrow(query);
    int row = selectedName.empty() ? -1 : m_model.RowOfShortName(selectedName);
    if (row < 0 && m_model.rowCount() != 0) {
        row = 0;
    }
    SelectRow(row);
    return true;
}

void MachineListView::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
        event->accept();
        if (SelectedRow() >= 0) {
            emit RowActivated(SelectedRow());
        }
        return;
    }
    if (event->text() == QStringLiteral("/")) {
        // As in file managers and browsers: the slash opens the search, it is no type-ahead.
        event->accept();
        emit FindRequested();
        return;
    }
    QTreeView::keyPressEvent(event);
}

void MachineListView::keyboardSearch(const QString& search) {
    if (search.isEmpty() || m_model.rowCount() == 0) {
        return;
    }
    const bool continues =
        m_sinceTyped.isValid() && m_sinceTyped.elapsed() < QApplication::keyboardInputInterval();
    m_typed = continues ? m_typed + search : search;
    m_sinceTyped.restart();
    // A first letter moves on from the selected row; more letters refine from it.
    const int rows = m_model.rowCount();
    const int from = std::max(0, SelectedRow()) + (m_typed.size() == 1 ? 1 : 0);
    for (int step = 0; step < rows; ++step) {
        const int row = (from + step) % rows;
        const std::string_view text = m_model.Row(row)->Field(0);
        const QString head = QString::fromUtf8(
            text.data(), static_cast<qsizetype>(std::min<std::size_t>(text.size(), 256)));
        if (head.startsWith(m_typed, Qt::CaseInsensitive)) {
            SelectRow(row);
            return;
        }
    }
}

} // namespace coinlight
