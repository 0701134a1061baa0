#include "lists/RecordScanner.h"

#include <gtest/gtest.h>

#include "RecordBuilder.h"

namespace coinlight {
namespace {

struct Scanned {
    std::string line;
    bool wellFormed;
    std::vector<std::string> fields;
};

std::vector<Scanned> ScanAll(std::string_view text) {
    std::vector<Scanned> lines;
    RecordScanner scanner(text);
    std::string_view line;
    RecordSpans spans;
    bool wellFormed = false;
    while (scanner.Next(line, spans, wellFormed)) {
        Scanned scanned{std::string(line), wellFormed, {}};
        for (int column = 0; wellFormed && column < kRecordFieldCount; ++column) {
            scanned.fields.emplace_back(spans.Field(line, column));
        }
        lines.push_back(std::move(scanned));
    }
    return lines;
}

/// Records and broken lines of every length around the scan's chunk sizes.
std::string MixedText() {
    std::string text;
    for (int length = 0; length < 70; ++length) {
        auto record =
            test::Record("m" + std::to_string(length),
                         {{ColMachine, std::string(static_cast<std::size_t>(length), 'x')},
                          {ColYear, ""},
                          {ColCategory, "A, B"}});
        text += test::RecordLine(record);
        std::string broken = test::RecordLine(record);
        broken.insert(static_cast<std::size_t>(length % 40) + 1, "\"");
        text += broken;
        text += "\"" + std::string(static_cast<std::size_t>(length), 'q') + "\"\n";
    }
    return text + "\r\n" + test::RecordLine(test::Record("last")).substr(0, 100);
}

class RecordScannerPaths : public ::testing::TestWithParam<bool> {
protected:
    void SetUp() override { AllowWideRecordScan(GetParam()); }
    void TearDown() override { AllowWideRecordScan(true); }
};

TEST_P(RecordScannerPaths, FindsEveryFieldOfWellFormedLinesAndRejectsTheRest) {
    const auto lines = ScanAll(MixedText());
    ASSERT_EQ(lines.size(), 212u);
    for (std::size_t i = 0; i + 2 < 210; i += 3) {
        const std::size_t length = i / 3;
        ASSERT_TRUE(lines[i].wellFormed) << lines[i].line;
        EXPECT_EQ(lines[i].fields[ColMachine], std::string(length, 'x'));
        EXPECT_EQ(lines[i].fields[ColYear], "");
        EXPECT_EQ(lines[i].fields[ColName], "m" + std::to_string(length));
        EXPECT_EQ(lines[i].fields[ColCategory], "A, B") << "a comma inside a field stays";
        EXPECT_FALSE(lines[i + 1].wellFormed) << "a stray quote: " << lines[i + 1].line;
        EXPECT_FALSE(lines[i + 2].wellFormed) << "one field: " << lines[i + 2].line;
    }
    EXPECT_EQ(lines[210].line, "") << "an empty line is a line";
    EXPECT_FALSE(lines[211].wellFormed) << "a record cut short by the end of the file";
}

TEST_P(RecordScannerPaths, AgreesWithTheRuleOnOddButValidLines) {
    RecordSpans spans;
    std::string empty;
    for (int field = 0; field < kRecordFieldCount; ++field) {
        empty += field == 0 ? "\"\"" : ",\"\"";
    }
    EXPECT_TRUE(ParseRecordLine(empty, spans)) << "22 empty fields";
    EXPECT_EQ(spans.Field(empty, 21), "");
    std::string semicolons = test::RecordLine(test::Record("a"));
    semicolons.resize(semicolons.size() - 2);
    EXPECT_TRUE(ParseRecordLine(semicolons, spans));
    std::string missingComma = semicolons;
    missingComma.replace(missingComma.find("\",\""), 3, "\"\"");
    EXPECT_FALSE(ParseRecordLine(missingComma, spans));
    EXPECT_FALSE(ParseRecordLine(semicolons + "\"\"", spans)) << "two quotes too many";
    EXPECT_FALSE(ParseRecordLine(semicolons + "\n" + semicolons, spans)) << "two lines";
    // 44 quotes and 21 delimiters, but the first delimiter shares the line's opening quote:
    // no field may end before it begins.
    std::string shared = "\",\"";
    for (int field = 0; field < 20; ++field) {
        shared += ",\"a\"";
    }
    shared += "\"a\"";
    EXPECT_FALSE(ParseRecordLine(shared, spans)) << shared;
}

INSTANTIATE_TEST_SUITE_P(WideAndNarrow, RecordScannerPaths, ::testing::Values(true, false));

} // namespace
} // namespace coinlight
