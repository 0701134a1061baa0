#include "ui/theme/ThemeTable.h"

#include <gtest/gtest.h>
#include <set>
#include <string>

#include <QApplication>
#include <QPalette>

#include "ui/ColourConvert.h"
#include "ui/theme/Readability.h"

namespace coinlight {
namespace {

constexpr Colour kBlack{0x000000u};
constexpr Colour kWhite{0xFFFFFFu};

QColor Shown(Colour colour) {
    return ToQColor(colour, QApplication::palette());
}

std::string Describe(const Theme& theme) {
    return std::string(theme.name);
}

TEST(ContrastRatio, SpansOneToTwentyOneAndIsSymmetric) {
    EXPECT_NEAR(ContrastRatio(QColor(0, 0, 0), QColor(255, 255, 255)), 21.0, 0.01);
    EXPECT_NEAR(ContrastRatio(QColor(90, 20, 200), QColor(90, 20, 200)), 1.0, 1e-9);
    const QColor a(200, 120, 0);
    const QColor b(10, 40, 90);
    EXPECT_DOUBLE_EQ(ContrastRatio(a, b), ContrastRatio(b, a));
    // Green weighs far more than blue in how light a colour looks.
    EXPECT_GT(ContrastRatio(QColor(0, 255, 0), QColor(0, 0, 0)),
              ContrastRatio(QColor(0, 0, 255), QColor(0, 0, 0)));
    EXPECT_TRUE(Readable(QColor(0, 0, 0), QColor(255, 255, 255)));
    EXPECT_FALSE(Readable(QColor(128, 128, 128), QColor(140, 140, 140)));
}

TEST(ReadableRed, PureRedWhereItReadsOtherwiseABetterRed) {
    const QColor pure(255, 0, 0);
    EXPECT_EQ(ReadableRed(QColor(255, 255, 255)), pure);
    EXPECT_EQ(ReadableRed(QColor(0, 0, 0)), pure);
    for (int grey = 0; grey <= 255; grey += 15) {
        for (const QColor back : {QColor(grey, grey, grey), QColor(grey, 0, 0),
                                  QColor(grey, 255 - grey, 40), QColor(155, 17, 30)}) {
            const QColor red = ReadableRed(back);
            EXPECT_GT(red.red(), red.green()) << back.name().toStdString();
            EXPECT_EQ(red.green(), red.blue()) << back.name().toStdString();
            EXPECT_GE(ContrastRatio(red, back), ContrastRatio(pure, back))
                << back.name().toStdString();
            if (!Readable(pure, back)) {
                EXPECT_NE(red, pure) << back.name().toStdString();
            }
        }
    }
}

TEST(ThemeTable, NamesAreUniqueAndEachIsFound) {
    std::set<std::string_view> names;
    for (const Theme& theme : AllThemes()) {
        EXPECT_TRUE(names.insert(theme.name).second) << Describe(theme);
        EXPECT_FALSE(theme.titleImage.empty()) << Describe(theme);
        EXPECT_EQ(FindTheme(theme.name), &theme);
    }
    EXPECT_EQ(AllThemes().front().name, "Heritage");
}

TEST(ThemeTable, AnUnknownNameIsFoundAsUnknown) {
    for (std::string_view name : {"", "Heritage III", "heritage", "Black ", "Windows 11"}) {
        EXPECT_EQ(FindTheme(name), nullptr) << name;
        EXPECT_FALSE(IsHeritageTheme(name)) << name;
    }
    // Its preview is that of the first theme, so the dialog still shows something sane.
    const ThemePreview preview = PreviewOfTheme("No Such Theme", Colour{0x123456u}, kWhite);
    EXPECT_TRUE(preview.starField);
    EXPECT_FALSE(preview.listBackChoice);
    EXPECT_EQ(preview.back, Colour{0x123456u});
    EXPECT_EQ(preview.text, kWhite);
}

TEST(ThemeTable, EveryThemesTextReadsOnWhatItIsDrawnOn) {
    for (const Theme& theme : AllThemes()) {
        if (IsHeritageTheme(theme.name)) {
            continue; // the user chooses those lists' colours
        }
        const QColor window = Shown(theme.back);
        const QColor lists = Shown(theme.panel.value_or(theme.back));
        EXPECT_TRUE(Readable(Shown(theme.text), window)) << Describe(theme);
        EXPECT_TRUE(Readable(Shown(theme.text), lists)) << Describe(theme);
        EXPECT_TRUE(Readable(Shown(theme.otherList), lists)) << Describe(theme);
        EXPECT_TRUE(Readable(Shown(theme.otherItems), lists)) << Describe(theme);
        EXPECT_TRUE(Readable(Shown(theme.richText), window)) << Describe(theme);
    }
}

TEST(ThemeTable, HeritageReportTextReadsOnTheSystemBase) {
    const QColor base = QApplication::palette().color(QPalette::Base);
    for (std::string_view name : {"Heritage", "Heritage II"}) {
        const Theme* theme = FindTheme(name);
        ASSERT_NE(theme, nullptr) << name;
        EXPECT_TRUE(Readable(Shown(theme->richText), base)) << name;
        EXPECT_TRUE(Readable(Shown(theme->text), Shown(theme->back))) << name;
    }
}

TEST(ThemePreview, HeritageThemesShowTheUsersColoursOthersTheirOwn) {
    const Colour back{0x203040u};
    const Colour text{0x00FFFFu};
    const ThemePreview first = PreviewOfTheme("Heritage", back, text);
    EXPECT_TRUE(first.starField);
    EXPECT_FALSE(first.listBackChoice);
    EXPECT_FALSE(first.colourControls);
    EXPECT_EQ(first.back, back);

    const ThemePreview second = PreviewOfTheme("Heritage II", back, text);
    EXPECT_FALSE(second.starField);
    EXPECT_TRUE(second.listBackChoice);
    EXPECT_TRUE(second.colourControls);
    EXPECT_EQ(second.text, text);

    const ThemePreview black = PreviewOfTheme("Black", back, text);
    EXPECT_FALSE(black.starField);
    EXPECT_FALSE(black.colourControls);
    EXPECT_EQ(black.back, kBlack);
    EXPECT_EQ(black.text, kWhite);
}

TEST(ThemeTable, OnlyAPositiveUserListColourApplies) {
    EXPECT_FALSE(UserListColourApplies(kBlack));
    EXPECT_FALSE(UserListColourApplies(Colour{0x80000008u}));
    EXPECT_FALSE(UserListColourApplies(Colour{0xFFFFFFFFu}));
    EXPECT_TRUE(UserListColourApplies(Colour{0x000001u}));
    EXPECT_TRUE(UserListColourApplies(kWhite));
}

} // namespace
} // namespace coinlight
