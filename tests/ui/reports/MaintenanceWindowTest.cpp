// The Maintenance page: the unneeded file finder and the deletions, with a desktop trash of
// the test's own.
#include <cstdlib>

#include <QAbstractButton>
#include <QCheckBox>
#include <QListWidget>
#include <QRadioButton>
#include <QStandardPaths>

#include "ReportsWindowFixture.h"
#include "core/ProfileFile.h"
#include "reports/Unremovable.h"

namespace coinlight::test {
namespace {

class MaintenanceWindow : public ReportsWindowFixture {
protected:
    MaintenanceWindow() {
        // Qt finds the trash through these, and only uses the home trash for files on the
        // same file system as the home folder.
        ::setenv("HOME", m_folder.Path().c_str(), 1);
        ::setenv("XDG_DATA_HOME", (m_folder / "xdg").c_str(), 1);
        std::filesystem::create_directories(m_folder / "xdg");
        // The tests' own standard paths would hide XDG_DATA_HOME.
        QStandardPaths::setTestModeEnabled(false);
        WriteOptions("[Core Output Directory Options]\r\nCfg=" + (m_folder / "cfg").string() +
                     "\r\nNvram=" + (m_folder / "nvram").string() +
                     "\r\nInput=" + (m_folder / "inp").string() +
                     "\r\nSnapshot=" + (m_folder / "snap").string() + "\r\n\r\n");
        // Other machines' sets in a folder of their own, so that no set is seen twice.
        WriteProfileValue(m_context.data.OptionsIni(), "Core Search Path Options", "Other ROMs",
                          (m_folder / "other roms").string());
        std::filesystem::create_directories(m_folder / "other roms");
    }
    ~MaintenanceWindow() override { QStandardPaths::setTestModeEnabled(true); }
    std::filesystem::path Trashed(const std::string& name) {
        return m_folder / "xdg" / "Trash" / "files" / name;
    }
    template <class Widget = QAbstractButton> Widget* Control(const char* name) {
        auto* control = Controls().fraMaintenance->findChild<Widget*>(QString::fromLatin1(name));
        EXPECT_NE(control, nullptr) << name;
        return control;
    }
    void Tick(const char* name) { Control<QCheckBox>(name)->setChecked(true); }
    QListWidget* Orphans() { return Control<QListWidget>("lstOrphan"); }
    QString Status() { return Control<QLabel>("lblFolder")->text(); }
};

TEST_F(MaintenanceWindow, ThePageOffersTheSelectedMachineOrNone) {
    ASSERT_TRUE(Load()) << Told();
    AddRom("pacman");
    Select(Controls().lvAll, "pacman");
    ASSERT_TRUE(Controls().cmdStart->isEnabled());
    Controls().mnuToolsMaintenance->trigger();
    EXPECT_EQ(Page(), Controls().fraMaintenance);
    EXPECT_TRUE(Control<QRadioButton>("optCurrent")->isEnabled());
    EXPECT_TRUE(Control<QRadioButton>("optCurrent")->isChecked());
    EXPECT_EQ(Panel(2), "pacman");
    EXPECT_FALSE(Controls().cmdArcadeSettings->isEnabled());
    EXPECT_FALSE(Controls().cmdStart->isEnabled()) << "the start row acts on the hidden list";
    Control("cmdGameList2")->click();
    EXPECT_EQ(Page(), Controls().fraList);
    EXPECT_TRUE(Controls().cmdArcadeSettings->isEnabled());
    EXPECT_TRUE(Controls().cmdStart->isEnabled());

    Form().ViewUnavailableArcade();
    Controls().lvUnavailable->Model().Clear();
    Form().Maintenance();
    EXPECT_FALSE(Control<QRadioButton>("optCurrent")->isEnabled());
    EXPECT_TRUE(Control<QRadioButton>("optAll")->isChecked());
}

TEST_F(MaintenanceWindow, SurplusFilesAreFoundAndMovedAsideNeverDeleted) {
    AddRom("pacman");
    WriteFile(Roms() / "oldgame.zip", "old");
    WriteFile(Roms() / "galaga.7z", "seven");
    ASSERT_TRUE(Load()) << Told();
    Form().Maintenance();
    EXPECT_FALSE(Control("cmdRemove")->isVisibleTo(Controls().fraMaintenance))
        << "Remove waits for a search";
    EXPECT_FALSE(Control<QWidget>("lblBLinks_26")->isVisibleTo(Controls().fraMaintenance));

    Control("cmdROMs")->click();
    EXPECT_EQ(Status(), "Search complete.");
    ASSERT_EQ(Orphans()->count(), 2);
    EXPECT_EQ(Orphans()->item(0)->text().toStdString(), Roms().string() + "|galaga.7z");
    EXPECT_EQ(Orphans()->item(1)->text().toStdString(), Roms().string() + "|oldgame.zip");
    EXPECT_TRUE(Orphans()->isVisibleTo(Controls().fraMaintenance));

    Form().UnneededFileRemove();
    ASSERT_EQ(m_prompter.Prompts().size(), 1u);
    EXPECT_EQ(m_prompter.Prompts()[0].text, "You must select at least 1 file to remove.");

    m_prompter.Queue(PromptAnswer::No);
    Control<QCheckBox>("chkAllOrphans")->setChecked(true);
    Form().UnneededFileRemove();
    EXPECT_EQ(Orphans()->selectedItems().size(), 0) << "No deselects";
    EXPECT_TRUE(FileExists(Roms() / "oldgame.zip"));

    m_prompter.Queue(PromptAnswer::Yes);
    Orphans()->selectAll();
    Form().UnneededFileRemove();
    EXPECT_NE(m_prompter.Prompts().back().text.toStdString().find("folder in " +
                                                                  m_mame.folder.string() + "."),
              std::string::npos)
        << "the question names where the files go";
    const auto aside = m_mame.folder / "unneeded files" / "arcade";
    EXPECT_EQ(ReadFile(aside / "oldgame.zip"), "old");
    EXPECT_EQ(ReadFile(aside / "galaga.7z"), "seven");
    EXPECT_FALSE(FileExists(Roms() / "oldgame.zip"));
    EXPECT_TRUE(FileExists(Roms() / "pacman.zip"));
    EXPECT_FALSE(Orphans()->isVisibleTo(Controls().fraMaintenance)) << "the last removal hides it";
}

TEST_F(MaintenanceWindow, CurrentGameFilesGoFolderToTheTrashFileDeleted) {
    WriteFile(m_folder / "nvram" / "pacman" / "pacman.nv", "high scores");
    WriteFile(m_folder / "cfg" / "pacman.cfg", "c");
    WriteFile(m_folder / "cfg" / "galaga.cfg", "c");
    ASSERT_TRUE(Load()) << Told();
    Select(Controls().lvAll, "pacman");
    Form().Maintenance();
    Tick("chkOutputDirectories_0");
    Tick("chkOutputDirectories_1");
    m_prompter.Queue(PromptAnswer::Yes);
    m_prompter.Queue(PromptAnswer::Yes);
    Control("cmdOutputDirectories")->click();
    EXPECT_EQ(m_prompter.Prompts().at(0).text,
              "Are you sure you want to delete the pacman nvram folder and all the files in it?");
    EXPECT_EQ(ReadFile(Trashed("pacman") / "pacman.nv"), "high scores");
    EXPECT_FALSE(FileExists(m_folder / "nvram" / "pacman"));
    EXPECT_FALSE(FileExists(m_folder / "cfg" / "pacman.cfg"));
    EXPECT_TRUE(FileExists(m_folder / "cfg" / "galaga.cfg"));
    EXPECT_EQ(m_prompter.Unexpected(), 0) << Told();
}

TEST_F(MaintenanceWindow, AllFilesStopAtAFileThatCannotBeRemoved) {
    WriteFile(m_folder / "cfg" / "default.cfg", "c");
    WriteFile(m_folder / "snap" / "pacman.png", "p");
    ASSERT_TRUE(Load()) << Told();
    Form().Maintenance();
    Control<QRadioButton>("optAll")->setChecked(true);
    Tick("chkOutputDirectories_1");
    Tick("chkOutputDirectories_3");
    const Unremovable held(m_folder / "cfg" / "default.cfg");
    if (!held.Holds()) {
        GTEST_SKIP() << "this file system cannot make a file unremovable";
    }
    m_prompter.Queue(PromptAnswer::Yes);
    Form().CleanOutputDirectories();
    ASSERT_EQ(m_prompter.Prompts().size(), 2u) << Told();
    EXPECT_EQ(m_prompter.Prompts()[1].title, "Maintenance");
    EXPECT_TRUE(m_prompter.Prompts()[1].text.startsWith("Error In CleanOutputDirectories: "));
    EXPECT_TRUE(m_prompter.Prompts()[1].text.endsWith(QString::fromStdString(
        "do not have permission to read or write files in " + (m_folder / "cfg").string() + ".")));
    EXPECT_TRUE(FileExists(m_folder / "snap" / "pacman.png")) << "the kinds after it wait";
}

TEST_F(MaintenanceWindow, ReportsAreDeletedOnlyWhenThereAndConfirmed) {
    WriteFile(Output() / "changedroms.txt", "c");
    WriteFile(Output() / "arcadeauditsamples.txt", "s");
    ASSERT_TRUE(Load()) << Told();
    Form().Maintenance();
    Form().CleanReports();
    EXPECT_EQ(m_prompter.Prompts().at(0).text, "You must first select a report or list.");
    Tick("chkDeleteWhatROMsChanged");
    Tick("chkDeleteSamples");
    Tick("chkDeleteRebuilt");
    m_prompter.Queue(PromptAnswer::Yes);
    m_prompter.Queue(PromptAnswer::Ok);
    m_prompter.Queue(PromptAnswer::No);
    Control("cmdReports")->click();
    EXPECT_FALSE(FileExists(Output() / "arcadeauditsamples.txt"));
    EXPECT_EQ(m_prompter.Prompts().at(2).text, "There is no Rebuilt Settings report to delete.");
    EXPECT_TRUE(FileExists(Output() / "changedroms.txt")) << "answered No";
}

TEST_F(MaintenanceWindow, DeleteRomTakesTheSetAndItsFilesAndTheListFollows) {
    AddRom("pacman");
    WriteFile(m_folder / "nvram" / "pacman" / "pacman.nv", "n");
    WriteFile(m_folder / "cfg" / "pacman.cfg", "c");
    ASSERT_TRUE(Load()) << Told();
    Form().ViewAvailableArcade();
    Select(Controls().lvAvailable, "pacman");
    m_prompter.Queue(PromptAnswer::Yes);
    Controls().mnuDeleteROM->trigger();
    EXPECT_TRUE(m_prompter.Prompts().at(0).text.startsWith(
        "Are you sure you want to permanently delete the ROM Pac-Man (Midway)?"));
    EXPECT_FALSE(FileExists(Roms() / "pacman.zip"));
    EXPECT_FALSE(FileExists(m_folder / "cfg" / "pacman.cfg"));
    EXPECT_TRUE(FileExists(Trashed("pacman") / "pacman.nv"));
    EXPECT_LT(Controls().lvAvailable->Model().RowOfShortName("pacman"), 0);
    EXPECT_GE(Controls().lvUnavailable->Model().RowOfShortName("pacman"), 0);
}

} // namespace
} // namespace coinlight::test
