#include <gtest/gtest.h>

#include <QLabel>

#include "core/OptionsIni.h"
#include "core/ProfileFile.h"
#include "support/ScriptedPrompter.h"
#include "support/TestFiles.h"
#include "ui/frmMain.h"

namespace coinlight {
namespace {

using test::ReadFile;
using test::ScriptedPrompter;
using test::TempFolder;
using test::WriteFile;

const char* const kGoodOptions = "[Miscellaneous]\r\n"
                                 "Coinlight Version=26.02.0\r\n"
                                 "\r\n"
                                 "[MAME]\r\n"
                                 "Executable=mame\r\n"
                                 "Mame.exe Size=1000\r\n"
                                 "\r\n"
                                 "[View]\r\n"
                                 "All Key=k.pong\r\n";

class MainLoad : public ::testing::Test {
protected:
    MainLoad() {
        m_context.appFolder = m_folder / "app";
        m_context.data.root = m_folder / "data";
        std::filesystem::create_directories(m_context.appFolder);
    }

    void WithCatalogue(const std::string& options) {
        WriteFile(m_context.data.OptionsIni(), options);
        WriteFile(m_context.data.Output() / "machine.xml", "<mame/>");
    }

    TempFolder m_folder;
    AppContext m_context;
    ScriptedPrompter m_prompter;
};

TEST_F(MainLoad, AFirstRunMakesTheFoldersAndAsksNothingYet) {
    frmMain form(m_context, m_prompter);
    EXPECT_TRUE(form.FormLoad());
    for (const auto& folder : {m_context.data.Settings(), m_context.data.Output(),
                               m_context.data.Software(), m_context.data.Temp()}) {
        EXPECT_TRUE(std::filesystem::is_directory(folder));
    }
    EXPECT_TRUE(m_prompter.Prompts().empty());
    EXPECT_FALSE(m_context.flags.formLoading);
}

TEST_F(MainLoad, AGoodFileIsReadAndKept) {
    WithCatalogue(kGoodOptions);
    frmMain form(m_context, m_prompter);
    ASSERT_TRUE(form.FormLoad());
    EXPECT_TRUE(m_prompter.Prompts().empty());
    EXPECT_EQ(m_context.preferences.view.all.key, "k.pong");
    EXPECT_TRUE(std::filesystem::exists(m_context.data.OptionsIni()));
}

TEST_F(MainLoad, ABadValueCostsTheFileAndSendsTheUserToOptions) {
    WithCatalogue(std::string(kGoodOptions) + "Window State=maximised\r\n");
    frmMain form(m_context, m_prompter);
    ASSERT_TRUE(form.FormLoad());
    ASSERT_EQ(m_prompter.Prompts().size(), 1u);
    EXPECT_EQ(m_prompter.Prompts()[0].title, "Coinlight");
    EXPECT_EQ(m_prompter.Prompts()[0].text,
              "Problem in options.ini file.  Coinlight will open Options so you can correct this.");
    EXPECT_FALSE(std::filesystem::exists(m_context.data.OptionsIni()));
    EXPECT_FALSE(std::filesystem::exists(m_context.data.Output() / "machine.xml"))
        << "the first-run path followed";
    EXPECT_TRUE(m_context.preferences.view.all.key.empty()) << "what was read is forgotten";
}

TEST_F(MainLoad, AStoredMameSizeOfZeroTakesTheSameWay) {
    std::string options = kGoodOptions;
    options.replace(options.find("Size=1000"), 9, "Size=0");
    WithCatalogue(options);
    frmMain form(m_context, m_prompter);
    ASSERT_TRUE(form.FormLoad());
    ASSERT_EQ(m_prompter.Texts().size(), 1);
    EXPECT_TRUE(m_prompter.Texts()[0].startsWith("Problem in options.ini file."));
    EXPECT_FALSE(std::filesystem::exists(m_context.data.OptionsIni()));
}

TEST_F(MainLoad, AnOldFileIsRecreatedOnlyWithTheUsersConsent) {
    std::string options = kGoodOptions;
    options.replace(options.find("26.02.0"), 7, "26.00.9");
    WithCatalogue(options);
    {
        m_prompter.Queue(PromptAnswer::No);
        frmMain form(m_context, m_prompter);
        EXPECT_FALSE(form.FormLoad());
        EXPECT_TRUE(m_context.flags.closeRequested);
        EXPECT_TRUE(std::filesystem::exists(m_context.data.OptionsIni()));
        ASSERT_EQ(m_prompter.Prompts().size(), 1u);
        EXPECT_EQ(m_prompter.Prompts()[0].icon, PromptIcon::Question);
        EXPECT_EQ(m_prompter.Prompts()[0].text, "The options.ini file must be recreated for this "
                                                "release.  Do you want to continue?");
    }
    m_context.flags = {};
    m_prompter.Queue(PromptAnswer::Yes);
    frmMain form(m_context, m_prompter);
    EXPECT_TRUE(form.FormLoad());
    EXPECT_FALSE(std::filesystem::exists(m_context.data.OptionsIni()));
}

TEST_F(MainLoad, AFailedMigrationEndsTheStartWithTheLoadError) {
    WriteFile(m_context.data.Output() / "messfavs.txt", "old");
    WriteFile(m_context.data.Output() / "otherfavs.txt", "new");
    frmMain form(m_context, m_prompter);
    EXPECT_FALSE(form.FormLoad());
    ASSERT_EQ(m_prompter.Prompts().size(), 1u);
    EXPECT_EQ(m_prompter.Prompts()[0].icon, PromptIcon::Critical);
    EXPECT_TRUE(m_prompter.Prompts()[0].text.startsWith("Error In Form_Load: File already exists"));
    EXPECT_TRUE(m_prompter.Prompts()[0].text.contains("\nLine Number: "));
    EXPECT_TRUE(m_context.flags.closeRequested);
    EXPECT_EQ(ReadFile(m_context.data.Output() / "otherfavs.txt"), "new");
}

TEST_F(MainLoad, ClosingEmptiesTempAndSavesTheViewUnlessTheUserGaveUp) {
    WithCatalogue(kGoodOptions);
    {
        frmMain form(m_context, m_prompter);
        ASSERT_TRUE(form.FormLoad());
        WriteFile(m_context.data.Temp() / "results.txt", "x");
        m_context.preferences.view.listView = "Other Machines";
        form.close();
    }
    EXPECT_EQ(test::CountFiles(m_context.data.Temp()), 0u);
    EXPECT_EQ(ReadProfileValue(m_context.data.OptionsIni(), "View", "List View", ""),
              "Other Machines");

    frmMain form(m_context, m_prompter);
    ASSERT_TRUE(form.FormLoad());
    m_context.preferences.view.listView = "Available Arcade Machines";
    m_context.flags.closeRequested = true;
    form.close();
    EXPECT_EQ(ReadProfileValue(m_context.data.OptionsIni(), "View", "List View", ""),
              "Other Machines");
}

} // namespace
} // namespace coinlight
