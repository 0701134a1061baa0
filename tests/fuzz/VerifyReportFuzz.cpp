// A report file of MAME's verification of a whole collection, as the report page reads it:
// the test for bad sets and their listing.
#include "FuzzInput.h"
#include "reports/BadSets.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace coinlight;
    const std::string_view report = fuzz::AsText(data, size);
    (void)HasBadSets(report);
    const BadSetList bad = ListBadSets(report);
    if (!bad.error && !bad.text.starts_with(std::to_string(bad.count) + " bad sets found.")) {
        __builtin_trap();
    }
    return 0;
}
