#pragma once

#include <filesystem>
#include <optional>
#include <string>

namespace coinlight {

/// Why a search stopped. The panel shows the number and the description, as the run time
/// of the classic program numbered its errors, so that a user who reports one quotes a
/// number that means the same thing in every version.
struct InfoError {
    int number = 0;
    std::string description;

    bool operator==(const InfoError&) const = default;
};

InfoError FileNotFoundError(); // 53: the source vanished between listing and click
InfoError InputPastEndError(); // 62: a record runs to the end of the file
InfoError FileAccessError();   // 75: the file is there but cannot be opened
InfoError DeviceError();       // 57: a read failed half way
InfoError InvalidFormatError(std::string detail); // 321: an archive that cannot be read
InfoError TooLargeError(std::string detail);      // 7: more than the panel should ever hold

/// The error that opening `file` for reading gives, or nothing when it opens.
std::optional<InfoError> OpenError(const std::filesystem::path& file);

/// What the panel shows for a failed search.
std::string ErrorPanelText(const InfoError& error);

} // namespace coinlight
