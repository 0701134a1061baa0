// MAME's reports on the whole collection, List Bad Sets and printing, What ROMs Changed and
// the export of a list.
#include <QMenuBar>
#include <QPrinterInfo>
#include <QPushButton>
#include <QTimer>

#include "ReportsWindowFixture.h"

namespace coinlight::test {
namespace {

class VerifyWindow : public ReportsWindowFixture {
protected:
    std::string FixtureReport() {
        return ReadFile(FixturesFolder() / "reports-mame" / "verifyroms.txt");
    }
};

TEST_F(VerifyWindow, AnsweringNoLeavesTheListAsItWas) {
    ASSERT_TRUE(Load()) << Told();
    m_prompter.Queue(PromptAnswer::No);
    Form().VerifyROMs();
    EXPECT_EQ(Page(), Controls().fraList);
    EXPECT_EQ(Runs(), "");
    EXPECT_EQ(m_prompter.Prompts().at(0).title, "Confirm Verify");
    EXPECT_EQ(m_prompter.Prompts().at(0).text,
              "This could take a very long time.  Do you want to continue?");
}

TEST_F(VerifyWindow, BadSetsAreListedCountedAndThenPrinted) {
    ASSERT_TRUE(Load()) << Told();
    m_prompter.Queue(PromptAnswer::Yes);
    Controls().mnuReportsVerifyROMs->trigger();
    EXPECT_EQ(Controls().fraVerify->title(), "Verify All ROMs");
    EXPECT_EQ(ReadFile(Output() / "arcadeauditroms.txt"), FixtureReport())
        << "the report is MAME's output as it stands";
    EXPECT_EQ(Report().toStdString(), FixtureReport());
    EXPECT_NE(Runs().find("\t*\t-verifyroms"), std::string::npos) << Runs();
    EXPECT_EQ(Controls().cmdFind->text(), "&List Bad Sets");
    EXPECT_TRUE(Controls().cmdFind->isEnabled());
    EXPECT_NE(Controls().lblBLinks[LinkFind]->isHidden(), m_context.preferences.other.useLinks);
    EXPECT_EQ(Controls().lblBLinks[LinkFind]->Caption(), "List Bad Sets");

    Form().Find();
    EXPECT_EQ(Controls().fraVerify->title(), "List Bad Sets");
    EXPECT_EQ(Report(),
              "2 bad sets found.\n\nromset pacman [puckman] is bad\nromset galaga is bad\n"
              "\nEnd of report.\n\n");
    EXPECT_EQ(Controls().cmdFind->text(), "&Print");
    EXPECT_EQ(Controls().cmdFind->toolTip(), "Prints This List To Your Default Printer");
    EXPECT_FALSE(FileExists(m_context.data.Temp() / "sets.txt"));
    EXPECT_FALSE(FileExists(m_context.data.Temp() / "bad.txt"));

    if (!QPrinterInfo::defaultPrinter().isNull()) {
        GTEST_SKIP() << "this machine has a printer; the test prints to PDF only";
    }
    const auto pdf = m_folder / "bad sets.pdf";
    m_prompter.Queue(QString::fromStdString(pdf.string()));
    Form().Find();
    EXPECT_EQ(ReadFile(pdf).substr(0, 5), "%PDF-");
    EXPECT_EQ(m_prompter.Prompts().back().text,
              QStringLiteral("List saved as ") + QString::fromStdString(pdf.string()) + ".");

    Form().ReturnList1();
    EXPECT_EQ(Controls().cmdFind->text(), "&MAME.Ini");
    EXPECT_TRUE(Controls().cmdFind->isEnabled());
}

TEST_F(VerifyWindow, AReportWithoutBadSetsOffersNoList) {
    ASSERT_TRUE(Load()) << Told();
    m_prompter.Queue(PromptAnswer::Yes);
    Form().VerifySamples();
    EXPECT_EQ(Controls().fraVerify->title(), "Verify All Samples");
    EXPECT_TRUE(FileExists(Output() / "arcadeauditsamples.txt"));
    EXPECT_FALSE(Controls().cmdFind->isEnabled());
    EXPECT_TRUE(Controls().lblBLinks[LinkFind]->isHidden());
}

TEST_F(VerifyWindow, CancelEndsMameWhileTheReportGrowsOnThePage) {
    ASSERT_TRUE(Load()) << Told();
    m_mame.SetBehaviour("slowlines 400\n");
    QString seenWhileRunning;
    bool cancelShown = false;
    bool auditWaited = false;
    QTimer::singleShot(1000, [&] {
        auditWaited = !Controls().cmdAudit->isEnabled() && !Form().menuBar()->isEnabled();
        seenWhileRunning = Report();
        auto* cancel = Controls().fraVerify->findChild<QWidget*>(QStringLiteral("lblCancelVerify"));
        cancelShown = cancel != nullptr && !cancel->isHidden();
        Controls().fraVerify->findChild<QPushButton*>(QStringLiteral("cmdCancelVerify"))->click();
    });
    m_prompter.Queue(PromptAnswer::Yes);
    Form().VerifyROMs();
    EXPECT_TRUE(seenWhileRunning.startsWith("Verification in process.  Please stand by."))
        << seenWhileRunning.toStdString();
    EXPECT_TRUE(seenWhileRunning.contains("romset pacman [puckman] is bad"))
        << "the first lines show while MAME still works: " << seenWhileRunning.toStdString();
    EXPECT_TRUE(cancelShown);
    EXPECT_TRUE(auditWaited) << "no second MAME run can start from inside the wait";
    EXPECT_TRUE(Controls().cmdAudit->isEnabled());
    EXPECT_EQ(Report(), "Verify Cancelled");
    EXPECT_TRUE(
        Controls().fraVerify->findChild<QWidget*>(QStringLiteral("lblCancelVerify"))->isHidden());
    EXPECT_TRUE(Controls().cmdGameList->isEnabled());
    const std::string partial = ReadFile(Output() / "arcadeauditroms.txt");
    EXPECT_LT(partial.size(), FixtureReport().size()) << "MAME was ended before its last line";

    // The partial report is what the last report shows.
    Form().ReturnList1();
    Form().LastROM();
    EXPECT_EQ(Controls().fraVerify->title(), "Last ROMs Report");
    EXPECT_EQ(Report().toStdString(), partial);
}

TEST_F(VerifyWindow, LastReportsSayWhenThereIsNone) {
    ASSERT_TRUE(Load()) << Told();
    Form().LastROM();
    Form().LastSoftware("a500_flop");
    ASSERT_EQ(m_prompter.Prompts().size(), 2u);
    EXPECT_EQ(m_prompter.Prompts()[0].title, "Last ROMs Report");
    EXPECT_EQ(m_prompter.Prompts()[1].title, "Last Machine's Software Report");
    EXPECT_EQ(Page(), Controls().fraList);

    WriteFile(Output() / "otherauditallsoftware.txt", "romset a500_flop:x is bad\r\n");
    Form().LastSoftware("");
    EXPECT_EQ(Controls().fraVerify->title(), "Last All Software Report");
    EXPECT_EQ(Controls().cmdFind->text(), "&List Bad Sets");
}

TEST_F(VerifyWindow, WhatRomsChangedBoldsItsHeadingsAndKeepsTheReport) {
    ASSERT_TRUE(Load()) << Told();
    Form().CompareCRCInfos();
    ASSERT_EQ(m_prompter.Prompts().size(), 1u);
    EXPECT_EQ(m_prompter.Prompts()[0].text.left(27), "Cannot find crcinfolast.txt");

    WriteFile(
        Output() / "crcinfolast.txt",
        "\"pacman\",\"Pac-Man (old)\",\"pacman.6e=00000000;\"\r\n\"oldgame\",\"Old\",\"a=1;\"\r\n");
    Controls().mnuReportsWhatROMsChanged->trigger();
    EXPECT_EQ(Controls().fraVerify->title(), "What ROMs Changed");
    EXPECT_TRUE(Report().contains("Removed\t\n\noldgame\tOld\n")) << Report().toStdString();
    EXPECT_TRUE(Report().contains("Changed\t\n\npacman\tPac-Man (old)\n"));
    EXPECT_EQ(Panel(1), " Elapsed Time: 0 Seconds");
    EXPECT_TRUE(IsBold("Added"));
    EXPECT_TRUE(IsBold("Removed"));
    EXPECT_FALSE(IsBold("changed")) << "the word in the first sentence is not a heading";
    EXPECT_TRUE(IsBold("Changed", 150));
    EXPECT_TRUE(FileExists(Output() / "changedroms.txt"));
    EXPECT_TRUE(Controls().mnuReportsWhatROMsChangedReport->isEnabled());

    Form().ReturnList1();
    Form().WhatROMsChangedReport();
    EXPECT_EQ(Controls().fraVerify->title(), "Last What ROMs Changed Report");
    EXPECT_TRUE(IsBold("Changed", 25));
}

TEST_F(VerifyWindow, ExportWritesTheListInItsOrder) {
    ASSERT_TRUE(Load()) << Told();
    m_prompter.Queue(PromptAnswer::Yes);
    Controls().mnuMainExport->trigger();
    const std::string exported = ReadFile(Output() / "All Arcade Machines.txt");
    EXPECT_EQ(exported.rfind("ROM           Title\r\n\r\n", 0), 0u) << exported;
    const int rows = Controls().lvAll->Model().rowCount();
    EXPECT_NE(exported.find("\r\n\r\nTotal: " + std::to_string(rows) + "\r\n"), std::string::npos);
    const std::string first(Controls().lvAll->Model().Row(0)->ShortName());
    EXPECT_EQ(exported.find(first), std::string("ROM           Title\r\n\r\n").size());
    EXPECT_EQ(m_prompter.Prompts().back().text,
              "Export complete.  List exported as All Arcade Machines.txt.");
}

} // namespace
} // namespace coinlight::test
