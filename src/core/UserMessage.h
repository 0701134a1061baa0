#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace coinlight {

// A message box or question described as a value: the logic says what to tell or ask, the
// window decides how to show it. The icons and buttons mirror the prompt interface.

enum class MessageIcon { None, Information, Warning, Critical, Question };
enum class MessageButtons { Ok, YesNo };

struct UserMessage {
    std::string title = "Coinlight";
    std::string text;
    MessageIcon icon = MessageIcon::None;
    MessageButtons buttons = MessageButtons::Ok;
    bool noIsDefault = false; // a Yes/No question whose safe answer is No

    bool operator==(const UserMessage&) const = default;
};

/// The common error box of a routine that failed: `heading` is its first words, such as
/// "Error In BuildIni", `line` the number of the step that failed.
UserMessage RoutineError(std::string_view heading, std::string_view description, int line);

/// The advice that follows a failure to read or write the files of `folder`: on Linux the
/// usual cause is a folder where the user may not write.
std::string NoPermissionSentence(const std::filesystem::path& folder);

} // namespace coinlight
