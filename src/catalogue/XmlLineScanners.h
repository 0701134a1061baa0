#pragma once

#include <string>
#include <string_view>

#include "RunTimeError.h"

namespace coinlight {

// The line scanners over MAME's XML. There is no XML parser behind them: they rely on
// MAME writing one element per line with attributes in double quotes, and the first
// occurrence of a key decides, even inside an earlier value.

/// Positions in a line are counted in 16 bits; a key, value or closing quote beyond
/// this is an overflow.
inline constexpr std::size_t kLinePositionLimit = 32767;

struct XmlAttribute {
    std::string_view value; // empty when the key is absent
    int error = 0;          // kErrorOverflow, or kErrorInvalidCall for a value never closed

    bool Failed() const { return error != 0; }
};

/// `key` ends in `=` (`name=`, `machine name=`). The value starts one character after the
/// key, past its opening quote, and runs to the next double quote.
XmlAttribute GetXMLAttribute(std::string_view line, std::string_view key);

/// `key` is an opening tag (`<year>`); the text from its end to the next `<`, or empty
/// when the line has no such tag or the element does not end on this line.
std::string_view GetXMLElement(std::string_view line, std::string_view key);

/// Every match of `pattern`, a list of literal alternatives separated by `|` and tried in
/// order at each position, replaced by `replacement`.
std::string StripPattern(std::string_view text, std::string_view pattern,
                         std::string_view replacement = {});

/// What the machine and software builders strip from descriptions and manufacturers:
/// entities and stray quotes, which would break the quoted records.
inline constexpr std::string_view kMachineStripPattern = "amp;|&lt;|&gt;|\"|&quot;";
/// The same for software, plus the "Â" of UTF-8 text once read as an 8-bit code page.
inline constexpr std::string_view kSoftwareStripPattern = "amp;|&lt;|&gt;|&quot;|\"|\xC3\x82";

} // namespace coinlight
