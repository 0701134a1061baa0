#include "info/InfoSources.h"

#include <gtest/gtest.h>

#include "InfoTestSupport.h"
#include "info/InfoSearch.h"
#include "support/TestFiles.h"

namespace coinlight::test {
namespace {

class InfoSources : public ::testing::Test {
protected:
    InfoSources() {
        for (const char* name : {"mameinfo.dat", "History.xml", "HISTORY.XML", "catver.ini",
                                 "notes.dat.txt", "Extra.dat", "command.dat"}) {
            WriteFile(Support() / name, "");
        }
        std::filesystem::create_directories(Support() / "folder.dat");
        std::filesystem::create_directories(Mame());
    }
    std::filesystem::path Support() const { return m_folder / "support"; }
    std::filesystem::path Mame() const { return m_folder / "mame"; }

    InfoPanel Click(const std::string& source, const InfoSelection& selection) {
        InfoSearchRequest request;
        request.source = source;
        request.mameFolder = Mame();
        request.supportFolder = Support();
        request.tempFolder = m_folder / "temp";
        request.selection = selection;
        return RunInfoSearch(request);
    }

    TempFolder m_folder;
};

TEST_F(InfoSources, CheatsComeFirstThenXmlAndDatFilesByName) {
    EXPECT_EQ(ListInfoSources(Mame(), Support()).names,
              (std::vector<std::string>{"command.dat", "Extra.dat", "History.xml", "mameinfo.dat"}))
        << "extensions compare with case; folders are no sources";
    WriteFile(Mame() / "cheat.7z", "");
    EXPECT_EQ(ListInfoSources(Mame(), Support()).names.front(), "cheat.7z");
    const InfoSourceListing none = ListInfoSources(Mame(), m_folder / "no-support");
    EXPECT_EQ(none.names, std::vector<std::string>{"cheat.7z"});
    EXPECT_FALSE(none.error);
}

TEST_F(InfoSources, TheIntroEndsWithTheHintThatSuitsTheList) {
    EXPECT_TRUE(InfoIntroText(false).starts_with("Coinlight supports...\n\ncheat.7z, command.dat"));
    EXPECT_TRUE(InfoIntroText(false).ends_with("support directory.\n\n\nNo files found."));
    EXPECT_TRUE(
        InfoIntroText(true).ends_with("\n\n\nSelect the file in the ListBox on the right."));
}

TEST_F(InfoSources, AClickDispatchesOnTheNameInLowerCase) {
    WriteFile(Support() / "History.xml", "<system name=\"pacman\"><text>\nMaze\n</text>\n");
    WriteFile(Support() / "mameinfo.dat", "$info=pacman\n$mame\nDriver notes\n$end\n");
    const InfoPanel history = Click("History.xml", ArcadeSelection("pacman"));
    EXPECT_EQ(history.text, "history.xml\n\n\nMaze\n\n");
    EXPECT_TRUE(history.boldHeader);
    EXPECT_EQ(Click("mameinfo.dat", ArcadeSelection("pacman")).text,
              "mameinfo.dat\n\n\nDriver notes\n\n");
    EXPECT_EQ(Click("Extra.dat", ArcadeSelection("pacman")).text, "extra.dat\n\n\n")
        << "another file shows its name alone";
}

TEST_F(InfoSources, AFailureShowsTheErrorAloneAndNothingBold) {
    const InfoPanel gone = Click("command.dat.gone", ArcadeSelection("pacman"));
    EXPECT_EQ(gone.text, "command.dat.gone\n\n\n") << "not a known name: nothing is read";
    std::filesystem::remove(Support() / "command.dat");
    const InfoPanel failed = Click("command.dat", ArcadeSelection("pacman"));
    EXPECT_EQ(failed.text, "Error: 53\nFile not found");
    EXPECT_FALSE(failed.boldHeader);
    WriteFile(Mame() / "cheat.7z", "garbage");
    EXPECT_TRUE(Click("cheat.7z", ArcadeSelection("pacman")).text.starts_with("Error: 321\n"));
}

} // namespace
} // namespace coinlight::test
