#pragma once

#include <functional>

#include "CatalogueProgress.h"
#include "CreateSupportFiles.h"
#include "RunMAMEList.h"
#include "core/DataLayout.h"

namespace coinlight {

/// A new catalogue in the time MAME takes to describe itself: `-listxml` and `-listsoftware`
/// run at once, and the catalogue is built from the machine list while MAME writes it.
/// `output/machine.xml` and `output/software.xml` get MAME's output byte for byte, but only
/// once both runs and the catalogue have succeeded; any failure leaves every file as it
/// was, with the message the failing step has always given (the capture's before the
/// catalogue's). `capturesEnded` is called when both runs have ended well, before anything
/// is replaced.
SupportFilesResult RebuildFromMame(const MameProgram& mame, const DataLayout& data, bool hasCatver,
                                   CatalogueProgress& progress,
                                   const std::function<void()>& capturesEnded = {});

} // namespace coinlight
