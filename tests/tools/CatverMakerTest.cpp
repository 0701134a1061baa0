#include "tools/CatverMaker.h"

#include <gtest/gtest.h>
#include <string>
#include <variant>

#include "support/TestFiles.h"

namespace coinlight {
namespace {

using test::TempFolder;
using test::WriteFile;

const char* const kPrevious = "[Category]\r\n"
                              "pacman=Maze / Collect\r\n"
                              "galaxian=Shooter / Gallery\r\n"
                              "\r\n"
                              "[VerAdded]\r\n"
                              "pacman=.37b2\r\n"
                              "galaxian=.31\r\n";

const char* const kMachines =
    "<?xml version=\"1.0\"?>\n"
    "<mame build=\"0.251 (unknown)\" debug=\"no\" mameconfig=\"10\">\n"
    "\t<machine name=\"pacman\" sourcefile=\"pacman/pacman.cpp\">\n"
    "\t\t<description>Pac-Man</description>\n"
    "\t</machine>\n"
    "\t<machine name=\"puckman\" sourcefile=\"pacman/pacman.cpp\" cloneof=\"pacman\">\n"
    "\t<machine name=\"galaxian\" sourcefile=\"galaxian/galaxian.cpp\">\n"
    "\t<machine name=\"neogeo\" sourcefile=\"neogeo/neogeo.cpp\" isbios=\"yes\">\n"
    "\t<machine name=\"z80\" sourcefile=\"z80.cpp\" isdevice=\"yes\" runnable=\"no\">\n"
    "\t<machine name=\"a500\" sourcefile=\"amiga/amiga.cpp\">\n"
    "\t<machine name=\"newclone\" sourcefile=\"x.cpp\" cloneof=\"lost\">\n"
    "\t<machine name=\"slots\" sourcefile=\"y.cpp\" ismechanical=\"yes\">\n"
    "\t<machine sourcefile=\"nameless.cpp\">\n"
    "</mame>\n";

MadeCatver Make(std::string_view machines, const NameList& other, const ProfileDocument& previous) {
    CatverSources sources;
    sources.nextMachineLine = MachineLinesOf(machines);
    sources.otherList = &other;
    sources.previous = &previous;
    sources.mameVersion = "0.251";
    sources.today = "2024-05-01";
    return MakeCatver(sources);
}

TEST(CatverMaker, KeepsKnownMachinesAndNamesNewOnesFromWhatMameSays) {
    NameList other;
    other.Add("a500");
    const ProfileDocument previous{std::string(kPrevious)};
    const MadeCatver made = Make(kMachines, other, previous);

    EXPECT_EQ(made.machines, 8u);
    EXPECT_EQ(made.newMachines, 6u);
    // Sorted on version, then category, then name; older versions first.
    EXPECT_EQ(made.text, "# CATVER INI 0.251     2024-05-01     Coinlight\r\n"
                         "\r\n"
                         "[Category]\r\n"
                         "galaxian=Shooter / Gallery\r\n"
                         "pacman=Maze / Collect\r\n"
                         "neogeo=System / BIOS\r\n"
                         "z80=System / Device\r\n"
                         "newclone=Unknown / ARCADE | Clone of lost (No Previous Category)\r\n"
                         "puckman=Unknown / ARCADE | Clone of pacman (Maze / Collect)\r\n"
                         "slots=Unknown / ARCADE | Mechanical\r\n"
                         "a500=Unknown / OTHER\r\n"
                         "\r\n"
                         "[VerAdded]\r\n"
                         "galaxian=.31\r\n"
                         "pacman=.37b2\r\n"
                         "neogeo=0.251\r\n"
                         "z80=0.251\r\n"
                         "newclone=0.251\r\n"
                         "puckman=0.251\r\n"
                         "slots=0.251\r\n"
                         "a500=0.251\r\n");
}

TEST(CatverMaker, SortsWithoutRegardToCaseAndWorksWithoutAPreviousFile) {
    const std::string machines = "<machine name=\"Zeta\">\n<machine name=\"alpha\">\n"
                                 "<machine name=\"Beta\">\n";
    CatverSources sources;
    sources.nextMachineLine = MachineLinesOf(machines);
    sources.mameVersion = "0.260";
    sources.today = "today";
    const MadeCatver made = MakeCatver(sources);
    EXPECT_EQ(made.machines, 3u);
    EXPECT_EQ(made.newMachines, 3u);
    const auto alpha = made.text.find("alpha=Unknown / ARCADE\r\n");
    const auto beta = made.text.find("Beta=Unknown / ARCADE\r\n");
    const auto zeta = made.text.find("Zeta=Unknown / ARCADE\r\n");
    ASSERT_NE(alpha, std::string::npos);
    ASSERT_NE(beta, std::string::npos);
    ASSERT_NE(zeta, std::string::npos);
    EXPECT_LT(alpha, beta);
    EXPECT_LT(beta, zeta);
}

TEST(CatverMaker, VersionOfTheListComesFromItsHead) {
    TempFolder folder;
    WriteFile(folder / "machine.xml", kMachines);
    EXPECT_EQ(MameVersionOfList(folder / "machine.xml"), "0.251");
    WriteFile(folder / "headless.xml", "<machine name=\"a\">\n");
    EXPECT_EQ(MameVersionOfList(folder / "headless.xml"), "");
    EXPECT_EQ(MameVersionOfList(folder / "missing.xml"), "");
    WriteFile(folder / "binary.xml", std::string("\0\xff<mame \x01\x02", 10));
    EXPECT_EQ(MameVersionOfList(folder / "binary.xml"), "");
}

class CatverFiles : public ::testing::Test {
protected:
    TempFolder folder;
    std::filesystem::path machines = folder / "machine.xml";
    std::filesystem::path lists = folder / "support" / "lists.txt";
    std::filesystem::path previous = folder / "support" / "catver.ini";

