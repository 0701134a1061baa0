// The two favourites lists: adding and removing from the right-click menu, viewing them,
// and the report of the machines a new MAME took off them.
#include "MachineListView.h"
#include "Prompter.h"
#include "core/FileTests.h"
#include "frmMain.h"
#include "lists/Favorites.h"

namespace coinlight {

namespace {

void ShowFavoritesMessages(Prompter& prompter, const std::vector<FavoritesMessage>& messages) {
    for (const auto& message : messages) {
        prompter.Message(QString::fromStdString(message.title),
                         QString::fromStdString(message.text),
                         message.information ? PromptIcon::Information : PromptIcon::None);
    }
}

} // namespace

void frmMain::ConnectFavoritesControls() {
    const MainControls& c = m_controls;
    for (MachineListView* list : {c.lvAll, c.lvAvailable, c.lvOther}) {
        connect(list, &QWidget::customContextMenuRequested, this, [this, list](const QPoint& at) {
            const QModelIndex index = list->indexAt(at);
            if (!index.isValid()) {
                return;
            }
            // The row under the pointer, without scrolling it away from the pointer.
            list->setCurrentIndex(index);
            PrepareListMenu(*list);
            m_controls.mnuRClick->popup(list->viewport()->mapToGlobal(at));
        });
    }
}

void frmMain::PrepareListMenu(MachineListView& list) {
    const ViewPreferences& view = m_context.preferences.view;
    const FavoritesMenuState menu =
        FavoritesMenuOf(view.listView, view.favoriteArcade, view.favoriteOther);
    m_controls.mnuAddFavorite->setEnabled(menu.add);
    m_controls.mnuRemoveFavorite->setEnabled(menu.remove);
    // Only other machines have software to refresh.
    const MachineRow* row = list.SelectedMachine();
    const bool hasSoftware =
        &list == m_controls.lvOther && row != nullptr && row->Field(ColSoftwareLists) != "N/A";
    m_controls.mnuRefreshSoftware->setVisible(&list == m_controls.lvOther);
    m_controls.mnuRefreshSoftware->setEnabled(hasSoftware);
    PrepareMaintenanceEntries(list);
}

void frmMain::AddFavorite() {
    const auto file = FavoritesFileOfView(m_context.preferences.view.listView);
    const MachineRow* row = ListOfView()->SelectedMachine();
    if (!file || row == nullptr) {
        return;
    }
    std::string error;
    ShowFavoritesMessages(m_prompter,
                          coinlight::AddFavorite(m_context.data.Output() / *file, *row, &error));
    if (!error.empty()) {
        m_prompter.Inform(QString::fromStdString(error), PromptIcon::Warning);
    }
}

void frmMain::RemoveFavorite() {
    const auto file = FavoritesFileOfView(m_context.preferences.view.listView);
    MachineListView* list = ListOfView();
    const MachineRow* row = list->SelectedMachine();
    if (!file || row == nullptr) {
        return;
    }
    const RemoveOutcome outcome =
        coinlight::RemoveFavorite(m_context.data.Output() / *file, row->ShortName());
    if (!outcome.error.empty()) {
        m_prompter.Inform(QString::fromStdString(outcome.error), PromptIcon::Warning);
        return;
    }
    ShowFavoritesMessages(m_prompter, outcome.messages);
    const bool other = list == m_controls.lvOther;
    if (outcome.nowEmpty) {
        ViewPreferences& view = m_context.preferences.view;
        (other ? view.favoriteOther : view.favoriteArcade) = false;
        (other ? m_controls.mnuViewOtherFavorites : m_controls.mnuViewArcadeFavorites)
            ->setChecked(false);
    }
    if (other) {
        RefreshListsOther();
    } else {
        RefreshListsArcade();
    }
}

void frmMain::PurgeBeforeViewing(const std::string& word) {
    const std::string family = word == "Arcade" ? "arcade" : "other";
    // A line the list cannot read would end the program at the load: a purge turns old
    // name-only lines into records and drops the rest.
    if (FavoritesNeedPurge(m_context.data.Output() / (family + "favs.txt"))) {
        PurgeFavoritesOf(word);
    }
}

void frmMain::ViewFavoritesArcade() {
    Preferences& preferences = m_context.preferences;
    preferences.view.favoriteArcade = m_controls.mnuViewArcadeFavorites->isChecked();
    if (preferences.view.favoriteArcade) {
        PurgeBeforeViewing("Arcade");
    }
    if (FileExists(m_context.data.Output() / "arcadefavs.txt")) {
        RefreshListsArcade();
        return;
    }
    m_prompter.Message(QStringLiteral("Favorite Arcade Machines"),
                       QStringLiteral("You do not have an Favorite Arcade Machines list.  "),
                       PromptIcon::Information);
    preferences.view.favoriteArcade = false;
    m_controls.mnuViewArcadeFavorites->setChecked(false);
}

void frmMain::ViewFavoritesOther() {
    Preferences& preferences = m_context.preferences;
    preferences.view.favoriteOther = m_controls.mnuViewOtherFavorites->isChecked();
    if (preferences.view.favoriteOther) {
        PurgeBeforeViewing("Other");
    }
    if (FileExists(m_context.data.Output() / "otherfavs.txt")) {
        RefreshListsOther();
        return;
    }
    m_prompter.Message(QStringLiteral("Favorite Other Machines"),
                       QStringLiteral("You do not have a Favorite Other Machines list.  "),
                       PromptIcon::Information);
    preferences.view.favoriteOther = false;
    m_controls.mnuViewOtherFavorites->setChecked(false);
}

void frmMain::FavoriteChanges(const std::string& fileName) {
    const FavoriteChangesReport report =
        coinlight::FavoriteChanges(m_context.data.Output(), fileName);
    if (report.missing) {
        ShowFavoritesMessages(m_prompter, {*report.missing});
        return;
    }
    const MainControls& c = m_controls;
    PanelTextHide();
    c.lblScroll->clear();
    ShowPage(c.fraVerify);
    DisableFormButtons();
    c.fraVerify->setTitle(QString::fromStdString(report.caption));
    c.rtfVerify->setPlainText(QString::fromStdString(report.text));
}

} // namespace coinlight
