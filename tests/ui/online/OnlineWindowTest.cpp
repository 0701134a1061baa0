// The online commands of the main window against a web server of the test's own on
// 127.0.0.1: the news, the update check, the artwork and samples downloads.
#include <QMenuBar>
#include <QPushButton>
#include <QRadioButton>
#include <QTest>
#include <QTextBrowser>
#include <QTextCursor>
#include <QTimer>

#include "MainWindowFixture.h"
#include "TestHttpServer.h"
#include "core/ProfileFile.h"
#include "ui/online/DownloadPage.h"

namespace coinlight::test {
namespace {

using namespace std::chrono_literals;

class OnlineWindow : public MainWindowFixture {
protected:
    OnlineWindow() {
        AddRom("pacman");
        AddRom("galaga");
        UseSites(m_server.Site(), m_server.Site(), m_server.Site());
        ::unsetenv("COINLIGHT_IDE");
    }

    static void UseSites(const std::string& project, const std::string& artwork,
                         const std::string& samples) {
        ::setenv("COINLIGHT_SITE", project.c_str(), 1);
        ::setenv("COINLIGHT_ARTWORK_SITE", artwork.c_str(), 1);
        ::setenv("COINLIGHT_SAMPLES_SITE", samples.c_str(), 1);
    }

    /// options.ini as every start needs it, with a key of the test's own added.
    void WriteOption(const char* section, const char* key, const std::string& value) {
        if (!FileExists(m_context.data.OptionsIni())) {
            WriteOptions();
        }
        WriteProfileValue(m_context.data.OptionsIni(), section, key, value);
    }
    std::string StoredNews() const {
        return ReadProfileValue(m_context.data.OptionsIni(), "Miscellaneous", "News", "none");
    }

    bool OnNewsPage() {
        return Controls().pages->currentWidget() == Controls().fraVerify &&
               Controls().fraVerify->title() == "Coinlight News";
    }
    bool Bold(int position) {
        QTextCursor cursor(Controls().rtfVerify->document());
        cursor.setPosition(position + 1);
        return cursor.charFormat().fontWeight() == QFont::Bold;
    }
    const ScriptedPrompter::Prompt& LastPrompt() const { return m_prompter.Prompts().back(); }
    std::string Launches() const { return ReadFile(m_mame.Launches()); }

