#include "RowListLook.h"

#include <QHeaderView>
#include <QTreeView>

namespace coinlight {

void ShowAsRowList(QTreeView& view) {
    view.setRootIsDecorated(false);
    view.setUniformRowHeights(true);
    view.setItemsExpandable(false);
    view.setAllColumnsShowFocus(true);
    view.setSelectionMode(QAbstractItemView::SingleSelection);
    view.setSelectionBehavior(QAbstractItemView::SelectRows);
    view.setEditTriggers(QAbstractItemView::NoEditTriggers);
    view.setSortingEnabled(false);
    QHeaderView* header = view.header();
    header->setSectionsClickable(true);
    header->setSortIndicatorShown(true);
    header->setStretchLastSection(false);
    header->setSectionResizeMode(QHeaderView::Interactive);
}

} // namespace coinlight
