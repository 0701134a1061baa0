#include "CommandRunner.h"

#include <cerrno>
#include <csignal>
#include <cstring>
#include <fcntl.h>
#include <poll.h>
#include <spawn.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>

extern char** environ;

namespace coinlight {

namespace {

constexpr const char* kWaitProblem =
    "There was a problem waiting for a -list or - verify command to complete.";

/// A descriptor that becomes readable when the child ends; -1 on kernels without pidfd.
int OpenProcessDescriptor(pid_t child) {
#ifdef SYS_pidfd_open
    return static_cast<int>(::syscall(SYS_pidfd_open, child, 0));
#else
    (void)child;
    return -1;
#endif
}

enum class Wait { Ended, TimedOut, Failed };

/// Waits up to `interval` for the child to end.
Wait WaitForEnd(pid_t child, int descriptor, std::chrono::milliseconds interval, int& status) {
    if (descriptor >= 0) {
        pollfd watch{descriptor, POLLIN, 0};
        const int ready = ::poll(&watch, 1, static_cast<int>(interval.count()));
        if (ready == 0 || (ready < 0 && errno == EINTR)) {
            return Wait::TimedOut;
        }
    } else {
        // Without pidfd, look in short steps so that a quick child is not kept waiting.
        const auto deadline = std::chrono::steady_clock::now() + interval;
        for (;;) {
            const pid_t done = ::waitpid(child, &status, WNOHANG);
            if (done == child) {
                return Wait::Ended;
            }
            if (done < 0 && errno != EINTR) {
                return Wait::Failed;
            }
            if (std::chrono::steady_clock::now() >= deadline) {
                return Wait::TimedOut;
            }
            std::this_thread::sleep_for(std::chrono::milliseconds(5));
        }
    }
    for (;;) {
        const pid_t done = ::waitpid(child, &status, 0);
        if (done == child) {
            return Wait::Ended;
        }
        if (done < 0 && errno != EINTR) {
            return Wait::Failed;
        }
    }
}

void EndChild(pid_t child) {
    ::kill(-child, SIGTERM);
    int status = 0;
    while (::waitpid(child, &status, 0) < 0 && errno == EINTR) {
    }
}

int ExitStatusOf(int status) {
    if (WIFEXITED(status)) {
        return WEXITSTATUS(status);
    }
    return WIFSIGNALED(status) ? 128 + WTERMSIG(status) : -1;
}

} // namespace

std::string MameFolderMessage(const std::filesystem::path& folder) {
    if (folder.empty()) {
        return "No MAME folder is set.  Choose your MAME executable in Options and try again.";
    }
    return "The MAME folder " + folder.string() +
           " cannot be reached.  Check the MAME path in Options and try again.";
}

ExecResult ExecCmd(const std::string& commandLine, const std::filesystem::path& workingFolder,
                   const ExecPump& pump, std::chrono::milliseconds interval) {
    std::error_code error;
    if (workingFolder.empty() || !std::filesystem::is_directory(workingFolder, error)) {
        return {ExecOutcome::FolderUnavailable, -1, MameFolderMessage(workingFolder)};
    }

    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_addchdir_np(&actions, workingFolder.c_str());
    posix_spawn_file_actions_addopen(&actions, STDIN_FILENO, "/dev/null", O_RDONLY, 0);

    // Its own process group, so that a cancel reaches MAME and not only the shell; and
    // the default signal state, whatever the interface had set for itself.
    posix_spawnattr_t attributes;
    posix_spawnattr_init(&attributes);
    sigset_t noSignals;
    sigemptyset(&noSignals);
    sigset_t defaultSignals;
    sigfillset(&defaultSignals);
    posix_spawnattr_setflags(&attributes, POSIX_SPAWN_SETPGROUP | POSIX_SPAWN_SETSIGMASK |
                                              POSIX_SPAWN_SETSIGDEF);
    posix_spawnattr_setpgroup(&attributes, 0);
    posix_spawnattr_setsigmask(&attributes, &noSignals);
    posix_spawnattr_setsigdefault(&attributes, &defaultSignals);

    std::string shell = "/bin/sh";
    std::string dashC = "-c";
    std::string line = commandLine;
    char* arguments[] = {shell.data(), dashC.data(), line.data(), nullptr};
    pid_t child = 0;
    const int spawned =
        ::posix_spawn(&child, shell.c_str(), &actions, &attributes, arguments, environ);
    posix_spawn_file_actions_destroy(&actions);
    posix_spawnattr_destroy(&attributes);
    if (spawned != 0) {
        if (spawned == ENOENT || spawned == ENOTDIR) {
            // The folder vanished between the test and the start.
            if (!std::filesystem::is_directory(workingFolder, error)) {
                return {ExecOutcome::FolderUnavailable, -1, MameFolderMessage(workingFolder)};
            }
        }
        return {ExecOutcome::StartFailed, -1,
                std::string("Error In ExecCmd: ") + std::strerror(spawned)};
    }

    const int descriptor = OpenProcessDescriptor(child);
    ExecResult result;
    for (;;) {
        int status = 0;
        const Wait wait = WaitForEnd(child, descriptor, interval, status);
        if (wait == Wait::Ended) {
            result.exitStatus = ExitStatusOf(status);
            break;
        }
        if (wait == Wait::Failed) {
            result = {ExecOutcome::WaitFailed, -1,
                      "Error in ExecCmd: -1\n\n\n" + std::string(kWaitProblem)};
            break;
        }
        if (pump && !pump()) {
            EndChild(child);
            result.outcome = ExecOutcome::Cancelled;
            break;
        }
    }
    if (descriptor >= 0) {
        ::close(descriptor);
    }
    return result;
}

} // namespace coinlight