    TestHttpServer m_server;
};

TEST_F(OnlineWindow, TheNewsCommandShowsTheNewsWithItsDateInBoldAndRemembersTheDate) {
    m_server.Serve("/news.txt", "02/14/26 Coinlight Heritage 26.02.0 \r\nWhat is new.\r\n");
    ASSERT_TRUE(Load()) << Told();
    Controls().mnuHelpNews->trigger();
    EXPECT_TRUE(OnNewsPage());
    EXPECT_TRUE(Controls().rtfVerify->toPlainText().startsWith("02/14/26 Coinlight Heritage"));
    EXPECT_TRUE(Controls().rtfVerify->toPlainText().contains("What is new."));
    EXPECT_TRUE(Bold(0));
    EXPECT_TRUE(Bold(8));
    EXPECT_FALSE(Bold(9));
    EXPECT_EQ(StoredNews(), "2026-02-14");
    EXPECT_TRUE(m_prompter.Prompts().empty()) << Told();
    EXPECT_TRUE(Panel(2).isEmpty()) << "the panel is cleared under the news";
    Form().ReturnList1();
    EXPECT_EQ(Controls().pages->currentWidget(), Controls().fraList);
}

TEST_F(OnlineWindow, TheNewsCommandTellsWhenThereIsNoNewsToShow) {
    m_server.Serve("/news.txt", "garbage! no date here");
    WriteOption("Miscellaneous", "News", "2020-01-01");
    ASSERT_TRUE(Load()) << Told();
    Form().News();
    ASSERT_EQ(m_prompter.Prompts().size(), 1u);
    EXPECT_EQ(LastPrompt().title, "Coinlight News");
    EXPECT_TRUE(LastPrompt().text.startsWith("Error in News: ")) << Told();
    EXPECT_FALSE(OnNewsPage());
    EXPECT_EQ(StoredNews(), "2020-01-01");

    ::setenv("COINLIGHT_SITE", "", 1);
    ASSERT_TRUE(Load()) << Told();
    Form().News();
    EXPECT_EQ(LastPrompt().title, "Coinlight News");
    EXPECT_EQ(LastPrompt().icon, PromptIcon::Information);
    EXPECT_EQ(LastPrompt().text, "Unable to retrieve news.  This may mean that you are not "
                                 "connected to the Internet or there is a problem with the "
                                 "website.");

    ::setenv("COINLIGHT_SITE",
             ("http://127.0.0.1:" + std::to_string(TestHttpServer::ClosedPort())).c_str(), 1);
    ASSERT_TRUE(Load()) << Told();
    Form().News();
    EXPECT_EQ(m_prompter.Prompts().size(), 3u);
    EXPECT_TRUE(LastPrompt().text.startsWith("Unable to retrieve news."));
}

TEST_F(OnlineWindow, TheUpdateCheckComparesTheVersionInTheHead) {
    ASSERT_TRUE(Load()) << Told();
    const auto check = [this](const std::string& news) {
        m_server.Serve("/news.txt", news);
        const std::size_t before = m_prompter.Prompts().size();
        Controls().mnuHelpUpdate->trigger();
        return m_prompter.Prompts().size() == before ? QString() : LastPrompt().text;
    };
    EXPECT_EQ(check("02/14/26 Coinlight Heritage 26.03.0 is out"),
              QString::fromStdString("A new version of Coinlight is available.\r\nGet it at " +
                                     m_server.Site() + "."));
    EXPECT_EQ(LastPrompt().title, "Check For Update");
    EXPECT_EQ(LastPrompt().icon, PromptIcon::Information);
    EXPECT_EQ(check("02/14/26 Heritage 26.02.0 "),
              "No update available.  You have the latest version of Coinlight.");
    EXPECT_EQ(check("02/14/26 Heritage 0.0.0 "), QString()) << "below 1: not a word";
    EXPECT_TRUE(check("02/14/26 Heritage x.y.z ").startsWith("Error in Update: "));
    EXPECT_EQ(LastPrompt().title, "Check For Update");
    EXPECT_TRUE(check(std::string(130, '-') + " Heritage 27.01.0 ").startsWith("Error in Update: "))
        << "the version must stand in the first 128 characters";

    m_server.Serve("/news.txt", "02/14/26 The whole news, not just its head.");
    Form().News();
    EXPECT_TRUE(Controls().rtfVerify->toPlainText().startsWith("02/14/26 The whole news"));
}

TEST_F(OnlineWindow, TheUpdateCheckWithoutASiteOrAServerTellsSo) {
    ::setenv("COINLIGHT_SITE", "", 1);
    ASSERT_TRUE(Load()) << Told();
    Form().Update();
    ASSERT_EQ(m_prompter.Prompts().size(), 1u);
    EXPECT_EQ(LastPrompt().title, "Check For Update");
    EXPECT_EQ(LastPrompt().text, "Error checking for update.  This may mean that you are not "
                                 "connected to the Internet or there is a problem with the "
                                 "website.");
}

TEST_F(OnlineWindow, AtStartOnlyNewerNewsIsShown) {
    WriteOption("Miscellaneous", "News", "2026-02-14");
    ASSERT_TRUE(Load()) << Told();
    m_server.Serve("/news.txt", "02/14/26 same day as last time");
    Form().NewsAtStart();
    EXPECT_FALSE(OnNewsPage()) << "the same date is not news";
    m_server.Serve("/news.txt", "01/02/25 older");
    Form().NewsAtStart();
    EXPECT_FALSE(OnNewsPage());
    m_server.Serve("/news.txt", "garbage! and more");
    Form().NewsAtStart();
    EXPECT_FALSE(OnNewsPage());
    EXPECT_TRUE(m_prompter.Prompts().empty()) << "a bad date ends the step without a word";
    EXPECT_EQ(StoredNews(), "2026-02-14");

    m_server.Serve("/news.txt", "02/15/26 newer");
    Form().NewsAtStart();
    EXPECT_TRUE(OnNewsPage());
    EXPECT_EQ(StoredNews(), "2026-02-15");
    EXPECT_TRUE(Bold(0));
}

TEST_F(OnlineWindow, WithNoDateStoredYetNewsOfTheLastFiveYearsShows) {
    const std::chrono::year_month_day lastYear(YearsBefore(Today(), 1));
    char date[16];
    std::snprintf(date, sizeof date, "%02u/%02u/%02d", static_cast<unsigned>(lastYear.month()),
                  static_cast<unsigned>(lastYear.day()), static_cast<int>(lastYear.year()) % 100);
    m_server.Serve("/news.txt", std::string(date) + " A year old and never seen.");
    ASSERT_TRUE(Load()) << Told();
    Form().NewsAtStart();
    EXPECT_TRUE(OnNewsPage());
    EXPECT_EQ(StoredNews(), DayText(YearsBefore(Today(), 1)));
}

TEST_F(OnlineWindow, ASemicolonInTheNinthPlaceShowsTheNewsAtEveryStart) {
    WriteOption("Miscellaneous", "News", "2026-02-14");
    m_server.Serve("/news.txt", "01/01/20;Everybody must read this.");
    for (int start = 0; start < 2; ++start) {
        ASSERT_TRUE(Load()) << Told();
        Form().NewsAtStart();
        EXPECT_TRUE(OnNewsPage()) << "start " << start;
        EXPECT_EQ(StoredNews(), "1899-12-30") << "the empty date";
    }
    m_server.Serve("/news.txt", "01/01/20 A dated one is new again.");
    ASSERT_TRUE(Load()) << Told();
    Form().NewsAtStart();
    EXPECT_TRUE(OnNewsPage());
    EXPECT_EQ(StoredNews(), "2020-01-01");
}

TEST_F(OnlineWindow, WithoutASiteTheStartSaysNothingWithoutAServerItTells) {
    ::setenv("COINLIGHT_SITE", "", 1);
    ASSERT_TRUE(Load()) << Told();
    Form().NewsAtStart();
    EXPECT_TRUE(m_prompter.Prompts().empty()) << Told();
    EXPECT_TRUE(m_server.Requests().empty());

    ::setenv("COINLIGHT_SITE",
             ("http://127.0.0.1:" + std::to_string(TestHttpServer::ClosedPort())).c_str(), 1);
    ASSERT_TRUE(Load()) << Told();
    Form().NewsAtStart();
    ASSERT_EQ(m_prompter.Prompts().size(), 1u);
    EXPECT_EQ(LastPrompt().title, "Coinlight News");
    EXPECT_TRUE(LastPrompt().text.startsWith("Unable to retrieve news."));
    EXPECT_FALSE(OnNewsPage());
}

class ArtworkDoubleClick : public OnlineWindow {
protected:
    ArtworkDoubleClick() {
        std::filesystem::create_directories(Cabinet());
        WriteFile(m_folder / "art" / "other" / "galaga.zip", "artwork of galaga");
        WriteOption("Core Search Path Options", "Artwork",
                    (m_folder / "art" / "other").string() + ";" + Cabinet().string());
        m_server.Serve("/artwork/pacman.zip", "artwork of pacman");
    }
    std::filesystem::path Cabinet() const { return m_folder / "art" / "cabinet"; }

