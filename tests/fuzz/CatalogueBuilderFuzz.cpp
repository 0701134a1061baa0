// A whole catalogue made from a damaged machine.xml (and, after a record separator, a
// damaged lists.txt): the builder may refuse, but never crash, and a refusal leaves no
// half-written record file behind.
#include "FuzzInput.h"
#include "catalogue/CatalogueProgress.h"
#include "catalogue/CreateSupportFiles.h"

namespace {

constexpr std::string_view kLists = "Arcade\r\npuckman;pacman;pong;galaxian\r\n"
                                    "Other\r\na2600;coco;spectrum\r\n";

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace coinlight;
    const auto [machineXml, lists] = fuzz::SplitInput(fuzz::AsText(data, size));
    const auto folder = fuzz::ScratchFolder();
    CatalogueSources sources;
    sources.machineXml = folder / "machine.xml";
    sources.listsTxt = folder / "lists.txt";
    sources.outputFolder = folder / "output";
    std::filesystem::create_directories(sources.outputFolder);
    fuzz::WriteBytes(sources.machineXml, machineXml);
    fuzz::WriteBytes(sources.listsTxt, lists.empty() ? kLists : lists);
    CatalogueProgress progress;
    const SupportFilesResult result = CreateSupportFiles(sources, progress);
    if (!result.outcome.Succeeded() && std::filesystem::exists(sources.outputFolder / "bios.ini")) {
        __builtin_trap(); // a failed build must not leave its ini files as if it had worked
    }
    return 0;
}
