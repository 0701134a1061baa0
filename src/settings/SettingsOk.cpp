#include "SettingsOk.h"

#include "ProfileChoice.h"
#include "ProfileCompare.h"
#include "ProfileSave.h"
#include "core/FileTests.h"
#include "core/TextCase.h"

namespace coinlight {

namespace {

void RemoveProfile(const std::filesystem::path& profile) {
    std::error_code ignored; // a file that is already gone is what was wanted
    std::filesystem::remove(profile, ignored);
}

bool Save(const std::filesystem::path& profile, OptionValues& values, SettingsOkOutcome& outcome) {
    std::string error;
    if (SaveProfileValues(profile, values, &error)) {
        return true;
    }
    outcome.messages.push_back(RoutineError("Error In SaveControls", error, 2));
    return false;
}

} // namespace

SettingsOkOutcome SettingsOk(const DataLayout& data, const SettingsScreenFacts& facts,
                             OptionValues& values) {
    SettingsOkOutcome outcome;
    const bool allDefaults = SettingsAreDefault(values);
    const auto classProfile = ProfilePath(data, ToLowerAscii(facts.profileName));
    if (!facts.Custom()) {
        outcome.currentProfile = classProfile;
        if (allDefaults) {
            RemoveProfile(classProfile);
        } else {
            Save(classProfile, values, outcome);
        }
        return outcome;
    }

    const auto custom = ProfilePath(data, facts.selectedMachine);
    outcome.currentProfile = custom;
    if (!Save(custom, values, outcome)) {
        return outcome;
    }
    outcome.panelText = std::string(kCustomSettingsCaption);
    const auto classOfMachine = ProfilePath(data, ClassProfileName(facts));
    bool drop = false;
    if (FileExists(custom) && FileExists(classOfMachine)) {
        ProfileComparison comparison = CompareProfiles(custom, classOfMachine);
        if (comparison.message) {
            outcome.messages.push_back(std::move(*comparison.message));
        }
        drop = comparison.verdict == ComparisonVerdict::Equal;
    } else {
        drop = allDefaults;
    }
    if (drop) {
        RemoveProfile(custom);
        if (auto label = ClassSettingsLabel(facts.displayType)) {
            outcome.panelText = std::move(label);
        }
    }
    return outcome;
}

std::string ClassProfileName(const SettingsScreenFacts& facts) {
    return ToLowerAscii(facts.displayType) == "other" ? std::string("other") : facts.profileName;
}

std::optional<std::filesystem::path> RestoreSource(const DataLayout& data,
                                                   const SettingsScreenFacts& facts) {
    const auto classProfile = ProfilePath(data, ToLowerAscii(ClassProfileName(facts)));
    if (facts.Custom() && FileExists(ProfilePath(data, facts.selectedMachine)) &&
        FileExists(classProfile)) {
        return classProfile;
    }
    return std::nullopt;
}

} // namespace coinlight
