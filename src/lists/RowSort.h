#pragma once

#include <cstdint>
#include <vector>

#include "MachineRows.h"

namespace coinlight {

/// Orders a list's rows by one column's text, ignoring case as the lists always have; rows
/// of equal text keep their order, so a second sort refines the first.
void SortRows(std::vector<std::uint32_t>& order, const MachineRows& rows, int column,
              bool descending);

} // namespace coinlight
