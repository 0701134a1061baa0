// MAME's XML, one line at a time, through the two line scanners and the stripping of
// descriptions, with the keys the catalogue asks for.
#include "FuzzInput.h"
#include "catalogue/XmlLineScanners.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace coinlight;
    std::string_view text = fuzz::AsText(data, size);
    while (!text.empty()) {
        const auto end = text.find('\n');
        const std::string_view line = text.substr(0, end);
        for (std::string_view key : {"name=", "machine name=", "cloneof=", "romof=", "crc=",
                                     "status=", "refresh=", "rotate=", "tag="}) {
            const XmlAttribute attribute = GetXMLAttribute(line, key);
            if (!attribute.value.empty() && attribute.value.data() < line.data()) {
                __builtin_trap(); // a value must lie inside its line
            }
        }
        for (std::string_view tag : {"<description>", "<year>", "<manufacturer>"}) {
            const std::string_view element = GetXMLElement(line, tag);
            (void)StripPattern(element, kMachineStripPattern);
            (void)StripPattern(element, kSoftwareStripPattern);
        }
        text = end == std::string_view::npos ? std::string_view() : text.substr(end + 1);
    }
    return 0;
}
