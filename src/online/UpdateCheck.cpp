#include "UpdateCheck.h"

#include <charconv>

namespace coinlight {

namespace {

constexpr std::string_view kVersionWord = "Heritage ";

/// Where reading starts when the word is missing: just behind where a word found at
/// position zero would end, as the search has always worked.
constexpr std::size_t kNoWordStart = kVersionWord.size() - 1;

UserMessage UpdateMessage(std::string text) {
    return {kUpdateTitle, std::move(text), MessageIcon::Information};
}

} // namespace

RemoteVersion ReadRemoteVersion(std::string_view head) {
    const std::size_t word = head.find(kVersionWord);
    const std::size_t start =
        word == std::string_view::npos ? kNoWordStart : word + kVersionWord.size();
    const std::size_t blank = start <= head.size() ? head.find(' ', start) : std::string_view::npos;
    if (blank == std::string_view::npos) {
        return {std::nullopt, "No version number in the first 128 characters of the news."};
    }
    std::string digits;
    for (const char c : head.substr(start, blank - start)) {
        if (c != '.') {
            digits.push_back(c);
        }
    }
    std::string_view number(digits);
    if (!number.empty() && number.front() == '+') {
        number.remove_prefix(1);
    }
    long value = 0;
    const auto [end, error] = std::from_chars(number.data(), number.data() + number.size(), value);
    if (error == std::errc::result_out_of_range ||
        (error == std::errc{} && (value > 2147483647L || value < -2147483648L))) {
        return {std::nullopt, "Overflow: the version \"" + digits + "\" is too large."};
    }
    if (number.empty() || error != std::errc{} || end != number.data() + number.size()) {
        return {std::nullopt, "Type mismatch: the version \"" +
                                  std::string(head.substr(start, blank - start)) +
                                  "\" is not a number."};
    }
    return {value, {}};
}

long VersionNumber(int major, int minor, int revision) {
    std::string digits = std::to_string(major);
    if (minor < 10) {
        digits.push_back('0');
    }
    digits += std::to_string(minor) + std::to_string(revision);
    long value = 0;
    std::from_chars(digits.data(), digits.data() + digits.size(), value);
    return value;
}

long OwnVersionNumber() {
    return VersionNumber(COINLIGHT_VERSION_MAJOR, COINLIGHT_VERSION_MINOR, COINLIGHT_VERSION_PATCH);
}

std::optional<UserMessage> UpdateVerdict(long remote, long own, std::string_view site) {
    if (remote < 1) {
        return std::nullopt;
    }
    if (remote > own) {
        return UpdateMessage("A new version of Coinlight is available.\r\nGet it at " +
                             std::string(site) + ".");
    }
    if (remote == own) {
        return UpdateMessage("No update available.  You have the latest version of Coinlight.");
    }
    return UpdateMessage(
        "You have a newer version of Coinlight than the one available on the website.");
}

UserMessage OnlineCommandError(std::string_view command, std::string_view title,
                               std::string_view description) {
    return {std::string(title),
            "Error in " + std::string(command) + ": " + std::string(description),
            MessageIcon::Critical};
}

} // namespace coinlight
