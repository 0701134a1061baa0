#include "InfoSourceList.h"

namespace coinlight {

InfoSourceList::InfoSourceList(QWidget* parent) : QListWidget(parent) {
    setObjectName(QStringLiteral("lstInfo"));
    setSelectionMode(QAbstractItemView::SingleSelection);
    // As wide as the column of commands beside it: 2430 twips.
    setFixedWidth(2430 / 15);
    connect(this, &QListWidget::itemClicked, this,
            [this](QListWidgetItem* item) { emit SourceClicked(item->text()); });
    Retire();
}

void InfoSourceList::SetSources(const std::vector<std::string>& names) {
    clear();
    for (const auto& name : names) {
        addItem(QString::fromStdString(name));
    }
    show();
}

void InfoSourceList::Retire() {
    clear();
    setEnabled(false);
    hide();
}

} // namespace coinlight
