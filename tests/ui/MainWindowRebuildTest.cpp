// A new MAME: its two lists made at once, the catalogue built as they arrive, and the old
// catalogue kept whole when MAME fails.
#include <map>

#include "MainWindowFixture.h"
#include "core/ProfileFile.h"

namespace coinlight::test {
namespace {

class MainWindowRebuild : public MainWindowFixture {
protected:
    MainWindowRebuild() {
        WriteOptions();
        // The MAME of the last start was another one.
        WriteProfileValue(m_context.data.OptionsIni(), "MAME", "Mame.exe Size", "12345");
        std::filesystem::copy_file(FixturesFolder() / "catalogue" / "lists.txt",
                                   m_context.data.Support() / "lists.txt",
                                   std::filesystem::copy_options::overwrite_existing);
    }
    /// The catalogue's files with their bytes. The copies a new MAME keeps of the old
    /// lists ("machine.xmllast.xml") are made before MAME is asked, and are left out.
    std::map<std::string, std::string> Catalogue() const {
        std::map<std::string, std::string> files;
        for (const auto& entry : std::filesystem::directory_iterator(Output())) {
            const std::string name = entry.path().filename().string();
            if (entry.is_regular_file() && !name.ends_with("last.xml")) {
                files[name] = ReadFile(entry.path());
            }
        }
        return files;
    }
    static std::vector<std::string> Changed(const std::map<std::string, std::string>& before,
                                            const std::map<std::string, std::string>& after) {
        std::vector<std::string> names;
        for (const auto& [name, bytes] : before) {
            if (after.count(name) == 0 || after.at(name) != bytes) {
                names.push_back(name);
            }
        }
        for (const auto& [name, bytes] : after) {
            if (before.count(name) == 0) {
                names.push_back(name);
            }
        }
        return names;
    }
};

TEST_F(MainWindowRebuild, ANewMameFillsTheListsFromItsOwnLists) {
    ASSERT_TRUE(Load()) << Told();
    EXPECT_EQ(ReadFile(Output() / "machine.xml"), ReadFile(m_mame.Data() / "listxml.xml"));
    EXPECT_EQ(ReadFile(Output() / "software.xml"), ReadFile(m_mame.Data() / "listsoftware.xml"));
    EXPECT_GE(Controls().lvAll->Model().RowOfShortName("alpha"), 0);
    EXPECT_LT(Controls().lvAll->Model().RowOfShortName("pacman"), 0) << "the old MAME's";
    EXPECT_TRUE(FileExists(Output() / "showconfig.txt")) << "MAME was asked for its options";
}

TEST_F(MainWindowRebuild, OneListFailingLeavesTheOldCatalogueToLoadAndTheNextStartTriesAgain) {
    const auto before = Catalogue();
    m_mame.SetBehaviour("fail listsoftware\n");
    EXPECT_FALSE(Load());
    EXPECT_TRUE(m_context.flags.fatalErrorFlag);
    ASSERT_EQ(m_prompter.Prompts().size(), 1u) << Told();
    EXPECT_TRUE(m_prompter.Texts().front().startsWith(
        QStringLiteral("The machine.xml was not created.  Coinlight will now close.")));
    EXPECT_EQ(Changed(before, Catalogue()), std::vector<std::string>{})
        << "not one file of the old catalogue was touched";
    EXPECT_EQ(ReadProfileValue(m_context.data.OptionsIni(), "MAME", "Mame.exe Size", ""), "12345")
        << "the next start sees the new MAME again";

    // The catalogue of the old MAME still loads as it did.
    m_form.reset();
    m_context.flags = {};
    WriteOptions();
    ASSERT_TRUE(Load()) << Told();
    EXPECT_EQ(m_prompter.Prompts().size(), 1u) << "nothing more to tell";
    EXPECT_EQ(Controls().lvAll->Model().TotalRows(), 11);
    EXPECT_GE(Controls().lvAll->Model().RowOfShortName("pacman"), 0);
}

} // namespace
} // namespace coinlight::test
