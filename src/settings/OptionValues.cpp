#include "OptionValues.h"

#include "OptionCatalogue.h"
#include "core/ProfileFile.h"

namespace coinlight {

OptionValues::OptionValues() {
    const auto catalogue = OptionCatalogue();
    m_values.reserve(catalogue.size());
    for (const OptionRow& row : catalogue) {
        m_values.emplace_back(row.defaultValue);
    }
}

const std::string& OptionValues::Value(std::string_view key) const {
    static const std::string unknown;
    const auto row = FindOptionByKey(key);
    return row ? m_values[*row] : unknown;
}

bool OptionValues::Set(std::string_view key, std::string value) {
    const auto row = FindOptionByKey(key);
    if (!row) {
        return false;
    }
    m_values[*row] = std::move(value);
    return true;
}

OptionValues ReadOptionValues(const std::filesystem::path& profile) {
    const auto document = LoadProfile(profile);
    const auto catalogue = OptionCatalogue();
    OptionValues values;
    for (std::size_t row = 0; row < catalogue.size(); ++row) {
        const OptionRow& option = catalogue[row];
        values[row] = ReadProfileValue(*document, option.section, option.key, option.defaultValue);
    }
    return values;
}

bool WriteOptionValues(const std::filesystem::path& profile, const OptionValues& values,
                       std::string* error) {
    // The new file is made beside the old one and renamed over it, so that a failure
    // leaves the old profile whole and a success leaves none of its stale keys.
    std::filesystem::path fresh = profile;
    fresh += ".new";
    std::error_code ignored;
    std::filesystem::remove(fresh, ignored);
    ForgetProfile(fresh);
    {
        ProfileEditor editor(fresh);
        const auto catalogue = OptionCatalogue();
        for (std::size_t row = 0; row < catalogue.size(); ++row) {
            editor.Set(catalogue[row].section, catalogue[row].key, values[row]);
        }
        if (!editor.Commit(true, error)) {
            ForgetProfile(fresh);
            return false;
        }
    }
    ForgetProfile(fresh);
    std::error_code renameError;
    std::filesystem::rename(fresh, profile, renameError);
    if (renameError) {
        std::filesystem::remove(fresh, ignored);
        if (error != nullptr) {
            *error = "Cannot replace " + profile.string() + ": " + renameError.message();
        }
        return false;
    }
    return true;
}

} // namespace coinlight
