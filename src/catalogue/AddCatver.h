#pragma once

#include <filesystem>
#include <optional>
#include <string_view>

#include "CatalogueOutcome.h"
#include "CatalogueProgress.h"
#include "RunTimeError.h"
#include "core/DataLayout.h"
#include "core/ProfileDocument.h"

namespace coinlight {

/// Gives every record of a machine record file the category that `catver` names for its
/// short name ("Unknown" when it names none); the other fields pass unchanged. The new
/// file is written whole before it replaces the old one, which survives any failure.
std::optional<RunTimeError> MergeCategories(const std::filesystem::path& recordFile,
                                            const ProfileDocument& catver,
                                            CatalogueProgress& progress);

/// The category merge after a new `support/catver.ini`: `fileName` is "arcadeinfo.txt" or
/// "otherinfo.txt" in `output`; the favourites file that goes with it ("arcadefavs.txt",
/// else "otherfavs.txt") is merged too when it exists.
CatalogueOutcome AddCatver(std::string_view fileName, const DataLayout& data,
                           CatalogueProgress& progress);

} // namespace coinlight
