#include <QAbstractButton>
#include <QLineEdit>

#include "MainWindowFixture.h"
#include "core/ProfileFile.h"

namespace coinlight::test {
namespace {

const char* const kProblem =
    "Problem in options.ini file.  Coinlight will open Options so you can correct this.";

class MainLoad : public MainWindowFixture {
protected:
    /// The first-run path opens Options; these tests leave it at once.
    void CancelOptions() {
        AnswerDialog([](QDialog& dialog) { dialog.reject(); });
    }
};

TEST_F(MainLoad, TheFolderTreeIsMadeBeforeAnythingElse) {
    std::filesystem::remove_all(m_context.data.root);
    CancelOptions();
    Load();
    for (const auto& folder : {m_context.data.Settings(), m_context.data.Output(),
                               m_context.data.Software(), m_context.data.Temp()}) {
        EXPECT_TRUE(std::filesystem::is_directory(folder)) << folder;
    }
    EXPECT_FALSE(m_context.flags.formLoading);
}

TEST_F(MainLoad, ABadValueCostsTheFileAndSendsTheUserToOptions) {
    WriteOptions("[View]\r\nWindow State=maximised\r\n");
    CancelOptions();
    EXPECT_FALSE(Load());
    EXPECT_EQ(DialogsOpened(), 1) << "Options opened after the message";
    EXPECT_TRUE(m_context.flags.closeRequested) << "a cancelled first run ends the program";
    ASSERT_FALSE(m_prompter.Prompts().empty());
    EXPECT_EQ(m_prompter.Prompts()[0].title, "Coinlight");
    EXPECT_EQ(m_prompter.Prompts()[0].icon, PromptIcon::None);
    EXPECT_EQ(m_prompter.Texts()[0], kProblem);
    EXPECT_FALSE(std::filesystem::exists(Output() / "machine.xml"))
        << "the first-run path followed, which drops the old capture";
    EXPECT_NE(m_context.preferences.view.windowState, 2);
}

TEST_F(MainLoad, AStoredMameSizeOfZeroTakesTheSameWay) {
    WriteOptions();
    WriteProfileValue(m_context.data.OptionsIni(), "MAME", "Mame.exe Size", "0");
    CancelOptions();
    Load();
    ASSERT_FALSE(m_prompter.Prompts().empty());
    EXPECT_EQ(m_prompter.Texts()[0], kProblem);
    EXPECT_FALSE(std::filesystem::exists(Output() / "machine.xml"));
}

TEST_F(MainLoad, AnOldFileIsRecreatedOnlyWithTheUsersConsent) {
    WriteOptions();
    WriteProfileValue(m_context.data.OptionsIni(), "Miscellaneous", "Coinlight Version", "26.00.9");
    m_prompter.Queue(PromptAnswer::No);
    EXPECT_FALSE(Load());
    EXPECT_TRUE(m_context.flags.closeRequested);
    EXPECT_TRUE(std::filesystem::exists(m_context.data.OptionsIni()));
    ASSERT_EQ(m_prompter.Prompts().size(), 1u);
    EXPECT_EQ(m_prompter.Prompts()[0].icon, PromptIcon::Question);
    EXPECT_EQ(m_prompter.Texts()[0], "The options.ini file must be recreated for this release.  "
                                     "Do you want to continue?");

    m_context.flags = {};
    m_prompter.Queue(PromptAnswer::Yes);
    CancelOptions();
    Load();
    EXPECT_FALSE(std::filesystem::exists(Output() / "machine.xml")) << "first-run path";
}

TEST_F(MainLoad, AVersionFrom2601IsAccepted) {
    WriteOptions();
    WriteProfileValue(m_context.data.OptionsIni(), "Miscellaneous", "Coinlight Version", "26.01.0");
    EXPECT_TRUE(Load());
    EXPECT_TRUE(m_prompter.Prompts().empty());
}

TEST_F(MainLoad, AFailedMigrationEndsTheStartWithTheLoadError) {
    WriteFile(Output() / "messfavs.txt", "old");
    WriteFile(Output() / "otherfavs.txt", "new");
    EXPECT_FALSE(Load());
    ASSERT_EQ(m_prompter.Prompts().size(), 1u);
    EXPECT_EQ(m_prompter.Prompts()[0].icon, PromptIcon::Critical);
    EXPECT_TRUE(m_prompter.Texts()[0].startsWith("Error In Form_Load: File already exists"));
    EXPECT_TRUE(m_prompter.Texts()[0].contains("\nLine Number: "));
    EXPECT_TRUE(m_context.flags.closeRequested);
    EXPECT_EQ(ReadFile(Output() / "otherfavs.txt"), "new");
}

TEST_F(MainLoad, TheStartWritesTheSizesItComparesNextTime) {
    WriteOptions();
    ASSERT_TRUE(Load()) << Told();
    const auto options = m_context.data.OptionsIni();
    EXPECT_EQ(ReadProfileValue(options, "MAME", "Mame.exe Size", ""),
              std::to_string(*FileSize(m_mame.folder / m_mame.executable)));
    EXPECT_EQ(ReadProfileValue(options, "Miscellaneous", "Lists.txt Size", ""),
              std::to_string(*FileSize(m_context.data.Support() / "lists.txt")));
    EXPECT_EQ(ReadProfileValue(options, "Miscellaneous", "Catver.ini Size", ""), "0");
    EXPECT_EQ(ReadProfileValue(options, "Miscellaneous", "Coinlight Version", ""), "26.02.0");
}

TEST_F(MainLoad, ClosingEmptiesTempAndSavesTheViewUnlessTheUserGaveUp) {
    ASSERT_TRUE(Load()) << Told();
    WriteFile(m_context.data.Temp() / "results.txt", "x");
    Form().ViewOther();
    Form().close();
    EXPECT_EQ(CountFiles(m_context.data.Temp()), 0u);
    EXPECT_EQ(ReadProfileValue(m_context.data.OptionsIni(), "View", "List View", ""),
              "Other Machines");

    ASSERT_TRUE(Load()) << Told();
    Form().ViewAvailableArcade();
    m_context.flags.closeRequested = true;
    Form().close();
    EXPECT_EQ(ReadProfileValue(m_context.data.OptionsIni(), "View", "List View", ""),
              "Other Machines");
}

TEST_F(MainLoad, AMameThatIsGoneIsAskedForAgainAndNoChoiceIsLost) {
    WriteOptions("[Preferences Other]\r\nHide Bootleg=True\r\n\r\n"
                 "[View]\r\nAll Sort Key=7\r\n");
    const auto options = m_context.data.OptionsIni();
    const auto executable = m_mame.folder / m_mame.executable;
    const auto moved = m_folder / "mame-elsewhere" / "mame";
    std::filesystem::create_directories(moved.parent_path());
    std::filesystem::rename(executable, moved);

    // Cancelling ends the start and leaves every choice in place.
    CancelOptions();
    EXPECT_FALSE(Load());
    ASSERT_FALSE(m_prompter.Texts().empty());
    EXPECT_EQ(m_prompter.Texts()[0].toStdString(),
              "The MAME executable " + executable.string() +
                  " cannot be found.  Coinlight will open Options so you can correct this.");
    EXPECT_EQ(ReadProfileValue(options, "Preferences Other", "Hide Bootleg", ""), "True");
    EXPECT_EQ(ReadProfileValue(options, "MAME", "Mame.exe Size", ""),
              std::to_string(*FileSize(moved)))
        << "the size of the MAME it knew is kept";

    // Pointing Options at where MAME went now: the start goes on, with the new size noted.
    m_context.flags = ControlFlags{};
    AnswerDialog([this, &moved](QDialog& dialog) {
        dialog.findChild<QLineEdit*>(QStringLiteral("txtMAMEPath"))
            ->setText(QString::fromStdString(moved.string()));
        for (const char* name : {"txtSamPath", "txtArtworkPath", "txtCtrlrPath", "txtCheatPath",
                                 "txtPluginsPath", "txtLanguagePath"}) {
            dialog.findChild<QLineEdit*>(QString::fromLatin1(name))
                ->setText(QString::fromStdString(m_folder.Path().string()));
        }
        dialog.findChild<QAbstractButton*>(QStringLiteral("cmdNext"))->click();
        dialog.findChild<QAbstractButton*>(QStringLiteral("cmdOK"))->click();
        if (dialog.isVisible()) {
            dialog.reject();
        }
    });
    EXPECT_TRUE(Load()) << Told();
    EXPECT_EQ(m_context.preferences.searchPaths.mame, moved.parent_path().string());
    EXPECT_EQ(ReadProfileValue(options, "Preferences Other", "Hide Bootleg", ""), "True");
    EXPECT_EQ(ReadProfileValue(options, "View", "All Sort Key", ""), "7");
    EXPECT_EQ(ReadProfileValue(options, "MAME", "Mame.exe Size", ""),
              std::to_string(*FileSize(moved)));
    EXPECT_EQ(Told().find("Problem in options.ini"), std::string::npos) << Told();
}

} // namespace
} // namespace coinlight::test
