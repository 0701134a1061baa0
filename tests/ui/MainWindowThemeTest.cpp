// Every theme on the whole window: the form, the list, link and version colours as the theme
// table says, the red of the other list's missing machines kept, and the user's list colour.
#include <QApplication>
#include <QPalette>

#include "MainWindowFixture.h"
#include "ui/ColourConvert.h"
#include "ui/LinkLabel.h"
#include "ui/options/PreferenceChoices.h"
#include "ui/theme/MainTheme.h"
#include "ui/theme/Readability.h"
#include "ui/theme/ThemeTable.h"

namespace coinlight::test {
namespace {

class MainWindowTheme : public MainWindowFixture {
protected:
    MainWindowTheme() { AddRom("pacman"); }

    bool Apply(const std::string& theme, Colour listText = Colour{0xFFFFFFu}) {
        OtherPreferences look = m_context.preferences.other;
        look.theme = theme;
        look.listFontColor = listText;
        return ApplyTheme(Form(), Controls(), look, m_prompter);
    }
    QColor Table(Colour colour) { return ToQColor(colour, QApplication::palette()); }
};

TEST_F(MainWindowTheme, EveryThemeColoursTheFormLinksAndVersionAsItsTableSays) {
    ASSERT_TRUE(Load()) << Told();
    for (const std::string_view name : kThemeNames) {
        SCOPED_TRACE(std::string(name));
        ASSERT_TRUE(Apply(std::string(name), Colour{0}));
        const Theme& theme = *FindTheme(name);
        EXPECT_EQ(Form().palette().color(QPalette::Window), Table(theme.back));
        EXPECT_EQ(Form().palette().color(QPalette::WindowText), Table(theme.text));
        EXPECT_EQ(Controls().lblVersion->palette().color(QPalette::WindowText),
                  Table(theme.version));
        EXPECT_EQ(Controls().lblMLinks[0]->palette().color(QPalette::Link), Table(theme.menuLinks));
        EXPECT_EQ(Controls().lblBLinks[LinkStart]->palette().color(QPalette::Link),
                  Table(theme.otherLinks));
    }
}

TEST_F(MainWindowTheme, MissingOtherMachinesStayRedAndTheUserColourNeverReachesThatList) {
    ASSERT_TRUE(Load()) << Told();
    MachineListModel& other = Controls().lvOther->Model();
    ASSERT_GT(other.rowCount(), 0);
    int missing = 0;
    for (const std::string_view name : kThemeNames) {
        SCOPED_TRACE(std::string(name));
        ASSERT_TRUE(Apply(std::string(name), Colour{0x00FF00u}));
        for (int row = 0; row < other.rowCount(); ++row) {
            const MachineRow* machine = other.Row(row);
            if (machine != nullptr && !machine->Available()) {
                ++missing;
                const QColor red = other.ItemColour(row);
                EXPECT_GT(red.red(), red.green());
                EXPECT_GT(red.red(), red.blue());
            }
        }
        EXPECT_NE(Controls().lvOther->palette().color(QPalette::Text), QColor(0, 255, 0));
        EXPECT_EQ(Controls().lvAll->palette().color(QPalette::Text), QColor(0, 255, 0));
    }
    EXPECT_GT(missing, 0) << "the fixture's other list has no missing machine to check";
}

TEST_F(MainWindowTheme, ABlackListColourIsNotAppliedAndTheThemeTextStays) {
    ASSERT_TRUE(Load()) << Told();
    ASSERT_TRUE(Apply("Black", Colour{0}));
    EXPECT_EQ(Controls().lvAll->palette().color(QPalette::Text), QColor(Qt::white));
    EXPECT_TRUE(Readable(Controls().lvAll->palette().color(QPalette::Text),
                         Controls().lvAll->palette().color(QPalette::Base)));
}

TEST_F(MainWindowTheme, AnUnknownThemeIsRefusedWithTheMessage) {
    ASSERT_TRUE(Load()) << Told();
    EXPECT_FALSE(Apply("Chartreuse"));
    EXPECT_NE(Told().find("Unable to find theme."), std::string::npos) << Told();
}

} // namespace
} // namespace coinlight::test
