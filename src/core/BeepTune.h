#pragma once

#include <array>

namespace coinlight {

struct Tone {
    int hertz;
    int milliseconds;
};

/// The rising five-note tune that greets fresh news.
inline constexpr std::array<Tone, 5> kBeepTune = {
    {{1000, 100}, {1500, 100}, {2000, 100}, {2500, 100}, {3000, 100}}};

} // namespace coinlight
