#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "core/UserMessage.h"

namespace coinlight {

/// True when MAME's report calls at least one set bad: the page then offers to list them.
bool HasBadSets(std::string_view report);

/// The report cut down to the sets MAME calls bad, counted at the top.
struct BadSetList {
    std::string text;
    int count = 0;
    std::optional<UserMessage> error; // more bad sets than the counter holds
};
BadSetList ListBadSets(std::string_view report);

} // namespace coinlight
