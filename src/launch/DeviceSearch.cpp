#include "DeviceSearch.h"

#include "core/TextCase.h"

namespace coinlight {

std::optional<std::string> FindDeviceSwitch(const std::vector<std::string>& devices,
                                            std::string_view firstPart, bool diskTitle) {
    if (diskTitle) {
        return "cdrm";
    }
    const std::string whole = ToLowerAscii(firstPart);
    const std::string_view cut =
        std::string_view(whole).substr(0, whole.empty() ? 0 : whole.size() - 1);
    for (const auto& device : devices) {
        // An empty device would hold the empty cut of a one-letter part and win the search
        // with nothing to start the title with.
        if (device.empty()) {
            continue;
        }
        if (device.find(cut) != std::string::npos || device.find(whole) != std::string::npos) {
            return ToLowerAscii(device);
        }
    }
    return std::nullopt;
}

} // namespace coinlight
