// The transport against servers of the test's own on 127.0.0.1: whole answers, error pages,
// silence, trickles and transfers cut short.
#include "online/HttpTransport.h"

#include <gtest/gtest.h>

#include <QElapsedTimer>
#include <QTimer>

#include "TestHttpServer.h"
#include "online/UrlText.h"
#include "support/TestFiles.h"

namespace coinlight {
namespace {

using namespace std::chrono_literals;
using test::CountFiles;
using test::ReadFile;
using test::TempFolder;
using test::TestHttpServer;
using test::WriteFile;

std::string Letters(std::size_t size) {
    std::string text;
    for (std::size_t i = 0; i < size; ++i) {
        text.push_back(static_cast<char>('a' + i % 26));
    }
    return text;
}

TEST(HttpTransport, ATextComesBackByTheChunkRule) {
    TestHttpServer server;
    server.Serve("/128.txt", Letters(128));
    server.Serve("/127.txt", Letters(127));
    server.Serve("/100k.txt", Letters(100 * 1024));
    HttpTransport internet;
    EXPECT_EQ(internet.GetUrlText(server.Url("/128.txt")), Letters(128));
    EXPECT_EQ(internet.GetUrlText(server.Url("/127.txt")), Letters(127) + " ");
    EXPECT_EQ(internet.GetUrlText(server.Url("/100k.txt")), Letters(100 * 1024));
    EXPECT_NE(server.LastHeaders().find("User-Agent: vb wininet\r\n"), std::string::npos)
        << server.LastHeaders();
}

TEST(HttpTransport, AnErrorPageIsText) {
    TestHttpServer server;
    server.Serve("/news.txt", "<html>Not here</html>", 404);
    HttpTransport internet;
    EXPECT_EQ(internet.GetUrlText(server.Url("/news.txt")),
              "<html>Not here</html>" + std::string(128 - 21, ' '));
}

TEST(HttpTransport, TheHeadOnlySwitchCarriesOverAFailedOpen) {
    TestHttpServer server;
    server.Serve("/news.txt", Letters(1000));
    HttpTransport internet;
    internet.SetFirstChunkOnly();
    const std::string closed =
        "http://127.0.0.1:" + std::to_string(TestHttpServer::ClosedPort()) + "/news.txt";
    EXPECT_EQ(internet.GetUrlText(closed), "");
    EXPECT_TRUE(internet.FirstChunkOnly());
    EXPECT_EQ(internet.GetUrlText(server.Url("/news.txt")), Letters(128));
    EXPECT_FALSE(internet.FirstChunkOnly());
    EXPECT_EQ(internet.GetUrlText(server.Url("/news.txt")), Letters(1000));
}

TEST(HttpTransport, NobodyListeningIsTheEmptyTextAtOnce) {
    HttpTransport internet;
    QElapsedTimer clock;
    clock.start();
    EXPECT_EQ(internet.GetUrlText(
                  "http://127.0.0.1:" + std::to_string(TestHttpServer::ClosedPort()) + "/news.txt"),
              "");
    EXPECT_LT(clock.elapsed(), 2000) << "a refused connection does not wait for a time-out";
}

TEST(HttpTransport, AServerThatNeverAnswersIsTheEmptyTextAfterTheReceiveTimeOut) {
    TestHttpServer server;
    server.Serve("/news.txt", {"never sent", 200, TestHttpServer::Manner::Silent});
    HttpTransport internet;
    QElapsedTimer clock;
    clock.start();
    EXPECT_EQ(internet.GetUrlText(server.Url("/news.txt")), "");
    EXPECT_GE(clock.elapsed(), 4000);
    EXPECT_LT(clock.elapsed(), 30000);
}

TEST(HttpTransport, ASlowServerIsWaitedForAsLongAsItKeepsSending) {
    TestHttpServer server;
    const std::string body = Letters(300);
    server.Serve("/news.txt", {body, 200, TestHttpServer::Manner::Slowly, 40, 600ms});
    HttpTransport internet;
    QElapsedTimer clock;
    clock.start();
    EXPECT_EQ(internet.GetUrlText(server.Url("/news.txt")), body);
    EXPECT_GT(clock.elapsed(), 4000) << "longer than one receive time-out in all";
}

TEST(HttpTransport, ATextIsCutAtOneMegabyte) {
    TestHttpServer server;
    server.Serve("/huge.txt", std::string(kRemoteTextLimit + 300 * 1024, 'h'));
    HttpTransport internet;
    EXPECT_EQ(internet.GetUrlText(server.Url("/huge.txt")).size(), kRemoteTextLimit);
}

TEST(HttpTransport, OnlyWebAddressesAreFetched) {
    TempFolder folder;
    WriteFile(folder / "secret.txt", "local");
    HttpTransport internet;
    for (const std::string& url : {std::string(), std::string("/news.txt"), std::string("nonsense"),
                                   "file://" + (folder / "secret.txt").string(),
                                   std::string("ftp://127.0.0.1/x"), std::string("http://")}) {
        EXPECT_EQ(internet.GetUrlText(url), "") << url;
    }
}

class Download : public ::testing::Test {
protected:
    std::filesystem::path Target() const { return m_folder / "pacman.zip"; }

