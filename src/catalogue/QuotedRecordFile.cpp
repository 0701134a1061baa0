#include "QuotedRecordFile.h"

#include <algorithm>
#include <array>
#include <cstring>

#include "RunTimeError.h"
#include "core/AtomicFileWriter.h"
#include "core/TextFile.h"

namespace coinlight {

void AppendWithoutQuotes(std::string& out, std::string_view field) {
    for (auto quote = field.find('"'); quote != std::string_view::npos; quote = field.find('"')) {
        out.append(field.substr(0, quote));
        field.remove_prefix(quote + 1);
    }
    out.append(field);
}

void WriteMachineRecord(AtomicFileWriter& out, const MachineFields& fields) {
    std::string line;
    AppendQuotedRecord(line, fields.values);
    out.Write(line);
}

bool ReadMachineRecord(QuotedFieldReader& in, MachineFields& fields) {
    std::string_view field;
    for (auto& value : fields.values) {
        if (!in.Next(field)) {
            return false;
        }
        value.assign(field);
    }
    return true;
}

MachineRecord ToMachineRecord(const MachineFields& fields) {
    std::array<std::string_view, kMachineFieldCount> views;
    std::copy(fields.values.begin(), fields.values.end(), views.begin());
    return MachineRecord(views);
}

namespace {

/// Records are one line each in a sound file, so the line count is a cheap upper bound.
std::size_t LineCount(std::string_view text) {
    std::size_t lines = 0;
    if (text.empty()) {
        return lines; // an empty view may have no data at all, which memchr must not see
    }
    const char* at = text.data();
    const char* end = at + text.size();
    while ((at = static_cast<const char*>(
                std::memchr(at, '\n', static_cast<std::size_t>(end - at)))) != nullptr) {
        ++lines;
        ++at;
    }
    return lines;
}

template <class Record> RecordLoad<Record> ParseRecords(std::string_view text) {
    RecordLoad<Record> load;
    load.records.reserve(LineCount(text));
    QuotedFieldReader reader(text);
    std::array<std::string_view, Record::kFieldCount> fields;
    while (!reader.AtEnd()) {
        std::size_t filled = 0;
        if (!reader.ReadFields(fields, filled)) {
            load.error = kPastEndText;
            load.unfinished.assign(fields.begin(), fields.begin() + static_cast<long>(filled));
            break;
        }
        load.records.emplace_back(fields);
    }
    return load;
}

template <class Record> RecordLoad<Record> LoadRecords(const std::filesystem::path& file) {
    const auto bytes = ReadFileBytes(file);
    if (!bytes) {
        RecordLoad<Record> missing;
        missing.error = kFileNotFoundText;
        return missing;
    }
    return ParseRecords<Record>(*bytes);
}

} // namespace

RecordLoad<MachineRecord> ParseMachineRecords(std::string_view text) {
    return ParseRecords<MachineRecord>(text);
}

RecordLoad<MachineRecord> LoadMachineRecords(const std::filesystem::path& file) {
    return LoadRecords<MachineRecord>(file);
}

RecordLoad<SoftwareRecord> LoadSoftwareRecords(const std::filesystem::path& file) {
    return LoadRecords<SoftwareRecord>(file);
}

RecordLoad<CrcRecord> LoadCrcRecords(const std::filesystem::path& file) {
    return LoadRecords<CrcRecord>(file);
}

} // namespace coinlight
