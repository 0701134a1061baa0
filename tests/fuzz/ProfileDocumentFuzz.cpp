// Profile files (options.ini, profiles, bios.ini, catver.ini, nplayers.ini): parsed, looked
// up, edited, and the edited text parsed again, which must find what was written.
#include "FuzzInput.h"
#include "core/ProfileDocument.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace coinlight;
    const ProfileDocument document{std::string(fuzz::AsText(data, size))};
    std::string_view firstSection;
    for (std::string_view section : {"Category", "NPlayers", "MAME", "View", "Preferences BIOS"}) {
        (void)document.Find(section, "pacman");
        (void)document.Entries(section);
        if (firstSection.empty() && document.HasSection(section)) {
            firstSection = section;
        }
    }
    const ProfileDocument edited(document.WithValue("Fuzz Section", "fuzz key", "value"));
    const auto found = edited.Find("fuzz section", "FUZZ KEY");
    if (!found || *found != "value") {
        __builtin_trap(); // a written key must read back
    }
    (void)ProfileDocument(edited.WithoutKey("Fuzz Section", "fuzz key")).Text();
    if (!firstSection.empty()) {
        (void)ProfileDocument(document.WithSectionCleared(firstSection)).Text();
        (void)ProfileDocument(document.WithoutSection(firstSection)).Text();
    }
    return 0;
}
