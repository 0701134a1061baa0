// The audit of the selected machine, MAME's reports on the whole collection, what changed
// between two MAME versions, and the export and printing of what the report page shows.
#include <array>

#include <QApplication>
#include <QElapsedTimer>
#include <QMenuBar>

#include "MachineListView.h"
#include "Prompter.h"
#include "UserMessagePrompt.h"
#include "catalogue/CatalogueFiles.h"
#include "core/CommandRunner.h"
#include "core/FileTests.h"
#include "core/TextFile.h"
#include "frmMain.h"
#include "lists/SelectionDetails.h"
#include "reports/AuditReport.h"
#include "reports/BadSets.h"
#include "reports/ExportList.h"
#include "reports/ReportTail.h"
#include "reports/WhatRomsChanged.h"
#include "ui/reports/MaintenancePage.h"
#include "ui/reports/ReportPrinter.h"
#include "ui/reports/VerifyPage.h"

namespace coinlight {

namespace {

constexpr const char* kAllArcade = "All Arcade Machines";
constexpr const char* kAvailableArcade = "Available Arcade Machines";
constexpr const char* kUnavailableArcade = "Unavailable Arcade Machines";
constexpr const char* kOtherMachines = "Other Machines";

const QString kListBadSetsRole = QStringLiteral("&List Bad Sets");
const QString kPrintRole = QStringLiteral("&Print");

QString Text(std::string_view text) {
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

/// The start row waits while MAME works for a report: a start or another audit from inside
/// the wait would run MAME twice at once. Each command gets its own state back.
class StartRowPause {
public:
    explicit StartRowPause(const MainControls& c)
        : m_commands{c.cmdStart,
                     c.cmdAudit,
                     c.cmdInfo,
                     c.lblBLinks[LinkStart],
                     c.lblBLinks[LinkAudit],
                     c.lblBLinks[LinkInfo]} {
        for (std::size_t i = 0; i < m_commands.size(); ++i) {
            m_enabled[i] = m_commands[i]->isEnabled();
            m_commands[i]->setEnabled(false);
        }
    }
    ~StartRowPause() {
        for (std::size_t i = 0; i < m_commands.size(); ++i) {
            m_commands[i]->setEnabled(m_enabled[i]);
        }
    }
    StartRowPause(const StartRowPause&) = delete;
    StartRowPause& operator=(const StartRowPause&) = delete;

private:
    std::array<QWidget*, 6> m_commands;
    std::array<bool, 6> m_enabled{};
};

} // namespace

void frmMain::ConnectReportControls() {
    const MainControls& c = m_controls;
    connect(c.cmdAudit, &QPushButton::clicked, this, &frmMain::Audit);
    connect(c.verifyPage, &VerifyPage::CancelRequested, this, &frmMain::CancelVerify);
    MaintenancePage* maintenance = c.maintenancePage;
    connect(maintenance, &MaintenancePage::SearchRequested, this, &frmMain::UnneededFileSearch);
    connect(maintenance, &MaintenancePage::RemoveRequested, this, &frmMain::UnneededFileRemove);
    connect(maintenance, &MaintenancePage::CleanReportsRequested, this, &frmMain::CleanReports);
    connect(maintenance, &MaintenancePage::CleanOutputRequested, this,
            &frmMain::CleanOutputDirectories);
    connect(maintenance, &MaintenancePage::ReturnRequested, this, &frmMain::ReturnList2);
}

void frmMain::PrepareMaintenanceEntries(const MachineListView& list) {
    const MainControls& c = m_controls;
    const bool onList = c.pages->currentWidget() == c.fraList;
    const bool selected = list.SelectedMachine() != nullptr;
    c.mnuDeleteROM->setEnabled(onList && selected);
    c.mnuDeleteSamples->setEnabled(onList && selected && !m_inOtherView);
}

void frmMain::ShowLink(int index, bool shown) {
    LinkLabel* link = m_controls.lblBLinks[static_cast<std::size_t>(index)];
    link->setVisible(shown && m_context.preferences.other.useLinks);
    if (shown) {
        link->setEnabled(true);
    }
}

bool frmMain::RunMame(const std::string& commandLine, const std::function<bool()>& whileRunning) {
    const ExecResult run =
        ExecCmd(commandLine, m_context.preferences.searchPaths.mame, whileRunning);
    if (!run.message.empty()) {
        m_prompter.Inform(QString::fromStdString(run.message), PromptIcon::Critical);
    }
    if (run.IsFatal()) {
        // The program ends once the routine that waited has unwound.
        m_context.flags.fatalErrorFlag = true;
        m_verifyRunning = false;
        QMetaObject::invokeMethod(this, &QWidget::close, Qt::QueuedConnection);
        return false;
    }
    return run.outcome != ExecOutcome::Cancelled;
}

void frmMain::ShowHeadings(const ReportHeadings& headings) {
    for (const ReportHeading& heading : headings) {
        m_controls.verifyPage->BoldFirst(Text(heading.word), heading.from);
    }
    m_controls.rtfVerify->moveCursor(QTextCursor::Start);
}

MachineListView* frmMain::AuditList() {
    const std::string& view = m_context.preferences.view.listView;
    for (const auto* name : {kAllArcade, kAvailableArcade, kUnavailableArcade, kOtherMachines}) {
        if (view == name) {
            return ListOfView();
        }
    }
    return nullptr;
}

void frmMain::Audit() {
    MachineListView* list = AuditList();
    const MachineRow* row = list != nullptr ? list->SelectedMachine() : nullptr;
    if (row == nullptr) {
        return;
    }
    const std::string name(row->ShortName());
    const std::filesystem::path temp = m_context.data.Temp();
    const auto commandLines =
        AuditCommandLines(MameCommand::From(m_context.preferences), name, temp);
    if (commandLines.empty()) {
        ShowMessage(m_prompter, RefusedNameMessage(name));
        return;
    }
    const MainControls& c = m_controls;
    QApplication::setOverrideCursor(Qt::WaitCursor);
    ShowPage(c.fraVerify);
    for (QWidget* control : {static_cast<QWidget*>(c.cmdGameList), static_cast<QWidget*>(c.cmdFind),
                             static_cast<QWidget*>(c.cmdExit)}) {
        control->setEnabled(false);
    }
    for (int link : {LinkReturnList1, LinkFind, LinkExit}) {
        ShowLink(link, false);
    }
    c.fraVerify->setTitle(QStringLiteral("Audit"));
    c.fraVerify->repaint();
    DisableFormButtons();
    menuBar()->setEnabled(false);

    const bool romRequired = row->Field(ColRomRequired) != "No";
    {
        const StartRowPause pause(c);
        for (const std::string& line : commandLines) {
            if (!RunMame(line, [] {
                    QApplication::processEvents();
                    return true;
                })) {
                QApplication::restoreOverrideCursor();
                return;
            }
        }
    }
    AuditFacts facts;
    if (romRequired) {
        facts.listAvailable = c.lblPanel[6]->text() != QStringLiteral("Unavailable");
        facts.fileFound =
            RomFileExists(name, m_inOtherView ? m_otherRomFolders : m_arcadeRomFolders);
    }
    const AuditReport report = MakeAuditReport(facts, temp);
    c.verifyPage->ShowText(report.text);
    ShowHeadings(report.headings);

    c.cmdGameList->setEnabled(true);
    ShowLink(LinkReturnList1, true);
    ShowLink(LinkExit, true);
    c.cmdExit->setEnabled(true);
    menuBar()->setEnabled(true);
    if (!m_context.preferences.other.useLinks) {
        c.cmdGameList->setFocus();
    }
    QApplication::restoreOverrideCursor();
}

void frmMain::VerifyROMs() {
    RunVerify(RomReportKind(m_inOtherView));
}

void frmMain::VerifySamples() {
    RunVerify(VerifyKind::Samples);
}

void frmMain::VerifySoftware(const std::string& lists) {
    RunVerify(SoftwareReportKind(lists));
}

void frmMain::LastROM() {
    ShowLastReport(RomReportKind(m_inOtherView));
}

void frmMain::LastSample() {
    ShowLastReport(VerifyKind::Samples);
}

void frmMain::LastSoftware(const std::string& lists) {
    ShowLastReport(SoftwareReportKind(lists));
}

void frmMain::CancelVerify() {
    m_cancelVerify = true;
}

void frmMain::EnterReportPage(const QString& caption) {
    const MainControls& c = m_controls;
    PanelTextHide();
    c.lblScroll->clear();
    QApplication::setOverrideCursor(Qt::WaitCursor);
    ShowPage(c.fraVerify);
    c.cmdGameList->setEnabled(false);
    c.cmdExit->setEnabled(false);
    ShowLink(LinkReturnList1, false);
    ShowLink(LinkFind, false);
    DisableFormButtons();
    c.fraVerify->setTitle(caption);
    c.fraVerify->repaint();
}

void frmMain::ShowReportFile(const std::filesystem::path& file) {
    const auto bytes = ReadFileBytes(file);
    if (!bytes) {
        m_controls.verifyPage->ShowText("Error: 53 File not found");
        return;
    }
    m_controls.verifyPage->ShowText(*bytes);
    OfferBadSets();
}

void frmMain::OfferBadSets() {
    const MainControls& c = m_controls;
    if (!HasBadSets(c.verifyPage->PlainText())) {
        return;
    }
    c.rtfVerify->moveCursor(QTextCursor::Start);
    SetLinkText(c.lblBLinks[LinkFind], QStringLiteral("List Bad Sets"));
    ShowLink(LinkFind, true);
    c.cmdFind->setEnabled(true);
    c.cmdFind->setText(kListBadSetsRole);
    c.cmdFind->setToolTip(QStringLiteral("Searches The Report And Lists The Bad Sets"));
}

void frmMain::LeaveReportPage() {
    const MainControls& c = m_controls;
    c.cmdGameList->setEnabled(true);
    ShowLink(LinkReturnList1, true);
    c.cmdExit->setEnabled(true);
    if (!m_context.preferences.other.useLinks) {
        c.cmdGameList->setFocus();
    }
    QApplication::restoreOverrideCursor();
}

void frmMain::RunVerify(VerifyKind kind) {
    if (ShowMessage(m_prompter, ConfirmVerifyQuestion()) != PromptAnswer::Yes) {
        return;
    }
    const VerifyReport& report = ReportOf(kind);
    const auto output = m_context.data.Output();
    const auto commandLine = VerifyCommandLine(MameCommand::From(m_context.preferences), kind,
                                               output, m_softwareMachine);
    if (!commandLine) {
        ShowMessage(m_prompter, RefusedNameMessage(m_softwareMachine));
        return;
    }
    const MainControls& c = m_controls;
    EnterReportPage(Text(report.verifyCaption));
    c.verifyPage->ShowText(VerifyInProgressText());

    // MAME takes minutes over a whole collection: the page grows with its report, and the
    // window answers the user, whose Cancel ends the run.
    m_verifyRunning = true;
    m_cancelVerify = false;
    menuBar()->setEnabled(false);
    c.verifyPage->SetCancelShown(true);
    ReportTail tail(output / report.fileName);
    bool finished = false;
    {
        const StartRowPause pause(c);
        finished = RunMame(*commandLine, [this, &tail] {
            QApplication::processEvents();
            const std::string added = tail.NewLines();
            if (!added.empty()) {
                m_controls.verifyPage->AppendText(added);
            }
            return !m_cancelVerify;
        });
    }
    m_verifyRunning = false;
    c.verifyPage->SetCancelShown(false);
    menuBar()->setEnabled(true);
    if (m_context.flags.fatalErrorFlag) {
        QApplication::restoreOverrideCursor();
        return;
    }
    if (finished) {
        ShowReportFile(output / report.fileName);
    } else {
        c.verifyPage->ShowText(kVerifyCancelled);
    }
    LeaveReportPage();
    if (m_closeAfterVerify) {
        QMetaObject::invokeMethod(this, &QWidget::close, Qt::QueuedConnection);
    }
}

void frmMain::ShowLastReport(VerifyKind kind) {
    const VerifyReport& report = ReportOf(kind);
    const auto file = m_context.data.Output() / report.fileName;
    if (!FileExists(file)) {
        ShowMessage(m_prompter, MissingReportMessage(report));
        return;
    }
    EnterReportPage(Text(report.lastCaption));
    ShowReportFile(file);
    LeaveReportPage();
}

void frmMain::ListBadSets() {
    const MainControls& c = m_controls;
    ShowLink(LinkFind, false);
    c.cmdFind->setEnabled(false);
    const BadSetList bad = coinlight::ListBadSets(c.verifyPage->PlainText());
    if (bad.error) {
        ShowMessage(m_prompter, *bad.error);
        return;
    }
    c.fraVerify->setTitle(QStringLiteral("List Bad Sets"));
    c.verifyPage->ShowText(bad.text);
    SetLinkText(c.lblBLinks[LinkFind], QStringLiteral("Print"));
    ShowLink(LinkFind, true);
    c.cmdFind->setEnabled(true);
    c.cmdFind->setText(kPrintRole);
    c.cmdFind->setToolTip(QStringLiteral("Prints This List To Your Default Printer"));
    if (!m_context.preferences.other.useLinks) {
        c.cmdGameList->setFocus();
    }
}

void frmMain::PrintReportPage() {
    PrintReport(*m_controls.rtfVerify->document(), m_prompter);
    if (!m_context.preferences.other.useLinks) {
        m_controls.cmdGameList->setFocus();
    }
}

void frmMain::CompareCRCInfos() {
    const auto output = m_context.data.Output();
    const auto newFile = output / kCrcInfo;
    const auto lastFile = output / kCrcInfoLast;
    if (const auto missing = MissingCrcInfo(newFile, lastFile)) {
        ShowMessage(m_prompter, *missing);
        return;
    }
    const MainControls& c = m_controls;
    QElapsedTimer elapsed;
    elapsed.start();
    EnterReportPage(QStringLiteral("What ROMs Changed"));
    ShowLink(LinkExit, false);
    c.mnuReportsWhatROMsChangedReport->setEnabled(false);
    c.verifyPage->ShowText("Comparing new crcinfo.txt with previous crcinfo.txt.");
    c.fraVerify->repaint();

    const WhatRomsChangedRun run = CompareCrcInfoFiles(newFile, lastFile, output / kChangedRomsTxt);
    if (run.error) {
        c.lblPanel[1]->setText(Text(ElapsedTimeText(elapsed.elapsed() / 1000.0)));
        c.verifyPage->ShowText(ComparisonErrorText(*run.error));
    } else {
        c.verifyPage->ShowText(run.text);
        ShowHeadings(ComparisonHeadings());
        c.lblPanel[1]->setText(Text(ElapsedTimeText(elapsed.elapsed() / 1000.0)));
    }
    ShowLink(LinkExit, true);
    c.mnuReportsWhatROMsChangedReport->setEnabled(true);
    LeaveReportPage();
}

void frmMain::WhatROMsChangedReport() {
    const auto file = m_context.data.Output() / kChangedRomsTxt;
    const auto bytes = ReadFileBytes(file);
    if (!bytes) {
        ShowMessage(m_prompter, MissingChangedRomsMessage());
        return;
    }
    EnterReportPage(m_controls.mnuReportsWhatROMsChangedReport->text());
    m_controls.verifyPage->ShowText(*bytes);
    ShowHeadings(SavedReportHeadings());
    LeaveReportPage();
}

void frmMain::Export() {
    if (ShowMessage(m_prompter, ConfirmExportQuestion()) != PromptAnswer::Yes) {
        return;
    }
    QApplication::setOverrideCursor(Qt::WaitCursor);
    const std::string& view = m_context.preferences.view.listView;
    const MachineListModel& model = ListOfView()->Model();
    const UserMessage done =
        ExportList(m_context.data.Output() / ExportFileName(view), view == kOtherMachines,
                   model.rowCount(), [&model](int row) {
                       const MachineRow* machine = model.Row(row);
                       return ExportRow{machine->ShortName(), machine->Field(ColMachine)};
                   });
    QApplication::restoreOverrideCursor();
    ShowMessage(m_prompter, done);
}

} // namespace coinlight
