// The settings screens as the user meets them: opening, filling, the rules, OK, Cancel,
// Restore, a machine's own profile and Rebuild Settings.
#include <QAction>
#include <QPushButton>
#include <QTest>
#include <QTextBrowser>
#include <QTextCursor>

#include "SettingsScreenFixture.h"
#include "core/TextFile.h"

namespace coinlight::test {
namespace {

using SettingsScreen = SettingsScreenFixture;

QString ObjectNameOf(std::string_view control) {
    QString name = QString::fromLatin1(control.data(), static_cast<qsizetype>(control.size()));
    return name.replace(QLatin1Char('('), QLatin1Char('_')).remove(QLatin1Char(')'));
}

TEST_F(SettingsScreen, TheArcadePageIsMadeFromTheCatalogueAndEnterSavesOnce) {
    ASSERT_TRUE(Load()) << Told();
    Select("asteroid");
    Controls().cmdArcadeSettings->click();
    ASSERT_TRUE(PageShown());
    EXPECT_EQ(Page().title(), "Vector Settings");
    EXPECT_FALSE(Controls().cboSettings->isHidden());
    EXPECT_EQ(Controls().cboSettings->currentText(), "Vector");
    EXPECT_EQ(Controls().cboSettings->count(), 3);
    for (const OptionRow& row : OptionCatalogue()) {
        EXPECT_NE(Form().findChild<QWidget*>(ObjectNameOf(row.control)), nullptr) << row.control;
    }
    EXPECT_EQ(Form().findChild<QGroupBox*>("Frame_6")->title(), "Core Vector Options");
    EXPECT_EQ(Form().findChild<QGroupBox*>("Frame_26")->title(), "Vector Post-Processing Options");
    EXPECT_EQ(Form().findChild<QLabel*>("lblSetting_51")->buddy(), Control("cboScreen(0)"));
    EXPECT_EQ(Form().findChild<QLabel*>("lblHLSL_17")->buddy(), Control("txtHLSL(17)"));
    EXPECT_EQ(Form().findChild<QLabel*>("lblBGFX_1")->buddy(), Control("cboBGFX(0)"));
    EXPECT_TRUE(Form().findChild<QGroupBox*>("Frame_6")->isEnabled());
    EXPECT_TRUE(Enabled("cboBeamMin"));
    EXPECT_FALSE(Enabled("txtUIModeKey"));
    EXPECT_EQ(Page().ControlOfIniOption("beam_width_min"), Control("cboBeamMin"));
    EXPECT_EQ(Page().ControlOfIniOption("autorol"), Control("cboRoll"));
    EXPECT_EQ(Controls().cmdExit->text(), "&Cancel");
    EXPECT_FALSE(Controls().cmdArcadeSettings->isEnabled());

    std::filesystem::remove(m_mame.Launches());
    QTest::keyClick(Control("txtOtherCommands"), Qt::Key_Return);
    EXPECT_FALSE(PageShown());
    EXPECT_FALSE(FileExists(Profile("vector"))) << "MAME's defaults are not kept";
    EXPECT_FALSE(FileExists(m_mame.Launches())) << "one key, one action: nothing started";
    EXPECT_EQ(Controls().cmdExit->text(), "E&xit");
    EXPECT_TRUE(Controls().cmdArcadeSettings->isEnabled());
    EXPECT_TRUE(Controls().cboSettings->isHidden());
    EXPECT_TRUE(m_prompter.Prompts().empty()) << Told();
}

TEST_F(SettingsScreen, AFullProfileFillsThePageARefusedValueIsToldAndOkRewritesIt) {
    WriteFile(Profile("raster"),
              "[Core Performance Options]\r\nFrame Skip=13 Of 12\r\nThrottle=0\r\nSpeed=150%\r\n"
              "[Core Rotation Options]\r\nFlip=Both\r\n[Core Render Options]\r\nInt Scale X=2\r\n"
              "[Miscellaneous]\r\nOther Commands=-JoyMap\r\n");
    const std::string before = ReadFile(Profile("raster"));
    ASSERT_TRUE(Load()) << Told();
    Select("pacman");
    Form().SettingsArcade();
    ASSERT_TRUE(PageShown());
    ASSERT_EQ(m_prompter.Prompts().size(), 1u) << Told();
    EXPECT_EQ(m_prompter.Prompts()[0].title, "Raster Settings");
    EXPECT_TRUE(m_prompter.Prompts()[0].text.startsWith("Error loading Frame Skip."));
    EXPECT_EQ(Text("cboFrameSkip"), "None");
    EXPECT_EQ(Text("cboSpeed"), "150%");
    EXPECT_EQ(Text("cboFlip"), "Both");
    EXPECT_EQ(Text("txtIntScaleX"), "2");
    EXPECT_FALSE(Ticked("chkThrottle"));
    EXPECT_FALSE(Enabled("chkSleep")) << "the rules ran after the load";
    EXPECT_FALSE(Form().findChild<QGroupBox*>("Frame_6")->isEnabled()) << "a raster screen";
    EXPECT_EQ(ReadFile(Profile("raster")), before);

    Control<QLineEdit>("txtAspect(2)")->clear();
    Page().cmdOK->click();
    EXPECT_FALSE(PageShown());
    const std::string after = ReadFile(Profile("raster"));
    EXPECT_NE(after.find("Frame Skip=None\r\n"), std::string::npos);
    EXPECT_NE(after.find("Aspect2=Auto\r\n"), std::string::npos);
    EXPECT_NE(after.find("Other Commands=-joymap\r\n"), std::string::npos);
    EXPECT_EQ(Text("txtAspect(2)"), "Auto") << "the box shows what was saved";
}

TEST_F(SettingsScreen, CancelKeepsTheFileAndRestoreGoesBackToTheDefaults) {
    WriteFile(Profile("raster"), "[Core Rotation Options]\r\nFlip=Both\r\n");
    ASSERT_TRUE(Load()) << Told();
    Select("pacman");
    Form().SettingsArcade();
    Choose("cboFlip", "Vertically");
    Controls().cmdExit->click();
    EXPECT_FALSE(PageShown()) << "on a settings screen Exit reads Cancel";
    EXPECT_EQ(Controls().lblBLinks[LinkExit]->Caption(), "Exit");
    EXPECT_EQ(ReadFile(Profile("raster")), "[Core Rotation Options]\r\nFlip=Both\r\n");

    Form().SettingsArcade();
    EXPECT_EQ(Text("cboFlip"), "Both");
    EXPECT_EQ(Page().cmdRestore->text(), "R&estore MAME Defaults");
    emit Controls().lblBLinks[LinkRestore]->linkActivated("#");
    EXPECT_EQ(Text("cboFlip"), "None");
    EXPECT_TRUE(FileExists(Profile("raster"))) << "nothing is saved before OK";
    emit Controls().lblBLinks[LinkOK]->linkActivated("#");
    EXPECT_FALSE(FileExists(Profile("raster"))) << "a class profile at the defaults goes";
}

TEST_F(SettingsScreen, AMachinesOwnProfileStartsFromItsClassAndGoesWhenEqual) {
    WriteFile(Profile("raster"), "[Core Rotation Options]\r\nFlip=Both\r\n");
    ASSERT_TRUE(Load()) << Told();
    Select("pacman");
    Controls().mnuToolsCustom->trigger();
    ASSERT_TRUE(PageShown());
    EXPECT_EQ(Page().title(), "Custom Settings");
    EXPECT_EQ(Text("cboFlip"), "Both");
    EXPECT_EQ(Page().cmdRestore->text(), "R&estore Raster Settings");
    EXPECT_TRUE(Controls().cboSettings->isHidden());
    EXPECT_EQ(Panel(2), "pacman") << "the machine stays in the panel";
    Page().cmdOK->click();
    EXPECT_FALSE(FileExists(Profile("pacman"))) << "equal to its class";
    EXPECT_EQ(Panel(6), "Raster Settings");

    Controls().mnuToolsCustom->trigger();
    Control<QCheckBox>("chkCheat")->click();
    Page().cmdOK->click();
    EXPECT_TRUE(FileExists(Profile("pacman")));
    EXPECT_EQ(Panel(6), "Custom Settings");

    Controls().mnuToolsCustom->trigger();
    EXPECT_TRUE(Ticked("chkCheat"));
    Page().cmdRestore->click();
    EXPECT_FALSE(Ticked("chkCheat")) << "back to the class profile";
    EXPECT_EQ(Text("cboFlip"), "Both");
    Page().cmdCancel->click();
    EXPECT_NE(ReadFile(Profile("pacman")).find("Cheat=1"), std::string::npos);
}

TEST_F(SettingsScreen, AMachineWithABiosOffersItsOwnList) {
    WriteFile(Output() / "bios.ini", "[BIOS]\r\npacman=Europe> euro;;Japan> jp\r\n");
    WriteFile(Profile("pacman"), "[Core Misc Options]\r\nBIOS=USA> us\r\n");
    ASSERT_TRUE(Load()) << Told();
    Select("pacman");
    Controls().mnuToolsCustom->trigger();
    auto* bios = Control<QComboBox>("cboBIOS");
    ASSERT_EQ(bios->count(), 3);
    EXPECT_EQ(bios->itemText(2), "Japan> jp");
    EXPECT_EQ(bios->currentText(), "Default");
    ASSERT_EQ(m_prompter.Prompts().size(), 1u) << Told();
    EXPECT_TRUE(m_prompter.Prompts()[0].text.startsWith("BIOS options are different"));
    Page().cmdCancel->click();
    Form().SettingsArcade();
    EXPECT_EQ(Control<QComboBox>("cboBIOS")->count(), 1) << "a class has no BIOS choice";
}

TEST_F(SettingsScreen, TheFinestLevelLeavesAnUnknownOrientationToTheUser) {
    WriteOptions("[Preferences Other]\r\nSettings Level=2\r\n");
    ASSERT_TRUE(Load()) << Told();
    Select("pacman");
    Controls().lblPanel[4]->setText("U");
    Form().SettingsArcade();
    QComboBox* classes = Controls().cboSettings;
    EXPECT_EQ(classes->count(), 9);
    EXPECT_EQ(classes->currentIndex(), -1);
    EXPECT_FALSE(classes->isHidden());
    EXPECT_FALSE(PageShown());
    EXPECT_EQ(classes->toolTip().left(28), "Col   Hor = Color Horizontal");

    classes->setCurrentIndex(classes->findText("Raster - Col   Ver"));
    ASSERT_TRUE(PageShown());
    EXPECT_EQ(Page().title(), "Raster Settings");
    Control<QCheckBox>("chkCheat")->click();
    QTest::keyClick(Control("chkCheat"), Qt::Key_Enter);
    EXPECT_TRUE(FileExists(Profile("raster-cv")));
}

TEST_F(SettingsScreen, TheRulesFollowTheUsersClicks) {
    ASSERT_TRUE(Load()) << Told();
    Select("pacman");
    Form().SettingsArcade();
    Control<QCheckBox>("chkThrottle")->click();
    EXPECT_FALSE(Enabled("chkSleep"));
    // A control held back (an option this MAME does not know) stays so whatever the rules say.
    Page().SetRowAllowed(RowOfControl("chkSleep"), false, QStringLiteral("Not in this MAME"));
    Control<QCheckBox>("chkThrottle")->click();
    EXPECT_FALSE(Enabled("chkSleep"));
    EXPECT_EQ(Control("chkSleep")->toolTip(), "Not in this MAME");
    Page().SetRowAllowed(RowOfControl("chkSleep"), true);
    EXPECT_TRUE(Enabled("chkSleep"));
    Control<QCheckBox>("chkAutoStretchXY")->click();
    EXPECT_FALSE(Enabled("chkUnevenStretchX"));
    Choose("cboNumScreens", "2");
    EXPECT_TRUE(Enabled("txtView(1)"));
    EXPECT_FALSE(Enabled("txtView(2)"));
    EXPECT_FALSE(Page().findChild<QLabel*>("lblSetting_59")->isEnabled()) << "with its label";

    Control<QCheckBox>("chkHLSL")->click();
    EXPECT_TRUE(Enabled("txtHLSL(30)"));
    EXPECT_TRUE(Page().CommandButton(GroupCommand::HLSLDefaults)->isEnabled());
    Choose("cboVideo", "OpenGL");
    EXPECT_FALSE(Ticked("chkHLSL"));
    EXPECT_FALSE(Enabled("txtHLSL(30)"));
    EXPECT_TRUE(Enabled("chkGLSL"));
    EXPECT_FALSE(Enabled("txtGLSL(0)"));
    Control<QCheckBox>("chkGLSL")->click();
    EXPECT_TRUE(Enabled("txtGLSL(0)"));
    EXPECT_TRUE(Page().CommandButton(SelectGLSL(0))->isEnabled());

    // A group's defaults, then its rule: HLSL off again closes its blocks.
    Choose("cboVideo", "D3D");
    Control<QCheckBox>("chkHLSL")->click();
    Control<QLineEdit>("txtHLSL(12)")->setText("0.5");
    Page().CommandButton(GroupCommand::HLSLDefaults)->click();
    EXPECT_EQ(Text("txtHLSL(12)"), "0.0");
    EXPECT_FALSE(Ticked("chkHLSL"));
    EXPECT_FALSE(Enabled("txtHLSL(12)"));
    EXPECT_TRUE(m_prompter.Prompts().empty()) << Told();
}

TEST_F(SettingsScreen, ThePickersFillTheirBoxes) {
    ASSERT_TRUE(Load()) << Told();
    Select("pacman");
    Form().SettingsArcade();
    m_prompter.Queue(QStringLiteral("/"));
    emit Controls().lblBLinks[LinkHLSLPath]->linkActivated("#");
    ASSERT_EQ(m_prompter.Prompts().size(), 2u) << Told();
    EXPECT_EQ(m_prompter.Prompts()[0].title, "Select your HLSL folder...");
    EXPECT_EQ(m_prompter.Prompts()[1].text,
              "HLSL cannot reside in the root.  Please select a folder.");
    EXPECT_EQ(Text("txtHLSL(0)"), "hlsl");

    Choose("cboVideo", "BGFX");
    m_prompter.Queue(QStringLiteral("/opt/My Shaders/BGFX"));
    Page().CommandButton(GroupCommand::SelectBGFX)->click();
    EXPECT_EQ(Text("txtBGFX(0)"), "/opt/My Shaders/BGFX");

    Choose("cboVideo", "OpenGL");
    Control<QCheckBox>("chkGLSL")->click();
    m_prompter.Queue(QStringLiteral("/opt/glsl/CRT.vsh"));
    emit Page().CommandLink(SelectGLSL(5))->linkActivated("#");
    EXPECT_EQ(m_prompter.Prompts().back().title, "Select GLSL Shader Screen 1.");
    EXPECT_EQ(Text("txtGLSL(5)"), "/opt/glsl/CRT");

    Page().CommandButton(SelectGLSL(1))->click(); // cancelled: nothing changes
    EXPECT_EQ(Text("txtGLSL(1)"), "None");
}

TEST_F(SettingsScreen, RebuildFromTheToolsMenuAndItsReport) {
    ASSERT_TRUE(Load()) << Told();
    Controls().mnuToolsRebuild->trigger();
    ASSERT_EQ(m_prompter.Prompts().size(), 1u);
    EXPECT_EQ(m_prompter.Prompts()[0].text, "There are no setting files.");
    Controls().mnuReportsRebuild->trigger();
    EXPECT_TRUE(
        m_prompter.Prompts().back().text.startsWith("Cannot find Rebuild Settings report."));

    WriteFile(Profile("pacman"), "[Core Screen Options]\r\nGamma=9.99\r\n");
    m_prompter.Queue(PromptAnswer::No);
    Controls().mnuToolsRebuild->trigger();
    EXPECT_EQ(m_prompter.Prompts().back().title, "Confirm Rebuild");
    EXPECT_NE(ReadFile(Profile("pacman")).find("Gamma=9.99"), std::string::npos);

    m_prompter.Queue(PromptAnswer::Yes);
    Controls().mnuToolsRebuild->trigger();
    EXPECT_EQ(Controls().pages->currentWidget(), Controls().fraVerify);
    EXPECT_EQ(Controls().fraVerify->title(), "Rebuild Settings");
    EXPECT_EQ(Controls().rtfVerify->toPlainText(), "Filename\tSetting\n\n\npacman.cfg\tGamma\n\n");
    QTextCursor cursor(Controls().rtfVerify->document());
    cursor.setPosition(3);
    EXPECT_EQ(cursor.charFormat().fontWeight(), QFont::Bold);
    cursor.setPosition(20);
    EXPECT_NE(cursor.charFormat().fontWeight(), QFont::Bold);
    Form().ReturnList1();

    Controls().mnuReportsRebuild->trigger();
    EXPECT_EQ(Controls().fraVerify->title(), "Rebuilt Settings Report");
    Form().ReturnList1();

    m_prompter.Queue(PromptAnswer::Yes);
    Controls().mnuToolsRebuild->trigger();
    EXPECT_EQ(Controls().rtfVerify->toPlainText(),
              "No invalid values were detected in your setting files.");
    EXPECT_FALSE(FileExists(Output() / "rebuilt.txt"));
    Form().ReturnList1();
    EXPECT_TRUE(Controls().cmdArcadeSettings->isEnabled());
}

} // namespace
} // namespace coinlight::test
