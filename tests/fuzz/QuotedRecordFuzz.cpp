// The quoted records of the catalogue files, read both ways the program reads them: field
// by field (favourites, software, CRC files) and line by line for the lists.
#include <array>

#include "FuzzInput.h"
#include "catalogue/QuotedRecordFile.h"
#include "lists/MachineRow.h"
#include "lists/RecordScanner.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace coinlight;
    const std::string_view text = fuzz::AsText(data, size);
    (void)ParseMachineRecords(text);

    RecordScanner scanner(text);
    std::string_view line;
    RecordSpans spans;
    bool wellFormed = false;
    while (scanner.Next(line, spans, wellFormed)) {
        if (!wellFormed) {
            continue;
        }
        const MachineRow row(line, spans, {}, true);
        for (int column = 0; column < MachineRow::kColumns; ++column) {
            const std::string_view field = row.Field(column);
            if (!field.empty() && (field.data() < line.data() ||
                                   field.data() + field.size() > line.data() + line.size())) {
                __builtin_trap(); // a field must lie inside its line
            }
        }
    }
    return 0;
}
