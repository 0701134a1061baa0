#include "SoftwareListView.h"

#include <QHeaderView>
#include <QKeyEvent>

#include "ui/RowListLook.h"

namespace coinlight {

SoftwareListView::SoftwareListView(QWidget* parent) : QTreeView(parent) {
    setObjectName(QStringLiteral("lvSoftware"));
    setModel(&m_model);
    ShowAsRowList(*this);
    const auto& columns = SoftwareListColumns();
    for (int column = 0; column < static_cast<int>(columns.size()); ++column) {
        setColumnWidth(column, columns[static_cast<std::size_t>(column)].twips / kTwipsPerPixel);
    }
    connect(header(), &QHeaderView::sectionClicked, this, &SoftwareListView::ColumnClicked);
    // On the selection, not the current row: a click makes a row current before it selects
    // it, and a start asks for the selected row.
    connect(selectionModel(), &QItemSelectionModel::selectionChanged, this, [this] {
        if (const int row = SelectedRow(); row >= 0) {
            emit RowSelected(row);
        }
    });
    // A double click, not `activated`: some desktops activate on a single click, and a
    // single click here must never start the emulator.
    connect(this, &QAbstractItemView::doubleClicked, this, [this](const QModelIndex& index) {
        if (index.isValid()) {
            emit RowActivated(index.row());
        }
    });
}

void SoftwareListView::ShowHeaderIcon(int column, int order) {
    header()->setSortIndicator(column, order == 1 ? Qt::DescendingOrder : Qt::AscendingOrder);
}

int SoftwareListView::SelectedRow() const {
    const QModelIndex current = currentIndex();
    return current.isValid() && selectionModel()->isRowSelected(current.row(), {}) ? current.row()
                                                                                   : -1;
}

void SoftwareListView::SelectRow(int row) {
    if (row < 0 || row >= m_model.rowCount()) {
        return;
    }
    const QModelIndex index = m_model.index(row, 0);
    selectionModel()->setCurrentIndex(index, QItemSelectionModel::ClearAndSelect |
                                                 QItemSelectionModel::Rows);
    scrollTo(index, QAbstractItemView::EnsureVisible);
}

void SoftwareListView::Deselect() {
    selectionModel()->clear();
}

void SoftwareListView::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
        // With no row selected the start still runs, to tell the user what is missing.
        emit RowActivated(SelectedRow());
        event->accept();
        return;
    }
    QTreeView::keyPressEvent(event);
}

} // namespace coinlight
