#include "info/HistorySearch.h"

#include <gtest/gtest.h>

#include "InfoTestSupport.h"
#include "support/TestFiles.h"

namespace coinlight::test {
namespace {

// history.xml as the community writes it: one entry per title, its systems and software
// items first, its text between a line ending in <text> and one ending in </text>.
const std::string kHistory = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\r\n"
                             "<history version=\"2.50\" date=\"2022-12-02\">\r\n"
                             "\t<entry>\r\n"
                             "\t\t<systems>\r\n"
                             "\t\t\t<system name=\"PACMAN\" />\r\n"
                             "\t\t</systems>\r\n"
                             "\t\t<text>\r\n"
                             "Upper-case twin.\r\n"
                             "\t\t</text>\r\n"
                             "\t</entry>\r\n"
                             "\t<entry>\r\n"
                             "\t\t<systems>\r\n"
                             "\t\t\t<system name=\"puckman\" />\r\n"
                             "\t\t\t<system name=\"pacman\" />\r\n"
                             "\t\t</systems>\r\n"
                             "\t\t<text>\r\n"
                             "Pac-Man (c) 1980 Namco &amp; Midway.\r\n"
                             "It&apos;s &quot;Puck&quot; in Japan; &amp;quot; stays a quote.\r\n"
                             "\r\n"
                             "The end of it.</text>\r\n"
                             "\t</entry>\r\n"
                             "\t<entry>\r\n"
                             "\t\t<software>\r\n"
                             "\t\t\t<item list=\"nes\" name=\"smb\" />\r\n"
                             "\t\t\t<item list=\"gameboy\" name=\"tetris\" />\r\n"
                             "\t\t</software>\r\n"
                             "\t\t<text>\tSuper (c) title &amp; more\r\n"
                             "Second line (c) 1985 &quot;Nintendo&quot;\r\n"
                             "\t\t</text>\r\n"
                             "\t</entry>\r\n"
                             "\t<entry>\r\n"
                             "\t\t<software>\r\n"
                             "\t\t\t<item list=\"famicom\" name=\"zelda\" />\r\n"
                             "\t\t</software>\r\n"
                             "\t\t<text>\r\n"
                             "Zelda text\r\n"
                             "\t\t</text>\r\n"
                             "\t</entry>\r\n"
                             "</history>\r\n";

class HistorySearch : public ::testing::Test {
protected:
    HistorySearch() { WriteFile(File(), kHistory); }
    std::filesystem::path File() const { return m_folder / "history.xml"; }

    std::string Search(const InfoSelection& selection, const std::filesystem::path& file) {
        std::string panel;
        const auto error = SearchHistory(file, selection, panel);
        EXPECT_FALSE(error) << error->description;
        return panel;
    }
    std::string Search(const InfoSelection& selection) { return Search(selection, File()); }

