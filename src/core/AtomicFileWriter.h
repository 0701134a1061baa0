#pragma once

#include <cstdio>
#include <filesystem>
#include <string>
#include <string_view>

namespace coinlight {

/// Writes a file beside its destination and renames it into place on Commit, so that a
/// crash or a full disk leaves either the old file or the new one, never half of one.
/// Without Commit the temporary file is removed and the destination is left untouched.
/// A destination that is a symbolic link is written through to the file it names, and a
/// file that exists keeps its access rights.
class AtomicFileWriter {
public:
    explicit AtomicFileWriter(std::filesystem::path destination);
    ~AtomicFileWriter();
    AtomicFileWriter(const AtomicFileWriter&) = delete;
    AtomicFileWriter& operator=(const AtomicFileWriter&) = delete;

    bool IsOpen() const { return m_file != nullptr; }

    void Write(std::string_view bytes);
    /// Writes the text and the CR LF that ends every line Coinlight writes.
    void WriteLine(std::string_view line);

    /// Moves the finished file into place; on failure `Error()` says why.
    bool Commit();

    const std::string& Error() const { return m_error; }

private:
    void Fail(const std::string& what);
    void Discard();

    std::filesystem::path m_destination;
    std::filesystem::path m_temporary;
    std::FILE* m_file = nullptr;
    std::string m_error;
};

/// The mkstemp pattern of a temporary file beside `destination`: every temporary file of
/// Coinlight names the process that made it, so that leftovers can be told apart.
std::string TemporaryPatternFor(const std::filesystem::path& destination);

/// Removes the temporary files that writers of processes now gone left in `folder` (a
/// process killed between creating and renaming one). Those of running processes stay.
void RemoveOrphanedTemporaries(const std::filesystem::path& folder);

} // namespace coinlight
