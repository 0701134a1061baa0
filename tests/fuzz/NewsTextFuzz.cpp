// The news as a server may send it: any bytes, read by the chunk rule and then for its date
// and its ";".
#include "FuzzInput.h"
#include "online/NewsText.h"
#include "online/UrlText.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace coinlight;
    bool firstChunkOnly = false;
    const std::string text = AssembleUrlText(std::string(fuzz::AsText(data, size)), firstChunkOnly);
    if (text.size() < kUrlReadChunk || text.size() > kRemoteTextLimit) {
        __builtin_trap(); // a text is padded to its first chunk and cut at the limit
    }
    const Day last = Day(std::chrono::year(2026) / 2 / 14);
    const StartupNewsDecision decision = DecideStartupNews(text, last);
    if (decision.verdict == StartupNewsVerdict::Show && !NewsForced(text) &&
        (last - decision.dateToStore).count() >= 0) {
        __builtin_trap(); // shown at start although not newer
    }
    if (const auto date = NewsDate(text); date && !std::chrono::year_month_day(*date).ok()) {
        __builtin_trap();
    }
    return 0;
}
