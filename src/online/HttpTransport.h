#pragma once

#include <chrono>
#include <filesystem>
#include <functional>
#include <memory>
#include <string>
#include <string_view>

#include "AssetDownload.h"

class QNetworkAccessManager;

namespace coinlight {

/// How long a transfer waits: for the connection and the request to go out, then for each
/// piece of the answer.
struct TransferTimeouts {
    std::chrono::milliseconds connect{2000};
    std::chrono::milliseconds receive{4000};
};

/// The program's one door to the web: a short remote text as a string, or a remote file
/// saved to disk. Each call waits for its transfer on a local event loop, so the window
/// stays alive and the caller's steps keep their order. Only http and https are spoken;
/// there is no proxy and no cache.
class HttpTransport {
public:
    explicit HttpTransport(TransferTimeouts timeouts = {});
    ~HttpTransport();
    HttpTransport(const HttpTransport&) = delete;
    HttpTransport& operator=(const HttpTransport&) = delete;

    /// The text at `url`, by the rules of AssembleUrlText: empty when no server answered,
    /// otherwise whatever it sent (an error page too), the first 128 characters padded,
    /// never more than 1 MB.
    std::string GetUrlText(const std::string& url);

    /// Asks the next successful GetUrlText for the first 128 characters alone.
    void SetFirstChunkOnly() { m_firstChunkOnly = true; }
    bool FirstChunkOnly() const { return m_firstChunkOnly; }

    /// Saves the file at `url` as `file`, replacing one that is there, but only when the
    /// transfer ends whole with a good status: a failed, cut or cancelled transfer leaves no
    /// file, and an older file of that name, untouched. The folder must exist. `cancelled`
    /// is asked while the transfer runs.
    DownloadOutcome DownloadToFile(const std::string& url, const std::filesystem::path& file,
                                   const std::function<bool()>& cancelled = {});

private:
    TransferTimeouts m_timeouts;
    std::unique_ptr<QNetworkAccessManager> m_manager;
    bool m_firstChunkOnly = false;
};

} // namespace coinlight
