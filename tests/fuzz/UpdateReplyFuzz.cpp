// The head of the news as the update check reads it: the first 128 characters of any reply,
// searched for the version.
#include "FuzzInput.h"
#include "online/UpdateCheck.h"
#include "online/UrlText.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace coinlight;
    const std::string body(fuzz::AsText(data, size));
    bool firstChunkOnly = true;
    const std::string head = AssembleUrlText(body, firstChunkOnly);
    if (head.size() != kUrlReadChunk || firstChunkOnly) {
        __builtin_trap(); // the head alone, and the switch honoured
    }
    for (const std::string& text : {head, body}) {
        const RemoteVersion version = ReadRemoteVersion(text);
        if (version.number.has_value() == !version.error.empty()) {
            __builtin_trap(); // a number or a reason, never both, never neither
        }
        if (version.number) {
            (void)UpdateVerdict(*version.number, OwnVersionNumber(), "http://127.0.0.1");
        }
    }
    return 0;
}
