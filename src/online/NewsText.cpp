#include "NewsText.h"

#include <array>

#include "core/ProfileDocument.h"

namespace coinlight {

namespace {

constexpr std::size_t kDateLength = 8;
constexpr std::size_t kForceMarkIndex = 8;

/// Two-digit years fall in 1930-2029, the window the classic date conversion uses.
int FullYear(int year, std::size_t digits) {
    if (digits > 2) {
        return year;
    }
    return year < 30 ? 2000 + year : 1900 + year;
}

struct DateParts {
    std::array<int, 3> value{};
    std::array<std::size_t, 3> digits{};
};

std::optional<DateParts> SplitDate(std::string_view text) {
    DateParts parts;
    std::size_t part = 0;
    char separator = 0;
    for (const char c : text) {
        if (c >= '0' && c <= '9') {
            if (++parts.digits[part] > 4) {
                return std::nullopt;
            }
            parts.value[part] = parts.value[part] * 10 + (c - '0');
            continue;
        }
        const bool isSeparator = c == '/' || c == '-' || c == '.';
        if (!isSeparator || parts.digits[part] == 0 || part == 2 ||
            (separator != 0 && c != separator)) {
            return std::nullopt;
        }
        separator = c;
        ++part;
    }
    if (part != 2 || parts.digits[2] == 0) {
        return std::nullopt;
    }
    return parts;
}

} // namespace

Day EmptyNewsDay() {
    return Day(std::chrono::year(1899) / std::chrono::December / 30);
}

std::optional<Day> NewsDate(std::string_view text) {
    const auto parts = SplitDate(TrimBlanks(text.substr(0, kDateLength)));
    if (!parts) {
        return std::nullopt;
    }
    const bool yearFirst = parts->digits[0] == 4;
    const std::size_t yearPart = yearFirst ? 0 : 2;
    if (parts->digits[yearPart] == 3 || (!yearFirst && parts->digits[0] > 2) ||
        parts->digits[1] > 2 || (yearFirst && parts->digits[2] > 2)) {
        return std::nullopt;
    }
    const int year = FullYear(parts->value[yearPart], parts->digits[yearPart]);
    const auto month = static_cast<unsigned>(yearFirst ? parts->value[1] : parts->value[0]);
    const auto day = static_cast<unsigned>(yearFirst ? parts->value[2] : parts->value[1]);
    const std::chrono::year_month_day date{std::chrono::year(year), std::chrono::month(month),
                                           std::chrono::day(day)};
    if (!date.ok()) {
        return std::nullopt;
    }
    return Day(date);
}

bool NewsForced(std::string_view text) {
    return text.size() > kForceMarkIndex && text[kForceMarkIndex] == ';';
}

StartupNewsDecision DecideStartupNews(std::string_view text, Day lastNews) {
    if (NewsForced(text)) {
        // No date is read, so the empty one is stored: the next dated news is new again.
        return {StartupNewsVerdict::Show, EmptyNewsDay()};
    }
    const auto date = NewsDate(text);
    if (!date) {
        return {StartupNewsVerdict::BadDate, {}};
    }
    if ((lastNews - *date).count() >= 0) {
        return {StartupNewsVerdict::NotNewer, {}};
    }
    return {StartupNewsVerdict::Show, *date};
}

} // namespace coinlight
