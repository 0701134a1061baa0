#pragma once

#include <chrono>
#include <map>
#include <string>
#include <vector>

#include <QObject>
#include <QTcpServer>

class QTcpSocket;

namespace coinlight::test {

/// A small web server on 127.0.0.1 for the tests of the online services. It runs on the
/// test's own event loop, which the transfers under test spin, and answers each path the
/// way the test set: whole, never, slowly, cut short, or with an error page.
class TestHttpServer final : public QObject {
public:
    enum class Manner {
        Whole,   // the status line, the headers and the body at once
        Silent,  // reads the request and never answers
        Slowly,  // the whole answer in pieces of `pieceSize` bytes, one every `interval`
        CutShort // promises the body's length, sends half of it, then hangs up
    };
    struct Answer {
        std::string body;
        int status = 200;
        Manner manner = Manner::Whole;
        std::size_t pieceSize = 16;
        std::chrono::milliseconds interval{100};
    };

    TestHttpServer();

    /// The address of the server with `path` behind it, e.g. "http://127.0.0.1:4711/news.txt".
    std::string Url(const std::string& path = {}) const;
    /// The address alone, as a site address is given.
    std::string Site() const { return Url(); }

    void Serve(const std::string& path, Answer answer) { m_answers[path] = std::move(answer); }
    void Serve(const std::string& path, const std::string& body, int status = 200) {
        Serve(path, Answer{body, status});
    }

    /// The paths asked for, in order, query included.
    const std::vector<std::string>& Requests() const { return m_requests; }
    /// The header lines of the last request.
    const std::string& LastHeaders() const { return m_lastHeaders; }

    /// A port on 127.0.0.1 where nothing listens.
    static quint16 ClosedPort();

private:
    void Accept();
    void Respond(QTcpSocket* socket, const std::string& request);
    void Trickle(QTcpSocket* socket, std::string rest, std::size_t pieceSize,
                 std::chrono::milliseconds interval);

    QTcpServer m_server;
    std::map<std::string, Answer> m_answers;
    std::vector<std::string> m_requests;
    std::string m_lastHeaders;
};

} // namespace coinlight::test
