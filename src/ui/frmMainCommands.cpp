// The commands that open the Options dialog, write mame.ini and start the emulator.
#include <QApplication>

#include "MachineListView.h"
#include "Prompter.h"
#include "UserMessagePrompt.h"
#include "core/CommandRunner.h"
#include "core/FileTests.h"
#include "frmMain.h"
#include "launch/ArcadeLaunch.h"
#include "launch/LaunchAftermath.h"
#include "options/frmOptions.h"
#include "settings/MameIniBase.h"
#include "settings/MameIniPreview.h"
#include "settings/PathList.h"
#include "settings/RejectedValues.h"

namespace coinlight {

void frmMain::Options() {
    OpenOptions(false);
}

bool frmMain::OpenOptions(bool firstRun) {
    OptionsRequest request;
    request.firstRun = firstRun;
    request.inOtherView = m_inOtherView;
    request.locations = m_mameLocations;
    request.categoryCache = &m_categoryCache;
    const Preferences before = m_context.preferences;
    const OptionsOutcome outcome = frmOptions::ShowModal(m_context, m_prompter, request, this);
    if (!outcome.accepted || m_context.flags.formLoading) {
        // At the start the sequence goes on by itself with what the dialog wrote.
        return outcome.accepted;
    }
    RebuildPathArrays();
    CreateMAMEIni();
    if (m_context.flags.fatalErrorFlag) {
        return true;
    }
    if (outcome.lookChanged) {
        SetLinksOrButtons();
        ApplyListsAppearance();
        ApplyLookAfterOptions();
    }
    if (outcome.softwarePathChanged) {
        KillSoftsOther({}); // availability was measured against the old folders
    }
    const bool otherChanged =
        before.searchPaths.otherRoms != m_context.preferences.searchPaths.otherRoms;
    if (outcome.filtersChanged || outcome.pathsChanged) {
        // A filter touches both families: the one not on show is reloaded first.
        m_refreshBothFamilies = true;
        if (m_inOtherView && !m_context.preferences.searchPaths.otherRoms.empty()) {
            RefreshListsOther();
        } else {
            RefreshListsArcade();
        }
    } else if (otherChanged) {
        RefreshListsOther();
    }
    return true;
}

void frmMain::RebuildPathArrays() {
    const SearchPathPreferences& paths = m_context.preferences.searchPaths;
    const auto split = [this](const std::string& text, bool always) {
        if (text.empty() && !always) {
            return std::vector<std::string>{};
        }
        PathList list = CreateMultiplePathArray(text);
        if (list.warning) {
            ShowMessage(m_prompter, *list.warning);
        }
        return list.paths;
    };
    m_arcadeRomFolders = split(paths.arcadeRoms, true);
    m_otherRomFolders = split(paths.otherRoms, false);
    m_softwareFolders = split(paths.software, false);
    m_artworkFolders = split(paths.artwork, false);
}

StartBoxes frmMain::CurrentStartBoxes() const {
    const MainControls& c = m_controls;
    return {c.chkAutoSave->isChecked(), c.chkRecord->isChecked(), c.chkPlayback->isChecked(),
            c.chkAutoRun->isChecked()};
}

void frmMain::SetStartBoxes(const StartBoxes& boxes) {
    const MainControls& c = m_controls;
    for (auto [box, ticked] :
         {std::pair{c.chkAutoSave, boxes.autoSave}, std::pair{c.chkRecord, boxes.record},
          std::pair{c.chkPlayback, boxes.playback}, std::pair{c.chkAutoRun, boxes.autoRun}}) {
        const QSignalBlocker quiet(box);
        box->setChecked(ticked);
    }
    m_context.preferences.miscellaneous.autoRun = boxes.autoRun;
}

void frmMain::StartBoxClicked(StartBox box, bool ticked) {
    StartBoxes boxes = CurrentStartBoxes();
    // The box already shows the click: undo it in the copy, so the rule sees the change.
    switch (box) {
    case StartBox::AutoSave:
        boxes.autoSave = !ticked;
        break;
    case StartBox::Record:
        boxes.record = !ticked;
        break;
    case StartBox::Playback:
        boxes.playback = !ticked;
        break;
    case StartBox::AutoRun:
        boxes.autoRun = !ticked;
        break;
    }
    const StartBoxClick click = ClickStartBox(boxes, box, ticked);
    SetStartBoxes(click.boxes);
    if (click.rewriteMameIni) {
        CreateMAMEIni();
    }
}

void frmMain::CreateMAMEIni() {
    MameIniBase base;
    base.otherView = m_inOtherView;
    if (const MachineRow* row = ListOfView()->SelectedMachine()) {
        base.machine = std::string(row->ShortName());
    }
    base.boxes = CurrentStartBoxes();
    FillSoftwareState(base);
    if (const auto failure = coinlight::CreateMAMEIni(m_context.preferences, base)) {
        ShowMessage(m_prompter, *failure);
        m_context.flags.fatalErrorFlag = true;
    }
}

void frmMain::PlayArcade() {
    if (m_context.flags.emulatorRunning) {
        return;
    }
    MachineListView* list = ListOfView();
    list->setFocus();
    m_commandString.clear();
    ArcadeStartRequest request;
    request.selection.view = m_context.preferences.view.listView;
    if (const MachineRow* row = list->SelectedMachine()) {
        request.selection.displayType = std::string(row->Field(ColImages).substr(0, 6));
        request.selection.machine = std::string(row->ShortName());
    }
    request.selection.orientation = m_controls.lblPanel[4]->text().toStdString();
    request.selection.unavailable = m_controls.lblPanel[6]->text() == QStringLiteral("Unavailable");
    request.profileName = m_profileName;
    request.boxes = CurrentStartBoxes();
    request.preview = m_controls.cmdFind->isHidden() && m_controls.lblBLinks[LinkFind]->isHidden();
    const ArcadeLaunchPlan plan = PrepareArcadeLaunch(m_context, request);
    m_profileName = plan.profileName;
    m_commandString = plan.otherCommands;
    switch (plan.verdict) {
    case ArcadeVerdict::Failed:
        m_context.flags.fatalErrorFlag = true;
        [[fallthrough]];
    case ArcadeVerdict::Refused:
        if (plan.message) {
            ShowMessage(m_prompter, *plan.message);
        }
        return;
    case ArcadeVerdict::Previewed:
        return;
    case ArcadeVerdict::PlaybackMissing:
        if (plan.message) {
            ShowMessage(m_prompter, *plan.message);
        }
        m_controls.chkPlayback->setChecked(false);
        CreateMAMEIni();
        return;
    case ArcadeVerdict::Ready:
        break;
    }
    if (plan.recordQuestion && ShowMessage(m_prompter, *plan.recordQuestion) != PromptAnswer::Yes) {
        m_controls.chkRecord->setChecked(false);
        CreateMAMEIni();
        if (m_context.flags.fatalErrorFlag) {
            return;
        }
    }
    if (plan.strayIniWarning) {
        ShowMessage(m_prompter, *plan.strayIniWarning);
    }
    m_commandString = plan.commandLine;
    if (!RunEmulator(m_commandString)) {
        return;
    }
    if (const auto failure = WriteLastRun(m_context.data, m_commandString)) {
        ShowMessage(m_prompter, *failure);
    }
    show();
    SetStartBoxes(AfterArcadeStart(CurrentStartBoxes()));
    CreateMAMEIni();
    if (m_context.flags.fatalErrorFlag) {
        return;
    }
    const LaunchOutput output = FinishLaunch(m_context, request.selection.machine);
    if (output.standardOutput) {
        ShowStandardOutput(*output.standardOutput);
    }
    if (output.errorOutput) {
        ShowErrorOutput(*output.errorOutput);
    }
}

bool frmMain::RunEmulator(const std::string& commandLine) {
    // The emulator has the screen to itself until it ends; a second start of Coinlight
    // meanwhile must not bring the window back over it.
    hide();
    m_context.flags.emulatorRunning = true;
    const ExecResult run = ExecCmd(commandLine, m_context.preferences.searchPaths.mame, [] {
        QApplication::processEvents();
        return true;
    });
    m_context.flags.emulatorRunning = false;
    if (!run.message.empty()) {
        m_prompter.Inform(QString::fromStdString(run.message), PromptIcon::Critical);
        if (run.IsFatal()) {
            m_context.flags.fatalErrorFlag = true;
            close();
            return false;
        }
    }
    return true;
}

void frmMain::ShowStandardOutput(const std::string& text) {
    m_controls.lblScroll->setText(
        QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size())).toUpper().simplified());
    m_controls.lblScroll->setToolTip(QStringLiteral("MAME Standard Output"));
}

