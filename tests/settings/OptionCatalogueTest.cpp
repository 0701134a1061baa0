#include "settings/OptionCatalogue.h"

#include <gtest/gtest.h>
#include <set>

#include "core/TextCase.h"
#include "settings/OptionValues.h"
#include "settings/ProfileIniLayout.h"
#include "support/TestFiles.h"

namespace coinlight {
namespace {

using test::ReadFile;
using test::TempFolder;
using test::WriteFile;

const OptionRow& Row(std::string_view key) {
    const auto row = FindOptionByKey(key);
    EXPECT_TRUE(row.has_value()) << key;
    return OptionCatalogue()[row.value_or(0)];
}

TEST(OptionCatalogue, NamesAreUniqueAndEachSectionIsOneRun) {
    std::vector<std::string_view> sections;
    std::set<std::string> keys;
    std::set<std::string_view> controls;
    std::set<std::string_view> iniOptions;
    for (const OptionRow& row : OptionCatalogue()) {
        if (sections.empty() || sections.back() != row.section) {
            sections.push_back(row.section);
        }
        EXPECT_TRUE(keys.insert(ToLowerAscii(row.key)).second) << row.key;
        EXPECT_TRUE(controls.insert(row.control).second) << row.control;
        for (auto name : IniOptionNames(row)) {
            EXPECT_TRUE(iniOptions.insert(name).second) << name;
        }
        if (row.kind == OptionKind::Check) {
            EXPECT_TRUE(row.defaultValue == "0" || row.defaultValue == "1") << row.key;
        }
    }
    // A section that came back later would be split in two in every profile.
    EXPECT_EQ(std::set<std::string_view>(sections.begin(), sections.end()).size(), sections.size());
}

TEST(OptionCatalogue, LookUpsIgnoreCaseAndTakeWholeNamesOnly) {
    EXPECT_EQ(Row("bloom blend MODE").control, "txtBloomPost(0)");
    EXPECT_FALSE(FindOptionByKey("Bloom").has_value());
    EXPECT_EQ(IniOptionNames(Row("Roll")),
              (std::vector<std::string_view>{"ror", "rol", "autoror", "autorol"}));
    EXPECT_EQ(FindOptionByIniName("autoframeskip"), FindOptionByKey("Frame Skip"));
    EXPECT_EQ(FindOptionByIniName("frameskip"), std::nullopt); // found by its first option only
}

TEST(OptionCatalogue, TheIniLayoutWritesEveryOptionExactlyOnce) {
    std::multiset<std::size_t> written;
    const auto catalogue = OptionCatalogue();
    for (const ProfileIniStep& step : ProfileIniLayout()) {
        if (step.kind == ProfileIniStep::Kind::Section) {
            bool any = false;
            for (std::size_t row = 0; row < catalogue.size(); ++row) {
                if (catalogue[row].section == step.first) {
                    written.insert(row);
                    any = true;
                }
            }
            EXPECT_TRUE(any) << step.first;
        } else if (step.kind == ProfileIniStep::Kind::Rows) {
            const auto first = FindOptionByIniName(step.first);
            const auto last = FindOptionByIniName(step.last);
            ASSERT_TRUE(first && last) << step.first << " " << step.last;
            ASSERT_LE(*first, *last);
            for (std::size_t row = *first; row <= *last; ++row) {
                written.insert(row);
            }
        }
    }
    for (std::size_t row = 0; row + 1 < catalogue.size(); ++row) {
        EXPECT_EQ(written.count(row), 1u) << catalogue[row].key;
    }
    EXPECT_EQ(written.count(catalogue.size() - 1), 0u); // Other Commands goes on the line
}

TEST(OptionValues, AProfileWrittenInFullReadsBackValueForValue) {
    TempFolder folder;
    OptionValues written;
    const auto catalogue = OptionCatalogue();
    for (std::size_t row = 0; row < catalogue.size(); ++row) {
        written[row] = "v" + std::to_string(row);
    }
    written.Set("Other Commands", "-joystick_map 4\r\n-cheat");
    const auto file = folder / "raster.cfg";
    WriteFile(file, "[Old Section]\r\nGone=1\r\n");
    ASSERT_TRUE(WriteOptionValues(file, written));

    OptionValues read = ReadOptionValues(file);
    EXPECT_EQ(read.Value("Other Commands"), "-joystick_map 4  -cheat");
    written.Set("Other Commands", read.Value("Other Commands"));
    EXPECT_EQ(read, written);

    const std::string text = ReadFile(file);
    EXPECT_EQ(text.find("Gone"), std::string::npos);
    EXPECT_EQ(text.rfind("[Core Performance Options]\r\nFrame Skip=v0\r\nThrottle=v1\r\n", 0), 0u);
    EXPECT_NE(text.find("Low Latency=v5\r\n\r\n[Core Render Options]\r\n"), std::string::npos);
    EXPECT_EQ(test::CountFiles(folder.Path()), 1u);
}

TEST(OptionValues, MissingKeysSectionsAndFilesGiveTheDefaults) {
    TempFolder folder;
    const auto file = folder / "lcd.cfg";
    WriteFile(file, "[core performance options]\nspeed=150%\n"
                    "[Bloom Post-Processing Options]\nbloom blend MODE=1\n");
    const OptionValues values = ReadOptionValues(file);
    EXPECT_EQ(values.Value("Speed"), "150%");
    EXPECT_EQ(values.Value("Bloom Blend mode"), "1");
    EXPECT_EQ(values.Value("Throttle"), "1");
    EXPECT_EQ(values.Value("Mouse Device"), "Mouse");
    EXPECT_EQ(ReadOptionValues(folder / "none.cfg"), OptionValues());
}

} // namespace
} // namespace coinlight
