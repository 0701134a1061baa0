#include "MameOptionsCapture.h"

#include "core/OutputCapture.h"

namespace coinlight {

std::filesystem::path MameOptionsFile(const DataLayout& data) {
    return data.Output() / "showconfig.txt";
}

MameOptionsCapture::MameOptionsCapture(const std::filesystem::path& mameFolder,
                                       std::string_view executable, const DataLayout& data)
    : m_capture(std::make_unique<OutputCapture>(
          mameFolder, executable, std::vector<std::string>{"-showconfig", "-noreadconfig"},
          MameOptionsFile(data))) {}

MameOptionsCapture::~MameOptionsCapture() = default;

std::optional<KnownMameOptions> MameOptionsCapture::Finish(const std::function<void()>& pump,
                                                           std::string* error) {
    m_capture->Wait(pump);
    const auto fail = [error](std::string reason) -> std::optional<KnownMameOptions> {
        if (error != nullptr) {
            *error = std::move(reason);
        }
        return std::nullopt;
    };
    if (!m_capture->Succeeded()) {
        const ExecResult& run = m_capture->Result();
        return fail(!run.message.empty() ? run.message
                                         : "MAME did not list its options (exit status " +
                                               std::to_string(run.exitStatus) + ").");
    }
    auto known = KnownMameOptions::Read(m_capture->TemporaryFile());
    if (!known) {
        return fail("MAME's answer to -showconfig names no option.");
    }
    std::string commitError;
    if (!m_capture->Commit(&commitError)) {
        return fail(commitError);
    }
    return known;
}

} // namespace coinlight
