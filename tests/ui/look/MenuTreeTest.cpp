#include "ui/menu/MenuTree.h"

#include <gtest/gtest.h>
#include <map>
#include <set>
#include <string>

#include <QAction>
#include <QMenu>
#include <QMenuBar>
#include <QSignalSpy>
#include <QWidget>

#include "ui/menu/MenuTable.h"

namespace coinlight {
namespace {

TEST(MenuTable, NamesAreUniqueAndEveryEntrysMenuExists) {
    std::set<std::string_view> menus;
    for (const MenuDefinition& menu : Menus()) {
        EXPECT_TRUE(menus.insert(menu.name).second) << menu.name;
    }
    std::set<std::string_view> entries;
    std::map<std::string_view, std::string_view> subMenuOwner;
    for (const MenuEntryDefinition& entry : MenuEntries()) {
        EXPECT_TRUE(entries.insert(entry.name).second) << entry.name << " is not unique";
        EXPECT_TRUE(menus.contains(entry.menu)) << entry.name << " is in " << entry.menu;
        EXPECT_FALSE(entry.caption.empty()) << entry.name;
        if (!entry.subMenu.empty()) {
            EXPECT_FALSE(entry.group.empty()) << entry.name;
            // Two sub-menus of one name in different menus would share one QMenu.
            const auto [at, fresh] = subMenuOwner.emplace(entry.subMenu, entry.menu);
            EXPECT_EQ(at->second, entry.menu) << entry.subMenu;
            (void)fresh;
        }
    }
    for (const auto& [subMenu, owner] : subMenuOwner) {
        EXPECT_FALSE(menus.contains(subMenu)) << subMenu;
        EXPECT_FALSE(entries.contains(subMenu)) << subMenu;
    }
}

TEST(MenuTable, BarLinksAreZeroToFourInOrder) {
    std::vector<int> links;
    for (const MenuDefinition& menu : Menus()) {
        if (menu.linkIndex >= 0) {
            links.push_back(menu.linkIndex);
        }
    }
    EXPECT_EQ(links, (std::vector<int>{0, 1, 2, 3, 4}));
}

class MenuTreeTest : public ::testing::Test {
protected:
    QWidget owner;
    QMenuBar* bar = new QMenuBar(&owner);
    MenuTree tree{owner, *bar};

