#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace coinlight {

/// The option names a MAME build knows, read from what `mame -showconfig` prints: one
/// option a line, its name first, in lower case ("speed                     1.0"),
/// headings and comments behind "#". Lines of any other shape are passed over, so a
/// capture that holds something else yields no names at all.
class KnownMameOptions {
public:
    /// Nothing when the text names no option: a capture that failed must not make every
    /// option look unknown.
    static std::optional<KnownMameOptions> Parse(std::string_view showconfig);
    /// The same from a file; nothing when it cannot be read either.
    static std::optional<KnownMameOptions> Read(const std::filesystem::path& file);

    /// Case does not count, as MAME treats option names.
    bool Knows(std::string_view option) const;
    std::size_t Size() const { return m_names.size(); }

private:
    std::vector<std::string> m_names; // lower case, sorted, each once
};

} // namespace coinlight
