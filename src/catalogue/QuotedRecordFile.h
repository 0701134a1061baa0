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

/// Appends one record: each field in double quotes, one comma between fields, CR LF at the
/// end. There is no escape: the builders keep double quotes out of the fields.
template <class Fields> void AppendQuotedRecord(std::string& out, const Fields& fields) {
    bool first = true;
    for (const auto& field : fields) {
        out.append(first ? "\"" : ",\"");
        out.append(field);
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
