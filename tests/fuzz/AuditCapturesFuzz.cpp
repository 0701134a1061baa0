// The four captures of an audit, cut from one input at its record separators, as the audit
// reads them back from the temp folder.
#include "FuzzInput.h"
#include "reports/AuditReport.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace coinlight;
    const auto temp = fuzz::ScratchFolder();
    std::string_view rest = fuzz::AsText(data, size);
    for (const AuditCapture& capture : kAuditCaptures) {
        const auto [piece, after] = fuzz::SplitInput(rest);
        fuzz::WriteBytes(temp / capture.file, piece);
        rest = after;
    }
    const AuditReport report = MakeAuditReport({true, false}, temp);
    if (report.capturesMissing || !report.text.starts_with("ROMs")) {
        __builtin_trap();
    }
    return 0;
}
