// The four views, the details of a selected row, and leaving the text screens.
#include <QApplication>

#include "MachineListView.h"
#include "Prompter.h"
#include "frmMain.h"
#include "info/InfoSourceList.h"

namespace coinlight {

namespace {

constexpr const char* kAllArcade = "All Arcade Machines";
constexpr const char* kAvailableArcade = "Available Arcade Machines";
constexpr const char* kUnavailableArcade = "Unavailable Arcade Machines";
constexpr const char* kOtherMachines = "Other Machines";

} // namespace

MachineListView* frmMain::ListOfView() {
    const std::string& view = m_context.preferences.view.listView;
    if (view == kAvailableArcade) {
        return m_controls.lvAvailable;
    }
    if (view == kUnavailableArcade) {
        return m_controls.lvUnavailable;
    }
    if (view == kOtherMachines) {
        return m_controls.lvOther;
    }
    return m_controls.lvAll;
}

ListState& frmMain::SavedStateOf(const MachineListView& list) {
    ViewPreferences& view = m_context.preferences.view;
    if (&list == m_controls.lvAvailable) {
        return view.available;
    }
    if (&list == m_controls.lvUnavailable) {
        return view.unavailable;
    }
    if (&list == m_controls.lvOther) {
        return view.other;
    }
    return view.all;
}

void frmMain::SetFrameCaption(const QString& view) {
    m_controls.fraList->setTitle(m_context.preferences.view.filters ? view + QStringLiteral(" *")
                                                                    : view);
}

void frmMain::TickView(QAction* entry) {
    for (QAction* action : {m_controls.mnuViewAll, m_controls.mnuViewAvailable,
                            m_controls.mnuViewUnavailable, m_controls.mnuViewOtherMachines}) {
        action->setChecked(action == entry);
    }
}

void frmMain::UpdateCommandSet() {
    const MainControls& c = m_controls;
    SetStartCommands(true);
    for (QWidget* control : {static_cast<QWidget*>(c.cmdAudit), static_cast<QWidget*>(c.cmdInfo),
                             static_cast<QWidget*>(c.lblBLinks[LinkAudit]),
                             static_cast<QWidget*>(c.lblBLinks[LinkInfo])}) {
        control->setEnabled(true);
    }
    const bool hasOther = c.mnuViewOtherMachines->isEnabled();
    c.cmdArcadeSettings->setEnabled(!m_inOtherView);
    c.lblBLinks[LinkArcadeSettings]->setEnabled(!m_inOtherView);
    c.cmdOtherSettings->setEnabled(hasOther);
    c.lblBLinks[LinkOtherSettings]->setEnabled(hasOther);
    c.cmdFind->setEnabled(true);
    c.lblBLinks[LinkFind]->setEnabled(true);
    SetFamilyCheckBoxes(!m_inOtherView);
}

void frmMain::ShowListInView(MachineListView& list, const ListState& saved) {
    ApplySearch(list); // the search field narrows whichever list is on show
    m_controls.lblPanel[0]->setText(MachineCountText(list));
    m_controls.lblPanel[1]->setToolTip(&list == m_controls.lvOther ? QStringLiteral("Software")
                                                                   : QStringLiteral("Machine"));
    MachineListModel& model = list.Model();
    if (model.rowCount() == 0) {
        PanelClearSoftware();
        LoadSnapshot();
        LoadCabinetIcon();
        return;
    }
    if (model.SortKey() != saved.sortKey || model.SortOrder() != saved.sortOrder) {
        model.Sort(saved.sortKey, saved.sortOrder == 1);
    }
    list.ShowHeaderIcon(saved.sortKey, saved.sortOrder);
    if (list.SelectedRow() < 0) {
        list.SelectRow(0);
    }
    list.scrollTo(list.currentIndex(), QAbstractItemView::EnsureVisible);
    if (!m_context.flags.formLoading) {
        list.setFocus();
    }
    ShowDetails(list);
}

void frmMain::ShowArcadeView(MachineListView& list, const char* viewText, QAction* menuEntry) {
    if (m_inOtherView) {
        // The mame.ini of the two families differs: it is written anew for arcade machines.
        m_inOtherView = false;
        CreateMAMEIni();
        if (m_context.flags.fatalErrorFlag) {
            return;
        }
    }
    const MainControls& c = m_controls;
    c.lblToggle->show();
    m_context.preferences.view.listView = viewText;
    SetFrameCaption(QString::fromLatin1(viewText));
    TickView(menuEntry);
    c.lists->setCurrentWidget(&list);
    c.cmdStart->setDefault(true);
    SetLinksOrButtons();
    const bool unavailable = &list == c.lvUnavailable;
    if (unavailable) {
        c.picSoftware->hide();
        SetFamilyCheckBoxes(false);
        c.chkAutoRun->setChecked(false);
        c.cmdStart->setDefault(false);
        SetStartCommands(false);
        const bool hasRows = list.Model().rowCount() != 0;
        for (QWidget* control :
             {static_cast<QWidget*>(c.cmdAudit), static_cast<QWidget*>(c.cmdInfo),
              static_cast<QWidget*>(c.lblBLinks[LinkAudit]),
              static_cast<QWidget*>(c.lblBLinks[LinkInfo])}) {
            control->setEnabled(hasRows);
        }
    } else {
        UpdateCommandSet();
    }
    ShowListInView(list, SavedStateOf(list));
    if (unavailable && list.Model().rowCount() == 0) {
        c.lblShots->hide();
        c.lblScroll->clear();
    }
}

void frmMain::ViewAllArcade() {
    ShowArcadeView(*m_controls.lvAll, kAllArcade, m_controls.mnuViewAll);
}

void frmMain::ViewAvailableArcade() {
    ShowArcadeView(*m_controls.lvAvailable, kAvailableArcade, m_controls.mnuViewAvailable);
}

void frmMain::ViewUnavailableArcade() {
    ShowArcadeView(*m_controls.lvUnavailable, kUnavailableArcade, m_controls.mnuViewUnavailable);
}

void frmMain::ViewOther() {
    const MainControls& c = m_controls;
    m_inOtherView = true;
    TickView(c.mnuViewOtherMachines);
    c.lblToggle->hide();
    m_context.preferences.view.listView = kOtherMachines;
    SetFrameCaption(QString::fromLatin1(kOtherMachines));
    c.lists->setCurrentWidget(c.otherPage);
    for (QCheckBox* box : {c.chkAutoSave, c.chkAutoRun, c.chkRecord, c.chkPlayback}) {
        box->setChecked(false);
    }
    SetLinksOrButtons();
    UpdateCommandSet();
    c.picSoftware->show();
    ShowListInView(*c.lvOther, m_context.preferences.view.other);
    if (c.lvOther->Model().rowCount() != 0) {
        c.picSoftware->Timer()->stop(); // the selection just made needs no second load
        ClearSoftwareStuff();
        LoadSoftwareLists();
    }
    CreateMAMEIni();
}

void frmMain::PanelClearSoftware() {
    const MainControls& c = m_controls;
    for (std::size_t i = 1; i < c.lblPanel.size(); ++i) {
        c.lblPanel[i]->clear();
    }
    if (m_inOtherView) {
        const MachineRow* row = c.lvOther->SelectedMachine();
        if (c.lvOther->Model().rowCount() == 0) {
            SetStartCommands(false);
        } else if (row != nullptr && row->Field(ColSoftwareLists) == "N/A") {
            UpdateStartControls();
            c.lblPanel[1]->setText(
                QStringLiteral(" *** This Machine Does Not Have Any Software Lists ***"));
        }
    } else {
        for (QWidget* control :
             {static_cast<QWidget*>(c.cmdStart), static_cast<QWidget*>(c.cmdAudit),
              static_cast<QWidget*>(c.cmdInfo)}) {
            control->setEnabled(false);
        }
        for (int link : {LinkStart, LinkAudit, LinkInfo}) {
            c.lblBLinks[static_cast<std::size_t>(link)]->hide();
        }
    }
    SetFamilyCheckBoxes(false);
    c.chkAutoRun->setChecked(false);
}

DetailsSource frmMain::DetailsSourceOf(const MachineListView& list, const MachineRow& row) const {
    if (&list == m_controls.lvAvailable) {
        return DetailsSource::Available;
    }
    if (&list == m_controls.lvUnavailable) {
        return DetailsSource::Unavailable;
    }
    if (&list == m_controls.lvOther) {
        return row.Available() ? DetailsSource::Other : DetailsSource::OtherUnavailable;
    }
    return DetailsSource::All;
}

void frmMain::ShowDetails(MachineListView& list) {
    if (m_controls.lists->currentWidget() != &list &&
        !(&list == m_controls.lvOther &&
          m_controls.lists->currentWidget() == m_controls.otherPage)) {
        return; // a list out of view keeps its selection and leaves the strip alone
    }
    const MachineRow* row = list.SelectedMachine();
    if (row == nullptr) {
        return;
    }
    const std::string current = m_controls.lblPanel[6]->text().toStdString();
    ApplyDetails(DetailsOf(*row, DetailsSourceOf(list, *row),
                           m_context.preferences.other.mergedRomSets, m_arcadeRomFolders,
                           m_context.data.Settings(), current));
    LoadSnapshot();
    LoadCabinetIcon();
}

void frmMain::ApplyDetails(const SelectionDetails& details) {
    for (std::size_t i = 1; i < details.panel.size(); ++i) {
        m_controls.lblPanel[i]->setText(QString::fromStdString(details.panel[i]));
    }
    if (details.start == StartCommands::Leave) {
        return;
    }
    const bool enabled = details.start == StartCommands::Enable;
    SetStartCommands(enabled);
    SetFamilyCheckBoxes(enabled);
}

void frmMain::ReturnList1() {
    const MainControls& c = m_controls;
    ShowPage(c.fraList);
    c.lstInfo->Retire();
    c.rtfVerify->clear();
    c.cmdFind->setText(QStringLiteral("&MAME.Ini"));
    c.cmdFind->setToolTip(
        QStringLiteral("The MAME.Ini File That Will Be Used For The Selected Game"));
    SetLinkText(c.lblBLinks[LinkFind], QStringLiteral("MAME.Ini"));
    SetLinkText(c.lblBLinks[LinkExit], QStringLiteral("Exit"));
    c.cmdExit->setText(QStringLiteral("E&xit"));
    c.cmdExit->setToolTip(QStringLiteral("Closes Coinlight"));
    MachineListView* list = ListOfView();
    // A text page empties the strip and disables the settings commands: the end of the list
    // set-up brings both back.
    c.lblPanel[0]->setText(QStringLiteral("Machines: ") +
                           QString::number(list->Model().rowCount()));
    UpdateCommandSet();
    SetFamilyCheckBoxes(!m_inOtherView && list != c.lvUnavailable);
    if (list->Model().rowCount() != 0) {
        ShowDetails(*list);
    }
    SetStartCommands(list != c.lvUnavailable && list->Model().rowCount() != 0);
    if (m_inOtherView) {
        UpdateStartControls(); // a red row stays unstartable
    }
}

void frmMain::ReturnList2() {
    ShowPage(m_controls.fraList);
    UncoverCommands();
    MachineListView* list = ListOfView();
    if (list->Model().rowCount() != 0) {
        ShowDetails(*list);
    }
    LoadSnapshot();
}

} // namespace coinlight
