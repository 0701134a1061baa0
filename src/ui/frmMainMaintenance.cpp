// The Maintenance page: surplus files in the ROM folders, the reports and lists Coinlight
// wrote, what MAME wrote for a machine; and the deletion of a machine's ROM or samples.
#include <QApplication>

#include "MachineListView.h"
#include "Prompter.h"
#include "UserMessagePrompt.h"
#include "frmMain.h"
#include "reports/UnneededMove.h"
#include "settings/PathList.h"
#include "ui/reports/DesktopTrash.h"
#include "ui/reports/MaintenancePage.h"

namespace coinlight {

void frmMain::Maintenance() {
    const MainControls& c = m_controls;
    ShowPage(c.fraMaintenance);
    CoverCommands(false); // the start row acts on the list, which the page hides
    PanelTextHide();
    const MachineRow* row = ListOfView()->SelectedMachine();
    // A red row of the other list has nothing of MAME's to clear.
    const bool offered = row != nullptr && !(m_inOtherView && !row->Available());
    if (offered) {
        c.lblPanel[1]->setText(QString::fromUtf8(
            row->Field(ColMachine).data(), static_cast<qsizetype>(row->Field(ColMachine).size())));
        c.lblPanel[2]->setText(QString::fromUtf8(row->ShortName().data(),
                                                 static_cast<qsizetype>(row->ShortName().size())));
    }
    c.maintenancePage->OfferCurrentMachine(offered);
}

std::string frmMain::MaintenanceMachine() {
    const MachineRow* row = ListOfView()->SelectedMachine();
    return row != nullptr ? std::string(row->ShortName()) : std::string();
}

void frmMain::UnneededFileSearch() {
    MaintenancePage& page = *m_controls.maintenancePage;
    page.BeginSearch();
    QApplication::setOverrideCursor(Qt::WaitCursor);
    RomFolderScan scan =
        ScanRomFolders(m_arcadeRomFolders, m_otherRomFolders, page.Format(),
                       [this, &page](const std::string& folder) {
                           page.SetStatus(QStringLiteral("Searching ") +
                                          QString::fromStdString(folder) + QStringLiteral("..."));
                           Pump();
                       });
    NeededNames needed;
    if (!scan.error && !scan.found.empty()) {
        // Only what the lists hold now counts: a machine the filters hide is not needed.
        page.SetStatus(QStringLiteral("Loading machine lists..."));
        for (const auto& rows : {m_arcadeRows, m_otherRows}) {
            if (rows) {
                needed.AddRows({rows->rows.data(), rows->rows.size()});
            }
        }
        page.StartProgress(static_cast<int>(scan.found.size()));
        page.SetStatus(QStringLiteral("Comparing..."));
    }
    UnneededSearch search =
        CompareWithLists(std::move(scan), needed, [this, &page](std::size_t compared) {
            page.SetProgress(static_cast<int>(compared));
            Pump();
        });
    if (search.error) {
        ShowMessage(m_prompter, *search.error);
    } else {
        page.SetStatus(QString::fromStdString(search.Status()));
        page.SetOrphans(std::move(search.entries), search.orphanFound);
    }
    page.EndSearch();
    QApplication::restoreOverrideCursor();
}

void frmMain::UnneededFileRemove() {
    MaintenancePage& page = *m_controls.maintenancePage;
    const std::vector<int> selected = page.SelectedOrphanRowsLastFirst();
    if (selected.empty()) {
        ShowMessage(m_prompter, EmptyRemovalSelectionMessage());
        return;
    }
    const auto unneeded =
        UnneededFilesFolder(m_context.preferences.searchPaths.mame, m_context.data.root);
    if (ShowMessage(m_prompter, ConfirmRemovalQuestion(unneeded)) != PromptAnswer::Yes) {
        page.DeselectAllOrphans();
    } else {
        for (const int row : selected) {
            const UnneededMove move =
                MoveUnneededFile(page.OrphanAt(row), unneeded, m_arcadeRomFolders);
            if (move.message) {
                ShowMessage(m_prompter, *move.message);
            }
            if (move.moved) {
                page.RemoveOrphan(row);
            }
        }
    }
    if (page.OrphanCount() == 0) {
        page.ClearOrphanList();
    }
}

bool frmMain::CarryOutDeletions(const DeletionPlan& plan, const char* routine, const char* title) {
    if (plan.refusal) {
        ShowMessage(m_prompter, *plan.refusal);
        return false;
    }
    bool removed = false;
    for (const DeletionStep& step : plan.steps) {
        const PromptAnswer answer = ShowMessage(m_prompter, step.message);
        if (step.message.buttons != MessageButtons::YesNo || answer != PromptAnswer::Yes) {
            continue;
        }
        if (const auto failure = RemoveTargets(step.targets, MoveToDesktopTrash)) {
            // What is left of the plan waits: the user first learns what went wrong.
            ShowMessage(m_prompter, RemovalFailureMessage(routine, title, *failure));
            return removed;
        }
        removed = removed || !step.targets.empty();
    }
    return removed;
}

void frmMain::CleanReports() {
    CarryOutDeletions(
        CleanReportsPlan(m_context.data.Output(), m_controls.maintenancePage->TickedReports()),
        "CleanReports", "Maintenance");
}

void frmMain::CleanOutputDirectories() {
    const MaintenancePage& page = *m_controls.maintenancePage;
    const std::string machine = page.CurrentMachineChosen() ? MaintenanceMachine() : std::string();
    CarryOutDeletions(CleanOutputPlan(OutputFolders::From(m_context.preferences),
                                      page.TickedDirectories(), machine),
                      "CleanOutputDirectories", "Maintenance");
}

void frmMain::DeleteROM() {
    const MachineRow* row = ListOfView()->SelectedMachine();
    if (row == nullptr || !IsShortName(row->ShortName())) {
        return;
    }
    MachineFiles machine;
    machine.shortName = std::string(row->ShortName());
    machine.description = std::string(row->Field(ColMachine));
    machine.romRequired = row->Field(ColRomRequired) != "No";
    machine.romFolders = m_inOtherView ? m_otherRomFolders : m_arcadeRomFolders;
    machine.output = OutputFolders::From(m_context.preferences);
    DeletionPlan plan;
    plan.steps.push_back(DeleteRomStep(machine));
    if (!CarryOutDeletions(plan, "DeleteROM", "Delete ROM")) {
        return;
    }
    // The row's availability is the list's to tell: it is loaded again.
    if (m_inOtherView) {
        RefreshListsOther();
    } else {
        RefreshListsArcade();
    }
}

void frmMain::DeleteSamples() {
    const MachineRow* row = ListOfView()->SelectedMachine();
    const std::string& samples = m_context.preferences.searchPaths.samples;
    if (row == nullptr || !IsShortName(row->ShortName())) {
        return;
    }
    DeletionPlan plan;
    plan.steps.push_back(DeleteSamplesStep(
        row->ShortName(),
        samples.empty() ? std::vector<std::string>{} : CreateMultiplePathArray(samples).paths));
    CarryOutDeletions(plan, "DeleteSamples", "Delete Samples");
}

} // namespace coinlight
