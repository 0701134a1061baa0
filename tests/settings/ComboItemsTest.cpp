#include "settings/ComboItems.h"

#include <algorithm>
#include <gtest/gtest.h>

#include "settings/OptionCatalogue.h"
#include "support/TestFiles.h"

namespace coinlight {
namespace {

using Items = std::vector<std::string>;

bool Holds(const Items& items, const std::string& item) {
    return std::find(items.begin(), items.end(), item) != items.end();
}

TEST(ComboItems, EveryDropDownOffersItsDefault) {
    ComboSources sources;
    sources.processors = 2;
    for (const OptionRow& row : OptionCatalogue()) {
        if (row.kind != OptionKind::Combo) {
            continue;
        }
        const Items items = ComboItems(row.control, sources);
        EXPECT_TRUE(Holds(items, std::string(row.defaultValue)))
            << row.control << " lacks " << row.defaultValue;
    }
    EXPECT_TRUE(ComboItems("txtHLSL(3)", sources).empty());
}

TEST(ComboItems, DecimalStepsAreSummedInSinglePrecision) {
    const ComboSources none;
    const Items brightness = ComboItems("cboBrightness", none);
    EXPECT_EQ(brightness.size(), 191u);
    EXPECT_EQ(brightness.front(), "0.10");
    EXPECT_EQ(brightness.back(), "2.00");
    // The sum passes 10.01 before it gets there: the last beam width is 10.00.
    const Items beam = ComboItems("cboBeamMin", none);
    EXPECT_EQ(beam.size(), 901u);
    EXPECT_EQ(beam.back(), "10.00");
    // The sum a hair below zero is listed as zero, without a sign.
    const Items weight = ComboItems("cboBeamWeight", none);
    EXPECT_TRUE(Holds(weight, "0.00"));
    EXPECT_FALSE(Holds(weight, "-0.00"));
    EXPECT_EQ(weight.back(), "1.00");
    // 0.05 summed twenty times overshoots 1: the explicit "1.00" closes the list once.
    const Items deadzone = ComboItems("cboDeadzone", none);
    ASSERT_EQ(deadzone.size(), 21u);
    EXPECT_EQ(deadzone[19], "0.95");
    EXPECT_EQ(deadzone[20], "1.00");
    const Items latency = ComboItems("cboAudioLat", none);
    EXPECT_EQ(latency.front(), "0.0");
    EXPECT_EQ(latency.back(), "9.9");
    EXPECT_EQ(SingleSteps(0.5f, 0.6f, 0.25f, 2), Items{"0.50"});
}

TEST(ComboItems, SystemListsComeFromTheSources) {
    test::TempFolder folder;
    test::WriteFile(folder / "art1/scanlines.png", "");
    test::WriteFile(folder / "art1/CRT mask.png", "");
    test::WriteFile(folder / "art1/readme.txt", "");
    test::WriteFile(folder / "art2/aperture1x2rb.png", "");
    test::WriteFile(folder / "ctrlr/xarcade.cfg", "");
    test::WriteFile(folder / "ctrlr/notes.txt", "");
    std::filesystem::create_directories(folder / "lang/German");
    std::filesystem::create_directories(folder / "lang/French");
    test::WriteFile(folder / "lang/readme.txt", "");

    ComboSources sources;
    sources.artworkFolders = {(folder / "art1").string(), (folder / "missing").string(),
                              (folder / "art2").string()};
    sources.controllerFolder = folder / "ctrlr";
    sources.languageFolder = folder / "lang";
    sources.fonts = {"DejaVu Sans"};
    sources.processors = 3;
    sources.monitors = 2;
    sources.displayModes = {{1920, 1080, 60}, {1920, 1080, 60}, {1280, 1024, 75}};

    EXPECT_EQ(ComboItems("cboEffect", sources),
              (Items{"None", "Crt Mask", "Scanlines", "Aperture1x2rb"}));
    EXPECT_EQ(ComboItems("cboController", sources), (Items{"None", "xarcade.cfg"}));
    EXPECT_EQ(ComboItems("cboLanguage", sources), (Items{"Default", "French", "German"}));
    EXPECT_EQ(ComboItems("cboUIFont", sources), (Items{"Default", "DejaVu Sans"}));
    const Items processors = ComboItems("cboNumProcessors", sources);
    EXPECT_EQ(processors.size(), 13u);
    EXPECT_EQ(processors.back(), "12");
    EXPECT_EQ(ComboItems("cboScreens", sources),
              (Items{"Auto", "\\\\.\\DISPLAY1", "\\\\.\\DISPLAY2"}));
    EXPECT_EQ(ComboItems("cboScreen(1)", sources).size(), 5u);
    sources.monitors = 6;
    EXPECT_EQ(ComboItems("cboScreens", sources).size(), 5u);
    EXPECT_EQ(ComboItems("cboResolutions", sources),
              (Items{"Auto", "1920x1080", "1280x1024", "1920x1080@60", "1280x1024@75"}));
}

} // namespace
} // namespace coinlight
