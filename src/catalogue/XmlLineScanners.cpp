#include "XmlLineScanners.h"

#include <array>
#include <optional>
#include <vector>

namespace coinlight {

XmlAttribute GetXMLAttribute(std::string_view line, std::string_view key) {
    const std::size_t keyAt = line.find(key);
    if (keyAt == std::string_view::npos) {
        return {};
    }
    // 1-based positions, as the limit has always counted them.
    const std::size_t valueStart = keyAt + key.size() + 1;
    if (keyAt + 1 > kLinePositionLimit || valueStart + 1 > kLinePositionLimit) {
        return {{}, kErrorOverflow};
    }
    const std::size_t close = valueStart <= line.size() ? line.find('"', valueStart) : line.npos;
    if (close == std::string_view::npos) {
        return {{}, kErrorInvalidCall};
    }
    if (close + 1 > kLinePositionLimit) {
        return {{}, kErrorOverflow};
    }
    return {line.substr(valueStart, close - valueStart), 0};
}

std::string_view GetXMLElement(std::string_view line, std::string_view key) {
    const std::size_t keyAt = line.find(key);
    if (keyAt == std::string_view::npos) {
        return {};
    }
    const std::size_t start = keyAt + key.size();
    const std::size_t end = line.find('<', start);
    if (end == std::string_view::npos) {
        return {};
    }
    return line.substr(start, end - start);
}

namespace {

/// A pattern split into its alternatives, with the bytes that can start a match.
class Alternatives {
public:
    explicit Alternatives(std::string_view pattern) {
        for (std::size_t start = 0;;) {
            const std::size_t bar = pattern.find('|', start);
            const std::string_view alternative = pattern.substr(start, bar - start);
            if (!alternative.empty()) {
                m_alternatives.push_back(alternative);
                m_starts[static_cast<unsigned char>(alternative[0])] = true;
            }
            if (bar == std::string_view::npos) {
                break;
            }
            start = bar + 1;
        }
    }

    bool MayStartAt(char c) const { return m_starts[static_cast<unsigned char>(c)]; }

    /// The length of the first alternative that matches at the start of `text`, or 0.
    std::size_t MatchAt(std::string_view text) const {
        for (const auto alternative : m_alternatives) {
            if (text.starts_with(alternative)) {
                return alternative.size();
            }
        }
        return 0;
    }

private:
    std::vector<std::string_view> m_alternatives;
    std::array<bool, 256> m_starts{};
};

} // namespace

std::string StripPattern(std::string_view text, std::string_view pattern,
                         std::string_view replacement) {
    // The builders strip every description: most hold nothing to strip.
    thread_local std::string lastPattern;
    thread_local std::optional<Alternatives> alternatives;
    if (!alternatives || lastPattern != pattern) {
        lastPattern = pattern;
        alternatives.emplace(pattern);
    }
    std::string result;
    result.reserve(text.size());
    std::size_t copied = 0; // text before this is already in the result
    std::size_t at = 0;
    while (at < text.size()) {
        const std::size_t matched =
            alternatives->MayStartAt(text[at]) ? alternatives->MatchAt(text.substr(at)) : 0;
        if (matched == 0) {
            ++at;
            continue;
        }
        result.append(text.substr(copied, at - copied));
        result.append(replacement);
        at += matched;
        copied = at;
    }
    result.append(text.substr(copied));
    return result;
}

} // namespace coinlight
