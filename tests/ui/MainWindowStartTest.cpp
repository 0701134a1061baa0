// The start sequence against the fake MAME: first run, a new MAME, changed support files
// and a missing catalogue file, each ending in filled lists.
#include <QApplication>
#include <QThread>

#include "MainWindowFixture.h"
#include "core/OptionsIni.h"
#include "core/ProfileFile.h"

namespace coinlight::test {
namespace {

class MainWindowStart : public MainWindowFixture {
protected:
    MainWindowStart() {
        // The catalogue this MAME makes, and the lists.txt that sorts its machines.
        const auto catalogue = FixturesFolder() / "catalogue";
        std::filesystem::copy_file(catalogue / "lists.txt", m_context.data.Support() / "lists.txt",
                                   std::filesystem::copy_options::overwrite_existing);
        for (const char* name : {"machine.xml", "software.xml"}) {
            std::filesystem::copy_file(catalogue / name, Output() / name,
                                       std::filesystem::copy_options::overwrite_existing);
        }
    }

    /// Lets the window come up and its first-activation work run.
    void ShowAndSettle() {
        Form().show();
        for (int round = 0; round < 20; ++round) {
            QApplication::processEvents();
            QThread::msleep(5);
        }
    }

    bool Lists(const std::string& name) const {
        const auto& all = m_form->Controls().lvAll->Model();
        return all.RowOfShortName(name) >= 0;
    }
};

TEST_F(MainWindowStart, AFirstRunGoesFromOptionsToFilledLists) {
    std::filesystem::remove_all(Output());
    m_writeOptionsOnLoad = false;
    AnswerOptionsWithFakeMame();
    ASSERT_TRUE(Load()) << Told();
    EXPECT_EQ(DialogsOpened(), 1);
    EXPECT_TRUE(FileExists(Output() / "machine.xml")) << "MAME's list was captured";
    EXPECT_TRUE(Lists("alpha"));
    EXPECT_FALSE(Lists("console")) << "an other machine stays out of the arcade lists";
    EXPECT_EQ(Controls().lvOther->Model().RowOfShortName("console") >= 0, true);
    Preferences read;
    ASSERT_EQ(ReadOptionsIni(m_context.data.OptionsIni(), read).status, OptionsReadStatus::Ok);
    EXPECT_EQ(read.mame.mameExeSize,
              static_cast<long long>(*FileSize(m_mame.folder / m_mame.executable)));
    EXPECT_EQ(read.miscellaneous.coinlightVersion, "26.02.0");
}

TEST_F(MainWindowStart, CancelAtAFirstRunEndsWithNothingButTheFolders) {
    std::filesystem::remove_all(m_context.data.root);
    m_writeOptionsOnLoad = false;
    AnswerDialog([](QDialog& dialog) { dialog.reject(); });
    EXPECT_FALSE(Load());
    EXPECT_TRUE(m_context.flags.closeRequested);
    EXPECT_EQ(CountFiles(m_context.data.root), 0u);
    EXPECT_TRUE(std::filesystem::is_directory(m_context.data.Settings()));
}

TEST_F(MainWindowStart, ANewMameRebuildsEverythingAndOpensOptionsOnceShown) {
    WriteOptions();
    WriteProfileValue(m_context.data.OptionsIni(), "MAME", "Mame.exe Size", "12345");
    WriteFile(Output() / "soft" / "console.txt", "stale");
    ASSERT_TRUE(Load()) << Told();
    EXPECT_TRUE(FileExists(Output() / "machine.xmllast.xml")) << "the old capture is kept";
    EXPECT_TRUE(Lists("alpha"));
    EXPECT_FALSE(FileExists(Output() / "soft" / "console.txt")) << "software files are redone";
    EXPECT_EQ(DialogsOpened(), 0) << "Options waits for the window";
    AnswerDialog([](QDialog& dialog) { dialog.reject(); });
    ShowAndSettle();
    EXPECT_EQ(DialogsOpened(), 1);
    EXPECT_EQ(ReadProfileValue(m_context.data.OptionsIni(), "MAME", "Mame.exe Size", ""),
              std::to_string(*FileSize(m_mame.folder / m_mame.executable)));
}

TEST_F(MainWindowStart, AChangedListsTxtRebuildsFromTheCaptureWithoutOptions) {
    WriteOptions();
    WriteProfileValue(m_context.data.OptionsIni(), "Miscellaneous", "Lists.txt Size", "1");
    std::filesystem::remove(m_mame.Launches());
    ASSERT_TRUE(Load()) << Told();
    EXPECT_TRUE(Lists("alpha"));
    EXPECT_FALSE(Lists("pacman")) << "the old catalogue is gone";
    EXPECT_FALSE(FileExists(m_mame.Launches())) << "MAME was not asked again";
    ShowAndSettle();
    EXPECT_EQ(DialogsOpened(), 0);
}

TEST_F(MainWindowStart, AChangedCatverAddsCategoriesAndOpensOptionsOnceShown) {
    WriteOptions();
    std::filesystem::copy_file(FixturesFolder() / "catalogue" / "catver.ini",
                               m_context.data.Support() / "catver.ini");
    // The lists must come from this MAME's catalogue for the categories to land.
    std::filesystem::remove(Output() / "crcinfo.txt");
    ASSERT_TRUE(Load()) << Told();
    const auto& all = Controls().lvAll->Model();
    ASSERT_TRUE(Lists("alpha"));
    EXPECT_EQ(all.Row(all.RowOfShortName("alpha"))->Field(ColCategory), "Maze / Collect");
    AnswerDialog([](QDialog& dialog) { dialog.reject(); });
    ShowAndSettle();
    EXPECT_EQ(DialogsOpened(), 1);
    EXPECT_EQ(ReadProfileValue(m_context.data.OptionsIni(), "Miscellaneous", "Catver.ini Size", ""),
              std::to_string(*FileSize(m_context.data.Support() / "catver.ini")));
}

TEST_F(MainWindowStart, OneMissingCatalogueFileRebuildsTheWholeCatalogueSilently) {
    WriteOptions();
    std::filesystem::remove(Output() / "crcinfo.txt");
    ASSERT_TRUE(Load()) << Told();
    EXPECT_TRUE(FileExists(Output() / "crcinfo.txt"));
    EXPECT_TRUE(Lists("alpha"));
    EXPECT_TRUE(m_prompter.Prompts().empty()) << Told();
    EXPECT_NE(ReadFile(m_mame.Launches()).find("-listxml"), std::string::npos);
}

TEST_F(MainWindowStart, AMameThatPrintsGarbageEndsTheStartWithAMessage) {
    WriteOptions();
    std::filesystem::remove(Output() / "crcinfo.txt");
    m_mame.SetBehaviour("garbage\n");
    EXPECT_FALSE(Load());
    EXPECT_TRUE(m_context.flags.fatalErrorFlag);
    EXPECT_FALSE(m_prompter.Prompts().empty());
}

} // namespace
} // namespace coinlight::test
