#pragma once

#include <string>
#include <system_error>

namespace coinlight {

/// True for the failures that mean "not allowed" rather than "not there" or "broken".
bool IsPermissionFailure(const std::error_code& error);

/// The description of a failure as the user reads it: the system's own words, first letter
/// in capitals.
std::string FailureDescription(const std::error_code& error);

} // namespace coinlight
