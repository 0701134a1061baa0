#pragma once

#include <filesystem>
#include <optional>

#include "InfoError.h"
#include "core/LineReader.h"

namespace coinlight {

// What the information sources share: one file read line by line, and the errors a
// reader ends in.

/// The error of a reader that did not open, or nothing when it did.
std::optional<InfoError> OpenFailure(const LineReader& reader, const std::filesystem::path& file);

/// A record that needed more lines than the file had: a failed read, or the end.
InfoError EndOfRecordError(const LineReader& reader);

} // namespace coinlight
