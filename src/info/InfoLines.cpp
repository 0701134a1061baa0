#include "InfoLines.h"

namespace coinlight {

std::optional<InfoError> OpenFailure(const LineReader& reader, const std::filesystem::path& file) {
    if (reader.IsOpen()) {
        return std::nullopt;
    }
    return OpenError(file).value_or(FileAccessError());
}

InfoError EndOfRecordError(const LineReader& reader) {
    return reader.Failed() ? DeviceError() : InputPastEndError();
}

} // namespace coinlight
