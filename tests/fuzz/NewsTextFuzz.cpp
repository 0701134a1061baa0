// The news as a server may send it: any bytes, read by the chunk rule and then for its date
// and its ";".
#include <cstdint>
#include <cstdlib>
#include <string>

#include "online/NewsText.h"
#include "online/UrlText.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    using namespace coinlight;
    const std::string body(reinterpret_cast<const char*>(data), size);
    bool firstChunkOnly = false;
    const std::string text = AssembleUrlText(body, firstChunkOnly);
    if (text.size() < kUrlReadChunk || text.size() > kRemoteTextLimit) {
        std::abort();
    }
    const Day last = Day(std::chrono::year(2026) / 2 / 14);
    const StartupNewsDecision decision = DecideStartupNews(text, last);
    if (decision.verdict == StartupNewsVerdict::Show && !NewsForced(text) &&
        (last - decision.dateToStore).count() >= 0) {
        std::abort(); // shown although not newer
    }
    if (const auto date = NewsDate(text)) {
        if (!std::chrono::year_month_day(*date).ok()) {
            std::abort();
        }
    }
    return 0;
}
