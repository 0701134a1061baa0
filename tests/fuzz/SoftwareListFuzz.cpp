// A machine's software file made from a damaged software.xml (and, after a record
// separator, a damaged softfilter.ini).
#include "FuzzInput.h"
#include "catalogue/SoftwareCatalogue.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace coinlight;
    const auto [softwareXml, softFilter] = fuzz::SplitInput(fuzz::AsText(data, size));
    const auto folder = fuzz::ScratchFolder();
    SoftwareSources sources;
    sources.softwareXml = folder / "software.xml";
    sources.softFilterIni = folder / "softfilter.ini";
    sources.softwarePaths = {folder / "software"};
    fuzz::WriteBytes(sources.softwareXml, softwareXml);
    fuzz::WriteBytes(sources.softFilterIni, softFilter);
    const auto file = folder / "soft" / "a2600.txt";
    const SoftwareFileResult result =
        WriteSoftwareFile(sources, "a2600", {"a2600", "a2600_cass"}, file);
    if (!result.outcome.Succeeded() && std::filesystem::exists(file)) {
        __builtin_trap(); // a failed extraction leaves no file to be trusted
    }
    return 0;
}
