#include "DollarRecordSearch.h"

#include "InfoLines.h"
#include "catalogue/TextFunctions.h"

namespace coinlight {

namespace {

bool StartsBlock(std::string_view line) {
    return line.starts_with("$cmd") || line.starts_with("$mame");
}

} // namespace

bool InfoLineNames(std::string_view line, std::string_view machine) {
    constexpr std::string_view kTag = "$info=";
    // A file of forty thousand records asks this forty thousand times: the usual line,
    // with its one tag at the start, is read where it lies.
    std::string copy;
    std::string_view names = line.substr(std::min(line.size(), kTag.size()));
    if (!line.starts_with(kTag) || names.find(kTag) != std::string_view::npos) {
        copy = ReplaceAll(line, kTag, "");
        names = copy;
    }
    if (names.find(',') == std::string_view::npos) {
        return names == machine;
    }
    std::string_view rest = names;
    for (;;) {
        const std::size_t comma = rest.find(',');
        if (rest.substr(0, comma) == machine) {
            return true;
        }
        if (comma == std::string_view::npos) {
            return false;
        }
        rest.remove_prefix(comma + 1);
    }
}

void RepairDoubleDecoded(std::string& text) {
    // Each sequence begins with U+00E2 or U+00C2 (C3 A2, C3 82 in UTF-8); most texts hold
    // neither, and then nothing needs copying.
    if (text.find("\xC3\xA2") == std::string::npos && text.find("\xC3\x82") == std::string::npos) {
        return;
    }
    text = ReplaceAll(text, "\xC3\xA2\xE2\x80\x9D\xE2\x82\xAC", "-"); // U+2500 read as cp1252
    text = ReplaceAll(text, "\xC3\xA2\xE2\x82\xAC\xE2\x80\x9D", "-"); // U+2014 read as cp1252
    text = ReplaceAll(text, "\xC3\x82\xC2\xA9", "\xC2\xA9");          // U+00A9 read as cp1252
}

std::optional<InfoError> SearchDollarRecords(const std::filesystem::path& file,
                                             const InfoSelection& selection, std::string& panel) {
    const std::string machine = KeysOf(selection).machine;
    LineReader reader(file);
    if (auto error = OpenFailure(reader, file)) {
        return error;
    }
    std::string_view line;
    for (;;) {
        // Lines that hold a dollar are few, and a single byte is found far faster than a
        // word: the scan runs at the speed of memchr rather than of a substring search.
        if (!reader.NextHolding("$", line)) {
            if (reader.Failed()) {
                return DeviceError();
            }
            panel += "No information found for this machine.\n";
            return std::nullopt;
        }
        if (line.starts_with("$info") && InfoLineNames(line, machine)) {
            break;
        }
    }
    while (!StartsBlock(line)) {
        if (!reader.Next(line)) {
            return EndOfRecordError(reader);
        }
    }
    std::string buffer;
    for (;;) {
        if (!reader.Next(line)) {
            return EndOfRecordError(reader);
        }
        if (line.starts_with("$end")) {
            break;
        }
        buffer.append(line);
        buffer += '\n';
    }
    RepairDoubleDecoded(buffer);
    panel += buffer;
    panel += '\n';
    return std::nullopt;
}

} // namespace coinlight
