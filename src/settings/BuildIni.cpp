#include "BuildIni.h"

#include "IniTranslation.h"
#include "MameIniText.h"
#include "OptionCatalogue.h"
#include "ProfileIniLayout.h"
#include "core/FileTests.h"
#include "core/TextFile.h"

namespace coinlight {

namespace {

constexpr const char* kBuildError = "Error In BuildIni";

/// The catalogue rows one step of the layout writes, as a half-open range.
std::pair<std::size_t, std::size_t> RowsOf(const ProfileIniStep& step) {
    const auto catalogue = OptionCatalogue();
    if (step.kind == ProfileIniStep::Kind::Section) {
        std::size_t first = 0;
        while (first < catalogue.size() && catalogue[first].section != step.first) {
            ++first;
        }
        std::size_t end = first;
        while (end < catalogue.size() && catalogue[end].section == step.first) {
            ++end;
        }
        return {first, end};
    }
    const auto first = FindOptionByIniName(step.first);
    const auto last = FindOptionByIniName(step.last);
    if (!first || !last || *last < *first) {
        return {0, 0};
    }
    return {*first, *last + 1};
}

} // namespace

ProfileSections ProfileSectionLines(const OptionValues& values) {
    ProfileSections sections;
    const auto catalogue = OptionCatalogue();
    for (const ProfileIniStep& step : ProfileIniLayout()) {
        switch (step.kind) {
        case ProfileIniStep::Kind::Heading:
            AppendHeading(sections.lines, step.first);
            break;
        case ProfileIniStep::Kind::Fixed:
            sections.lines.push_back(IniLine(step.first, step.last));
            break;
        case ProfileIniStep::Kind::Bare:
            sections.lines.emplace_back(step.first);
            break;
        case ProfileIniStep::Kind::Section:
        case ProfileIniStep::Kind::Rows: {
            const auto [first, end] = RowsOf(step);
            for (std::size_t row = first; row < end; ++row) {
                if (auto problem = AppendOptionLines(catalogue[row], values[row], sections.lines)) {
                    return {{}, {}, std::move(problem)};
                }
            }
            break;
        }
        }
    }
    sections.otherCommands = values.Value("Other Commands");
    return sections;
}

IniBuild BuildIni(const Preferences& preferences, const MameIniBase& base,
                  const std::filesystem::path& profile) {
    const auto file = MameIniFile(preferences);
    if (file.empty() || !FileExists(file)) {
        if (auto failure = CreateMAMEIni(preferences, base)) {
            return {{}, std::move(failure)};
        }
    }
    auto lines = ReadTextLines(file);
    if (!lines) {
        return {{}, RoutineError(kBuildError, "Cannot read " + file.string(), 1)};
    }
    ProfileSections sections = ProfileSectionLines(ReadOptionValues(profile));
    if (sections.problem) {
        return {{}, RoutineError(kBuildError, *sections.problem, 2)};
    }
    lines->insert(lines->end(), sections.lines.begin(), sections.lines.end());
    std::string error;
    if (!WriteTextLines(file, *lines, &error)) {
        return {{}, RoutineError(kBuildError, error, 3)};
    }
    return {std::move(sections.otherCommands), std::nullopt};
}

} // namespace coinlight
