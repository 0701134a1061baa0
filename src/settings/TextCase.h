#pragma once

#include <string>
#include <string_view>

namespace coinlight {

// Case changes of ASCII letters only: the bytes of UTF-8 text pass through untouched.

std::string LowerCase(std::string_view text);
/// The first letter of every blank-separated word upper case, every other letter lower.
std::string ProperCase(std::string_view text);

} // namespace coinlight
