#include <algorithm>
#include <gtest/gtest.h>

#include "catalogue/MachineFields.h"
#include "catalogue/QuotedRecordFile.h"
#include "core/AtomicFileWriter.h"
#include "support/TestFiles.h"

using namespace coinlight;
using namespace coinlight::test;

namespace {

MachineFields SampleMachine(const std::string& rom) {
    MachineFields fields;
    for (std::size_t column = 0; column < kMachineFieldCount; ++column) {
        fields.values[column] = "f" + std::to_string(column);
    }
    fields[MachineField::Machine] = "Pac-Man, the (Midway)";
    fields[MachineField::Rom] = rom;
    fields[MachineField::Images] = "Raster, Raster";
    return fields;
}

} // namespace

TEST(QuotedRecord, WrittenRecordsReadBackFieldForField) {
    TempFolder folder;
    const auto file = folder / "arcadeinfo.txt";
    AtomicFileWriter out(file);
    WriteMachineRecord(out, SampleMachine("pacman"));
    WriteMachineRecord(out, SampleMachine("puckman"));
    ASSERT_TRUE(out.Commit());

    const std::string text = ReadFile(file);
    EXPECT_EQ(text.substr(0, 34), "\"Pac-Man, the (Midway)\",\"f1\",\"f2\",");
    EXPECT_EQ(text.substr(text.size() - 2), "\r\n");

    const auto load = LoadMachineRecords(file);
    ASSERT_FALSE(load.error);
    ASSERT_EQ(load.records.size(), 2u);
    EXPECT_EQ(load.records[0].Field(MachineField::Machine), "Pac-Man, the (Midway)");
    EXPECT_EQ(load.records[1].Field(MachineField::Rom), "puckman");
    EXPECT_EQ(load.records[1].Field(MachineField::Images), "Raster, Raster");
    EXPECT_EQ(load.records[1].Field(21), "f21");
    EXPECT_EQ(load.records[0], ToMachineRecord(SampleMachine("pacman")));
}

TEST(QuotedRecord, NoFieldEverHoldsADoubleQuote) {
    MachineFields fields = SampleMachine("cybots");
    fields[MachineField::Category] = "Fighter / \"Versus\" \"";
    fields[MachineField::Machine] = "\"Quoted\" title";
    std::string line;
    AppendQuotedRecord(line, fields.values);
    const auto load = ParseMachineRecords(line);
    ASSERT_FALSE(load.error) << line;
    ASSERT_EQ(load.records.size(), 1u);
    EXPECT_EQ(load.records[0].Field(MachineField::Category), "Fighter / Versus ");
    EXPECT_EQ(load.records[0].Field(MachineField::Machine), "Quoted title");
    EXPECT_EQ(std::count(line.begin(), line.end(), '"'), 44);
}

TEST(QuotedRecord, ReaderAcceptsLfEmptyFieldsAndTrailingBlankLines) {
    const auto load = ParseMachineRecords(
        "\"a\",\"\",\"c\",\"d\",\"e\",\"f\",\"g\",\"h\",\"i\",\"j\",\"k\",\"l\",\"m\",\"n\","
        "\"o\",\"p\",\"q\",\"r\",\"s\",\"t\",\"u\",\"v\"\n\n\r\n");
    ASSERT_FALSE(load.error);
    ASSERT_EQ(load.records.size(), 1u);
    EXPECT_EQ(load.records[0].Field(1), "");
    EXPECT_EQ(load.records[0].Field(21), "v");
}

TEST(QuotedRecord, ShortLineThrowsLaterRecordsOutOfStepAndEndsPastTheEnd) {
    // The first line lacks its last field: the reader takes it from the next line, so the
    // file ends one field short.
    std::string text;
    for (int line = 0; line < 2; ++line) {
        const int fields = line == 0 ? 21 : 22;
        for (int column = 0; column < fields; ++column) {
            text += (column == 0 ? "\"" : ",\"") + std::to_string(line * 100 + column) + "\"";
        }
        text += "\r\n";
    }
    const auto load = ParseMachineRecords(text);
    ASSERT_EQ(load.records.size(), 1u);
    EXPECT_EQ(load.records[0].Field(21), "100");
    ASSERT_TRUE(load.error);
    EXPECT_EQ(*load.error, "Input past end of file");
    ASSERT_EQ(load.unfinished.size(), 21u);
    EXPECT_EQ(load.unfinished.back(), "121");
}

TEST(QuotedRecord, OtherRecordKindsAndAMissingFile) {
    TempFolder folder;
    WriteFile(folder / "crcinfo.txt",
              "\"mygame\",\"My Game (set 1)\",\"a.1=0a1b2c3d;b.2=ffeeddcc;\"\r\n");
    const auto crcs = LoadCrcRecords(folder / "crcinfo.txt");
    ASSERT_EQ(crcs.records.size(), 1u);
    EXPECT_EQ(crcs.records[0].Field(CrcField::Crcs), "a.1=0a1b2c3d;b.2=ffeeddcc;");

    const auto missing = LoadSoftwareRecords(folder / "soft" / "nes.txt");
    ASSERT_TRUE(missing.error);
    EXPECT_EQ(*missing.error, "File not found");
    EXPECT_TRUE(missing.records.empty());
}

TEST(QuotedRecord, UnquotedFieldsAndJunkAfterAClosingQuote) {
    QuotedFieldReader reader("  plain text  ,\"quoted\" junk,\"last\"\r\n");
    std::string_view field;
    ASSERT_TRUE(reader.Next(field));
    EXPECT_EQ(field, "plain text");
    ASSERT_TRUE(reader.Next(field));
    EXPECT_EQ(field, "quoted");
    ASSERT_TRUE(reader.Next(field));
    EXPECT_EQ(field, "last");
    EXPECT_FALSE(reader.Next(field));
}

TEST(MachineFields, ClearingKeepsDescriptionAndShortNameUnlessTheWholeRecordGoes) {
    MachineFields fields = SampleMachine("pacman");
    fields.crcs = "a=1;";
    ClearMachineFields(fields);
    EXPECT_EQ(fields[MachineField::Machine], "Pac-Man, the (Midway)");
    EXPECT_EQ(fields[MachineField::Rom], "pacman");
    EXPECT_EQ(fields[MachineField::Year], "");
    EXPECT_EQ(fields[MachineField::Category], "");
    EXPECT_EQ(fields.crcs, "");
    ClearMachineRecord(fields);
    EXPECT_EQ(fields[MachineField::Machine], "");
    EXPECT_EQ(fields[MachineField::Rom], "");
}
