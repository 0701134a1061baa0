#pragma once

#include <string>
#include <string_view>
#include <utility>

#include "RunTimeError.h"
#include "XmlLineScanners.h"

namespace coinlight {

// Inside the catalogue library only. Each routine has one handler at its edge that turns a
// failure anywhere within it into that routine's message, as the user has always seen it;
// the steps in between stay free of error plumbing. Nothing thrown leaves the library.

struct CatalogueAbort {
    RunTimeError error;
};

[[noreturn]] inline void Abort(int number, std::string description, int location) {
    throw CatalogueAbort{{number, std::move(description), location}};
}

/// GetXMLAttribute whose failure ends the routine.
inline std::string_view AttributeOrAbort(std::string_view line, std::string_view key,
                                         int location) {
    const XmlAttribute attribute = GetXMLAttribute(line, key);
    if (attribute.Failed()) {
        Abort(attribute.error, attribute.error == kErrorOverflow ? kOverflowText : kInvalidCallText,
              location);
    }
    return attribute.value;
}

} // namespace coinlight
