// MAME's error output after a run, with the controls named beside the values it refused.
#include "FuzzInput.h"
#include "settings/RejectedValues.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace coinlight;
    std::string_view text = fuzz::AsText(data, size);
    const std::string named = NameRejectingControls(text);
    // Every line MAME wrote is still there, at the start of its line, and no line is added.
    std::string_view rest = named;
    while (!text.empty()) {
        const std::size_t end = text.find('\n');
        std::string_view line = text.substr(0, end);
        if (line.ends_with('\r')) {
            line.remove_suffix(1);
        }
        if (!rest.starts_with(line)) {
            __builtin_trap();
        }
        const std::size_t restEnd = rest.find('\n');
        if ((end == std::string_view::npos) != (restEnd == std::string_view::npos)) {
            __builtin_trap();
        }
        text = end == std::string_view::npos ? std::string_view() : text.substr(end + 1);
        rest = restEnd == std::string_view::npos ? std::string_view() : rest.substr(restEnd + 1);
    }
    return 0;
}
