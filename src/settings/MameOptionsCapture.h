#pragma once

#include <filesystem>
#include <functional>
#include <memory>
#include <optional>
#include <string>

#include "KnownMameOptions.h"
#include "core/DataLayout.h"

namespace coinlight {

class OutputCapture;

/// The file that keeps what the MAME in use said of its options.
std::filesystem::path MameOptionsFile(const DataLayout& data);

/// Asks MAME for its options (`-showconfig`, without reading any ini file) while the
/// caller goes on with other work; Finish keeps the answer in `output/showconfig.txt`.
/// A MAME that fails or prints no option leaves the file of the last time as it was.
class MameOptionsCapture {
public:
    MameOptionsCapture(const std::filesystem::path& mameFolder, std::string_view executable,
                       const DataLayout& data);
    ~MameOptionsCapture();
    MameOptionsCapture(const MameOptionsCapture&) = delete;
    MameOptionsCapture& operator=(const MameOptionsCapture&) = delete;

    /// Waits for MAME (calling `pump` meanwhile) and keeps its answer: the options it
    /// knows, or nothing (and the reason in `error`).
    std::optional<KnownMameOptions> Finish(const std::function<void()>& pump,
                                           std::string* error = nullptr);

private:
    std::unique_ptr<OutputCapture> m_capture;
};

} // namespace coinlight
