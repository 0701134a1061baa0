// The window's own chrome and the one menu tree: minimizing rests the layout, the buttons size
// the window, the menu entries reach their commands, and both menu styles show one tree.
#include <QAction>
#include <QApplication>
#include <QLayout>
#include <QMenu>
#include <QMenuBar>

#include "MainWindowFixture.h"
#include "ui/LinkLabel.h"
#include "ui/chrome/WindowButton.h"
#include "ui/menu/MenuTree.h"

namespace coinlight::test {
namespace {

class MainWindowChrome : public MainWindowFixture {
protected:
    MainWindowChrome() { AddRom("pacman"); }
};

TEST_F(MainWindowChrome, NothingIsLaidOutWhileMinimizedAndAllOfItOnRestore) {
    ASSERT_TRUE(Load()) << Told();
    Form().show();
    Form().WindowButtonClicked(kMinimizeButton);
    QApplication::processEvents();
    if (!Form().isMinimized()) {
        GTEST_SKIP() << "this platform does not minimize windows";
    }
    EXPECT_FALSE(Form().layout()->isEnabled());
    Form().showNormal();
    QApplication::processEvents();
    EXPECT_TRUE(Form().layout()->isEnabled());
    EXPECT_GT(Controls().lvAll->width(), 0);
}

TEST_F(MainWindowChrome, TheMiddleButtonMaximizesAndRestores) {
    ASSERT_TRUE(Load()) << Told();
    Form().show();
    QApplication::processEvents();
    Form().WindowButtonClicked(kMaximizeButton);
    QApplication::processEvents();
    EXPECT_TRUE(Form().isMaximized());
    EXPECT_EQ(Controls().imgWindowState[kMaximizeButton]->Picture(), "RestoreN");
    Form().WindowButtonClicked(kMaximizeButton);
    QApplication::processEvents();
    EXPECT_FALSE(Form().isMaximized());
    EXPECT_EQ(Controls().imgWindowState[kMaximizeButton]->Picture(), "MaxN");
}

TEST_F(MainWindowChrome, AMenuEntryReachesItsCommandAndHiddenEntriesHaveNone) {
    ASSERT_TRUE(Load()) << Told();
    Controls().mnuViewAvailable->trigger();
    EXPECT_EQ(Controls().fraList->title().toStdString().rfind("Available Arcade Machines", 0), 0u);
    Controls().mnuViewAll->trigger();
    EXPECT_EQ(Controls().fraList->title().toStdString().rfind("All Arcade Machines", 0), 0u);
    const MenuTree& tree = *Controls().menus;
    for (const char* name : {"mnuViewAll", "mnuReportsVerifyROMs", "mnuAddFavorite", "mnuHelpNews",
                             "mnuToolsCheckOptions", "mnuReportsFind"}) {
        EXPECT_TRUE(tree.HasCommand(name)) << name;
        EXPECT_TRUE(tree.Action(name)->isVisible()) << name;
    }
    // Nothing verifies whole sets yet: the entry does not pretend to.
    EXPECT_FALSE(tree.HasCommand("mnuReportsVerifySets"));
    EXPECT_FALSE(tree.Action("mnuReportsVerifySets")->isVisible());
}

TEST_F(MainWindowChrome, LinksAndTheMenuBarShowTheSameMenus) {
    ASSERT_TRUE(Load()) << Told();
    Form().show();
    QApplication::processEvents();
    const auto& links = Controls().lblMLinks;
    const auto& menus = Controls().menus->BarMenus();
    ASSERT_EQ(menus.size(), links.size());
    const bool useLinks = m_context.preferences.other.useLinks;
    EXPECT_EQ(Controls().menuBar->isVisible(), !useLinks);
    for (std::size_t index = 0; index < links.size(); ++index) {
        EXPECT_EQ(links[index]->isVisible(), useLinks) << index;
        EXPECT_EQ(QString(links[index]->Caption()).remove('&').toStdString(),
                  menus[index]->title().remove('&').toStdString())
            << index;
    }
    QList<QMenu*> barMenus;
    for (QAction* action : Controls().menuBar->actions()) {
        if (action->menu() != nullptr) {
            barMenus.push_back(action->menu());
        }
    }
    EXPECT_EQ(barMenus, QList<QMenu*>(menus.begin(), menus.end()));
}

} // namespace
} // namespace coinlight::test
