#include <gtest/gtest.h>

#include "RecordBuilder.h"
#include "lists/MachineSearchIndex.h"
#include "lists/SearchFolding.h"

namespace coinlight {
namespace {

TEST(SearchFolding, FoldsCaseAndLatinAccentsAndLeavesEverythingElse) {
    EXPECT_EQ(Folded("PAC-Man"), "pac-man");
    EXPECT_EQ(Folded("Pok\xC3\xA9mon \xC3\x89LAN"), "pokemon elan"); // é, É
    EXPECT_EQ(Folded("Stra\xC3\x9F"
                     "e \xC3\x86on \xC5\x92uvre"),
              "strasse aeon oeuvre"); // ß Æ Œ
    EXPECT_EQ(Folded("\xC3\x98ystein \xC5\x81\xC3\xB3"
                     "d\xC5\xBA"),
              "oystein lodz"); // Ø Ł ó ź
    EXPECT_EQ(Folded("e\xCC\x81t\xC3\xA9"), "ete") << "a combining accent goes with its letter";
    EXPECT_EQ(Folded("2\xC3\x97"
                     "3"),
              "2\xC3\x97"
              "3")
        << "the multiplication sign stays";
    // Other scripts and broken UTF-8 pass untouched: no byte is lost or invented.
    EXPECT_EQ(Folded("\xE3\x83\x91\xE3\x83\x83\xE3\x82\xAF"),
              "\xE3\x83\x91\xE3\x83\x83\xE3\x82\xAF");
    EXPECT_EQ(Folded("a\xC3"), "a\xC3");
    EXPECT_EQ(Folded("\xC3"
                     "A\xFF"),
              "\xC3"
              "a\xFF");
}

TEST(SearchQuery, SplitsAtBlanksFoldsAndKnowsWhenItOnlyNarrowsFurther) {
    const SearchQuery query("  Pac\tMAN  pac ");
    EXPECT_EQ(query.Words(), (std::vector<std::string>{"pac", "man"}));
    EXPECT_TRUE(SearchQuery("   ").Empty());

    EXPECT_TRUE(SearchQuery("pacm").Refines(SearchQuery("pac")));
    EXPECT_TRUE(SearchQuery("pac ma").Refines(SearchQuery("pac")));
    EXPECT_TRUE(SearchQuery("pac").Refines(SearchQuery()));
    EXPECT_FALSE(SearchQuery("pa").Refines(SearchQuery("pac")));
    EXPECT_FALSE(SearchQuery("pac").Refines(SearchQuery("pac man")));
    EXPECT_FALSE(SearchQuery("gal").Refines(SearchQuery("pac")));
}

class MachineSearch : public ::testing::Test {
protected:
    MachineSearch() {
        Add("pacman", {{ColMachine, "Pac-Man (Midway)"},
                       {ColManufacturer, "Namco (Midway)"},
                       {ColYear, "1980"},
                       {ColCategory, "Maze / Collect"}});
        Add("galaga", {{ColMachine, "Galaga"},
                       {ColManufacturer, "Namco"},
                       {ColYear, "1981"},
                       {ColCategory, "Shooter / Flying Vertical"}});
        Add("pokemini", {{ColMachine, "Pok\xC3\xA9mon Mini"},
                         {ColManufacturer, "Nintendo"},
                         {ColYear, "2001"},
                         {ColCategory, "Handheld"}});
        Add("mspacman", {{ColMachine, "Ms. Pac-Man"},
                         {ColManufacturer, "Midway"},
                         {ColYear, "1981"},
                         {ColCategory, "Maze / Collect"},
                         {ColSource, "namco/pacman.cpp"}});
    }
    void Add(const std::string& name,
             std::initializer_list<std::pair<Column, std::string>> fields) {
        m_machines.rows.emplace_back(test::Views(test::Record(name, fields)), "", true);
    }
    std::vector<std::string> Found(std::string_view typed,
                                   std::vector<std::uint32_t> order = {0, 1, 2, 3}) const {
        const MachineSearchIndex index(m_machines, order);
        std::vector<std::string> names;
        for (const std::uint32_t row : index.Narrow(order, SearchQuery(typed))) {
            names.emplace_back(m_machines.rows[row].ShortName());
        }
        return names;
    }

    MachineRows m_machines;
};

TEST_F(MachineSearch, LooksInDescriptionShortNameManufacturerYearAndCategory) {
    EXPECT_EQ(Found("pac-man"), (std::vector<std::string>{"pacman", "mspacman"}));
    EXPECT_EQ(Found("MSPAC"), std::vector<std::string>{"mspacman"}) << "short name";
    EXPECT_EQ(Found("namco"), (std::vector<std::string>{"pacman", "galaga"}))
        << "manufacturer; the source file is not looked in";
    EXPECT_EQ(Found("1981"), (std::vector<std::string>{"galaga", "mspacman"}));
    EXPECT_EQ(Found("shooter"), std::vector<std::string>{"galaga"}) << "category";
    EXPECT_EQ(Found("pokemon"), std::vector<std::string>{"pokemini"}) << "accents fold away";
    EXPECT_EQ(Found("POK\xC3\x89MON"), std::vector<std::string>{"pokemini"});
}

TEST_F(MachineSearch, EveryWordMustBeThereInAnyFieldButNotAcrossTwo) {
    EXPECT_EQ(Found("maze 1981"), std::vector<std::string>{"mspacman"});
    EXPECT_EQ(Found("1981 namco"), std::vector<std::string>{"galaga"});
    EXPECT_TRUE(Found("midway 2001").empty());
    EXPECT_TRUE(Found("xyzzy").empty());
    EXPECT_TRUE(Found("galaganamco").empty()) << "the fields do not run into each other";
    EXPECT_EQ(Found("mini nintendo"), std::vector<std::string>{"pokemini"});
}

TEST_F(MachineSearch, OnlyTheRowsOfItsListMatchAndTheirOrderIsKept) {
    EXPECT_EQ(Found("a", {3, 1}), (std::vector<std::string>{"mspacman", "galaga"}));
    const MachineSearchIndex index(m_machines, {1});
    EXPECT_FALSE(index.Matches(0, SearchQuery("pac"))) << "pacman is not in this list";
    EXPECT_FALSE(index.Matches(0, SearchQuery())) << "not even for an empty search";
    EXPECT_FALSE(index.Matches(99, SearchQuery()));
    EXPECT_TRUE(index.Matches(1, SearchQuery()));
}

} // namespace
} // namespace coinlight
