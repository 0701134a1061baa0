#include "ListFilters.h"

#include <algorithm>

#include "core/TextCase.h"

namespace coinlight {

namespace {

constexpr std::string_view kNoCatver = "Catver.ini Not Found";

std::vector<std::string> BiosSetNames(const std::vector<FilterEntry>& entries) {
    std::vector<std::string> names;
    for (const auto& entry : entries) {
        const std::size_t separator = entry.name.find(": ");
        names.push_back(ToLowerAscii(separator == std::string::npos
                                         ? std::string_view{}
                                         : std::string_view(entry.name).substr(separator + 2)));
    }
    return names;
}

std::vector<std::string> Categories(const std::vector<FilterEntry>& entries) {
    std::vector<std::string> names;
    for (const auto& entry : entries) {
        names.push_back(ToLowerAscii(entry.name));
    }
    return names;
}

bool IsFourDigits(std::string_view year) {
    return year.size() == 4 &&
           std::all_of(year.begin(), year.end(), [](char c) { return c >= '0' && c <= '9'; });
}

bool Contains(const std::vector<std::string>& lowerNames, std::string_view text) {
    return std::any_of(lowerNames.begin(), lowerNames.end(),
                       [text](const std::string& name) { return EqualsIgnoringCase(name, text); });
}

} // namespace

ListFilterSettings ListFilterSettings::ForArcade(const Preferences& preferences) {
    const OtherPreferences& other = preferences.other;
    ListFilterSettings settings;
    settings.biosSets = BiosSetNames(preferences.biosFilter);
    settings.categories = Categories(preferences.categoryFilter);
    settings.hideClones = other.hideArcadeClones;
    settings.hidePreliminary = other.hidePreliminary;
    settings.hideVs = other.hideVs;
    settings.hideYear = other.hideYear;
    settings.hideBootleg = other.hideBootleg;
    settings.hideChd = other.hideChd;
    settings.hideImperfect = other.hideImperfect;
    settings.year = other.year;
    return settings;
}

ListFilterSettings ListFilterSettings::ForOther(const Preferences& preferences) {
    ListFilterSettings settings;
    settings.biosSets = BiosSetNames(preferences.biosFilter);
    settings.categories = Categories(preferences.categoryFilter);
    settings.hideClones = preferences.other.hideOtherClones;
    settings.hideChd = preferences.other.hideChd;
    return settings;
}

MachineFilter::MachineFilter(ListFilterSettings settings) : m_settings(std::move(settings)) {}

bool MachineFilter::HidesByBios(std::string_view romOf, std::string_view shortName) {
    if (m_settings.biosSets.empty() || romOf == "N/A") {
        return false;
    }
    const bool hiddenBios = Contains(m_settings.biosSets, romOf);
    // A machine whose BIOS (or parent) was hidden earlier in the file goes too, and so do
    // the machines that name it in turn.
    if (hiddenBios || m_skipList.find(romOf) != m_skipList.end()) {
        m_skipList.emplace(shortName);
        return true;
    }
    return false;
}

bool MachineFilter::Hides(const std::array<std::string_view, kRecordFieldCount>& fields) {
    const ListFilterSettings& s = m_settings;
    if (HidesByBios(fields[ColRomOf], fields[ColName])) {
        return true;
    }
    if (!s.categories.empty() && fields[ColCategory] != kNoCatver &&
        Contains(s.categories, fields[ColCategory])) {
        return true;
    }
    if (s.hideClones && StartsWithIgnoringCase(fields[ColSetType], "clone of")) {
        return true;
    }
    if (s.hidePreliminary && EqualsIgnoringCase(fields[ColDriver], "preliminary")) {
        return true;
    }
    if (s.hideVs && StartsWithIgnoringCase(fields[ColMachine], "vs")) {
        return true;
    }
    if (s.hideYear && (!IsFourDigits(fields[ColYear]) || fields[ColYear] > s.year)) {
        return true;
    }
    if (s.hideBootleg && fields[ColManufacturer].find("bootleg") != std::string_view::npos) {
        return true;
    }
    if (s.hideChd && fields[ColChdRequired] == "Yes") {
        return true;
    }
    return s.hideImperfect && fields[ColDriver] == "Imperfect";
}

} // namespace coinlight
