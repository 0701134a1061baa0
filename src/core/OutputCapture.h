#pragma once

#include <atomic>
#include <filesystem>
#include <functional>
#include <optional>
#include <string>
#include <thread>
#include <vector>

#include "CommandRunner.h"

namespace coinlight {

/// One run of MAME whose standard output goes into a file, on a thread of its own so that
/// several can run at once and the caller can read the file while MAME writes it. MAME
/// writes into a temporary file beside `target`; Commit puts it in place, and without a
/// Commit it is removed. Ending the capture early (Cancel, or the object's end) ends MAME.
class OutputCapture {
public:
    /// Starts `<folder>/<executable> <words...> > "<temporary file>"` in `folder`.
    OutputCapture(const std::filesystem::path& folder, std::string_view executable,
                  const std::vector<std::string>& words, std::filesystem::path target);
    ~OutputCapture();
    OutputCapture(const OutputCapture&) = delete;
    OutputCapture& operator=(const OutputCapture&) = delete;

    const std::filesystem::path& Target() const { return m_target; }
    /// The file MAME writes; empty when it could not be made (then the run never started).
    const std::filesystem::path& TemporaryFile() const { return m_temporary; }

    /// True once MAME has ended (or never started); may be asked from any thread.
    bool Finished() const { return m_finished.load(std::memory_order_acquire); }
    /// Waits for the end, calling `pump` every few milliseconds meanwhile.
    void Wait(const std::function<void()>& pump);
    /// Ends MAME if it still runs, and waits for it.
    void Cancel();

    /// How the run ended, once Finished.
    const ExecResult& Result() const { return m_result; }
    /// Finished, MAME's exit status 0, and the file there.
    bool Succeeded() const;
    /// Renames the finished file to the target; false (and `error`) when that fails.
    bool Commit(std::string* error = nullptr);

private:
    std::filesystem::path m_target;
    std::filesystem::path m_temporary;
    ExecResult m_result;
    bool m_committed = false;
    std::atomic<bool> m_cancel{false};
    std::atomic<bool> m_finished{false};
    std::thread m_thread;
};

} // namespace coinlight
