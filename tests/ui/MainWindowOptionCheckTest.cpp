// The options of the MAME in use: asked from the Tools menu, named beside the values MAME
// refused after a run, and the settings controls it does not take shown disabled.
#include <QAction>
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QTextBrowser>

#include "MainWindowFixture.h"
#include "ui/UnsupportedOptionControls.h"

namespace coinlight::test {
namespace {

class MainWindowOptionCheck : public MainWindowFixture {
protected:
    MainWindowOptionCheck() { AddRom("pacman"); }
    QString Page() const { return m_form->Controls().rtfVerify->toPlainText(); }
    std::filesystem::path Answer() const { return Output() / "showconfig.txt"; }
};

TEST_F(MainWindowOptionCheck, TheToolsMenuShowsWhatThisMameDoesNotTake) {
    ASSERT_TRUE(Load()) << Told();
    m_mame.SetBehaviour("drop hlsl_enable\ndrop speed\ndrop profile\n");
    Controls().mnuToolsCheckOptions->trigger();
    EXPECT_EQ(Controls().pages->currentWidget(), Controls().fraVerify);
    EXPECT_EQ(Controls().fraVerify->title(), "MAME Options");
    EXPECT_TRUE(Page().contains("It does not know 3 of the")) << Page().toStdString();
    EXPECT_TRUE(Page().contains("\nspeed\tSpeed (cboSpeed)\n"));
    EXPECT_TRUE(Page().contains("\nprofile\t(a fixed line of mame.ini)\n"));
    EXPECT_TRUE(Page().contains("\nhlsl_enable\tHLSL (chkHLSL)\n"));
    EXPECT_TRUE(FileExists(Answer()));
    EXPECT_EQ(Form().UnsupportedSettingsControls(),
              (std::vector<std::string>{"cboSpeed", "chkHLSL"}));
    Form().ReturnList1();
    EXPECT_EQ(Controls().pages->currentWidget(), Controls().fraList);

    // A MAME that cannot tell: the user hears why, and the last answer stays.
    m_mame.SetBehaviour("exit 4\n");
    Controls().mnuToolsCheckOptions->trigger();
    ASSERT_EQ(m_prompter.Prompts().size(), 1u);
    EXPECT_TRUE(m_prompter.Texts().front().contains("exit status 4")) << Told();
    EXPECT_EQ(Controls().pages->currentWidget(), Controls().fraList);
    EXPECT_EQ(Form().UnsupportedSettingsControls().size(), 2u);
    EXPECT_TRUE(Controls().mnuToolsCheckOptions->isEnabled());
}

TEST_F(MainWindowOptionCheck, AValueMameRefusedIsNamedWithItsControlOnTheErrorPage) {
    ASSERT_TRUE(Load()) << Told();
    EXPECT_TRUE(Form().UnsupportedSettingsControls().empty()) << "MAME was never asked";
    Form().ViewAvailableArcade();
    Controls().lvAvailable->SelectRow(Controls().lvAvailable->Model().RowOfShortName("pacman"));
    m_mame.SetBehaviour("reject speed\nreject beam_width_min\n");
    Form().PlayArcade();
    EXPECT_EQ(Controls().fraVerify->title(), "MAME Error Output");
    EXPECT_TRUE(Page().contains(
        "Illegal float value for speed: \"x\"; reverting to 1.0  <- Speed (cboSpeed)\n"))
        << Page().toStdString();
    EXPECT_TRUE(Page().contains("reverting to 1.0  <- Beam Min (cboBeamMin)"));
    EXPECT_TRUE(Page().contains("fake-mame: warning: this is not MAME\n"))
        << "the rest of MAME's words stand as they were";
}

TEST(UnsupportedOptionControls, DisablesTheControlAndItsLabelAndKeepsTheValue) {
    QWidget page;
    auto* speed = new QComboBox(&page);
    speed->setObjectName("cboSpeed");
    speed->addItems({"100%", "150%"});
    speed->setCurrentIndex(1);
    auto* speedLabel = new QLabel("Speed", &page);
    speedLabel->setBuddy(speed);
    auto* hlsl = new QLineEdit("0.25", &page);
    hlsl->setObjectName("txtHLSL_17");
    auto* throttle = new QCheckBox("Throttle", &page);
    throttle->setObjectName("chkThrottle");

    EXPECT_EQ(MarkUnsupportedControls(page, {"cboSpeed", "txtHLSL(17)", "cboNotOnThisPage"}), 2);
    for (QWidget* widget : {static_cast<QWidget*>(speed), static_cast<QWidget*>(speedLabel),
                            static_cast<QWidget*>(hlsl)}) {
        EXPECT_FALSE(widget->isEnabled()) << widget->objectName().toStdString();
        EXPECT_EQ(widget->toolTip(), "This MAME build does not support this option.");
    }
    EXPECT_TRUE(throttle->isEnabled());
    EXPECT_EQ(speed->currentText(), "150%") << "the value is kept, saved and written";
    EXPECT_EQ(hlsl->text(), "0.25");
    EXPECT_EQ(ObjectNameOfControl("cboInputDev(7)"), "cboInputDev_7");
    EXPECT_EQ(ObjectNameOfControl("chkHLSL"), "chkHLSL");
}

} // namespace
} // namespace coinlight::test
