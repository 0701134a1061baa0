#include "ValueText.h"

#include <charconv>
#include <cmath>
#include <cstdio>
#include <ctime>
#include <limits>

#include "ProfileDocument.h"

namespace coinlight {

namespace {

/// Decimal with optional sign, fraction and exponent, or &H hexadecimal; the whole text
/// must be the number.
std::optional<double> ParseNumber(std::string_view text) {
    text = TrimBlanks(text);
    if (text.empty()) {
        return std::nullopt;
    }
    if (text.size() > 2 && text[0] == '&' && (text[1] == 'H' || text[1] == 'h')) {
        std::uint32_t value = 0;
        const auto digits = text.substr(2);
        if (digits.size() > 8) {
            return std::nullopt;
        }
        const auto [end, error] =
            std::from_chars(digits.data(), digits.data() + digits.size(), value, 16);
        if (error != std::errc() || end != digits.data() + digits.size()) {
            return std::nullopt;
        }
        // Hexadecimal literals of eight digits are negative longs, as they always were.
        return static_cast<double>(static_cast<std::int32_t>(value));
    }
    if (text.front() == '+') {
        text.remove_prefix(1);
    }
    double value = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
    if (error != std::errc() || end != text.data() + text.size() || !std::isfinite(value)) {
        return std::nullopt;
    }
    return value;
}

template <class T> std::optional<T> ParseWhole(std::string_view text, double low, double high) {
    const auto number = ParseNumber(text);
    if (!number) {
        return std::nullopt;
    }
    const double rounded = std::nearbyint(*number); // the default mode rounds half to even
    if (rounded < low || rounded > high) {
        return std::nullopt;
    }
    return static_cast<T>(rounded);
}

} // namespace

std::string BoolText(bool value) {
    return value ? "True" : "False";
}

std::optional<bool> ParseBool(std::string_view text) {
    const std::string_view word = TrimBlanks(text);
    if (EqualsIgnoringCase(word, "True")) {
        return true;
    }
    if (EqualsIgnoringCase(word, "False")) {
        return false;
    }
    const auto number = ParseNumber(word);
    if (!number) {
        return std::nullopt;
    }
    return *number != 0.0;
}

std::optional<int> ParseInteger(std::string_view text) {
    return ParseWhole<int>(text, -32768.0, 32767.0);
}

std::optional<long> ParseLong(std::string_view text) {
    return ParseWhole<long>(text, -2147483648.0, 2147483647.0);
}

std::optional<long long> ParseSize(std::string_view text) {
    return ParseWhole<long long>(text, -9.0e18, 9.0e18);
}

std::string ColourText(Colour colour) {
    return std::to_string(static_cast<std::int32_t>(colour.value));
}

std::optional<Colour> ParseColour(std::string_view text) {
    const auto value = ParseWhole<long long>(text, -2147483648.0, 4294967295.0);
    if (!value) {
        return std::nullopt;
    }
    return Colour{static_cast<std::uint32_t>(*value)};
}

std::string DayText(Day day) {
    const std::chrono::year_month_day date(day);
    char text[16];
    std::snprintf(text, sizeof text, "%04d-%02u-%02u", static_cast<int>(date.year()),
                  static_cast<unsigned>(date.month()), static_cast<unsigned>(date.day()));
    return text;
}

std::string PreferenceText(Day value) {
    return DayText(value);
}

std::optional<Day> ParseDay(std::string_view text) {
    text = TrimBlanks(text);
    int parts[3] = {0, 0, 0};
    char separator = 0;
    std::size_t part = 0;
    std::size_t digits = 0;
    for (char c : text) {
        if (c >= '0' && c <= '9') {
            if (++digits > 4) {
                return std::nullopt;
            }
            parts[part] = parts[part] * 10 + (c - '0');
            continue;
        }
        if ((c != '-' && c != '/') || digits == 0 || part == 2 ||
            (separator != 0 && c != separator)) {
            return std::nullopt;
        }
        separator = c;
        ++part;
        digits = 0;
    }
    if (part != 2 || digits == 0) {
        return std::nullopt;
    }
    const bool isoOrder = separator == '-';
    const int year = isoOrder ? parts[0] : parts[2];
    const unsigned month = static_cast<unsigned>(isoOrder ? parts[1] : parts[0]);
    const unsigned dayOfMonth = static_cast<unsigned>(isoOrder ? parts[2] : parts[1]);
    const std::chrono::year_month_day date{std::chrono::year(year), std::chrono::month(month),
                                           std::chrono::day(dayOfMonth)};
    if (!date.ok() || year < 100) {
        return std::nullopt;
    }
    return Day(date);
}

Day Today() {
    const std::time_t now = std::time(nullptr);
    std::tm local{};
    ::localtime_r(&now, &local);
    const std::chrono::year_month_day date{
        std::chrono::year(local.tm_year + 1900),
        std::chrono::month(static_cast<unsigned>(local.tm_mon + 1)),
        std::chrono::day(static_cast<unsigned>(local.tm_mday))};
    return Day(date);
}

Day YearsBefore(Day day, int years) {
    std::chrono::year_month_day date(day);
    date = date - std::chrono::years(years);
    if (!date.ok()) {
        date = date.year() / date.month() / std::chrono::last;
    }
    return Day(date);
}

} // namespace coinlight
