#include "catalogue/XmlLineScanners.h"

#include <gtest/gtest.h>

#include "catalogue/TextFunctions.h"

using namespace coinlight;

TEST(XmlLineScanners, AttributeFirstOccurrenceDecidesAndAbsentKeysAreEmpty) {
    const std::string_view line =
        R"(<machine name="pacman" sourcefile="pacman.cpp" romof="puckman">)";
    EXPECT_EQ(GetXMLAttribute(line, "machine name=").value, "pacman");
    EXPECT_EQ(GetXMLAttribute(line, "romof=").value, "puckman");
    EXPECT_EQ(GetXMLAttribute(line, "cloneof=").value, "");
    EXPECT_FALSE(GetXMLAttribute(line, "cloneof=").Failed());
    // A key inside an earlier value wins: the scanner knows no XML.
    const std::string_view tricky = R"(<rom name="xcrc=" size="1" crc="0a1b2c3d"/>)";
    EXPECT_EQ(GetXMLAttribute(tricky, "crc=").value, " size=");
    // The character after the key is passed over as the opening quote, whatever it is.
    EXPECT_EQ(GetXMLAttribute(R"(<x a=1 b="2">)", "a=").value, " b=");
}

TEST(XmlLineScanners, AttributePositionsAreSixteenBitAndAnOpenValueFails) {
    // The closing quote at position 32767 is the last one that counts.
    const std::string key = "<x a=\"";
    std::string fits = key + std::string(32767 - key.size() - 1, 'v') + "\"";
    ASSERT_EQ(fits.size(), 32767u);
    const auto fitting = GetXMLAttribute(fits, "a=");
    EXPECT_FALSE(fitting.Failed());
    EXPECT_EQ(fitting.value.size(), 32767u - key.size() - 1);

    const std::string tooLong = key + std::string(32767 - key.size(), 'v') + "\"";
    EXPECT_EQ(GetXMLAttribute(tooLong, "a=").error, kErrorOverflow);
    const std::string farKey = std::string(40000, ' ') + "a=\"v\"";
    EXPECT_EQ(GetXMLAttribute(farKey, "a=").error, kErrorOverflow);

    EXPECT_EQ(GetXMLAttribute(R"(<x a="open)", "a=").error, kErrorInvalidCall);
    EXPECT_EQ(GetXMLAttribute("<x a=", "a=").error, kErrorInvalidCall);
}

TEST(XmlLineScanners, ElementRunsToTheNextTagOpening) {
    EXPECT_EQ(GetXMLElement("<year>19?\?</year>", "<year>"), "19?\?");
    EXPECT_EQ(GetXMLElement("<year></year>", "<year>"), "");
    // A description broken over two lines loses its text.
    EXPECT_EQ(GetXMLElement("<description>First half", "<description>"), "");
    EXPECT_EQ(GetXMLElement("<manufacturer>Acme</manufacturer>", "<year>"), "");
}

TEST(XmlLineScanners, StripPatternTriesAlternativesInOrderAtEachPosition) {
    EXPECT_EQ(StripPattern("Tom &amp; Jerry &lt;b&gt; &quot;x&quot; \"y\"", kMachineStripPattern),
              "Tom & Jerry b x y");
    // Other entities stay as MAME wrote them.
    EXPECT_EQ(StripPattern("It&apos;s", kMachineStripPattern), "It&apos;s");
    EXPECT_EQ(StripPattern("\xC3\x82\xC2\xA9 1990 \xC2\xA9", kSoftwareStripPattern),
              "\xC2\xA9 1990 \xC2\xA9");
    EXPECT_EQ(StripPattern("a-b--c", "--|-", "+"), "a+b+c");
}

TEST(TextCase, ProperCaseCapitalisesWordsAndLowersTheRest) {
    EXPECT_EQ(ProperCase("blues brothers, THE (europe)"), "Blues Brothers, The (europe)");
    EXPECT_EQ(ProperCase("raster"), "Raster");
    EXPECT_EQ(ProperCase("a\tb\nc\vd\fe"), "A\tB\nC\vD\fE");
    EXPECT_EQ(ProperCase(std::string_view("x\0y", 3)), std::string("X\0Y", 3));
    EXPECT_EQ(ProperCase("caf\xC3\xA9 ol\xC3\x89"), "Caf\xC3\xA9 Ol\xC3\x89");
    EXPECT_EQ(CapitaliseFirst("partial"), "Partial");
    EXPECT_EQ(CapitaliseFirst("nO"), "NO");
    EXPECT_EQ(CapitaliseFirst(""), "");
}

TEST(TextCase, ReplaceAllIsLeftToRightAndCanIgnoreCase) {
    EXPECT_EQ(ReplaceAll("Neo BIOS bios Bios", "bios", "", true), "Neo   ");
    EXPECT_EQ(ReplaceAll("a   b", "  ", ""), "a b");
    EXPECT_EQ(TrimSpaces("  a b  "), "a b");
    EXPECT_EQ(TrimSpaces("\ta "), "\ta");
}
