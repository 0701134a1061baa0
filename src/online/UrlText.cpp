#include "UrlText.h"

#include <algorithm>

namespace coinlight {

std::string AssembleUrlText(const std::optional<std::string>& body, bool& firstChunkOnly) {
    if (!body) {
        return {};
    }
    const std::string_view bytes(*body);
    std::string text(bytes.substr(0, kUrlReadChunk));
    // The first read lands in a fixed buffer, so a short file comes back padded.
    text.resize(kUrlReadChunk, ' ');
    if (firstChunkOnly) {
        firstChunkOnly = false;
        return text;
    }
    if (bytes.size() > kUrlReadChunk) {
        const std::size_t end = std::min(bytes.size(), kRemoteTextLimit);
        text.append(bytes.substr(kUrlReadChunk, end - kUrlReadChunk));
    }
    return text;
}

std::size_t UrlTextReadLimit(bool firstChunkOnly) {
    return firstChunkOnly ? kUrlReadChunk : kRemoteTextLimit;
}

} // namespace coinlight
