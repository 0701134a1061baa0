#pragma once

#include <filesystem>
#include <functional>
#include <optional>

#include "CatalogueBuilder.h"
#include "CatalogueOutcome.h"
#include "CatalogueProgress.h"
#include "core/DataLayout.h"

namespace coinlight {

/// Where a catalogue is made from and where it goes.
struct CatalogueSources {
    std::filesystem::path machineXml;
    std::filesystem::path listsTxt;
    /// Only when catver.ini was there at start; without it every category reads
    /// "Catver.ini Not Found".
    std::optional<std::filesystem::path> catverIni;
    std::filesystem::path outputFolder;

    /// While MAME still writes `machineXml`: true once it has finished. Both passes wait at
    /// the end of the data until then. Empty for a file that is complete.
    std::function<bool()> machineXmlFinished = {};
    /// Asked once the catalogue is built, before any file of the output folder is touched;
    /// false leaves every file as it was (the run that fed the catalogue failed). Without
    /// it the files of the last run are kept and cleared first, as always.
    std::function<bool()> beforeReplacing = {};
};

/// The program's own layout: `output/machine.xml`, `support/lists.txt`, `support/catver.ini`.
CatalogueSources CatalogueSourcesIn(const DataLayout& data, bool hasCatver);

struct SupportFilesResult {
    CatalogueOutcome outcome;
    CatalogueCounts counts;
    /// The catalogue was built, but `beforeReplacing` said no: nothing was touched, and
    /// the outcome fails without a message of its own.
    bool withheld = false;
};

/// Turns `machine.xml` into the catalogue: `arcadeinfo.txt`, `otherinfo.txt`, `crcinfo.txt`,
/// `biosfilter.txt`, `arcadebios.txt`, `otherbios.txt`, `bios.ini`, `softfilter.ini` and,
/// when machines are missing from lists.txt, `unlisted.txt`. The previous `biosfilter.txt`
/// and `crcinfo.txt` are kept as `biosfilterlast.txt` and `crcinfolast.txt`. On failure the
/// old record files stay as they were, `bios.ini`, `softfilter.ini` and `unlisted.txt` are
/// gone, and the outcome carries the message and the fatal flag. With `beforeReplacing`, a
/// failure leaves every file as it was.
SupportFilesResult CreateSupportFiles(const CatalogueSources& sources, CatalogueProgress& progress);

} // namespace coinlight
