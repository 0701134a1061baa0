#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

#include "core/CommandRunner.h"
#include "core/DataLayout.h"
#include "core/Preferences.h"

namespace coinlight {

/// temp/<machine>_slots.txt: what MAME listed of a machine's slots, kept as a cache for
/// the rest of the run (the temp folder is emptied at exit).
std::filesystem::path SlotListingFile(const DataLayout& data, std::string_view machine);

/// `"<exe>" <machine> -listslots > "<file>"`; nothing when `machine` is no short name.
std::optional<std::string> SlotListingCommand(const Preferences& preferences,
                                              const DataLayout& data, std::string_view machine);

struct SlotListing {
    std::string text;     // the listing as MAME printed it; empty when there is none
    bool ranMame = false; // false when the cached file served
    ExecResult run;       // how the run went, when there was one
    std::string refusal;  // set: the machine is no short name and nothing ran
};

/// The slot listing of a machine, asking MAME only when no earlier listing is kept. A
/// listing that came out empty (MAME failed) is not kept, so the next request asks again.
SlotListing ListSlots(const Preferences& preferences, const DataLayout& data,
                      std::string_view machine, const ExecPump& pump);

} // namespace coinlight
