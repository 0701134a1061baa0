#pragma once

#include <chrono>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace coinlight {

/// A colour as the files hold it: 0xBBGGRR, or a system colour index with the top bit set.
struct Colour {
    std::uint32_t value = 0;
    bool IsSystemColour() const { return (value & 0x80000000u) != 0; }
    bool operator==(const Colour&) const = default;
};

/// A calendar day, as the news date is kept.
using Day = std::chrono::sys_days;

// The words and numbers of options.ini and the profiles. Each Parse function accepts what
// the classic run-time conversions accept and gives nothing where they would fail.

std::string BoolText(bool value);
/// "True"/"False" in any case, or a number (non-zero is true).
std::optional<bool> ParseBool(std::string_view text);

/// A whole number within 16 bits; a fraction is rounded half to even.
std::optional<int> ParseInteger(std::string_view text);
/// A whole number within 32 bits; a fraction is rounded half to even.
std::optional<long> ParseLong(std::string_view text);
/// A whole number within 64 bits, for file sizes.
std::optional<long long> ParseSize(std::string_view text);

/// Written as the signed 32-bit decimal a colour has always been stored as.
std::string ColourText(Colour colour);
/// Signed or unsigned 32-bit decimal.
std::optional<Colour> ParseColour(std::string_view text);

/// YYYY-MM-DD.
std::string DayText(Day day);

/// Any preference value as options.ini writes it.
inline std::string PreferenceText(const std::string& value) { return value; }
inline std::string PreferenceText(bool value) { return BoolText(value); }
inline std::string PreferenceText(int value) { return std::to_string(value); }
inline std::string PreferenceText(long long value) { return std::to_string(value); }
inline std::string PreferenceText(Colour value) { return ColourText(value); }
std::string PreferenceText(Day value);
/// YYYY-MM-DD, or the month-first M/D/YYYY of files written elsewhere.
std::optional<Day> ParseDay(std::string_view text);
Day Today();
/// The same day of the month `years` earlier (28 February for a 29th in a plain year).
Day YearsBefore(Day day, int years);

} // namespace coinlight
