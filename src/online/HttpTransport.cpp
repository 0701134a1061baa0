#include "HttpTransport.h"

#include <cstdint>
#include <limits>

#include <QEventLoop>
#include <QNetworkAccessManager>
#include <QNetworkProxy>
#include <QNetworkReply>
#include <QNetworkRequest>
#include <QTimer>
#include <QUrl>

#include "UrlText.h"
#include "core/AtomicFileWriter.h"

namespace coinlight {

namespace {

/// What the server sees as the client's name, kept from the program's first releases.
constexpr const char* kAgent = "vb wininet";
constexpr std::chrono::milliseconds kCancelPoll{100};

bool IsWebAddress(const QUrl& url) {
    const QString scheme = url.scheme().toLower();
    return url.isValid() && !url.host().isEmpty() &&
           (scheme == QStringLiteral("http") || scheme == QStringLiteral("https"));
}

/// An error that only reports the server's status line (404, 500 ...): the body, a page
/// about the error, arrived whole all the same.
bool IsStatusError(QNetworkReply::NetworkError error) {
    return (error >= QNetworkReply::ContentAccessDenied &&
            error <= QNetworkReply::UnknownContentError) ||
           (error >= QNetworkReply::InternalServerError &&
            error <= QNetworkReply::UnknownServerError);
}

QNetworkRequest FreshRequest(const QUrl& url) {
    QNetworkRequest request(url);
    request.setHeader(QNetworkRequest::UserAgentHeader, QByteArray(kAgent));
    // A copy from a cache must never stand in for the file on the site.
    request.setAttribute(QNetworkRequest::CacheLoadControlAttribute,
                         QNetworkRequest::AlwaysNetwork);
    request.setAttribute(QNetworkRequest::CacheSaveControlAttribute, false);
    // The bytes as the server holds them: the announced length then counts what arrives.
    request.setRawHeader("Accept-Encoding", "identity");
    return request;
}

struct TransferReport {
    bool answered = false;  // the server's headers arrived
    bool complete = false;  // the body arrived whole, or as far as the caller wanted
    bool cancelled = false; // by the caller, or because the program is closing
    int status = 0;         // the HTTP status, 0 when there was none
};

/// Takes the body as it arrives; false stops the transfer (a disk that is full).
using Sink = std::function<bool(std::string_view bytes)>;

/// One reply followed to its end on a local event loop, so that the window goes on while
/// the caller waits: the connect time-out until the request is out, then the receive
/// time-out between pieces of the answer, the caller's read limit and its Cancel.
class ReplyRun {
public:
    ReplyRun(QNetworkReply* reply, const TransferTimeouts& timeouts, std::size_t limit,
             const Sink& sink, const std::function<bool()>& cancelled)
        : m_reply(reply), m_timeouts(timeouts), m_limit(limit), m_sink(sink),
          m_cancelled(cancelled) {
        m_deadline.setSingleShot(true);
        // A coarse timer may fire up to 5 % early; a time-out is a promise to the server.
        m_deadline.setTimerType(Qt::PreciseTimer);
        QObject::connect(reply, &QNetworkReply::requestSent, &m_loop, [this] { Alive(); });
        QObject::connect(reply, &QNetworkReply::metaDataChanged, &m_loop, [this] {
            m_report.answered = true;
            Alive();
        });
        QObject::connect(reply, &QNetworkReply::readyRead, &m_loop, [this] {
            Alive();
            Drain();
        });
        QObject::connect(reply, &QNetworkReply::finished, &m_loop, &QEventLoop::quit);
        QObject::connect(&m_deadline, &QTimer::timeout, &m_loop, [this] { Expire(); });
        if (m_cancelled) {
            QObject::connect(&m_cancelPoll, &QTimer::timeout, &m_loop, [this] {
                if (m_cancelled()) {
                    m_report.cancelled = true;
                    Stop();
                }
            });
        }
    }

    TransferReport Wait() {
        m_deadline.start(m_timeouts.connect);
        if (m_cancelled) {
            m_cancelPoll.start(kCancelPoll);
        }
        if (!m_reply->isFinished()) {
            m_loop.exec();
        }
        if (!m_reply->isFinished()) {
            // The loop was told to end from outside: the program is closing.
            m_report.cancelled = true;
            m_reply->abort();
        }
        if (!m_report.cancelled) {
            Drain();
        }
        const QNetworkReply::NetworkError error = m_reply->error();
        m_report.status = m_reply->attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt();
        m_report.answered = m_report.answered || m_report.status != 0;
        m_report.complete =
            !m_sinkFailed &&
            (m_limitReached ||
             ((error == QNetworkReply::NoError || IsStatusError(error)) && HasPromisedLength()));
        return m_report;
    }

private:
    void Alive() {
        ++m_signsOfLife;
        m_deadline.start(m_timeouts.receive);
    }

