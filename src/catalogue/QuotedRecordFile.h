#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "MachineFields.h"
#include "QuotedFieldReader.h"
#include "QuotedRecord.h"

namespace coinlight {

class AtomicFileWriter;

/// Appends a field's text without its double quotes: the record format has no escape, so
/// a quote inside a field (a category such as `Shoot "em up`) would make the file
/// unreadable at every start.
void AppendWithoutQuotes(std::string& out, std::string_view field);

/// Appends one record: each field in double quotes, one comma between fields, CR LF at the
/// end. Double quotes inside a field are dropped.
template <class Fields> void AppendQuotedRecord(std::string& out, const Fields& fields) {
    bool first = true;
    for (const auto& field : fields) {
        out.append(first ? "\"" : ",\"");
        AppendWithoutQuotes(out, field);
        out.push_back('"');
        first = false;
    }
    out.append("\r\n");
}

void WriteMachineRecord(AtomicFileWriter& out, const MachineFields& fields);

/// Reads the next 22 fields into `fields`; false at a read past the end, with the fields
/// read up to then already stored.
bool ReadMachineRecord(QuotedFieldReader& in, MachineFields& fields);

/// A whole record file, or why it could not be read. `records` holds what was read before
/// a failure; `unfinished` the fields of a record cut short by the end of the file.
template <class Record> struct RecordLoad {
    std::vector<Record> records;
    std::optional<std::string> error; // "File not found", "Input past end of file"
    std::vector<std::string> unfinished;
};

RecordLoad<MachineRecord> LoadMachineRecords(const std::filesystem::path& file);
RecordLoad<SoftwareRecord> LoadSoftwareRecords(const std::filesystem::path& file);
RecordLoad<CrcRecord> LoadCrcRecords(const std::filesystem::path& file);

/// The same on text already in memory.
RecordLoad<MachineRecord> ParseMachineRecords(std::string_view text);

MachineRecord ToMachineRecord(const MachineFields& fields);

} // namespace coinlight
