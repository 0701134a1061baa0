#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace coinlight {

/// A remote text is read in pieces of this size; the first piece always comes back whole.
inline constexpr std::size_t kUrlReadChunk = 128;

/// More than this of a remote text is never kept: the news is a short file, and a server must
/// not be able to fill the user's memory.
inline constexpr std::size_t kRemoteTextLimit = std::size_t{1} << 20;

/// What `GetUrlText` gives back for the bytes a server sent: the first chunk is padded with
/// blanks to its full 128 characters, the rest follows as it came. `body` is empty-handed
/// (nothing) when no connection could be made: the result is then the empty text, the one
/// failure signal callers get.
///
/// `firstChunkOnly` asks for the first chunk alone. It is honoured, and cleared, only by a
/// fetch that reached its server; after a failed one it stays set for the next caller.
std::string AssembleUrlText(const std::optional<std::string>& body, bool& firstChunkOnly);

/// How many bytes a fetch needs to read for the assembly above.
std::size_t UrlTextReadLimit(bool firstChunkOnly);

} // namespace coinlight
