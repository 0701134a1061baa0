#pragma once

#include <filesystem>
#include <string>
#include <vector>

#include "core/LineReader.h"

namespace coinlight::bench {

/// The short names of a catalogue file, in order: the thirteenth quoted field of each line.
inline std::vector<std::string> CatalogueShortNames(const std::filesystem::path& file) {
    std::vector<std::string> names;
    LineReader reader(file);
    std::string_view line;
    while (reader.Next(line)) {
        std::size_t at = 0;
        for (int quote = 0; quote < 25 && at != std::string_view::npos; ++quote) {
            at = line.find('"', at + 1);
        }
        const std::size_t end = line.find('"', at + 1);
        if (at != std::string_view::npos && end != std::string_view::npos) {
            names.emplace_back(line.substr(at + 1, end - at - 1));
        }
    }
    return names;
}

} // namespace coinlight::bench
