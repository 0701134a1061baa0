#pragma once

#include <optional>
#include <string_view>

#include "core/ValueText.h"

namespace coinlight {

// How the head of news.txt is read: a date in its first eight characters, and a ";" in the
// ninth that pushes the news to everybody at every start.

/// The date stored after forced news: the classic calendar's day zero, 30 December 1899.
/// Any dated news is newer than it, so the next dated news shows again.
Day EmptyNewsDay();

/// The first eight characters as a date: month/day/year with "/", "-" or "." between and a
/// year of one, two or four digits (00-29 are this century, 30-99 the last), or
/// year-month-day. Blanks around it do not count. Nothing when it is not a date.
std::optional<Day> NewsDate(std::string_view text);

/// The ninth character is ";".
bool NewsForced(std::string_view text);

enum class StartupNewsVerdict {
    Show,     // newer than what the user has seen, or forced
    NotNewer, // the same day as the stored date, or older: the start stays quiet
    BadDate,  // no date to compare: the step ends without a word
};

struct StartupNewsDecision {
    StartupNewsVerdict verdict = StartupNewsVerdict::NotNewer;
    Day dateToStore{}; // with Show: what `News` in options.ini becomes
};

/// Whether the start shows `text`, given the date of the news last shown.
StartupNewsDecision DecideStartupNews(std::string_view text, Day lastNews);

/// How many leading characters of the shown news are bold: the date and the character
/// behind it.
inline constexpr int kNewsBoldLength = 9;

} // namespace coinlight
