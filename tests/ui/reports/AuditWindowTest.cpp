// Audit of the selected machine with the fake MAME.
#include "ReportsWindowFixture.h"

namespace coinlight::test {
namespace {

class AuditWindow : public ReportsWindowFixture {
protected:
    void ExpectCapturesGone() {
        for (const char* capture : {"vroms.txt", "lroms.txt", "vsamples.txt", "lsamples.txt"}) {
            EXPECT_FALSE(FileExists(m_context.data.Temp() / capture)) << capture;
        }
    }
};

TEST_F(AuditWindow, AnAvailableRowWhoseSetIsGoneSaysSoAboveMamesVerdict) {
    AddRom("pacman");
    ASSERT_TRUE(Load()) << Told();
    Form().ViewAvailableArcade();
    Select(Controls().lvAvailable, "pacman");
    std::filesystem::remove(Roms() / "pacman.zip");
    Form().Audit();
    EXPECT_EQ(Page(), Controls().fraVerify);
    EXPECT_EQ(Controls().fraVerify->title(), "Audit");
    EXPECT_TRUE(Report().startsWith(
        "ROMs\n\nROM set not found.  If you just removed this ROM set, please refresh the list "
        "from the View drop-down menu so Coinlight can update the lists.\n\n"
        "pacman      : pacman.6e (4096 bytes) - INCORRECT CHECKSUM:\n"))
        << Report().toStdString();
    EXPECT_TRUE(Report().contains("romset pacman [puckman] is bad\n\nROMs required for driver"));
    // Most machines have no samples: both sentences stand.
    EXPECT_TRUE(Report().endsWith(
        "\n\nSamples\n\nSample set not found.\n\nThis machine does not use samples.\n\n"))
        << Report().toStdString();
    EXPECT_TRUE(IsBold("ROMs"));
    EXPECT_TRUE(IsBold("Samples"));
    EXPECT_FALSE(IsBold("romset"));
    ExpectCapturesGone();
    const std::string runs = Runs();
    for (const char* verb : {"-verifyroms", "-listroms", "-verifysamples", "-listsamples"}) {
        EXPECT_NE(runs.find("\t-inipath\t" + m_context.data.Temp().string() + "\tpacman\t" + verb),
                  std::string::npos)
            << verb << " in " << runs;
    }
    EXPECT_LT(runs.find("-verifyroms"), runs.find("-listsamples"));
    EXPECT_TRUE(Controls().cmdGameList->isEnabled());
    EXPECT_TRUE(Controls().cmdExit->isEnabled());
    EXPECT_EQ(m_prompter.Unexpected(), 0) << Told();
}

TEST_F(AuditWindow, AnUnavailableRowWhoseSetWasAddedSaysSo) {
    ASSERT_TRUE(Load()) << Told();
    Form().ViewUnavailableArcade();
    Select(Controls().lvUnavailable, "pacman");
    AddRom("pacman");
    Controls().cmdAudit->click();
    EXPECT_TRUE(Report().startsWith("ROMs\n\nROM set found.  If you just added this ROM set"))
        << Report().toStdString();
    ExpectCapturesGone();

    Form().ReturnList1();
    EXPECT_EQ(Page(), Controls().fraList);
    EXPECT_TRUE(Report().isEmpty());
    EXPECT_TRUE(Controls().cmdArcadeSettings->isEnabled()) << "the page gives the commands back";
}

TEST_F(AuditWindow, AMachineWithoutRomsAndOneWithSamplesShowMamesLinesOnly) {
    ASSERT_TRUE(Load()) << Told();
    Select(Controls().lvAll, "pong");
    WriteFile(Roms() / "pong.zip", "needs none, has one");
    Form().Audit();
    EXPECT_TRUE(Report().startsWith("ROMs\n\nromset pong is good\n\nROMs required for driver"))
        << Report().toStdString();

    Form().ReturnList1();
    Select(Controls().lvAll, "galaga");
    Form().Audit();
    EXPECT_TRUE(Report().contains("\n\nSamples\n\nsampleset galaga is good\n\n"
                                  "Samples required for driver \"galaga\".\nbang\n"))
        << Report().toStdString();
    EXPECT_FALSE(Report().contains("does not use samples"));
    EXPECT_FALSE(Report().contains("Sample set not found."));
    ExpectCapturesGone();
}

TEST_F(AuditWindow, AFavouritesViewOrAForeignNameRunsNothing) {
    ASSERT_TRUE(Load()) << Told();
    Select(Controls().lvAll, "pacman");
    m_context.preferences.view.listView = "Favorite Arcade Machines";
    Form().Audit();
    EXPECT_EQ(Page(), Controls().fraList);
    EXPECT_EQ(Runs(), "");
    EXPECT_TRUE(m_prompter.Prompts().empty());
}

TEST_F(AuditWindow, TheLinkAndTheMenuEntryAuditToo) {
    ASSERT_TRUE(Load()) << Told();
    Select(Controls().lvAll, "pacman");
    emit Controls().lblBLinks[LinkAudit]->linkActivated(QString());
    EXPECT_EQ(Controls().fraVerify->title(), "Audit");
    Form().ReturnList1();
    Controls().mnuMainAudit->trigger();
    EXPECT_EQ(Page(), Controls().fraVerify);
}

} // namespace
} // namespace coinlight::test
