#include "CommandLine.h"

#include <algorithm>
#include <iterator>
#include <utility>

#include "TextCase.h"

namespace coinlight {

namespace {

bool IsNameCharacter(char c) {
    return (c >= 'a' && c <= 'z') || (c >= '0' && c <= '9') || c == '_';
}

} // namespace

std::string QuotePath(std::string_view path) {
    std::string quoted;
    quoted.reserve(path.size() + 2);
    quoted.push_back('"');
    for (char c : path) {
        if (c == '\\' || c == '"' || c == '$' || c == '`') {
            quoted.push_back('\\');
        }
        quoted.push_back(c);
    }
    quoted.push_back('"');
    return quoted;
}

bool IsShortName(std::string_view name) {
    return !name.empty() && std::all_of(name.begin(), name.end(), IsNameCharacter);
}

bool IsShortNameWithColons(std::string_view name) {
    return !name.empty() && std::all_of(name.begin(), name.end(),
                                        [](char c) { return IsNameCharacter(c) || c == ':'; });
}

CommandLine::CommandLine(const std::filesystem::path& mameFolder, std::string_view executable) {
    Add("", QuotePath((mameFolder / executable).string()), true);
}

CommandLine& CommandLine::Add(std::string separator, std::string text, bool isPath) {
    m_pieces.push_back({std::move(separator), std::move(text), isPath});
    return *this;
}

CommandLine& CommandLine::Word(std::string_view word) {
    return Add(" ", std::string(word), false);
}

CommandLine& CommandLine::Path(const std::filesystem::path& path) {
    return Add(" ", QuotePath(path.string()), true);
}

CommandLine& CommandLine::ShortName(std::string_view name) {
    if (!IsShortNameWithColons(name)) {
        m_valid = false;
    }
    return Word(name);
}

CommandLine& CommandLine::UserText(std::string_view text) {
    return Add("", std::string(text), false);
}

CommandLine& CommandLine::RedirectOutput(const std::filesystem::path& file) {
    return Add(" > ", QuotePath(file.string()), true);
}

CommandLine& CommandLine::RedirectError(const std::filesystem::path& file) {
    return Add(" 2> ", QuotePath(file.string()), true);
}

std::string CommandLine::Join(bool lowerCase) const {
    if (!m_valid) {
        return {};
    }
    std::string line;
    for (const Piece& piece : m_pieces) {
        line.append(piece.separator);
        if (lowerCase && !piece.isPath) {
            std::transform(piece.text.begin(), piece.text.end(), std::back_inserter(line),
                           LowerAscii);
        } else {
            line.append(piece.text);
        }
    }
    return line;
}

std::string CommandLine::Text() const {
    return Join(false);
}

std::string CommandLine::LowerCasedText() const {
    return Join(true);
}

} // namespace coinlight
