// The settings profiles (settings/*.cfg) as the screens and Rebuild Settings read them. The
// input is a profile, then optionally "\x1E" and a bios.ini that names the machine "fuzz".
// A repaired profile must load without a refusal, and a profile compared with itself can
// only be equal (or fail on a check box that holds no number).
#include "FuzzInput.h"
#include "core/ProfileFile.h"
#include "settings/BiosChoices.h"
#include "settings/ComboChoices.h"
#include "settings/ProfileCompare.h"
#include "settings/ProfileLoad.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace coinlight;
    static const ComboChoices kChoices = [] {
        ComboSources sources;
        sources.processors = 2;
        sources.fonts = {"DejaVu Sans"};
        return ComboChoices(sources);
    }();
    const auto [profileText, biosText] = fuzz::SplitInput(fuzz::AsText(data, size));
    ComboChoices choices = kChoices;
    choices.SetBiosItems(MachineBiosChoices(ProfileDocument{std::string(biosText)}, "fuzz").items);

    const LoadedProfile loaded =
        LoadProfileValues(ProfileDocument{std::string(profileText)}, choices);
    for (std::size_t row = 0; row < loaded.values.size(); ++row) {
        if (!ControlAccepts(row, loaded.values[row], choices)) {
            __builtin_trap(); // the screen would be handed a value its control refuses
        }
    }

    const auto folder = fuzz::ScratchFolder();
    const auto profile = folder / "fuzz.cfg";
    fuzz::WriteBytes(profile, profileText);
    ForgetProfile(profile);
    const ProfileComparison self = CompareProfiles(profile, profile);
    if (self.verdict == ComparisonVerdict::Different) {
        __builtin_trap();
    }
    if (RepairProfile(profile, choices)) {
        ForgetProfile(profile);
        if (!LoadProfileValues(profile, choices).refused.empty()) {
            __builtin_trap(); // a rebuild must leave nothing for the next one
        }
    }
    ForgetProfile(profile);
    return 0;
}
