// A machine's software file (output/soft/<machine>.txt) as the software panel reads it: the
// rows of each kind, then sorted by every column as the list sorts them.
#include "FuzzInput.h"
#include "lists/RowSort.h"
#include "lists/SoftwareRows.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace coinlight;
    const auto file = fuzz::ScratchFolder() / "a2600.txt";
    fuzz::WriteBytes(file, fuzz::AsText(data, size));
    for (const SoftwareKind kind : {SoftwareKind::Available, SoftwareKind::Unavailable}) {
        const SoftwareLoad load = LoadListsSoftware(file, kind);
        const SoftwareRows& rows = *load.rows;
        const std::string_view text = rows.Text();
        const int counted = kind == SoftwareKind::Available ? load.available : load.unavailable;
        if (static_cast<std::size_t>(counted) != rows.size()) {
            __builtin_trap(); // the counter is the rows added
        }
        for (std::size_t row = 0; row < rows.size(); ++row) {
            for (std::size_t field = 0; field < SoftwareRows::kFields; ++field) {
                const std::string_view value = rows.Field(row, field);
                if (value.data() < text.data() ||
                    value.data() + value.size() > text.data() + text.size()) {
                    __builtin_trap(); // a field must lie inside the file's text
                }
            }
        }
        for (std::size_t column = 1; column < SoftwareRows::kFields; ++column) {
            std::vector<std::uint32_t> order(rows.size());
            for (std::uint32_t i = 0; i < order.size(); ++i) {
                order[i] = i;
            }
            SortOrderByText(
                order, [&](std::uint32_t row) { return rows.Field(row, column); }, column % 2);
            std::vector<bool> seen(order.size());
            for (const std::uint32_t row : order) {
                if (row >= seen.size() || seen[row]) {
                    __builtin_trap(); // a sort gives every row once
                }
                seen[row] = true;
            }
        }
    }
    return 0;
}