    void SetUp() override {
        WriteFile(machines, kMachines);
        WriteFile(lists, "Arcade\r\n|pacman|puckman|\r\nOther\r\n|a500|\r\n");
        WriteFile(previous, kPrevious);
    }

    std::variant<MadeCatver, std::string> Make() const {
        return MakeCatverFromFiles(machines, lists, previous, "0.251", "2024-05-01");
    }
    std::string Error() const {
        const auto made = Make();
        return std::holds_alternative<std::string>(made) ? std::get<std::string>(made) : "";
    }
};

TEST_F(CatverFiles, ReadsTheThreeFilesAsTheListInMemoryWould) {
    const auto made = Make();
    ASSERT_TRUE(std::holds_alternative<MadeCatver>(made)) << std::get<std::string>(made);
    const MadeCatver& catver = std::get<MadeCatver>(made);
    EXPECT_EQ(catver.machines, 8u);
    EXPECT_NE(catver.text.find("a500=Unknown / OTHER\r\n"), std::string::npos);
    EXPECT_NE(catver.text.find("pacman=.37b2\r\n"), std::string::npos);
}

TEST_F(CatverFiles, AMissingOrCutShortSourceIsReportedByName) {
    std::filesystem::remove(machines);
    EXPECT_EQ(Error(), "Cannot read " + machines.string());
    SetUp();

    WriteFile(lists, "Arcade\r\n|pacman|\r\n");
    EXPECT_TRUE(Error().starts_with(lists.string() + ": ")) << Error();
    std::filesystem::remove(lists);
    EXPECT_TRUE(Error().starts_with(lists.string() + ": ")) << Error();
    SetUp();

    std::filesystem::remove(previous);
    EXPECT_EQ(Error(), "Cannot read " + previous.string());
}

TEST_F(CatverFiles, DamagedMachineListsGiveOnlyWholeEntries) {
    const std::string damaged[] = {
        std::string(kMachines).substr(0, 180), // cut inside a machine's line
        std::string("\0\x01\xfe\xff<mach\0ine name=\"\xff\xfe\"\n", 24),
        "<machine name=\"unclosed\n<machine name=\"\">\n<machine name=>\n",
        "<machine name=\"a\" cloneof=\"" + std::string(100000, 'x') + "\">\n",
        std::string(200000, '<') + "\n",
    };
    for (const std::string& bytes : damaged) {
        WriteFile(machines, bytes);
        const auto made = Make();
        ASSERT_TRUE(std::holds_alternative<MadeCatver>(made)) << std::get<std::string>(made);
        const std::string& text = std::get<MadeCatver>(made).text;
        EXPECT_TRUE(text.starts_with("# CATVER INI 0.251"));
        EXPECT_NE(text.find("\r\n[VerAdded]\r\n"), std::string::npos);
        // Every line of either section is a key and a value.
        std::size_t at = text.find("[Category]\r\n");
        ASSERT_NE(at, std::string::npos);
        for (std::size_t end; (end = text.find("\r\n", at)) != std::string::npos; at = end + 2) {
            const std::string_view line(text.data() + at, end - at);
            if (line.empty() || line.starts_with('[')) {
                continue;
            }
            EXPECT_NE(line.find('='), std::string_view::npos) << line.substr(0, 80);
            EXPECT_NE(line.find('='), 0u) << line.substr(0, 80);
        }
    }
}

} // namespace
} // namespace coinlight
