// The head of the news as the update check reads it: the first 128 characters of any reply,
// searched for the version.
#include <cstdint>
#include <cstdlib>
#include <string>

#include "online/UpdateCheck.h"
#include "online/UrlText.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    using namespace coinlight;
    const std::string body(reinterpret_cast<const char*>(data), size);
    bool firstChunkOnly = true;
    const std::string head = AssembleUrlText(body, firstChunkOnly);
    if (head.size() != kUrlReadChunk || firstChunkOnly) {
        std::abort();
    }
    for (const std::string& text : {head, body}) {
        const RemoteVersion version = ReadRemoteVersion(text);
        if (version.number.has_value() == !version.error.empty()) {
            std::abort(); // a number or a reason, never both, never neither
        }
        if (version.number) {
            UpdateVerdict(*version.number, OwnVersionNumber(), "http://127.0.0.1");
        }
    }
    return 0;
}