void frmMain::ShowErrorOutput(const std::string& text) {
    // A value MAME refused is named with the setting that holds it.
    ShowTextPage(QStringLiteral("MAME Error Output"), NameRejectingControls(text), true);
}

void frmMain::Find() {
    // The caption says the role: the report page turns the button into its own commands.
    const QString role = m_controls.cmdFind->text();
    if (role == QStringLiteral("&Print")) {
        PrintReportPage();
        return;
    }
    if (role != QStringLiteral("&MAME.Ini")) {
        ListBadSets();
        return;
    }
    CreateMAMEIni();
    if (m_context.flags.fatalErrorFlag) {
        return;
    }
    const bool buttonShown = !m_controls.cmdFind->isHidden();
    const bool linkShown = !m_controls.lblBLinks[LinkFind]->isHidden();
    m_controls.cmdFind->hide();
    m_controls.lblBLinks[LinkFind]->hide();
    if (m_inOtherView) {
        PlayOther();
    } else {
        PlayArcade();
    }
    m_controls.cmdFind->setVisible(buttonShown);
    m_controls.lblBLinks[LinkFind]->setVisible(linkShown);
    if (m_context.flags.fatalErrorFlag) {
        return;
    }
    const MameIniPreview preview = PreviewMameIni(m_context.preferences, m_commandString);
    m_controls.fraVerify->setTitle(QString::fromStdString(preview.caption));
    m_controls.rtfVerify->setPlainText(QString::fromStdString(preview.text));
    ShowPage(m_controls.fraVerify);
    m_controls.lblScroll->setText(QString::fromStdString(m_profileName));
    m_controls.cmdGameList->setFocus();
    CreateMAMEIni();
    if (!m_context.flags.fatalErrorFlag) {
        m_commandString.clear();
    }
}

} // namespace coinlight