    static MenuTree::Command Nothing(std::string_view) { return {}; }
};

TEST_F(MenuTreeTest, EveryEntryStandsInItsMenu) {
    ASSERT_EQ(tree.BarMenus().size(), 5u);
    EXPECT_EQ(bar->actions().size(), 5);
    EXPECT_EQ(tree.BarMenus()[0], tree.Menu("mnuMain"));
    EXPECT_EQ(tree.BarMenus()[4], tree.Menu("mnuHelp"));
    ASSERT_NE(tree.Menu("mnuRClick"), nullptr);
    EXPECT_FALSE(bar->actions().contains(tree.Menu("mnuRClick")->menuAction()));

    for (const MenuEntryDefinition& entry : MenuEntries()) {
        QAction* action = tree.Action(entry.name);
        ASSERT_NE(action, nullptr) << entry.name;
        EXPECT_EQ(action->isCheckable(), entry.checkable) << entry.name;
        const std::string_view holder = entry.subMenu.empty() ? entry.menu : entry.subMenu;
        QMenu* menu = tree.Menu(holder);
        ASSERT_NE(menu, nullptr) << holder;
        EXPECT_TRUE(menu->actions().contains(action)) << entry.name << " not in " << holder;
        if (!entry.subMenu.empty()) {
            QAction* head = tree.SubMenuHead(entry.subMenu);
            ASSERT_NE(head, nullptr) << entry.subMenu;
            EXPECT_EQ(head->menu(), menu);
            EXPECT_TRUE(tree.Menu(entry.menu)->actions().contains(head)) << entry.subMenu;
        }
    }
    EXPECT_EQ(tree.Action("mnuNoSuchEntry"), nullptr);
    EXPECT_EQ(tree.Menu("mnuNoSuchMenu"), nullptr);
}

TEST_F(MenuTreeTest, BindHidesEntriesWithoutACommandAndMenusLeftEmpty) {
    tree.Bind([](std::string_view name) -> MenuTree::Command {
        if (name == "mnuMainExit" || name == "mnuReportsVerifyROMs") {
            return [] {
            };
        }
        return {};
    });
    EXPECT_TRUE(tree.HasCommand("mnuMainExit"));
    EXPECT_FALSE(tree.HasCommand("mnuMainPlay"));
    EXPECT_TRUE(tree.Action("mnuMainExit")->isVisible());
    EXPECT_FALSE(tree.Action("mnuMainPlay")->isVisible());

    EXPECT_TRUE(tree.Menu("mnuMain")->menuAction()->isVisible());
    EXPECT_TRUE(tree.Menu("mnuReports")->menuAction()->isVisible());
    EXPECT_TRUE(tree.SubMenuHead("mnuReportsROMs")->isVisible());
    EXPECT_FALSE(tree.SubMenuHead("mnuReportsSets")->isVisible());
    EXPECT_FALSE(tree.SubMenuHead("mnuReportsSoftware")->isVisible());
    for (const char* empty : {"mnuView", "mnuTools", "mnuHelp"}) {
        EXPECT_FALSE(tree.Menu(empty)->menuAction()->isVisible()) << empty;
        EXPECT_FALSE(tree.HasEntries(tree.Menu(empty))) << empty;
    }
}

TEST_F(MenuTreeTest, SeparatorsAndEmptySubMenusDoNotKeepAMenu) {
    // Reports holds separators and sub-menu heads only once none of its entries has a command.
    tree.Bind([](std::string_view name) -> MenuTree::Command {
        return name.starts_with("mnuMain") ? MenuTree::Command([] {}) : MenuTree::Command();
    });
    EXPECT_FALSE(tree.HasEntries(tree.Menu("mnuReports")));
    EXPECT_FALSE(tree.Menu("mnuReports")->menuAction()->isVisible());
    EXPECT_TRUE(tree.HasEntries(tree.Menu("mnuMain")));

    tree.Bind(&MenuTreeTest::Nothing);
    for (QMenu* menu : tree.BarMenus()) {
        EXPECT_FALSE(menu->menuAction()->isVisible()) << menu->objectName().toStdString();
    }
    EXPECT_FALSE(tree.Action("mnuMainExit")->isVisible());
}

TEST_F(MenuTreeTest, ABoundEntryRunsItsCommandOnceAndTheLatestBindingWins) {
    int first = 0;
    int second = 0;
    tree.Bind([&first](std::string_view name) -> MenuTree::Command {
        return name == "mnuHelpAbout" ? MenuTree::Command([&first] { ++first; })
                                      : MenuTree::Command();
    });
    QSignalSpy chosen(&tree, &MenuTree::EntryChosen);
    tree.Action("mnuHelpAbout")->trigger();
    EXPECT_EQ(first, 1);
    ASSERT_EQ(chosen.count(), 1);
    EXPECT_EQ(chosen.at(0).at(0).toString(), QStringLiteral("mnuHelpAbout"));

    // Bound again: the new command runs in place of the old, still once a click.
    tree.Bind([&second](std::string_view name) -> MenuTree::Command {
        return name == "mnuHelpAbout" ? MenuTree::Command([&second] { ++second; })
                                      : MenuTree::Command();
    });
    tree.Action("mnuHelpAbout")->trigger();
    EXPECT_EQ(first, 1);
    EXPECT_EQ(second, 1);

    // Unbound: hidden, and a stray trigger runs nothing.
    tree.Bind(&MenuTreeTest::Nothing);
    tree.Action("mnuHelpAbout")->trigger();
    EXPECT_EQ(second, 1);
    EXPECT_FALSE(tree.Action("mnuHelpAbout")->isVisible());
}

TEST_F(MenuTreeTest, OpeningABarMenuTellsItsLinkIndex) {
    QSignalSpy shown(&tree, &MenuTree::AboutToShow);
    emit tree.Menu("mnuReports")->aboutToShow();
    emit tree.Menu("mnuRClick")->aboutToShow();
    ASSERT_EQ(shown.count(), 1);
    EXPECT_EQ(shown.at(0).at(0).toInt(), 3);
}

} // namespace
} // namespace coinlight
