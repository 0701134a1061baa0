#pragma once

#include <string>
#include <string_view>

namespace coinlight {

/// A-Z lowered, every other byte as it is: the comparison the list boxes make.
std::string LowerAscii(std::string_view text);

} // namespace coinlight
