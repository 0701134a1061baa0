#include <QPushButton>

#include "OptionsDialogFixture.h"
#include "ui/options/PathField.h"

namespace coinlight::test {
namespace {

using Texts = QStringList;

TEST_F(OptionsDialog, AFirstRunStartsFromTheMameOnThePathAndFillsAroundIt) {
    const std::string games = Folder("games");
    MakeExecutable(m_folder / "games" / "mame");
    Folder("games/roms/arcade/bios");
    m_request.locations.searchPath = "/nowhere:" + games;
    m_request.firstRun = true;
    auto form = Open();
    EXPECT_EQ(Text(*form, "txtMAMEPath"), games + "/mame");
    EXPECT_EQ(Text(*form, "txtArcadeROMPath"),
              games + "/roms/arcade;" + games + "/roms/arcade/bios");
    EXPECT_EQ(Text(*form, "txtMESSROMPath"), "") << "no roms/other beside it";
    EXPECT_EQ(Text(*form, "txtINIPath"), m_context.data.Temp().string());

    m_request.firstRun = false;
    auto fromMenu = Open();
    EXPECT_EQ(Text(*fromMenu, "txtMAMEPath"), "") << "only a first run looks on the path";
}

TEST_F(OptionsDialog, APackagedMameIsAcceptedAsFilled) {
    MakeExecutable(m_folder / "usr" / "games" / "mame");
    const std::string share = m_request.locations.distributionData.string();
    for (const char* name :
         {"hash", "samples", "artwork", "ctrlr", "cheat", "plugins", "language"}) {
        Folder(std::filesystem::path("share") / name);
    }
    const auto roms = m_folder / "home" / ".mame" / "roms";
    m_request.locations.searchPath = (m_folder / "usr" / "games").string();
    m_request.firstRun = true;
    auto form = Open();
    EXPECT_EQ(Text(*form, "txtArcadeROMPath"), roms.string());
    EXPECT_EQ(Text(*form, "txtMESSROMPath"), roms.string())
        << "not there yet, but OK makes it: a first run fills what any later one fills";
    EXPECT_EQ(Text(*form, "txtMESSSoftwarePath"), roms.string());
    EXPECT_EQ(Text(*form, "txtMESSHashPath"), share + "/hash");

    PressOk(*form);
    EXPECT_TRUE(m_prompter.Prompts().empty()) << m_prompter.Texts().join('\n').toStdString();
    EXPECT_TRUE(std::filesystem::is_directory(roms)) << "the user's ROM folder is made";
    EXPECT_EQ(form->result(), QDialog::Accepted);
    EXPECT_TRUE(form->Outcome().accepted);
    EXPECT_FALSE(m_context.flags.closeRequested);
    EXPECT_EQ(m_context.preferences.mame.executable, "mame");
    EXPECT_EQ(m_context.preferences.searchPaths.mame, (m_folder / "usr" / "games").string());
    EXPECT_EQ(ReadBack().searchPaths.samples, share + "/samples");
}

TEST_F(OptionsDialog, ChoosingMameFillsOnlyTheEmptyFields) {
    const std::string mame = Folder("MAME 0.251");
    Folder("MAME 0.251/roms/arcade/device");
    Folder("MAME 0.251/roms/other");
    auto form = Open();
    SetText(*form, "txtSamPath", "/my/samples");
    m_prompter.Queue(QString::fromStdString(mame + "/mame"));
    Click(*form, "cmdSelectMAME");
    EXPECT_EQ(Text(*form, "txtMAMEPath"), mame + "/mame");
    EXPECT_EQ(Text(*form, "txtSamPath"), "/my/samples");
    EXPECT_EQ(Text(*form, "txtMESSROMPath"), mame + "/roms/other");
    EXPECT_EQ(Text(*form, "txtMESSHashPath"), "") << "optional and not there";
    EXPECT_EQ(Text(*form, "txtCheatPath"), mame + "/cheat") << "required: named anyway";

    m_prompter.Queue(QString::fromStdString(mame + "/mame"));
    Click(*form, "cmdSelectMAME");
    EXPECT_EQ(Text(*form, "txtMESSROMPath"), mame + "/roms/other") << "nothing doubled";
    EXPECT_EQ(m_prompter.Prompts().size(), 2u);
    EXPECT_EQ(m_prompter.Prompts()[0].title, "Select your MAME executable.");
}

TEST_F(OptionsDialog, TheBrowsersAddToMultiPathFieldsAndRefuseTheRoot) {
    auto form = Open();
    SetText(*form, "txtArcadeROMPath", "/a");
    m_prompter.Queue(QStringLiteral("/Mixed Case"));
    Click(*form, "cmdSelectArcadeROM");
    EXPECT_EQ(Text(*form, "txtArcadeROMPath"), "/a;/Mixed Case");
    EXPECT_EQ(m_prompter.Prompts()[0].title,
              "Select your Arcade ROMs folder.\nIf you have an existing path, it will be added.");

    SetText(*form, "txtSamPath", "/old");
    m_prompter.Queue(QStringLiteral("/new"));
    Click(*form, "cmdSelectSam");
    EXPECT_EQ(Text(*form, "txtSamPath"), "/new");
    EXPECT_EQ(m_prompter.Prompts()[1].title, "Select your Samples folder.");

    m_prompter.Queue(QStringLiteral("/"));
    Click(*form, "cmdSelectSam");
    m_prompter.Queue(QStringLiteral("/"));
    Click(*form, "cmdSelectArcadeROM");
    EXPECT_EQ(Text(*form, "txtSamPath"), "");
    EXPECT_EQ(Text(*form, "txtArcadeROMPath"), "/a;/Mixed Case");
    EXPECT_EQ(Messages(),
              (Texts{"Samples should not reside in the root.  Please select a folder.",
                     "Arcade ROMs should not reside in the root.  Please select a folder."}));
    EXPECT_EQ(m_prompter.Prompts().back().title, "Coinlight");

    m_prompter.Queue(QStringLiteral("/mame"));
    Click(*form, "cmdSelectMAME");
    EXPECT_EQ(Messages().back(), "MAME should not reside in the root.");
    EXPECT_EQ(m_prompter.Prompts().back().title, "Options");
    EXPECT_EQ(Text(*form, "txtMAMEPath"), "");
    EXPECT_EQ(Text(*form, "txtSamPath"), "") << "nothing is filled around a refused MAME";
}

TEST_F(OptionsDialog, OkCleansDoubledSeparatorsAndSavesOutputFoldersUnchecked) {
    WriteFile(m_context.data.OptionsIni(), "[Core Search Path Options]\r\nCrosshair=/mine\r\n");
    auto form = Open();
    FillValid(*form);
    const std::string a = Folder("Arcade A");
    const std::string b = Folder("arcade b");
    SetText(*form, "txtArcadeROMPath", a + ";;" + b);
    SetText(*form, "txtCheatPath", "/no/cheats/yet");
    SetText(*form, "txtSnapPath", "/made/by/mame/snap");
    PressOk(*form);
    EXPECT_TRUE(m_prompter.Prompts().empty()) << m_prompter.Texts().join('\n').toStdString();
    ASSERT_TRUE(form->Outcome().accepted);
    EXPECT_TRUE(form->Outcome().pathsChanged);
    const Preferences saved = ReadBack();
    EXPECT_EQ(saved.searchPaths.arcadeRoms, a + ";" + b);
    EXPECT_EQ(saved.searchPaths.cheat, "/no/cheats/yet") << "a missing cheat folder is fine";
    EXPECT_EQ(saved.outputPaths.snapshot, "/made/by/mame/snap");
    EXPECT_EQ(saved.searchPaths.mame, (m_folder / "My MAME").string()) << "case and blank kept";
    EXPECT_EQ(saved.searchPaths.ini, m_context.data.Temp().string());
    EXPECT_EQ(saved.searchPaths.crosshair, "/mine");
    EXPECT_EQ(saved.mame.executable, "mame");
}

struct Refusal {
    const char* field;
    std::string text; // relative to the test folder when it starts without '/'
    std::vector<std::string> messages;
    std::string left; // the field's text afterwards
};

TEST_F(OptionsDialog, EachRefusalIsToldKeepsTheDialogOpenAndRepairsTheField) {
    const std::string roms = Folder("roms");
    const std::string more = Folder("more");
    const std::string gone = (m_folder / "gone").string();
    const auto missing = [](const std::string& folder) {
        return "The " + folder + " folder does not exist.  Please select an existing folder.";
    };
    const std::vector<Refusal> refusals = {
        {"txtSamPath", "", {"You must select a Samples folder."}, ""},
        {"txtSamPath", "abc", {"You must select a Samples folder."}, ""},
        {"txtLanguagePath", "/", {"You must select a Language folder."}, ""},
        {"txtSamPath",
         "/x;/y",
         {"The /x;/y folder can only have one path.  Please remove one.", missing("/x;/y")},
         ""},
        {"txtSamPath", gone, {missing(gone)}, ""},
        {"txtMESSHashPath", gone, {missing(gone)}, ""},
        {"txtArcadeROMPath", gone + ";" + roms, {missing(gone)}, roms},
        {"txtArtworkPath", roms + ";;" + gone + ";" + more, {missing(gone)}, roms + ";" + more},
    };
    for (const Refusal& refusal : refusals) {
        SCOPED_TRACE(std::string(refusal.field) + " = " + refusal.text);
        ScriptedPrompter prompter;
        frmOptions form(m_context, prompter, m_request);
        FillValid(form);
        SetText(form, refusal.field, refusal.text);
        PressOk(form);
        QStringList expected;
        for (const std::string& message : refusal.messages) {
            expected << QString::fromStdString(message);
        }
        EXPECT_EQ(MessagesOf(prompter), expected);
        EXPECT_EQ(prompter.Prompts().back().title, "Options");
        EXPECT_EQ(Text(form, refusal.field), refusal.left);
        EXPECT_EQ(form.focusWidget(), Find(form, refusal.field));
        EXPECT_FALSE(Find(form, "cmdOK")->isEnabled()) << "back on the paths page";
        EXPECT_FALSE(form.Outcome().accepted);
        EXPECT_FALSE(OptionsWritten());
    }
}

TEST_F(OptionsDialog, TheMamePathMustNameAnExecutableOutsideTheRoot) {
    const std::vector<std::pair<std::string, std::string>> cases = {
        {"mame", "It appears that something is wrong with your MAME path.  Please try again."},
        {"/usr/games/", "You must select your MAME executable."},
        {"/mame", "MAME should not reside in the root."},
        {"games/mame", "MAME should not reside in the root."},
        {"/opt/nomame/mame",
         "It appears that something is wrong with your MAME path.  Please try again."},
        {(m_folder / "not-a-program").string(),
         "It appears that something is wrong with your MAME path.  Please try again."},
    };
    WriteFile(m_folder / "not-a-program", "text, and not executable");
    for (const auto& [path, message] : cases) {
        ScriptedPrompter prompter;
        frmOptions form(m_context, prompter, m_request);
        FillValid(form);
        SetText(form, "txtMAMEPath", path);
        PressOk(form);
        EXPECT_EQ(prompter.Texts(), Texts{QString::fromStdString(message)}) << path;
        EXPECT_EQ(form.focusWidget(), Find(form, "txtMAMEPath"));
        EXPECT_FALSE(OptionsWritten());
    }
}

TEST_F(OptionsDialog, OtherRomsStayWhileTheOtherMachinesAreOnShow) {
    const std::string other = Folder("other roms");
    m_context.preferences.searchPaths.otherRoms = other;
    m_request.inOtherView = true;
    auto form = Open();
    FillValid(*form);
    SetText(*form, "txtMESSROMPath", "");
    PressOk(*form);
    EXPECT_EQ(m_prompter.Texts(),
              Texts{"You cannot remove the Other ROMs path while viewing Other Machines.  You can "
                    "remove it when you are viewing Arcade Machines.  The original path will "
                    "still be used."});
    EXPECT_TRUE(form->Outcome().accepted);
    EXPECT_EQ(ReadBack().searchPaths.otherRoms, other);
}

TEST_F(OptionsDialog, CancelWritesNothingAndEndsOnlyAFirstRun) {
    MakeExecutable(m_folder / "bin" / "mame");
    m_request.locations.searchPath = (m_folder / "bin").string();
    m_request.firstRun = true;
    auto first = Open();
    EXPECT_FALSE(Text(*first, "txtArcadeROMPath").empty());
    Click(*first, "cmdNext");
    Click(*first, "cmdCancel");
    EXPECT_EQ(first->result(), QDialog::Rejected);
    EXPECT_FALSE(first->Outcome().accepted);
    EXPECT_TRUE(m_context.flags.closeRequested);
    EXPECT_FALSE(OptionsWritten());
    EXPECT_EQ(CountFiles(m_context.data.root), 0u) << "nothing but the folders";
    EXPECT_FALSE(std::filesystem::exists(m_folder / "home")) << "nothing made for MAME either";

    m_context.flags.closeRequested = false;
    m_request.firstRun = false;
    auto fromMenu = Open();
    FillValid(*fromMenu);
    fromMenu->reject(); // Escape or the window's close button
    EXPECT_FALSE(m_context.flags.closeRequested);
    EXPECT_FALSE(OptionsWritten());
}

TEST_F(OptionsDialog, NextAndBackMoveBetweenThePagesAndOkOnlyOnTheSecond) {
    auto form = Open();
    EXPECT_TRUE(Find(*form, "fraPaths")->isVisibleTo(form.get()));
    EXPECT_FALSE(Find(*form, "cmdOK")->isEnabled());
    EXPECT_FALSE(Find(*form, "cmdBack")->isEnabled());
    Click(*form, "cmdNext");
    EXPECT_TRUE(Find(*form, "fraPreferences")->isVisibleTo(form.get()));
    EXPECT_TRUE(Find(*form, "cmdOK")->isEnabled());
    EXPECT_FALSE(Find(*form, "cmdNext")->isEnabled());
    EXPECT_TRUE(Find<QPushButton>(*form, "cmdOK")->isDefault());
    Click(*form, "cmdBack");
    EXPECT_TRUE(Find(*form, "fraPaths")->isVisibleTo(form.get()));
    EXPECT_TRUE(Find<QPushButton>(*form, "cmdNext")->isDefault());
}

TEST_F(OptionsDialog, TheTabKeyWalksThePathsPageInReadingOrder) {
    auto form = Open();
    form->show();
    QStringList expected = {"txtMAMEPath", "cmdSelectMAME"};
    for (const PathFieldInfo& info : PathFields()) {
        if (info.button != nullptr) {
            expected << info.textBox << info.button;
        }
    }
    expected << "cmdNext"
             << "cmdCancel";
    QStringList chain;
    QWidget* widget = Find(*form, "txtMAMEPath");
    do {
        if (widget->isVisible() && widget->isEnabled() && (widget->focusPolicy() & Qt::TabFocus)) {
            chain << widget->objectName();
        }
        widget = widget->nextInFocusChain();
    } while (widget != Find(*form, "txtMAMEPath"));
    EXPECT_EQ(chain, expected);
}

} // namespace
} // namespace coinlight::test
