#include "ProfileSave.h"

#include "OptionCatalogue.h"
#include "core/TextCase.h"

namespace coinlight {

namespace {

std::string_view SectionOf(DefaultsGroup group) {
    switch (group) {
    case DefaultsGroup::HLSL:
        return section::kDirect3DPostProcessing;
    case DefaultsGroup::YIQ:
        return section::kNTSCPostProcessing;
    case DefaultsGroup::Vector:
        return section::kVectorPostProcessing;
    case DefaultsGroup::Bloom:
        return section::kBloomPostProcessing;
    case DefaultsGroup::None:
        break;
    }
    return {};
}

} // namespace

void SetDefaults(OptionValues& values, DefaultsGroup group) {
    const std::string_view only = SectionOf(group);
    const auto catalogue = OptionCatalogue();
    for (std::size_t row = 0; row < catalogue.size(); ++row) {
        if (only.empty() || catalogue[row].section == only) {
            values[row] = catalogue[row].defaultValue;
        }
    }
}

bool SettingsAreDefault(const OptionValues& values) {
    const auto catalogue = OptionCatalogue();
    for (std::size_t row = 0; row < catalogue.size(); ++row) {
        if (values[row] != catalogue[row].defaultValue) {
            return false;
        }
    }
    return true;
}

void CleanForSave(OptionValues& values) {
    const auto catalogue = OptionCatalogue();
    for (std::size_t row = 0; row < catalogue.size(); ++row) {
        std::string& value = values[row];
        switch (catalogue[row].save) {
        case SaveRule::AsIs:
            break;
        case SaveRule::LowerCase:
            value = ToLowerAscii(value);
            break;
        case SaveRule::EmptyToZero:
            value = value.empty() ? "0" : value;
            break;
        case SaveRule::EmptyToAuto:
            value = value.empty() ? "Auto" : value;
            break;
        case SaveRule::EmptyToNone:
            value = value.empty() ? "None" : value;
            break;
        }
    }
}

bool SaveProfileValues(const std::filesystem::path& profile, OptionValues& values,
                       std::string* error) {
    CleanForSave(values);
    std::error_code ignored; // a folder that cannot be made shows in the write's error
    std::filesystem::create_directories(profile.parent_path(), ignored);
    return WriteOptionValues(profile, values, error);
}

} // namespace coinlight
