#pragma once

#include <optional>
#include <string>

#include "UnneededFiles.h"
#include "core/DataLayout.h"
#include "core/Preferences.h"

namespace coinlight {

/// The needed names of the lists as a start with these preferences fills them: the saved
/// filters, favourites when the saved view shows them, other machines only with their ROM
/// folders set. Without a window this is what stands in for the rows of the list views.
struct CatalogueNeeds {
    NeededNames names;
    std::optional<std::string> error; // a catalogue file could not be loaded
};
CatalogueNeeds NeededNamesOfCatalogue(const Preferences& preferences, const DataLayout& data);

} // namespace coinlight
