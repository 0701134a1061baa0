// Starting the selected machine of the Other Machines view, with or without a title, and
// the listing of its slots.
#include <QApplication>

#include "MachineListView.h"
#include "Prompter.h"
#include "UserMessagePrompt.h"
#include "WaitCursor.h"
#include "frmMain.h"
#include "launch/LaunchAftermath.h"
#include "launch/OtherLaunch.h"
#include "launch/SlotListing.h"

namespace coinlight {

namespace {

QString FromUtf8(std::string_view text) {
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

} // namespace

void frmMain::PlayOther() {
    const MainControls& c = m_controls;
    c.lvOther->setFocus();
    m_commandString.clear();
    m_profileName = "other";
    const bool preview = c.cmdFind->isHidden() && c.lblBLinks[LinkFind]->isHidden();

    OtherStartRequest request;
    if (const MachineRow* row = c.lvOther->SelectedMachine()) {
        request.selection = OtherMachineSelection{
            std::string(row->ShortName()), std::string(row->Field(ColBriefNames)),
            std::string(row->Field(ColSoftwareLists)), !row->Available()};
    }
    const SoftwareListModel& software = c.lvSoftware->Model();
    request.softwareListEmpty = software.rowCount() == 0;
    if (const int row = c.lvSoftware->SelectedRow(); row >= 0) {
        const auto text = [&](int subItem) {
            return std::string(software.Text(row, subItem));
        };
        request.title =
            SoftwareTitle{text(SoftwareListModel::Parts), text(SoftwareListModel::ShortName),
                          text(SoftwareListModel::Requirement), text(SoftwareListModel::Disk)};
    }
    request.runNoSoftware = c.picSoftware->RunNoSoftware()->isChecked();
    request.stringEdit = c.picSoftware->StringEdit()->isChecked();
    request.preview = preview;

    const Preferences& preferences = m_context.preferences;
    const OtherStartPlan plan = PlanOtherStart(
        request, std::filesystem::path(preferences.searchPaths.mame) / preferences.mame.executable);
    if (plan.refusal) {
        ShowMessage(m_prompter, *plan.refusal);
        return;
    }
    for (const UserMessage& notice : plan.notices) {
        ShowMessage(m_prompter, notice);
    }
    std::string softwareArgs = plan.softwareArgs;
    if (plan.edit) {
        const auto answer = m_prompter.Input(QString::fromStdString(plan.edit->title),
                                             QString::fromStdString(plan.edit->prompt),
                                             QString::fromStdString(plan.edit->preset));
        const auto edited =
            EditedSoftwareArgs(answer ? std::optional(answer->toStdString()) : std::nullopt);
        if (!edited) {
            return;
        }
        softwareArgs = *edited;
    }

    MameIniBase base;
    base.otherView = true;
    base.machine = request.selection->machine;
    base.boxes = CurrentStartBoxes();
    FillSoftwareState(base);
    const OtherLaunchPlan launch =
        PrepareOtherLaunch(m_context, base, softwareArgs, m_currentProfilePath, preview);
    m_currentProfilePath = launch.profile;
    m_commandString = launch.otherCommands;
    switch (launch.verdict) {
    case OtherLaunchVerdict::Failed:
        m_context.flags.fatalErrorFlag = true;
        if (launch.message) {
            ShowMessage(m_prompter, *launch.message);
        }
        return;
    case OtherLaunchVerdict::Previewed:
        return;
    case OtherLaunchVerdict::Ready:
        break;
    }
    if (launch.strayIniWarning) {
        ShowMessage(m_prompter, *launch.strayIniWarning);
    }
    m_commandString = launch.commandLine;
    if (!RunEmulator(m_commandString)) {
        return;
    }
    if (const auto failure = WriteLastRun(m_context.data, m_commandString, "PlayOther")) {
        ShowMessage(m_prompter, *failure);
    }
    show();
    CreateMAMEIni();
    if (m_context.flags.fatalErrorFlag) {
        return;
    }
    const LaunchOutput output = FinishLaunch(m_context, base.machine);
    if (output.standardOutput) {
        ShowStandardOutput(*output.standardOutput);
    }
    if (output.errorOutput) {
        ShowErrorOutput(*output.errorOutput);
    }
}

void frmMain::ListSlots() {
    const MachineRow* row = m_controls.lvOther->SelectedMachine();
    if (row == nullptr) {
        return;
    }
    SlotListing listing;
    {
        const WaitCursor hourglass;
        listing = coinlight::ListSlots(m_context.preferences, m_context.data,
                                       std::string(row->ShortName()), [] {
                                           QApplication::processEvents();
                                           return true;
                                       });
    }
    if (!listing.refusal.empty()) {
        m_prompter.Message(QStringLiteral("List Slot Options"),
                           QString::fromStdString(listing.refusal), PromptIcon::Information);
        return;
    }
    if (!listing.run.message.empty()) {
        m_prompter.Inform(QString::fromStdString(listing.run.message), PromptIcon::Critical);
        if (listing.run.IsFatal()) {
            m_context.flags.fatalErrorFlag = true;
            close();
            return;
        }
    }
    m_controls.picSoftware->ShowSlotListing(FromUtf8(listing.text));
}

} // namespace coinlight
