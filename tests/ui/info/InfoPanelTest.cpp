// The information panel, the snapshot pane, the cabinet icon and the documents, in the
// main window over the small catalogue and the fake MAME.
#include <QAction>
#include <QListWidget>
#include <QPushButton>
#include <QTest>
#include <QTextBlock>
#include <QTextBrowser>

#include "core/ProfileFile.h"
#include "info/InfoTestSupport.h"
#include "ui/MainWindowFixture.h"
#include "ui/info/InfoSourceList.h"
#include "ui/info/SnapshotPane.h"

namespace coinlight::test {
namespace {

class InfoPanel : public MainWindowFixture {
protected:
    InfoPanel() {
        AddRom("pacman");
        AddRom("galaga");
        WriteFile(m_context.data.Support() / "history.xml",
                  "<entry>\n<systems>\n<system name=\"pacman\" />\n</systems>\n<text>\n"
                  "Pac-Man (c) 1980 Namco.\n</text>\n</entry>\n");
        WriteFile(m_context.data.Support() / "notes.dat", "$info=pacman\n");
        MakeArchive(m_mame.folder / "cheat.7z", {{"pacman.xml", "<cheat desc=\"Lives\"/>\n"}});
    }
    void Set(const char* section, const char* key, const std::string& value) {
        if (!FileExists(m_context.data.OptionsIni())) {
            WriteOptions();
        }
        ASSERT_TRUE(WriteProfileValue(m_context.data.OptionsIni(), section, key, value));
    }
    void Select(MachineListView& list, const std::string& machine) {
        list.SelectRow(list.Model().RowOfShortName(machine));
    }
    QStringList Sources() {
        QStringList names;
        for (int i = 0; i < Controls().lstInfo->count(); ++i) {
            names << Controls().lstInfo->item(i)->text();
        }
        return names;
    }
    void ClickSource(const QString& name) {
        const auto found = Controls().lstInfo->findItems(name, Qt::MatchExactly);
        ASSERT_EQ(found.size(), 1) << name.toStdString();
        QListWidget* list = Controls().lstInfo;
        QTest::mouseClick(list->viewport(), Qt::LeftButton, {},
                          list->visualItemRect(found.front()).center());
    }
    std::string PanelText() { return Controls().rtfVerify->toPlainText().toStdString(); }
    bool FirstLineBold() {
        const QTextBlock first = Controls().rtfVerify->document()->firstBlock();
        return first.begin().fragment().charFormat().fontWeight() == QFont::Bold;
    }
};

TEST_F(InfoPanel, InfoListsTheSourcesAndAClickShowsWhatTheyHold) {
    ASSERT_TRUE(Load()) << Told();
    const MainControls& c = Controls();
    Form().show();
    Form().ViewAvailableArcade();
    Select(*c.lvAvailable, "pacman");
    ASSERT_TRUE(c.cmdInfo->isEnabled());
    c.cmdInfo->click();
    EXPECT_EQ(c.pages->currentWidget(), c.fraVerify);
    EXPECT_EQ(c.fraVerify->title(), "Information");
    EXPECT_TRUE(PanelText().ends_with("Select the file in the ListBox on the right."));
    EXPECT_EQ(Sources(), (QStringList{"cheat.7z", "history.xml", "notes.dat"}));
    EXPECT_TRUE(c.lstInfo->isVisible() && c.lstInfo->isEnabled());

    ClickSource("history.xml");
    EXPECT_EQ(PanelText(), "history.xml\n\n\nPac-Man \u00A9 1980 Namco.\n\n");
    EXPECT_TRUE(FirstLineBold());
    EXPECT_TRUE(c.cmdGameList->isEnabled() && c.cmdExit->isEnabled());
    ClickSource("cheat.7z");
    EXPECT_EQ(PanelText(), "cheat.7z\n\n\nLives\n");
    EXPECT_FALSE(FileExists(m_context.data.Temp() / "pacman.xml"));
    ClickSource("notes.dat");
    EXPECT_EQ(PanelText(), "notes.dat\n\n\n");

    std::filesystem::remove(m_context.data.Support() / "history.xml");
    ClickSource("history.xml");
    EXPECT_EQ(PanelText(), "Error: 53\nFile not found");
    EXPECT_FALSE(FirstLineBold()) << "no bold is left over from the search before";

    Form().ReturnList1();
    EXPECT_EQ(c.pages->currentWidget(), c.fraList);
    EXPECT_TRUE(c.cmdArcadeSettings->isEnabled()) << "what the panel disabled comes back";
    EXPECT_EQ(c.lstInfo->count(), 0);
    EXPECT_TRUE(c.lstInfo->isHidden());
    EXPECT_TRUE(m_prompter.Prompts().empty()) << Told();
}

TEST_F(InfoPanel, TheLinkAndTheMenuOpenItAndAnEmptySupportFolderSaysSo) {
    std::filesystem::remove(m_mame.folder / "cheat.7z");
    std::filesystem::remove(m_context.data.Support() / "history.xml");
    std::filesystem::remove(m_context.data.Support() / "notes.dat");
    ASSERT_TRUE(Load()) << Told();
    Controls().mnuMainInfo->trigger();
    EXPECT_EQ(Controls().fraVerify->title(), "Information");
    EXPECT_TRUE(PanelText().ends_with("No files found."));
    EXPECT_EQ(Sources(), QStringList{});
    Form().ReturnList1();
    emit Controls().lblBLinks[LinkInfo]->linkActivated(QStringLiteral("#"));
    EXPECT_EQ(Controls().pages->currentWidget(), Controls().fraVerify);
}

class SnapshotPaneTest : public InfoPanel {
protected:
    SnapshotPaneTest() {
        Set("Core Output Directory Options", "Snapshot", Snap().string());
        Set("Core Search Path Options", "Artwork", (m_folder / "artwork").string());
    }
    std::filesystem::path Snap() const { return m_folder / "snap"; }
    void Picture(const std::filesystem::path& file, int width, int height) {
        std::filesystem::create_directories(file.parent_path());
        QImage image(width, height, QImage::Format_RGB32);
        image.fill(Qt::darkCyan);
        ASSERT_TRUE(image.save(QString::fromStdString(file.string())));
    }
    const ScaledPicture& Shown() { return *Controls().picShots->Picture(); }
};

TEST_F(SnapshotPaneTest, ThePaneFollowsTheSelectionAndSharesTheListsHeight) {
    Picture(Snap() / "pacman" / "0003.png", 30, 20);
    Picture(Snap() / "pacman" / "0007.png", 40, 30);
    Picture(Snap() / "pacman.png", 50, 50);
    WriteFile(Snap() / "galaga.png", "\x89PNG\r\n\x1a\n broken");
    ASSERT_TRUE(Load()) << Told();
    const MainControls& c = Controls();
    Form().resize(1000, 700);
    Form().show();
    Form().ViewAvailableArcade();
    Select(*c.lvAvailable, "pacman");
    EXPECT_TRUE(c.picShots->isHidden()) << "closed until the menu opens it";
    const int fullHeight = c.lvAvailable->height();

    Form().ViewShots();
    QApplication::processEvents();
    EXPECT_TRUE(c.mnuViewShots->isChecked());
    EXPECT_TRUE(m_context.preferences.view.snapshots);
    EXPECT_EQ(Shown().Picture().size(), QSize(40, 30)) << "0007.png before 0003.png";
    EXPECT_LT(c.lvAvailable->height(), fullHeight * 2 / 3);
    const QRect drawn = Shown().PictureRect();
    EXPECT_NEAR(drawn.width() * 3, drawn.height() * 4, 4) << "scaled keeping its proportions";
    EXPECT_TRUE(drawn.width() == Shown().width() || drawn.height() == Shown().height());

    Select(*c.lvAvailable, "galaga");
    EXPECT_TRUE(Shown().isHidden());
    EXPECT_TRUE(c.lblShots->isVisible()) << "a broken picture gives the text, not a failure";
    EXPECT_TRUE(c.lblShots->text().startsWith("Oops... image not found."));

    Form().ViewShots();
    EXPECT_TRUE(c.picShots->isHidden());
    EXPECT_FALSE(m_context.preferences.view.snapshots);
    QApplication::processEvents();
    EXPECT_EQ(c.lvAvailable->height(), fullHeight);
}

TEST_F(SnapshotPaneTest, CloneShotsAndTheSavedStateOpenThePaneAtStart) {
    Picture(Snap() / "mspacman" / "0001.png", 20, 20);
    Picture(Snap() / "pacman" / "0001.png", 80, 60);
    Set("Preferences Other", "Clone Shots", "True");
    Set("View", "Snapshots", "True");
    ASSERT_TRUE(Load()) << Told();
    EXPECT_TRUE(Controls().mnuViewShots->isChecked());
    Form().ViewAllArcade();
    Select(*Controls().lvAll, "mspacman");
    EXPECT_FALSE(Controls().picShots->isHidden());
    EXPECT_EQ(Shown().Picture().size(), QSize(80, 60)) << "the parent's, though the clone has one";
}

TEST_F(SnapshotPaneTest, TheCabinetIconAndTheArtworkSignBelongToArcadeMachines) {
    QImage icon(48, 48, QImage::Format_ARGB32);
    icon.fill(Qt::yellow);
    std::filesystem::create_directories(m_mame.folder / "icons");
    ASSERT_TRUE(
        icon.save(QString::fromStdString((m_mame.folder / "icons" / "pacman.ico").string())));
    WriteFile(m_folder / "artwork" / "pacman.zip", "zip");
    ASSERT_TRUE(Load()) << Told();
    const MainControls& c = Controls();
    Form().ViewAvailableArcade();
    Select(*c.lvAvailable, "pacman");
    EXPECT_FALSE(c.picIcon->isHidden());
    EXPECT_EQ(c.picIcon->pixmap().size(), QSize(32, 32));
    EXPECT_FALSE(c.lblArtwork->isHidden());
    Select(*c.lvAvailable, "galaga");
    EXPECT_TRUE(c.picIcon->isHidden());
    EXPECT_TRUE(c.lblArtwork->isHidden());
    Select(*c.lvAvailable, "pacman");
    Form().ViewOther();
    EXPECT_TRUE(c.picIcon->isHidden());
    EXPECT_TRUE(c.lblArtwork->isHidden());
}

TEST_F(InfoPanel, DocumentsShowOnTheTextPageOrSayWhyNot) {
    ASSERT_TRUE(Load()) << Told();
    const MainControls& c = Controls();
    Form().SetMameManual(m_folder / "no-manual" / "index.html");
    std::vector<QString> opened;
    Form().SetAddressOpener([&opened](const QString& address) {
        opened.push_back(address);
        return true;
    });
    c.mnuHelpDefaultKeys->trigger();
    ASSERT_EQ(m_prompter.Prompts().size(), 1u);
    EXPECT_EQ(m_prompter.Prompts().back().title, "MAME Default Keys");
    EXPECT_TRUE(m_prompter.Prompts().back().text.endsWith("in the docs directory."));
    EXPECT_EQ(c.pages->currentWidget(), c.fraList) << "the lists stay as they are";

    WriteFile(m_folder / "manual" / "index.html", "<p id=\"document-advanced/hlsl\"></p>");
    Form().SetMameManual(m_folder / "manual" / "index.html");
    c.mnuHelpHLSL->trigger();
    ASSERT_EQ(opened.size(), 1u);
    EXPECT_TRUE(opened.front().endsWith("index.html#document-advanced/hlsl"));

    WriteFile(Output() / "unlisted.txt", "");
    c.mnuReportsUnlistedMachines->trigger();
    EXPECT_EQ(c.pages->currentWidget(), c.fraVerify);
    EXPECT_EQ(c.fraVerify->title(), "Unlisted Machines");
    EXPECT_EQ(PanelText(), "");
    EXPECT_EQ(c.lblPanel[2]->text(), "") << "the details strip is cleared";

    WriteFile(m_mame.folder / "docs" / "source" / "advanced" / "glsl.rst",
              "**GLSL** in C:\\mame\\glsl\n");
    c.mnuHelpGLSL->trigger();
    EXPECT_EQ(c.fraVerify->title(), "MAME GLSL");
    EXPECT_EQ(PanelText(), "GLSL in C:mameglsl\n");
    EXPECT_EQ(opened.size(), 1u);
    EXPECT_FALSE(c.cmdArcadeSettings->isEnabled());

    const QString count =
        QStringLiteral("Machines: ") + QString::number(c.lvAll->Model().rowCount());
    Form().ReturnList1();
    EXPECT_EQ(c.lblPanel[0]->text(), count) << "the strip comes back whole";
    EXPECT_FALSE(c.lblPanel[2]->text().isEmpty());
    EXPECT_TRUE(c.cmdArcadeSettings->isEnabled() && c.cmdFind->isEnabled());
}

} // namespace
} // namespace coinlight::test
