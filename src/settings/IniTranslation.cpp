#include "IniTranslation.h"

#include <algorithm>
#include <array>
#include <initializer_list>

#include "MameIniText.h"
#include "PathList.h"
#include "core/ProfileDocument.h"
#include "core/TextCase.h"

namespace coinlight {

namespace {

std::string Without(std::string_view text, std::string_view piece) {
    std::string result;
    std::size_t start = 0;
    for (std::size_t found = text.find(piece); found != std::string_view::npos;
         found = text.find(piece, start)) {
        result.append(text.substr(start, found - start));
        start = found + piece.size();
    }
    result.append(text.substr(start));
    return result;
}

bool Contains(std::string_view text, std::string_view piece) {
    return text.find(piece) != std::string_view::npos;
}

/// The position of `value` among `words`, compared exactly; nothing for a stranger.
template <std::size_t N>
std::optional<std::size_t> WordIndex(const std::array<std::string_view, N>& words,
                                     std::string_view value) {
    const auto found = std::find(words.begin(), words.end(), value);
    return found == words.end() ? std::nullopt : std::optional<std::size_t>(found - words.begin());
}

const char* Flag(bool on) {
    return on ? "1" : "0";
}

/// What a chosen BIOS names: the text behind "> " of "description> name".
std::string BiosName(std::string_view value) {
    const std::size_t arrow = value.find("> ");
    // A value without the arrow loses its first character, as it always has.
    const std::size_t start =
        arrow == std::string_view::npos ? std::min<std::size_t>(1, value.size()) : arrow + 2;
    return ToLowerAscii(value.substr(start));
}

std::string AudioLatencyValue(std::string_view value) {
    // The list no longer offers these texts, but a profile may still hold them.
    static constexpr std::array<std::string_view, 4> kFractions = {"1/5 To 2/5", "2/5 To 3/5",
                                                                   "3/5 To 4/5", "4/5 To 5/5"};
    const auto index = WordIndex(kFractions, value);
    return index ? std::to_string(*index + 1) : ToLowerAscii(value);
}

} // namespace

std::optional<std::string> HundredthsText(std::string_view number) {
    number = TrimBlanks(number);
    bool negative = false;
    if (!number.empty() && (number.front() == '-' || number.front() == '+')) {
        negative = number.front() == '-';
        number.remove_prefix(1);
    }
    const std::size_t point = number.find('.');
    const std::string_view whole = number.substr(0, point);
    const std::string_view fraction =
        point == std::string_view::npos ? std::string_view{} : number.substr(point + 1);
    const auto allDigits = [](std::string_view digits) {
        return std::all_of(digits.begin(), digits.end(),
                           [](char c) { return c >= '0' && c <= '9'; });
    };
    if (whole.size() + fraction.size() == 0 || !allDigits(whole) || !allDigits(fraction)) {
        return std::nullopt;
    }
    // A hundredth of the number to two decimals is the number rounded to a whole one.
    std::string hundredths(whole);
    if (!fraction.empty() && fraction.front() >= '5') {
        auto digit = hundredths.rbegin();
        for (; digit != hundredths.rend() && *digit == '9'; ++digit) {
            *digit = '0';
        }
        if (digit == hundredths.rend()) {
            hundredths.insert(hundredths.begin(), '1');
        } else {
            ++*digit;
        }
    }
    hundredths.erase(0, std::min(hundredths.find_first_not_of('0'), hundredths.size()));
    const bool zero = hundredths.empty();
    if (hundredths.size() < 3) {
        hundredths.insert(0, 3 - hundredths.size(), '0');
    }
    hundredths.insert(hundredths.size() - 2, ".");
    return (negative && !zero) ? "-" + hundredths : hundredths;
}

std::optional<std::string> AppendOptionLines(const OptionRow& row, std::string_view value,
                                             std::vector<std::string>& lines) {
    const auto names = IniOptionNames(row);
    const auto write = [&](std::initializer_list<std::string_view> values) {
        std::size_t index = 0;
        for (std::string_view each : values) {
            lines.push_back(IniLine(names[index++], each));
        }
    };
    // The word that means "MAME's own choice" gives the option alone.
    const auto writeUnless = [&](std::string_view ownChoice, const auto& translated) {
        if (value == ownChoice) {
            lines.emplace_back(names.front());
        } else {
            write({translated()});
        }
    };

    switch (row.rule) {
    case IniRule::Copy:
        write({value});
        break;
    case IniRule::Lower:
        write({ToLowerAscii(value)});
        break;
    case IniRule::FrameSkip:
        if (value == "Auto") {
            write({"1", "0"});
        } else if (value == "None") {
            write({"0", "0"});
        } else {
            // "3 Of 12" and "10 Of 12": the count is in the first two characters.
            write({"0", Without(value.substr(0, 2), " ")});
        }
        break;
    case IniRule::Speed: {
        const auto speed = HundredthsText(Without(value, "%"));
        if (!speed) {
            return "Type mismatch (Speed \"" + std::string(value) + "\")";
        }
        write({*speed});
        break;
    }
    case IniRule::Roll: {
        static constexpr std::array<std::string_view, 5> kRolls = {"None", "Right", "Left",
                                                                   "AutoRight", "AutoLeft"};
        if (const auto roll = WordIndex(kRolls, value)) {
            write({Flag(*roll == 1), Flag(*roll == 2), Flag(*roll == 3), Flag(*roll == 4)});
        }
        break;
    }
    case IniRule::Flip: {
        static constexpr std::array<std::string_view, 4> kFlips = {"None", "Horizontally",
                                                                   "Vertically", "Both"};
        // The axes are crossed on purpose, as existing profiles expect: "Horizontally"
        // sets flipy.
        if (const auto flip = WordIndex(kFlips, value)) {
            write({Flag(*flip == 2 || *flip == 3), Flag(*flip == 1 || *flip == 3)});
        }
        break;
    }
    case IniRule::Volume:
        write({Without(value, "dB")});
        break;
    case IniRule::Controller:
        // The list shows file names; MAME wants the name without ".cfg".
        writeUnless("None", [&] {
            return ToLowerAscii(
                value.substr(0, value.size() - std::min<std::size_t>(4, value.size())));
        });
        break;
    case IniRule::Bios:
        writeUnless("Default", [&] { return BiosName(value); });
        break;
    case IniRule::Language:
        writeUnless("Default", [&] { return ToLowerAscii(value); });
        break;
    case IniRule::AudioLatency:
        write({AudioLatencyValue(value)});
        break;
    case IniRule::Screen:
        // A display name is written as the system spells it.
        write({Contains(value, "Auto") ? ToLowerAscii(value) : std::string(value)});
        break;
    case IniRule::Path:
        write({ShortPath(value)});
        break;
    case IniRule::NotWritten:
        break;
    }
    return std::nullopt;
}

} // namespace coinlight