    TempFolder m_folder;
    TestHttpServer m_server;
};

TEST_F(Download, AFinishedTransferReplacesTheFile) {
    WriteFile(Target(), "old");
    const std::string zip = "PK\x03\x04" + Letters(70000);
    m_server.Serve("/artwork/pacman.zip", zip);
    HttpTransport internet;
    EXPECT_EQ(internet.DownloadToFile(m_server.Url("/artwork/pacman.zip"), Target()),
              DownloadOutcome::Succeeded);
    EXPECT_EQ(ReadFile(Target()), zip);
    EXPECT_EQ(CountFiles(m_folder.Path()), 1u) << "nothing beside it";
}

TEST_F(Download, AFailureLeavesNoFileAndAnOlderOneUntouched) {
    HttpTransport internet({2000ms, 700ms});
    m_server.Serve("/missing.zip", "<html>404</html>", 404);
    EXPECT_EQ(internet.DownloadToFile(m_server.Url("/missing.zip"), Target()),
              DownloadOutcome::Failed);
    EXPECT_FALSE(std::filesystem::exists(Target())) << "an error page is not a zip";

    // Large, the end of the file comes apart from the hang-up; small, both come at once.
    for (const std::size_t size : {std::size_t{200000}, std::size_t{2000}}) {
        m_server.Serve("/cut.zip", {Letters(size), 200, TestHttpServer::Manner::CutShort});
        EXPECT_EQ(internet.DownloadToFile(m_server.Url("/cut.zip"), Target()),
                  DownloadOutcome::Failed)
            << size;
        EXPECT_FALSE(std::filesystem::exists(Target())) << "no half file under the final name";
    }

    WriteFile(Target(), "old");
    m_server.Serve("/silent.zip", {"x", 200, TestHttpServer::Manner::Silent});
    EXPECT_EQ(internet.DownloadToFile(m_server.Url("/silent.zip"), Target()),
              DownloadOutcome::Failed);
    EXPECT_EQ(ReadFile(Target()), "old");
    EXPECT_EQ(internet.DownloadToFile(
                  "http://127.0.0.1:" + std::to_string(TestHttpServer::ClosedPort()) + "/x.zip",
                  Target()),
              DownloadOutcome::Failed);
    EXPECT_EQ(ReadFile(Target()), "old");
    EXPECT_EQ(CountFiles(m_folder.Path()), 1u) << "no temporary file left behind";
}

TEST_F(Download, ACancelledTransferStopsAndLeavesNothing) {
    m_server.Serve("/slow.zip", {Letters(5000), 200, TestHttpServer::Manner::Slowly, 100, 100ms});
    HttpTransport internet;
    QElapsedTimer sinceCancel;
    int polls = 0;
    // The user presses Cancel some polls into the transfer, while the server still sends.
    const auto cancelled = [this, &sinceCancel, &polls] {
        if (!sinceCancel.isValid() && !m_server.Requests().empty() && ++polls == 4) {
            sinceCancel.start();
        }
        return sinceCancel.isValid();
    };
    EXPECT_EQ(internet.DownloadToFile(m_server.Url("/slow.zip"), Target(), cancelled),
              DownloadOutcome::Cancelled);
    ASSERT_TRUE(sinceCancel.isValid());
    EXPECT_LT(sinceCancel.elapsed(), 2000) << "the transfer ends soon after, not at its end";
    EXPECT_EQ(CountFiles(m_folder.Path()), 0u);
}

TEST_F(Download, AMissingFolderIsAFailure) {
    m_server.Serve("/a.zip", "zip");
    HttpTransport internet;
    EXPECT_EQ(internet.DownloadToFile(m_server.Url("/a.zip"), m_folder / "none" / "a.zip"),
              DownloadOutcome::Failed);
    EXPECT_TRUE(m_server.Requests().empty()) << "nothing is fetched that cannot be kept";
}

} // namespace
} // namespace coinlight
