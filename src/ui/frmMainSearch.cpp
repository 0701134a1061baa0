// Finding a machine as the user types: the search field narrows the list on show, and the
// selection, the details and every command follow the narrowed list as they do the whole.
#include <QShortcut>

#include "MachineListView.h"
#include "MachineSearchField.h"
#include "frmMain.h"

namespace coinlight {

void frmMain::ConnectSearch() {
    const MainControls& c = m_controls;
    connect(c.txtSearch, &QLineEdit::textChanged, this, &frmMain::NarrowListOfView);
    connect(c.txtSearch, &MachineSearchField::ReturnToList, this, [this] {
        if (m_controls.pages->currentWidget() == m_controls.fraList) {
            ListOfView()->setFocus();
        }
    });
    for (MachineListView* list : {c.lvAll, c.lvAvailable, c.lvUnavailable, c.lvOther}) {
        connect(list, &MachineListView::FindRequested, this, &frmMain::FocusSearch);
    }
    auto* find = new QShortcut(QKeySequence::Find, this);
    find->setObjectName(QStringLiteral("findShortcut"));
    connect(find, &QShortcut::activated, this, &frmMain::FocusSearch);
}

void frmMain::FocusSearch() {
    // Only the list page has the field; elsewhere the key means nothing.
    if (m_controls.pages->currentWidget() != m_controls.fraList) {
        return;
    }
    m_controls.txtSearch->setFocus(Qt::ShortcutFocusReason);
    m_controls.txtSearch->selectAll();
}

QString frmMain::MachineCountText(const MachineListView& list) const {
    const MachineListModel& model = list.Model();
    QString text = QStringLiteral("Machines: ") + QString::number(model.rowCount());
    if (model.IsNarrowed()) {
        text += QStringLiteral(" of ") + QString::number(model.TotalRows());
    }
    return text;
}

bool frmMain::ApplySearch(MachineListView& list) {
    return list.Narrow(SearchQuery(m_controls.txtSearch->text().toStdString()));
}

void frmMain::NarrowListOfView() {
    if (m_controls.pages->currentWidget() != m_controls.fraList) {
        return; // the list page narrows its list when it comes back
    }
    MachineListView& list = *ListOfView();
    if (!ApplySearch(list)) {
        return;
    }
    if (list.Model().rowCount() == 0) {
        PanelClearSoftware();
    }
    m_controls.lblPanel[0]->setText(MachineCountText(list));
}

} // namespace coinlight
