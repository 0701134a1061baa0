#include "HttpTransport.h"

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
    return request;
}

} // namespace

HttpTransport::HttpTransport(TransferTimeouts timeouts)
    : m_timeouts(timeouts), m_manager(std::make_unique<QNetworkAccessManager>()) {
    m_manager->setProxy(QNetworkProxy::NoProxy);
}

HttpTransport::~HttpTransport() = default;

HttpTransport::Report HttpTransport::Transfer(const std::string& url, std::size_t limit,
                                              const Sink& sink,
                                              const std::function<bool()>& cancelled) {
    Report report;
    const QUrl address(QString::fromStdString(url));
    if (!IsWebAddress(address)) {
        return report;
    }
    QNetworkReply* reply = m_manager->get(FreshRequest(address));
    std::size_t received = 0;
    bool limitReached = false;
    bool sinkFailed = false;
    QEventLoop loop;
    QTimer deadline;
    deadline.setSingleShot(true);
    QTimer cancelPoll;

    const auto drain = [&] {
        while (!limitReached && !sinkFailed && reply->bytesAvailable() > 0) {
            const auto room = static_cast<qint64>(std::min<std::size_t>(
                limit - received, static_cast<std::size_t>(std::numeric_limits<int>::max())));
            const QByteArray chunk = reply->read(room);
            if (chunk.isEmpty()) {
                break;
            }
            received += static_cast<std::size_t>(chunk.size());
            sinkFailed = !sink(std::string_view(chunk.constData(), chunk.size()));
            limitReached = received >= limit;
        }
    };
    const auto stop = [reply] {
        if (reply->isRunning()) {
            reply->abort();
        }
    };

    QObject::connect(reply, &QNetworkReply::requestSent, &loop,
                     [&] { deadline.start(m_timeouts.receive); });
    QObject::connect(reply, &QNetworkReply::metaDataChanged, &loop, [&] {
        report.answered = true;
        deadline.start(m_timeouts.receive);
    });
    QObject::connect(reply, &QNetworkReply::readyRead, &loop, [&] {
        deadline.start(m_timeouts.receive);
        drain();
        if (limitReached || sinkFailed) {
            stop();
        }
    });
    QObject::connect(&deadline, &QTimer::timeout, &loop, stop);
    if (cancelled) {
        QObject::connect(&cancelPoll, &QTimer::timeout, &loop, [&] {
            if (cancelled()) {
                report.cancelled = true;
                stop();
            }
        });
        cancelPoll.start(kCancelPoll);
    }
    QObject::connect(reply, &QNetworkReply::finished, &loop, &QEventLoop::quit);

    deadline.start(m_timeouts.connect);
    if (!reply->isFinished()) {
        loop.exec();
    }
    if (!reply->isFinished()) {
        // The loop was told to end from outside: the program is closing.
        report.cancelled = true;
        reply->abort();
    }
    drain();
    report.status = reply->attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt();
    report.answered = report.answered || report.status != 0;
    report.complete = !sinkFailed && (limitReached || reply->error() == QNetworkReply::NoError ||
                                      IsStatusError(reply->error()));
    reply->deleteLater();
    return report;
}

std::string HttpTransport::GetUrlText(const std::string& url) {
    std::string body;
    const Report report = Transfer(url, UrlTextReadLimit(m_firstChunkOnly),
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
    const Report report = Transfer(
        url, std::numeric_limits<std::size_t>::max(),
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