    void DoubleClick(const std::string& machine, bool shift) {
        MachineListView& list = *Controls().lvAvailable;
        list.SelectRow(list.Model().RowOfShortName(machine));
        list.setFocus();
        if (shift) {
            QTest::keyPress(&list, Qt::Key_Shift, Qt::ShiftModifier);
        }
        emit list.RowActivated(list.SelectedRow());
        if (shift) {
            QTest::keyRelease(&list, Qt::Key_Shift, Qt::ShiftModifier);
        }
    }
};

TEST_F(ArtworkDoubleClick, ShiftFetchesTheArtworkOfAMachineThatHasNone) {
    ASSERT_TRUE(Load()) << Told();
    Form().ViewAvailableArcade();
    std::filesystem::remove(m_mame.Launches());
    DoubleClick("pacman", true);
    EXPECT_EQ(ReadFile(Cabinet() / "pacman.zip"), "artwork of pacman")
        << "into the last cabinet folder of the Artwork paths";
    EXPECT_EQ(Panel(1), " Download Successful");
    EXPECT_EQ(m_server.Requests(), std::vector<std::string>{"/artwork/pacman.zip"});
    EXPECT_EQ(Launches(), "") << "nothing was started";

    DoubleClick("pacman", false);
    EXPECT_NE(Launches().find("\tpacman\n"), std::string::npos) << "without Shift it starts";
}

TEST_F(ArtworkDoubleClick, ShiftStartsAMachineThatHasArtwork) {
    ASSERT_TRUE(Load()) << Told();
    Form().ViewAvailableArcade();
    std::filesystem::remove(m_mame.Launches());
    DoubleClick("galaga", true);
    EXPECT_NE(Launches().find("\tgalaga\n"), std::string::npos) << Told();
    EXPECT_TRUE(m_server.Requests().empty());
}

TEST_F(ArtworkDoubleClick, AFailedDownloadSaysSoAndLeavesNoFile) {
    m_server.Serve("/artwork/pacman.zip",
                   {"half a zip file", 200, TestHttpServer::Manner::CutShort});
    ASSERT_TRUE(Load()) << Told();
    Form().ViewAvailableArcade();
    DoubleClick("pacman", true);
    EXPECT_EQ(Panel(1), " Download Failed");
    EXPECT_EQ(CountFiles(Cabinet()), 0u);
}

TEST_F(ArtworkDoubleClick, AReleasedShiftOrAnUnavailableMachineStartsNoDownload) {
    ASSERT_TRUE(Load()) << Told();
    Form().ViewAvailableArcade();
    MachineListView& list = *Controls().lvAvailable;
    list.SelectRow(list.Model().RowOfShortName("pacman"));
    QTest::keyPress(&list, Qt::Key_Shift, Qt::ShiftModifier);
    QTest::keyRelease(&list, Qt::Key_Shift);
    emit list.RowActivated(list.SelectedRow());
    EXPECT_TRUE(m_server.Requests().empty());

    Form().ViewUnavailableArcade();
    MachineListView& unavailable = *Controls().lvUnavailable;
    QTest::keyPress(&unavailable, Qt::Key_Shift, Qt::ShiftModifier);
    emit unavailable.RowActivated(0);
    EXPECT_EQ(LastPrompt().title, "Start");
    EXPECT_EQ(LastPrompt().text, "This ROM is unavailable.");
    EXPECT_EQ(LastPrompt().icon, PromptIcon::Information);
    EXPECT_TRUE(m_server.Requests().empty());
}

class BulkDownload : public OnlineWindow {
protected:
    BulkDownload() { ::setenv("COINLIGHT_IDE", "1", 1); }

