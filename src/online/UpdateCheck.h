#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "core/UserMessage.h"

namespace coinlight {

// The titles and messages of the two online commands.
inline constexpr const char* kNewsTitle = "Coinlight News";
inline constexpr const char* kUpdateTitle = "Check For Update";
inline constexpr const char* kNewsUnavailable =
    "Unable to retrieve news.  This may mean that you are not connected to the Internet or "
    "there is a problem with the website.";
inline constexpr const char* kUpdateUnavailable =
    "Error checking for update.  This may mean that you are not connected to the Internet or "
    "there is a problem with the website.";

/// The version the head of news.txt announces, or why it can't be read.
struct RemoteVersion {
    std::optional<long> number;
    std::string error; // the description for "Error in Update: "
};

/// Reads the dotted version behind the first "Heritage " of `head` (case counts) up to the
/// next blank, with the dots removed, as a number: "26.02.0" gives 26020. Without the word
/// the reading starts at the ninth character, which seldom holds a number; without a blank
/// behind the version there is no version at all.
RemoteVersion ReadRemoteVersion(std::string_view head);

/// The decimal digits of major, minor in at least two digits, and revision, read as one
/// number: 26.2.0 gives 26020.
long VersionNumber(int major, int minor, int revision);

/// The number of the version this program was built as.
long OwnVersionNumber();

/// What the user is told after comparing; nothing when the remote number is below 1, which
/// ends the check without a word.
std::optional<UserMessage> UpdateVerdict(long remote, long own, std::string_view site);

/// The box of a command's error path: "Error in News: ..." under the command's title.
UserMessage OnlineCommandError(std::string_view command, std::string_view title,
                               std::string_view description);

} // namespace coinlight
