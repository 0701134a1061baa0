#include "OutputCapture.h"

#include <chrono>

#include "CommandLine.h"
#include "TemporaryFile.h"

namespace coinlight {

namespace {

// A cancel reaches MAME within this; the runner looks at nothing else while MAME runs.
constexpr auto kPollInterval = std::chrono::milliseconds(50);
constexpr auto kWaitPause = std::chrono::milliseconds(4);

} // namespace

OutputCapture::OutputCapture(const std::filesystem::path& folder, std::string_view executable,
                             const std::vector<std::string>& words, std::filesystem::path target)
    : m_target(std::move(target)) {
    std::string error;
    const auto temporary = MakeTemporaryBeside(m_target, &error);
    if (!temporary) {
        m_result = {ExecOutcome::StartFailed, -1, error};
        m_finished.store(true, std::memory_order_release);
        return;
    }
    m_temporary = *temporary;
    CommandLine line(folder, executable);
    for (const auto& word : words) {
        line.Word(word);
    }
    line.RedirectOutput(m_temporary);
    m_thread = std::thread([this, text = line.Text(), folder] {
        m_result = ExecCmd(
            text, folder, [this] { return !m_cancel.load(std::memory_order_relaxed); },
            kPollInterval);
        m_finished.store(true, std::memory_order_release);
    });
}

OutputCapture::~OutputCapture() {
    Cancel();
    if (!m_temporary.empty()) {
        std::error_code ignored;
        std::filesystem::remove(m_temporary, ignored);
    }
}

void OutputCapture::Wait(const std::function<void()>& pump) {
    while (!Finished()) {
        if (pump) {
            pump();
        }
        std::this_thread::sleep_for(kWaitPause);
    }
    if (m_thread.joinable()) {
        m_thread.join();
    }
}

void OutputCapture::Cancel() {
    m_cancel.store(true, std::memory_order_relaxed);
    if (m_thread.joinable()) {
        m_thread.join();
    }
}

bool OutputCapture::Succeeded() const {
    std::error_code error;
    const auto& file = m_committed ? m_target : m_temporary;
    return Finished() && m_result.outcome == ExecOutcome::Finished && m_result.exitStatus == 0 &&
           !file.empty() && std::filesystem::is_regular_file(file, error);
}

bool OutputCapture::Commit(std::string* error) {
    std::error_code failure;
    std::filesystem::rename(m_temporary, m_target, failure);
    if (failure) {
        if (error != nullptr) {
            *error = "Cannot replace " + m_target.string() + ": " + failure.message();
        }
        return false;
    }
    m_temporary.clear();
    m_committed = true;
    return true;
}

} // namespace coinlight
