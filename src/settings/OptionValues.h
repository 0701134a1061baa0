#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

namespace coinlight {

/// One value for every row of the option catalogue, in catalogue order: what a profile
/// holds, with the default standing in for every key it lacks.
class OptionValues {
public:
    /// Every option at its default.
    OptionValues();

    std::size_t size() const { return m_values.size(); }
    const std::string& operator[](std::size_t row) const { return m_values[row]; }
    std::string& operator[](std::size_t row) { return m_values[row]; }

    /// The value of a profile key, found without regard to case; empty for an unknown key.
    const std::string& Value(std::string_view key) const;
    /// False for an unknown key.
    bool Set(std::string_view key, std::string value);

    bool operator==(const OptionValues&) const = default;

private:
    std::vector<std::string> m_values;
};

/// Reads every option of a profile. A missing key, section or file gives the default, and
/// keys are found without regard to case, so "Bloom Blend mode" reads "Bloom Blend Mode".
OptionValues ReadOptionValues(const std::filesystem::path& profile);

/// Replaces the profile with exactly the keys of the catalogue, in its order, with a blank
/// line before every section but the first. Keys of an older catalogue do not survive.
bool WriteOptionValues(const std::filesystem::path& profile, const OptionValues& values,
                       std::string* error = nullptr);

} // namespace coinlight
