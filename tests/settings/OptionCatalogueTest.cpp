#include "settings/OptionCatalogue.h"

#include "core/TextCase.h"

#include <gtest/gtest.h>
#include <set>

#include "settings/OptionValues.h"
#include "settings/ProfileIniLayout.h"
#include "core/TextCase.h"
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

TEST(OptionCatalogue, HoldsTheOptionsInProfileOrderWithUniqueNames) {
    const auto catalogue = OptionCatalogue();
    ASSERT_EQ(catalogue.size(), 209u);
    EXPECT_EQ(catalogue.front().key, "Frame Skip");
    EXPECT_EQ(catalogue.back().key, "Other Commands");

    std::vector<std::string_view> sections;
    std::set<std::string> keys;
    std::set<std::string_view> controls;
    std::set<std::string_view> iniOptions;
    for (const OptionRow& row : catalogue) {
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
    EXPECT_EQ(sections.size(), 29u);
    EXPECT_EQ(sections[15], "OSD Per-Window Video Options");
    EXPECT_EQ(iniOptions.size(), 213u); // 208 rows, five of them with more than one option
}

TEST(OptionCatalogue, RowsCarryTheirControlsDefaultsAndOptions) {
    EXPECT_EQ(Row("Frame Skip").control, "cboFrameSkip");
    EXPECT_EQ(IniOptionNames(Row("Frame Skip")),
              (std::vector<std::string_view>{"autoframeskip", "frameskip"}));
    EXPECT_EQ(IniOptionNames(Row("Roll")),
              (std::vector<std::string_view>{"ror", "rol", "autoror", "autorol"}));
    EXPECT_EQ(Row("Mouse Device").control, "cboInputDev(7)");
    EXPECT_EQ(Row("Mouse Device").defaultValue, "Mouse");
    EXPECT_EQ(Row("Joystick Threshold").defaultValue, "0.30");
    EXPECT_EQ(Row("Green Ratio").iniOptions, "grn_ratio");
    EXPECT_EQ(Row("Chroma Y Gain").defaultValue, "0.2126,0.7152,0.0722");
    EXPECT_EQ(Row("YIQ CC").defaultValue, "3.57954545");
    EXPECT_EQ(Row("BGFX Path").rule, IniRule::Path);
    EXPECT_EQ(Row("Screens").rule, IniRule::Screen);
    EXPECT_EQ(Row("Screen0").rule, IniRule::Lower);
    EXPECT_EQ(Row("Fallback Artwork").defaultValue, "");
    EXPECT_EQ(Row("Other Commands").iniOptions, "");
    EXPECT_EQ(Row("Other Commands").section, "Miscellaneous");
    EXPECT_EQ(Row("bloom blend MODE").control, "txtBloomPost(0)");
    EXPECT_FALSE(FindOptionByKey("Bloom").has_value());
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
