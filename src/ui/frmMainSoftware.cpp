// The software panel beside the Other Machines list: when it loads, what it shows, and the
// commands of its controls.
#include "MachineListView.h"
#include "Prompter.h"
#include "UserMessagePrompt.h"
#include "WaitCursor.h"
#include "catalogue/SoftwareCatalogue.h"
#include "frmMain.h"
#include "frmSplash.h"
#include "lists/SoftwareFile.h"

namespace coinlight {

namespace {

constexpr const char* kLoadingLists = " *** Loading Software Lists.  Please Stand By. ***";
constexpr const char* kLongLoad = " *** This Software List Can Take A Long Time To Load ***";

} // namespace

void frmMain::ConnectSoftwareControls() {
    const MainControls& c = m_controls;
    SoftwarePanel& panel = *c.picSoftware;
    connect(c.lvOther, &MachineListView::RowSelected, this, &frmMain::OtherItemClick);
    connect(panel.Timer(), &QTimer::timeout, this, &frmMain::SoftwareTimerTick);
    for (int index : {0, 1}) {
        connect(panel.Option(index), &QRadioButton::clicked, this, &frmMain::SoftwareOptionClicked);
    }
    connect(c.lvSoftware, &SoftwareListView::ColumnClicked, this, &frmMain::SoftwareColumnClicked);
    connect(c.lvSoftware, &SoftwareListView::RowSelected, this, &frmMain::SoftwareItemClick);
    connect(c.lvSoftware, &SoftwareListView::RowActivated, this, &frmMain::SoftwareDoubleClick);
}

void frmMain::OtherItemClick() {
    SoftwarePanel& panel = *m_controls.picSoftware;
    panel.Timer()->stop();
    // The details follow the row by the list's own connection; the panel only in view.
    if (!m_inOtherView || m_controls.lists->currentWidget() != m_controls.otherPage) {
        return;
    }
    if (m_skipOtherItemClick) {
        m_skipOtherItemClick = false;
        return;
    }
    const MachineRow* row = m_controls.lvOther->SelectedMachine();
    if (row == nullptr || row->ShortName() == m_softwareMachine) {
        return;
    }
    const SoftwareListModel& model = m_controls.lvSoftware->Model();
    m_controls.lvSoftware->ShowHeaderIcon(model.SortKey(), model.SortOrder());
    panel.Timer()->start();
}

void frmMain::SoftwareTimerTick() {
    m_controls.picSoftware->Timer()->stop();
    ClearSoftwareStuff();
    LoadSoftwareLists();
    if (!m_context.flags.fatalErrorFlag) {
        UnloadCover();
    }
}

void frmMain::ClearSoftwareStuff() {
    m_controls.lvSoftware->Model().Clear();
    LoadSnapshot(); // the picture of a title no longer listed goes
    m_softwareAvailable = 0;
    m_softwareUnavailable = 0;
    m_controls.lblPanel[1]->clear();
    m_controls.lblPanel[1]->repaint();
}

void frmMain::LoadSoftwareLists() {
    const WaitCursor hourglass;
    const MainControls& c = m_controls;
    if (frmSplash* splash = SplashIfUp()) {
        splash->SetMessage(QStringLiteral("Populating software list..."));
    }
    const MachineRow* row = c.lvOther->SelectedMachine();
    if (row == nullptr) {
        FinishSoftwareLoad();
        return;
    }
    const std::string loadingMachine(row->ShortName());
    c.picSoftware->ClearSlotListing();
    c.picSoftware->SetCovered(true);
    const std::vector<std::filesystem::path> softwarePaths(m_softwareFolders.begin(),
                                                           m_softwareFolders.end());
    const SoftwareFilePreparation prepared = PrepareSoftwareFile(
        m_context.data, softwarePaths, loadingMachine, row->Field(ColSoftwareLists), [&c] {
            c.lblPanel[1]->setText(QString::fromLatin1(kLoadingLists));
            c.lblPanel[1]->repaint();
        });
    if (prepared.status != SoftwareFileStatus::Ready) {
        if (prepared.message) {
            ShowMessage(m_prompter, *prepared.message);
        }
        c.picSoftware->SetCovered(false);
        UpdateSoftwareControls();
        if (prepared.status == SoftwareFileStatus::NoLists) {
            PanelClearSoftware();
            c.lblPanel[2]->setText(QString::fromStdString(loadingMachine));
        }
        FinishSoftwareLoad();
        return;
    }
    if (SoftwareFileTakesLong(SoftwareFileOf(m_context.data, loadingMachine))) {
        c.lblPanel[1]->setText(QString::fromLatin1(kLongLoad));
        c.lblPanel[1]->repaint();
    }
    LoadListsSoftware(loadingMachine);
    c.picSoftware->SetCovered(false);
    UpdateSoftwareControls();

    const bool available = c.picSoftware->Kind() == SoftwareKind::Available;
    const int count = available ? m_softwareAvailable : m_softwareUnavailable;
    c.cmdStart->setDefault(available);
    if (count < 1) {
        PanelClearSoftware();
        c.lblPanel[2]->setText(QString::fromStdString(loadingMachine));
        c.lblScroll->clear();
    } else {
        const SoftwareListModel& model = c.lvSoftware->Model();
        c.lvSoftware->ShowHeaderIcon(model.SortKey(), model.SortOrder());
        if (SplashIfUp() == nullptr) {
            c.lvOther->setFocus();
        }
    }
    c.lblPanel[1]->setToolTip(QStringLiteral("Software: ") + QString::number(count));
    ShowDetails(*c.lvOther);
    FinishSoftwareLoad();
}

void frmMain::FinishSoftwareLoad() {
    const MainControls& c = m_controls;
    UpdateStartControls();
    const MachineRow* row = c.lvOther->SelectedMachine();
    m_softwareMachine = row != nullptr ? std::string(row->ShortName()) : std::string();
    if (c.lvSoftware->SelectedRow() >= 0) {
        c.lvSoftware->Deselect();
        c.lblPanel[1]->clear();
    }
}

void frmMain::LoadListsSoftware(const std::string& machine) {
    const SoftwareKind kind = m_controls.picSoftware->Kind();
    const SoftwareLoad load =
        coinlight::LoadListsSoftware(SoftwareFileOf(m_context.data, machine), kind);
    m_controls.lvSoftware->Model().Reset(load.rows, true);
    m_softwareAvailable += load.available;
    m_softwareUnavailable += load.unavailable;
    if (load.error) {
        ShowMessage(m_prompter, *load.error);
    }
}

void frmMain::SoftwareOptionClicked() {
    m_skipOtherItemClick = true;
    ClearSoftwareStuff();
    LoadSoftwareLists();
    if (!m_context.flags.fatalErrorFlag) {
        m_skipOtherItemClick = false;
    }
}

void frmMain::SoftwareColumnClicked(int column) {
    SoftwareListView& list = *m_controls.lvSoftware;
    SoftwareListModel& model = list.Model();
    if (model.rowCount() < 2 || column >= SoftwareListModel::kSubItemCount) {
        list.ShowHeaderIcon(model.SortKey(), model.SortOrder());
        return;
    }
    const bool descending = column == model.SortKey() ? model.SortOrder() == 0 : false;
    model.Sort(column, descending);
    list.ShowHeaderIcon(column, descending ? 1 : 0);
    if (list.SelectedRow() >= 0) {
        list.scrollTo(list.currentIndex(), QAbstractItemView::EnsureVisible);
    }
}

void frmMain::SoftwareItemClick() {
    const MainControls& c = m_controls;
    const MachineRow* machine = c.lvOther->SelectedMachine();
    const int row = c.lvSoftware->SelectedRow();
    if (machine == nullptr || row < 0) {
        return;
    }
    // An unavailable title reads as unavailable whatever the machine, and so does any
    // title of a machine whose own files are missing.
    const bool available = c.picSoftware->Kind() == SoftwareKind::Available && machine->Available();
    ApplyDetails(DetailsOf(*machine,
                           available ? DetailsSource::Other : DetailsSource::OtherUnavailable,
                           m_context.preferences.other.mergedRomSets, m_arcadeRomFolders,
                           m_context.data.Settings(), c.lblPanel[6]->text().toStdString()));
    const std::string_view title = c.lvSoftware->Model().Text(row, SoftwareListModel::Description);
    c.lblPanel[1]->setText(QString::fromUtf8(title.data(), static_cast<qsizetype>(title.size())));
    LoadSnapshot();
}

void frmMain::SoftwareDoubleClick() {
    // Rules that must come before a start from this list go here, ahead of the others.
    if (m_controls.picSoftware->Kind() == SoftwareKind::Unavailable) {
        m_prompter.Message(QStringLiteral("Start"),
                           QStringLiteral("This software is not available."),
                           PromptIcon::Information);
        return;
    }
    PlayOther();
}

void frmMain::UpdateSoftwareControls() {
    const MainControls& c = m_controls;
    const MachineRow* row = c.lvOther->SelectedMachine();
    const bool hasLists = row != nullptr && row->Field(ColSoftwareLists) != "N/A";
    c.picSoftware->RunNoSoftware()->setVisible(hasLists && row->Available());
    c.picSoftware->Option(0)->setVisible(hasLists);
    c.picSoftware->Option(1)->setVisible(hasLists);
}

void frmMain::UpdateStartControls() {
    const MachineRow* row = m_controls.lvOther->SelectedMachine();
    const bool startable = row != nullptr && row->Available();
    SetStartCommands(startable);
    m_controls.picSoftware->StringEdit()->setVisible(startable);
}

void frmMain::KillSoftsOther(const std::string& machine) {
    if (!coinlight::KillSoftsOther(m_context.data.Software(), machine)) {
        m_prompter.Inform(QStringLiteral("Coinlight could not delete the software list files in ") +
                              QString::fromStdString(m_context.data.Software().string()) +
                              QStringLiteral("."),
                          PromptIcon::Warning);
    }
    if (machine.empty()) {
        return;
    }
    m_softwareMachine.clear();
    ClearSoftwareStuff();
    LoadSoftwareLists();
}

void frmMain::FillSoftwareState(MameIniBase& base) const {
    const SoftwareListView& list = *m_controls.lvSoftware;
    const int row = list.SelectedRow();
    if (list.Model().rowCount() == 0) {
        base.software = SoftwareListState::Empty;
    } else if (row < 0) {
        base.software = SoftwareListState::NoneSelected;
    } else {
        base.software = SoftwareListState::Selected;
        base.selectedParts = std::string(list.Model().Text(row, SoftwareListModel::Parts));
    }
}

} // namespace coinlight
