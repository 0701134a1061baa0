#pragma once

#include <cstdint>
#include <cstring>
#include <string_view>

namespace coinlight {

/// A hash for short names in sets looked up once per machine of a list. Eight bytes at a
/// time: the standard library's hash costs more than the rest of the lookup for names of
/// a few letters. Usable with heterogeneous lookup (string_view keys of string sets).
struct ShortNameHash {
    using is_transparent = void;

    std::size_t operator()(std::string_view name) const noexcept {
        constexpr std::uint64_t kMultiplier = 0x9E3779B97F4A7C15ull;
        std::uint64_t hash = name.size() * kMultiplier;
        const char* at = name.data();
        for (std::size_t left = name.size(); left > 0;) {
            std::uint64_t word = 0;
            const std::size_t take = left < 8 ? left : 8;
            std::memcpy(&word, at, take);
            hash = (hash ^ word) * kMultiplier;
            hash ^= hash >> 32;
            at += take;
            left -= take;
        }
        return static_cast<std::size_t>(hash);
    }
};

} // namespace coinlight
