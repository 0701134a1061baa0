// Finding a machine as one types: the search field above the lists.
#include <QAction>
#include <QApplication>
#include <QPushButton>
#include <QTest>

#include "MainWindowFixture.h"
#include "ui/MachineSearchField.h"

namespace coinlight::test {
namespace {

class MainWindowSearch : public MainWindowFixture {
protected:
    MainWindowSearch() {
        AddRom("pacman");
        AddRom("galaga");
    }

    void Type(const QString& text) { Controls().txtSearch->setText(text); }
    MachineListView& All() { return *Controls().lvAll; }
    std::string Selected(const MachineListView& list) {
        const MachineRow* row = list.SelectedMachine();
        return row != nullptr ? std::string(row->ShortName()) : std::string();
    }
    /// The bytes of every file the search must leave alone.
    std::string FilesOnDisk() const {
        std::string bytes = ReadFile(m_context.data.OptionsIni());
        for (const char* file : {"arcadeinfo.txt", "otherinfo.txt", "arcadefavs.txt"}) {
            bytes += "|" + ReadFile(Output() / file);
        }
        return bytes;
    }
};

TEST_F(MainWindowSearch, EachKeyPressNarrowsTheListAndTheCountShowsShownOfTotal) {
    ASSERT_TRUE(Load()) << Told();
    const std::string before = FilesOnDisk();
    QTest::keyClicks(Controls().txtSearch, QStringLiteral("pac"));
    EXPECT_EQ(Names(All()), (std::vector<std::string>{"mspacman", "pacman"}));
    EXPECT_EQ(Panel(0), "Machines: 2 of 11");
    QTest::keyClicks(Controls().txtSearch, QStringLiteral(" MIDWAY"));
    EXPECT_EQ(Names(All()), std::vector<std::string>{"pacman"}) << "every word must be there";
    EXPECT_EQ(Panel(0), "Machines: 1 of 11");
    Type(QStringLiteral("1981"));
    EXPECT_EQ(Names(All()), (std::vector<std::string>{"galaga", "mspacman"})) << "the year";
    Type(QStringLiteral("ball & paddle"));
    EXPECT_EQ(Names(All()), std::vector<std::string>{"pong"}) << "the category";
    Type(QStringLiteral("ASTEROID"));
    EXPECT_EQ(Names(All()), std::vector<std::string>{"asteroid"}) << "the short name";
    Type({});
    EXPECT_EQ(All().Model().rowCount(), 11);
    EXPECT_EQ(Panel(0), "Machines: 11");
    EXPECT_EQ(FilesOnDisk(), before) << "a search writes neither options.ini nor the catalogue";
    EXPECT_TRUE(m_prompter.Prompts().empty()) << Told();
}

TEST_F(MainWindowSearch, ClearingKeepsTheSelectedMachineSelectedAndInView) {
    ASSERT_TRUE(Load()) << Told();
    Form().resize(900, 500);
    Form().show();
    const std::vector<std::string> fullOrder = Names(All());
    All().SelectRow(All().Model().RowOfShortName("asteroid"));
    Type(QStringLiteral("namco"));
    EXPECT_EQ(Names(All()), (std::vector<std::string>{"galaga", "pacman"}));
    EXPECT_EQ(Selected(All()), "galaga") << "the first row, asteroid being gone";
    All().SelectRow(All().Model().RowOfShortName("pacman"));
    Type(QStringLiteral("namc"));
    EXPECT_EQ(Selected(All()), "pacman") << "still on show, still selected";
    Type({});
    EXPECT_EQ(Names(All()), fullOrder) << "the whole list comes back in its order";
    EXPECT_EQ(Selected(All()), "pacman");
    EXPECT_EQ(Panel(2), "pacman");
    QApplication::processEvents();
    const QRect shown = All().visualRect(All().currentIndex());
    EXPECT_TRUE(All().viewport()->rect().intersects(shown)) << "scrolled into view";
}

TEST_F(MainWindowSearch, DetailsAndStartFollowTheNarrowedListAndNothingFoundEmptiesThem) {
    ASSERT_TRUE(Load()) << Told();
    All().SelectRow(All().Model().RowOfShortName("pacman"));
    Type(QStringLiteral("galaga"));
    EXPECT_EQ(Panel(2), "galaga");
    EXPECT_TRUE(Controls().cmdStart->isEnabled());
    std::filesystem::remove(m_mame.Launches());
    Form().PlayArcade();
    EXPECT_NE(ReadFile(m_mame.Launches()).find("\tgalaga\n"), std::string::npos)
        << ReadFile(m_mame.Launches());
    Form().ReturnList1();

    Type(QStringLiteral("no such machine"));
    EXPECT_EQ(All().Model().rowCount(), 0);
    EXPECT_EQ(Panel(0), "Machines: 0 of 11");
    EXPECT_EQ(Panel(2), "");
    EXPECT_FALSE(Controls().cmdStart->isEnabled());
    Type(QStringLiteral("pac-man (midway)"));
    EXPECT_EQ(Panel(2), "pacman");
    EXPECT_TRUE(Controls().cmdStart->isEnabled()) << "a machine on show again can start";
}

TEST_F(MainWindowSearch, TheNarrowingFollowsTheUserFromViewToView) {
    ASSERT_TRUE(Load()) << Told();
    Type(QStringLiteral("pac"));
    Form().ViewAvailableArcade();
    EXPECT_EQ(Names(*Controls().lvAvailable), std::vector<std::string>{"pacman"});
    EXPECT_EQ(Panel(0), "Machines: 1 of 3");
    Form().ViewOther();
    EXPECT_EQ(Controls().lvOther->Model().rowCount(), 0);
    EXPECT_EQ(Panel(0), "Machines: 0 of 4");
    Type(QStringLiteral("commodore"));
    EXPECT_EQ(Names(*Controls().lvOther), (std::vector<std::string>{"a500", "pet2001"}));
    Type({});
    Form().ViewAllArcade();
    EXPECT_EQ(Panel(0), "Machines: 11") << "the field was cleared in another view";
}

TEST_F(MainWindowSearch, KeysReachTheFieldAndLeaveIt) {
    ASSERT_TRUE(Load()) << Told();
    Form().show();
    QApplication::setActiveWindow(&Form());
    All().setFocus();
    QTest::keyClick(&All(), Qt::Key_Slash);
    EXPECT_EQ(Form().focusWidget(), Controls().txtSearch) << "/ in a list";
    EXPECT_EQ(Controls().txtSearch->text(), "") << "the slash itself is not typed";
    QTest::keyClicks(Controls().txtSearch, QStringLiteral("gal/"));
    EXPECT_EQ(Controls().txtSearch->text(), "gal/") << "in the field a slash is a letter";
    QTest::keyClick(Controls().txtSearch, Qt::Key_Escape);
    EXPECT_EQ(Controls().txtSearch->text(), "");
    EXPECT_EQ(Form().focusWidget(), &All()) << "Esc goes back to the list";
    EXPECT_EQ(Panel(0), "Machines: 11");

    QTest::keyClick(&Form(), Qt::Key_F, Qt::ControlModifier);
    EXPECT_EQ(Form().focusWidget(), Controls().txtSearch) << "Ctrl+F";
    QTest::keyClicks(Controls().txtSearch, QStringLiteral("pong"));
    std::filesystem::remove(m_mame.Launches());
    QTest::keyClick(Controls().txtSearch, Qt::Key_Return);
    EXPECT_EQ(Form().focusWidget(), &All()) << "Enter goes to the list, text kept";
    EXPECT_EQ(Names(All()), std::vector<std::string>{"pong"});
    EXPECT_FALSE(FileExists(m_mame.Launches())) << "and starts nothing";
}

TEST_F(MainWindowSearch, TypeAheadStillJumpsWithinTheNarrowedList) {
    ASSERT_TRUE(Load()) << Told();
    Type(QStringLiteral("namco"));
    All().SelectRow(0);
    All().keyboardSearch(QStringLiteral("p"));
    EXPECT_EQ(Selected(All()), "pacman");
    All().keyboardSearch(QStringLiteral("a")); // "pa"
    EXPECT_EQ(Selected(All()), "pacman");
}

TEST_F(MainWindowSearch, ANarrowingToNothingIsNotTakenForFiltersThatHideEverything) {
    ASSERT_TRUE(Load()) << Told();
    Type(QStringLiteral("xyzzy"));
    AnswerDialog([](QDialog& dialog) { dialog.reject(); });
    Controls().mnuMainOptions->trigger();
    EXPECT_EQ(DialogsOpened(), 1);
    EXPECT_TRUE(m_prompter.Prompts().empty()) << Told();
}

} // namespace
} // namespace coinlight::test