    /// The transfer's own thread may have posted news that a busy machine has not delivered
    /// yet: the time-out counts only once that has been seen.
    void Expire() {
        const std::uint64_t seen = m_signsOfLife;
        QMetaObject::invokeMethod(
            &m_loop,
            [this, seen] {
                if (m_signsOfLife == seen) {
                    Stop();
                }
            },
            Qt::QueuedConnection);
    }

    /// A server that hangs up before the length it announced is sometimes reported as done:
    /// the count of the bytes that came is what tells.
    bool HasPromisedLength() const {
        const QVariant length = m_reply->header(QNetworkRequest::ContentLengthHeader);
        return !length.isValid() || length.toULongLong() == m_received;
    }

    void Drain() {
        while (!m_limitReached && !m_sinkFailed && m_reply->bytesAvailable() > 0) {
            // Never more than is there: a read reserves all it may take before reading.
            const auto room = static_cast<qint64>(std::min<std::size_t>(
                m_limit - m_received, static_cast<std::size_t>(m_reply->bytesAvailable())));
            const QByteArray chunk = m_reply->read(room);
            if (chunk.isEmpty()) {
                break;
            }
            m_received += static_cast<std::size_t>(chunk.size());
            m_sinkFailed = !m_sink(std::string_view(chunk.constData(), chunk.size()));
            m_limitReached = m_received >= m_limit;
        }
        if (m_limitReached || m_sinkFailed) {
            Stop();
        }
    }

    void Stop() {
        if (m_reply->isRunning()) {
            m_reply->abort();
        }
    }

    QNetworkReply* m_reply;
    const TransferTimeouts& m_timeouts;
    const std::size_t m_limit;
    const Sink& m_sink;
    const std::function<bool()>& m_cancelled;
    QEventLoop m_loop;
    QTimer m_deadline;
    QTimer m_cancelPoll;
    TransferReport m_report;
    std::size_t m_received = 0;
    bool m_limitReached = false;
    bool m_sinkFailed = false;
    std::uint64_t m_signsOfLife = 0;
};

TransferReport Transfer(QNetworkAccessManager& manager, const TransferTimeouts& timeouts,
                        const std::string& url, std::size_t limit, const Sink& sink,
                        const std::function<bool()>& cancelled) {
    const QUrl address(QString::fromStdString(url));
    if (!IsWebAddress(address)) {
        return {};
    }
    QNetworkReply* reply = manager.get(FreshRequest(address));
    const TransferReport report = ReplyRun(reply, timeouts, limit, sink, cancelled).Wait();
    reply->deleteLater();
    return report;
}

} // namespace

HttpTransport::HttpTransport(TransferTimeouts timeouts)
    : m_timeouts(timeouts), m_manager(std::make_unique<QNetworkAccessManager>()) {
    m_manager->setProxy(QNetworkProxy::NoProxy);
}

HttpTransport::~HttpTransport() = default;

std::string HttpTransport::GetUrlText(const std::string& url) {
    std::string body;
    const TransferReport report =
        Transfer(*m_manager, m_timeouts, url, UrlTextReadLimit(m_firstChunkOnly),
                 [&body](std::string_view bytes) {
                     body.append(bytes);
                     return true;
                 },
                 {});
    std::optional<std::string> answer;
    if (report.answered) {
        answer = std::move(body);
    }
    return AssembleUrlText(answer, m_firstChunkOnly);
}

DownloadOutcome HttpTransport::DownloadToFile(const std::string& url,
                                              const std::filesystem::path& file,
                                              const std::function<bool()>& cancelled) {
    AtomicFileWriter writer(file);
    if (!writer.IsOpen()) {
        return DownloadOutcome::Failed;
    }
    const TransferReport report = Transfer(
        *m_manager, m_timeouts, url, std::numeric_limits<std::size_t>::max(),
        [&writer](std::string_view bytes) {
            writer.Write(bytes);
            return writer.Error().empty();
        },
        cancelled);
    if (report.cancelled) {
        return DownloadOutcome::Cancelled;
    }
    const bool good = report.complete && report.status >= 200 && report.status < 300;
    return good && writer.Commit() ? DownloadOutcome::Succeeded : DownloadOutcome::Failed;
}

} // namespace coinlight
