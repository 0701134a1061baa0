#include "InfoError.h"

#include <cerrno>
#include <fcntl.h>
#include <unistd.h>

namespace coinlight {

InfoError FileNotFoundError() {
    return {53, "File not found"};
}

InfoError InputPastEndError() {
    return {62, "Input past end of file"};
}

InfoError FileAccessError() {
    return {75, "Path/File access error"};
}

InfoError DeviceError() {
    return {57, "Device I/O error"};
}

InfoError InvalidFormatError(std::string detail) {
    return {321, detail.empty() ? std::string("Invalid file format")
                                : "Invalid file format: " + std::move(detail)};
}

InfoError TooLargeError(std::string detail) {
    return {7, "Out of memory: " + std::move(detail)};
}

std::optional<InfoError> OpenError(const std::filesystem::path& file) {
    const int descriptor = ::open(file.c_str(), O_RDONLY | O_CLOEXEC);
    if (descriptor >= 0) {
        ::close(descriptor);
        return std::nullopt;
    }
    return errno == ENOENT || errno == ENOTDIR ? FileNotFoundError() : FileAccessError();
}

std::string ErrorPanelText(const InfoError& error) {
    return "Error: " + std::to_string(error.number) + "\n" + error.description;
}

} // namespace coinlight
