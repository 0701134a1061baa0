#pragma once

#include <memory>
#include <string>
#include <vector>

#include "MachineRow.h"
#include "core/BigMemory.h"
#include "core/ProfileDocument.h"

namespace coinlight {

/// The rows read from one catalogue file, with the texts they point into: the file's bytes
/// and the players list. Lists share it; it lives as long as one of them shows it.
struct MachineRows {
    BigBuffer text;
    std::shared_ptr<const ProfileDocument> players;
    std::vector<MachineRow, BigAllocator<MachineRow>> rows;
};

} // namespace coinlight
