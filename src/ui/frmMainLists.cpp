// Filling the lists from the catalogue, refreshing them after a change, and sorting.
#include <QApplication>

#include "MachineListView.h"
#include "Prompter.h"
#include "WaitCursor.h"
#include "core/FileTests.h"
#include "core/ProfileFile.h"
#include "frmMain.h"
#include "frmSplash.h"
#include "lists/ListLoader.h"

namespace coinlight {

void frmMain::ReportLoadCount(bool arcade, int rows) {
    const QString count = QString::number(rows);
    if (m_context.flags.formLoading) {
        if (arcade) {
            Splash().SetArcadeCount(count);
        } else {
            Splash().SetOtherCount(count);
        }
    } else {
        m_controls.lblRefresh[4]->setText(count);
        m_controls.lblRefresh[4]->update();
    }
}

void frmMain::ShowLoadingStatus(const QString& family) {
    if (m_context.flags.formLoading) {
        Splash().SetMessage(QStringLiteral("Populating machine lists..."));
        Splash().SetOtherCaption(QStringLiteral("Other Machines:"));
    } else {
        m_controls.lblRefresh[3]->setText(family);
        m_controls.lblRefresh[3]->repaint();
    }
}

ListLoadJob frmMain::ListJob(bool arcade, std::filesystem::path file) const {
    const Preferences& preferences = m_context.preferences;
    ListLoadJob job;
    job.arcade = arcade;
    job.file = std::move(file);
    job.options.filters = arcade ? ListFilterSettings::ForArcade(preferences)
                                 : ListFilterSettings::ForOther(preferences);
    job.options.mergedRomSets = preferences.other.mergedRomSets;
    job.options.skipSearch = m_context.markers.skipSearch;
    job.romFolders = arcade ? m_arcadeRomFolders : m_otherRomFolders;
    if (arcade && m_context.facts.hasNPlayers) {
        job.options.nplayers = LoadProfile(m_context.data.Support() / "nplayers.ini");
    }
    return job;
}

ListLoadJob frmMain::ArcadeListJob() {
    Preferences& preferences = m_context.preferences;
    auto file = m_context.data.Output() / "arcadeinfo.txt";
    if (preferences.view.favoriteArcade) {
        const auto favourites = m_context.data.Output() / "arcadefavs.txt";
        if (FileExists(favourites)) {
            file = favourites;
        } else {
            preferences.view.favoriteArcade = false;
            m_controls.mnuViewArcadeFavorites->setChecked(false);
        }
    }
    return ListJob(true, file);
}

ListLoadJob frmMain::OtherListJob() {
    // Unlike the arcade list, a missing favourites file is not replaced by the full list:
    // the load fails and says so.
    auto file = m_context.data.Output() / "otherinfo.txt";
    if (m_context.preferences.view.favoriteOther) {
        file = m_context.data.Output() / "otherfavs.txt";
    } else {
        m_controls.mnuViewOtherFavorites->setChecked(false);
    }
    return ListJob(false, file);
}

ListLoadProgress frmMain::LoadProgress(bool arcade) {
    return {[this, arcade](int rows) { ReportLoadCount(arcade, rows); },
            [this] {
                Pump();
            }};
}

bool frmMain::ShowLoaded(LoadedList& loaded) {
    if (loaded.error.empty()) {
        return true;
    }
    m_prompter.Inform(QString::fromStdString(loaded.error), PromptIcon::Critical);
    m_context.flags.fatalErrorFlag = true;
    return false;
}

bool frmMain::ApplyArcadeList(LoadedList loaded) {
    if (!ShowLoaded(loaded)) {
        return false;
    }
    m_arcadeRows = loaded.machines;
    m_controls.lvAll->Model().Reset(m_arcadeRows, AllRows(*m_arcadeRows));
    m_controls.lvAvailable->Model().Reset(m_arcadeRows, std::move(loaded.available));
    m_controls.lvUnavailable->Model().Reset(m_arcadeRows, std::move(loaded.unavailable));
    if (!m_context.flags.formLoading) { // the start selects once the lists are sorted
        for (MachineListView* list :
             {m_controls.lvAll, m_controls.lvAvailable, m_controls.lvUnavailable}) {
            SelectSavedMachine(*list);
        }
    }
    return true;
}

bool frmMain::ApplyOtherList(LoadedList loaded) {
    if (!ShowLoaded(loaded)) {
        return false;
    }
    m_otherRows = loaded.machines;
    m_controls.lvOther->Model().Reset(m_otherRows, AllRows(*m_otherRows));
    if (!m_context.flags.formLoading) {
        SelectSavedMachine(*m_controls.lvOther);
    }
    return true;
}

void frmMain::SelectSavedMachine(MachineListView& list) {
    MachineListModel& model = list.Model();
    if (model.rowCount() == 0) {
        return;
    }
    // A machine that a filter now hides is simply not found: the first row serves.
    const std::string& key = SavedStateOf(list).key;
    int row = 0;
    if (key.size() > 2 && key.starts_with("k.")) {
        row = std::max(0, model.RowOfShortName(std::string_view(key).substr(2)));
    }
    list.SelectRow(row);
}

bool frmMain::LoadListsArcade() {
    const WaitCursor hourglass;
    ShowLoadingStatus(QStringLiteral("Arcade Machines:"));
    return ApplyArcadeList(ArcadeListJob().Run(LoadProgress(true)));
}

bool frmMain::LoadListsOther() {
    const WaitCursor hourglass;
    ShowLoadingStatus(QStringLiteral("Other Machines:"));
    return ApplyOtherList(OtherListJob().Run(LoadProgress(false)));
}

void frmMain::SortColumn(MachineListView& list, int column) {
    MachineListModel& model = list.Model();
    if (model.rowCount() < 2 || list.IsColumnHidden(column)) {
        // Nothing to order: the click changes neither the list nor its saved sort.
        list.ShowHeaderIcon(model.SortKey(), model.SortOrder());
        return;
    }
    const bool descending = column == model.SortKey() ? model.SortOrder() == 0 : false;
    model.Sort(column, descending);
    list.ShowHeaderIcon(column, descending ? 1 : 0);
    ListState& saved = SavedStateOf(list);
    saved.sortKey = column;
    saved.sortOrder = descending ? 1 : 0;
    if (list.SelectedRow() >= 0) {
        list.scrollTo(list.currentIndex(), QAbstractItemView::EnsureVisible);
    }
}

void frmMain::RefreshListsArcade() {
    const MainControls& c = m_controls;
    c.lblScroll->clear();
    SetStartCommands(false);
    for (QWidget* control :
         {static_cast<QWidget*>(c.cmdAudit), static_cast<QWidget*>(c.cmdInfo),
          static_cast<QWidget*>(c.cmdExit), static_cast<QWidget*>(c.lblBLinks[LinkAudit]),
          static_cast<QWidget*>(c.lblBLinks[LinkInfo]),
          static_cast<QWidget*>(c.lblBLinks[LinkExit])}) {
        control->setEnabled(false);
    }
    DisableFormButtons();
    c.lblToggle->hide();
    PanelTextHide();
    const QString wait = QStringLiteral("Please wait while Coinlight refreshes the lists.");
    const bool hasOther = !m_context.preferences.searchPaths.otherRoms.empty();
    if (m_refreshBothFamilies && hasOther) {
        m_refreshBothFamilies = false;
        ShowPleaseWait(QStringLiteral("Other Machines:"), wait);
        c.lvOther->Model().Clear();
        if (!LoadListsOther()) {
            close();
            return;
        }
    }
    ShowPleaseWait(QStringLiteral("Arcade Machines:"), wait);
    for (MachineListView* list : {c.lvAll, c.lvAvailable, c.lvUnavailable}) {
        list->Model().Clear();
    }
    bool loaded = LoadListsArcade();
    if (loaded && m_openOptionsOnActivate && hasOther) {
        c.lvOther->Model().Clear();
        loaded = LoadListsOther();
    }
    m_openOptionsOnActivate = false;
    m_context.flags.listsRegenerating = false;
    if (!loaded) {
        close();
        return;
    }
    ShowPage(c.fraList);
    ShowSavedView();
    c.cmdExit->setEnabled(true);
    c.lblBLinks[LinkExit]->setEnabled(true);
}

void frmMain::RefreshListsOther() {
    const MainControls& c = m_controls;
    c.lblScroll->clear();
    SetStartCommands(false);
    DisableFormButtons();
    c.cmdExit->setEnabled(false);
    c.lblBLinks[LinkExit]->setEnabled(false);
    PanelTextHide();
    const QString wait = QStringLiteral("Please wait while Coinlight refreshes the lists.");
    bool loaded = true;
    if (m_refreshBothFamilies || m_openOptionsOnActivate) {
        m_refreshBothFamilies = false;
        ShowPleaseWait(QStringLiteral("Arcade Machines:"), wait);
        for (MachineListView* list : {c.lvAll, c.lvAvailable, c.lvUnavailable}) {
            list->Model().Clear();
        }
        loaded = LoadListsArcade();
    }
    if (loaded) {
        ShowPleaseWait(QStringLiteral("Other Machines:"), wait);
        c.lvOther->Model().Clear();
        loaded = LoadListsOther();
    }
    m_openOptionsOnActivate = false;
    if (!loaded) {
        close();
        return;
    }
    ShowPage(c.fraList);
    ViewOther();
    c.cmdExit->setEnabled(true);
    c.lblBLinks[LinkExit]->setEnabled(true);
}

} // namespace coinlight
