#pragma once

#include <filesystem>
#include <string>
#include <system_error>

namespace coinlight {

/// The sentence that takes the place of advice about protected folders and administrator
/// rights: it names what could not be written and says that the user may not write there.
std::string NoPermissionSentence(const std::filesystem::path& where);

/// True for the failures that mean "not allowed" rather than "not there" or "broken".
bool IsPermissionFailure(const std::error_code& error);

/// The description of a failure as the user reads it: the system's own words, first letter
/// in capitals.
std::string FailureDescription(const std::error_code& error);

} // namespace coinlight
