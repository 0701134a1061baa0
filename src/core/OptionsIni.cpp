#include "OptionsIni.h"

#include <algorithm>

#include "PreferenceKeys.h"
#include "ProfileFile.h"
#include "TextFile.h"
#include "Version.h"

namespace coinlight {

namespace {

bool Convert(const std::string& text, std::string& field) {
    field = text;
    return true;
}
bool Convert(const std::string& text, bool& field) {
    const auto value = ParseBool(text);
    field = value.value_or(field);
    return value.has_value();
}
bool Convert(const std::string& text, int& field) {
    const auto value = ParseInteger(text);
    field = value.value_or(field);
    return value.has_value();
}
bool Convert(const std::string& text, long long& field) {
    const auto value = ParseSize(text);
    field = value.value_or(field);
    return value.has_value();
}
bool Convert(const std::string& text, Colour& field) {
    const auto value = ParseColour(text);
    field = value.value_or(field);
    return value.has_value();
}
bool Convert(const std::string& text, Day& field) {
    const auto value = ParseDay(text);
    field = value.value_or(field);
    return value.has_value();
}

/// Reads every key of one section through its visitor; the first value that does not
/// convert stops the read.
class SectionReader {
public:
    SectionReader(const std::filesystem::path& file, const char* section, OptionsReadResult& result)
        : m_file(file), m_section(section), m_result(result) {}

    template <class T> void operator()(std::string_view key, T& field, KeyWriter) {
        if (m_result.status != OptionsReadStatus::Ok) {
            return;
        }
        const std::string text = ReadProfileValue(m_file, m_section, key, PreferenceText(field));
        if (!Convert(text, field)) {
            m_result = {OptionsReadStatus::Problem,
                        std::string(m_section) + "/" + std::string(key)};
        }
    }

private:
    const std::filesystem::path& m_file;
    const char* m_section;
    OptionsReadResult& m_result;
};

OptionsReadResult CheckVersion(const std::filesystem::path& file, Preferences& preferences) {
    preferences.miscellaneous.coinlightVersion =
        ReadProfileValue(file, kSectionMiscellaneous, kKeyCoinlightVersion, "0");
    std::string digits = preferences.miscellaneous.coinlightVersion;
    digits.erase(std::remove(digits.begin(), digits.end(), '.'), digits.end());
    const auto number = ParseLong(digits);
    if (!number) {
        return {OptionsReadStatus::Problem,
                std::string(kSectionMiscellaneous) + "/" + kKeyCoinlightVersion};
    }
    if (*number < kOldestAcceptedOptionsVersion) {
        return {OptionsReadStatus::VersionTooOld, preferences.miscellaneous.coinlightVersion};
    }
    return {};
}

} // namespace

OptionsReadResult ReadFilterList(const std::filesystem::path& file, const char* section,
                                 std::vector<FilterEntry>& entries) {
    entries.clear();
    const OptionsReadResult broken{OptionsReadStatus::Problem, std::string(section) + "/Total"};
    const auto total = ParseInteger(ReadProfileValue(file, section, kKeyTotal, 0));
    if (!total || *total < 0) {
        return broken;
    }
    if (*total == 0) {
        return {};
    }
    // The entries are the lines that follow the header, however many of them are really
    // entries: `Total` is trusted, and must therefore be the last line written.
    const auto lines = ReadTextLines(file);
    if (!lines) {
        return broken;
    }
    const std::string header = "[" + std::string(section) + "]";
    const auto found = std::find(lines->begin(), lines->end(), header);
    if (found == lines->end() || lines->end() - found - 1 < *total) {
        return broken;
    }
    for (auto line = found + 1; line != found + 1 + *total; ++line) {
        const std::size_t equals = line->find('=');
        if (equals == std::string::npos) {
            return broken;
        }
        const std::size_t nextEquals = line->find('=', equals + 1);
        const std::string flag = line->substr(equals + 1, nextEquals - equals - 1);
        const auto ticked = ParseBool(flag);
        if (!ticked) {
            return broken;
        }
        entries.push_back({line->substr(0, equals), *ticked});
    }
    return {};
}

OptionsReadResult ReadOptionsIni(const std::filesystem::path& file, Preferences& preferences) {
    preferences = Preferences{}; // what the file does not say is the default, not a leftover
    OptionsReadResult result = CheckVersion(file, preferences);
    if (result.status != OptionsReadStatus::Ok) {
        return result;
    }
    result = ReadFilterList(file, kSectionBiosFilter, preferences.biosFilter);
    if (result.status != OptionsReadStatus::Ok) {
        return result;
    }
    result = ReadFilterList(file, kSectionCategoryFilter, preferences.categoryFilter);
    if (result.status != OptionsReadStatus::Ok) {
        return result;
    }
    ForEachOtherKey(preferences.other, SectionReader(file, kSectionOther, result));
    ForEachMameKey(preferences.mame, SectionReader(file, kSectionMame, result));
    ForEachSearchPathKey(preferences.searchPaths, SectionReader(file, kSectionSearchPaths, result));
    ForEachOutputPathKey(preferences.outputPaths, SectionReader(file, kSectionOutputPaths, result));
    ForEachMiscellaneousKey(preferences.miscellaneous,
                            SectionReader(file, kSectionMiscellaneous, result));
    ForEachViewKey(preferences.view, SectionReader(file, kSectionView, result));
    ForEachListStateKey(preferences.view, SectionReader(file, kSectionView, result));
    return result;
}

bool WriteFilterList(const std::filesystem::path& file, const char* section,
                     const std::vector<FilterEntry>& entries, std::string* error) {
    ProfileEditor editor(file);
    editor.ClearSection(section);
    for (const auto& entry : entries) {
        editor.Set(section, entry.name, BoolText(entry.ticked));
    }
    editor.Set(section, kKeyTotal, std::to_string(entries.size()));
    return editor.Commit(true, error);
}

bool SaveViewState(const std::filesystem::path& file, const Preferences& preferences,
                   std::string* error) {
    ProfileEditor editor(file);
    editor.Set(kSectionMiscellaneous, kKeyAutoRun, BoolText(preferences.miscellaneous.autoRun));
    // "Filters" belongs to the Options dialog; everything else of the section is view state.
    const auto writeViewKey = [&](std::string_view key, const auto& field, KeyWriter writer) {
        if (writer == KeyWriter::Elsewhere) {
            editor.Set(kSectionView, key, PreferenceText(field));
        }
    };
    ForEachViewKey(preferences.view, writeViewKey);
    ForEachListStateKey(preferences.view, writeViewKey);
    return editor.Commit(true, error);
}

void DiscardOptions(const std::filesystem::path& file, Preferences& preferences) {
    std::error_code ignored;
    std::filesystem::remove(file, ignored);
    ForgetProfile(file);
    preferences = Preferences{};
}

} // namespace coinlight