    TempFolder m_folder;
};

TEST_F(HistorySearch, AMachineShowsItsTextDecodedAndTheClosingLineIsDropped) {
    EXPECT_EQ(Search(ArcadeSelection("pacman")), "Pac-Man \xC2\xA9 1980 Namco & Midway.\n"
                                                 "It's \"Puck\" in Japan; \" stays a quote.\n"
                                                 "\n"
                                                 "\n")
        << "text before </text> on its line is lost with the line";
    EXPECT_EQ(Search(ArcadeSelection("puckman")), Search(ArcadeSelection("pacman")))
        << "any system of an entry finds it";
    EXPECT_EQ(Search(ArcadeSelection("PACMAN")), "Upper-case twin.\n\n") << "case counts";
}

TEST_F(HistorySearch, WithoutAMatchTheViewDecidesTheText) {
    EXPECT_EQ(Search(ArcadeSelection("Pacman")), "No history found.\n");
    EXPECT_EQ(Search(ArcadeSelection("pacma")), "No history found.\n")
        << "the name is closed by its quote";
    EXPECT_EQ(Search(OtherSelection("a500", "Amiga 500 (PAL)")),
              "No history found for Amiga 500 (PAL).\n");

    InfoSelection unknownView = ArcadeSelection("pacman");
    unknownView.listView = "Favorite Arcade Machines";
    EXPECT_EQ(Search(unknownView), "No history found.\n") << "no key outside the four views";
}

TEST_F(HistorySearch, TheSoftwarePassFollowsTheMachinesText) {
    const std::string software = "\n*** Software ***\n\n"
                                 "Super (c) title &amp; more\n"
                                 "Second line (c) 1985 \"Nintendo\"\n"
                                 "\n";
    EXPECT_EQ(Search(OtherSelection("nes", "NES", "smb", "nes", "Super Mario Bros.")),
              "No history found for NES.\n" + software)
        << "the tag line keeps its text, without tabs or decoding; no (c) in this pass";
    const std::string both =
        Search(OtherSelection("pacman", "Pac-Man", "tetris", "gameboy", "Tetris"));
    EXPECT_EQ(both.find("Pac-Man \xC2\xA9 1980"), 0u) << both;
    EXPECT_NE(both.find("\n*** Software ***\n\nSuper"), std::string::npos)
        << "the machine's own text comes first, then the title's";
    EXPECT_EQ(Search(OtherSelection("nes", "NES", "zelda", "nes", "The Legend of Zelda")),
              "No history found for NES.\nNo history found for The Legend of Zelda.\n")
        << "a title of another list is not this one";

    InfoSelection noCaption = OtherSelection("nes", "NES", "smb", "nes", "Super Mario Bros.");
    noCaption.softwareCaption = false;
    EXPECT_EQ(Search(noCaption), "No history found for NES.\n") << "no title, no second pass";
}

TEST_F(HistorySearch, LineEndsOfEitherKindAndAMissingLastOneReadAlike) {
    std::string unix = kHistory;
    for (std::size_t at = unix.find("\r\n"); at != std::string::npos; at = unix.find("\r\n")) {
        unix.erase(at, 1);
    }
    unix.pop_back(); // no line end at the end of the file
    WriteFile(m_folder / "lf" / "history.xml", unix);
    EXPECT_EQ(Search(ArcadeSelection("pacman"), m_folder / "lf" / "history.xml"),
              Search(ArcadeSelection("pacman")));
}

TEST_F(HistorySearch, AFileThatEndsInsideAnEntryOrIsGoneIsAnError) {
    const std::size_t cut = kHistory.find("The end");
    WriteFile(File(), kHistory.substr(0, cut));
    std::string panel;
    EXPECT_EQ(SearchHistory(File(), ArcadeSelection("pacman"), panel),
              InfoError({62, "Input past end of file"}));
    WriteFile(File(), kHistory.substr(0, kHistory.find("<text>", kHistory.find("\"pacman\""))));
    EXPECT_EQ(SearchHistory(File(), ArcadeSelection("pacman"), panel),
              InfoError({62, "Input past end of file"}))
        << "no <text> after the system";
    WriteFile(File(), kHistory.substr(0, kHistory.find("Zelda text")));
    EXPECT_EQ(SearchHistory(File(), OtherSelection("nes", "NES", "zelda", "famicom", "Z"), panel),
              InfoError({62, "Input past end of file"}));
    EXPECT_EQ(SearchHistory(m_folder / "gone.xml", ArcadeSelection("pacman"), panel),
              InfoError({53, "File not found"}));
    std::filesystem::create_directories(m_folder / "folder.xml");
    EXPECT_EQ(SearchHistory(m_folder / "folder.xml", ArcadeSelection("pacman"), panel),
              InfoError({57, "Device I/O error"}))
        << "a read that fails is not the end of the file";
}

TEST_F(HistorySearch, BinaryAndHostileBytesNeverBreakTheScan) {
    using namespace std::string_literals;
    std::string hostile = "<system name=\"pacman\"\0\xff\xfe<text>\n"s;
    hostile += std::string(3000, '\0') + "\n\x80\x81&amp;&amp;&apos\n";
    hostile += std::string(100000, 'x') + "</text>\n";
    WriteFile(File(), hostile);
    EXPECT_EQ(Search(ArcadeSelection("pacman")), std::string(3000, '\0') + "\n\x80\x81&&&apos\n\n");
}

} // namespace
} // namespace coinlight::test