    template <class Widget> Widget* Find(const char* name) {
        auto* widget = Controls().fraDownload->findChild<Widget*>(QString::fromLatin1(name));
        EXPECT_NE(widget, nullptr) << name;
        return widget;
    }
    QString Status() { return Find<QLabel>("lblDownloadStatus")->text(); }
    void Download(const char* option) {
        if (option != nullptr) {
            Find<QRadioButton>(option)->setChecked(true);
        }
        Find<QPushButton>("cmdArtSamDL")->click();
    }
    std::filesystem::path Folder(const char* name) const { return m_context.data.root / name; }
};

TEST_F(BulkDownload, ArtworkOfEveryMachineIsTriedInListOrder) {
    ASSERT_TRUE(Load()) << Told();
    EXPECT_TRUE(Controls().fraDownload->isVisibleTo(&Form())) << "a development run shows it";
    const std::vector<std::string> names = Names(*Controls().lvAll);
    ASSERT_GE(names.size(), 3u);
    m_server.Serve("/artwork/" + names[0] + ".zip", "first");
    m_server.Serve("/artwork/" + names[2] + ".zip", "third");
    Download("optArtDownload");
    EXPECT_EQ(Status(), "Operation Completed");
    ASSERT_EQ(m_server.Requests().size(), names.size());
    for (std::size_t i = 0; i < names.size(); ++i) {
        EXPECT_EQ(m_server.Requests()[i], "/artwork/" + names[i] + ".zip");
    }
    EXPECT_EQ(ReadFile(Folder("artworkdl") / (names[0] + ".zip")), "first");
    EXPECT_EQ(ReadFile(Folder("artworkdl") / (names[2] + ".zip")), "third");
    EXPECT_EQ(CountFiles(Folder("artworkdl")), 2u) << "the failures left nothing";
    EXPECT_TRUE(Find<QPushButton>("cmdArtSamDL")->isEnabled());
    EXPECT_FALSE(Find<QPushButton>("cmdCancelDownload")->isEnabled());
}

TEST_F(BulkDownload, SamplesAreTriedOnlyWhereMameListsSome) {
    // MAME's answers of this test's own, beside copies of the shared fixtures.
    const auto shared = std::filesystem::canonical(m_mame.Data());
    std::filesystem::remove(m_mame.Data());
    std::filesystem::copy(shared, m_mame.Data());
    WriteFile(m_mame.Data() / "listsamples.txt", "Samples required for driver.\r\n");
    WriteFile(m_mame.Data() / "listsamples-galaga.txt",
              "Samples required for driver \"galaga\".\r\nbang\r\n");
    m_server.Serve("/download?tipo=samples&file=/samples/zip/galaga.zip", "samples of galaga");
    ASSERT_TRUE(Load()) << Told();
    Download("optSamDownload");
    EXPECT_EQ(Status(), "Operation Completed");
    EXPECT_EQ(m_server.Requests(),
              std::vector<std::string>{"/download?tipo=samples&file=/samples/zip/galaga.zip"});
    EXPECT_EQ(ReadFile(Folder("samplesdl") / "galaga.zip"), "samples of galaga");
    EXPECT_FALSE(FileExists(m_context.data.Temp() / "lsamples.txt"));
    EXPECT_NE(Launches().find("\tpacman\t-listsamples\n"), std::string::npos)
        << "every machine was asked";
}

TEST_F(BulkDownload, CancelStopsTheJobAndKeepsWhatWasFetched) {
    ASSERT_TRUE(Load()) << Told();
    const std::vector<std::string> names = Names(*Controls().lvAll);
    m_server.Serve("/artwork/" + names[0] + ".zip", "quick");
    for (std::size_t i = 1; i < names.size(); ++i) {
        m_server.Serve("/artwork/" + names[i] + ".zip",
                       {std::string(4000, 'z'), 200, TestHttpServer::Manner::Slowly, 100, 100ms});
    }
    // Cancel is pressed while the second machine's transfer runs.
    const QString second = QString::fromStdString("Trying " + names[1] + ".zip");
    QTimer watch;
    QObject::connect(&watch, &QTimer::timeout, [this, &second] {
        if (Status() == second && m_server.Requests().size() == 2) {
            Find<QPushButton>("cmdCancelDownload")->click();
        }
    });
    watch.start(20);
    Download("optArtDownload");
    EXPECT_EQ(Status(), "Operation Cancelled");
    EXPECT_EQ(ReadFile(Folder("artworkdl") / (names[0] + ".zip")), "quick");
    EXPECT_EQ(CountFiles(Folder("artworkdl")), 1u) << "the cut transfer left nothing";
    EXPECT_EQ(m_server.Requests().size(), 2u);
    EXPECT_TRUE(Find<QPushButton>("cmdArtSamDL")->isEnabled());
}

TEST_F(BulkDownload, WithNeitherOptionOrWithoutASiteNothingIsFetched) {
    ASSERT_TRUE(Load()) << Told();
    Download(nullptr);
    EXPECT_EQ(Status(), "");
    EXPECT_TRUE(m_server.Requests().empty());
    EXPECT_FALSE(FileExists(Folder("artworkdl")));

    ::setenv("COINLIGHT_ARTWORK_SITE", "", 1);
    ASSERT_TRUE(Load()) << Told();
    Download("optArtDownload");
    EXPECT_TRUE(m_server.Requests().empty());
    EXPECT_TRUE(LastPrompt().text.contains("COINLIGHT_ARTWORK_SITE")) << Told();
}

TEST_F(OnlineWindow, TheDownloadPageIsHiddenInAnOrdinaryRunAndHelpEndsTheMenuBar) {
    ASSERT_TRUE(Load()) << Told();
    EXPECT_FALSE(Controls().fraDownload->isVisibleTo(&Form()));
    const QList<QAction*> menus = Controls().menuBar->actions();
    ASSERT_FALSE(menus.isEmpty());
    EXPECT_EQ(menus.back()->menu(), Controls().mnuHelp);
    const QList<QAction*> help = Controls().mnuHelp->actions();
    const auto news = help.indexOf(Controls().mnuHelpNews);
    ASSERT_GT(news, 0) << "behind the documents";
    ASSERT_LT(news + 1, help.size());
    EXPECT_EQ(help[news + 1], Controls().mnuHelpUpdate);
    EXPECT_EQ(Controls().mnuHelpNews->text(), "Coinlight News");
    EXPECT_EQ(Controls().mnuHelpUpdate->text(), "Check For Update");
}

} // namespace
} // namespace coinlight::test
