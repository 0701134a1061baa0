#pragma once

#include <chrono>
#include <filesystem>
#include <functional>
#include <string>

namespace coinlight {

/// What the user is told when MAME's folder cannot be reached: the folder, and what to do.
std::string MameFolderMessage(const std::filesystem::path& folder);

enum class ExecOutcome {
    Finished,          // the child ran to its end
    Cancelled,         // the pump asked to stop; the child's process group got SIGTERM
    FolderUnavailable, // the MAME folder is gone: the caller goes on and finds no output
    WaitFailed,        // fatal: the program ends
    StartFailed,       // fatal: the program ends
};

struct ExecResult {
    ExecOutcome outcome = ExecOutcome::Finished;
    int exitStatus = 0;  // the shell's exit status when Finished
    std::string message; // what to tell the user; empty when Finished or Cancelled

    bool IsFatal() const {
        return outcome == ExecOutcome::WaitFailed || outcome == ExecOutcome::StartFailed;
    }
};

/// Called between polls while the child runs, so that the interface stays alive; returning
/// false ends the child (a Cancel button).
using ExecPump = std::function<bool()>;

/// Runs `commandLine` through /bin/sh with `workingFolder` as the child's current folder
/// and waits for its end, calling `pump` every `interval` while it runs. A child that ends
/// within the first interval returns without any pump. Output reaches the caller only
/// through the redirections of the line itself.
ExecResult ExecCmd(const std::string& commandLine, const std::filesystem::path& workingFolder,
                   const ExecPump& pump,
                   std::chrono::milliseconds interval = std::chrono::milliseconds(200));

} // namespace coinlight
