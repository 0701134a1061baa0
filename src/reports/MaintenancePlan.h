#pragma once

#include <filesystem>
#include <functional>
#include <optional>
#include <set>
#include <span>
#include <string>
#include <string_view>
#include <system_error>
#include <vector>

#include "core/Preferences.h"
#include "core/UserMessage.h"

namespace coinlight {

// The Maintenance page's deletions as plans: the messages to show in order and what a Yes
// to each removes. The page shows them; nothing here asks anything.

/// The check boxes of "Reports && Lists".
enum class ReportBox {
    Roms,
    Samples,
    Rebuilt,
    All,
    Available,
    Unavailable,
    Other,
    ArcadeChanges,
    OtherChanges,
    WhatRomsChanged
};

struct ReportFileEntry {
    ReportBox box;
    std::string_view file; // in the output folder
    std::string_view name; // as the messages call it
};
std::span<const ReportFileEntry> ReportFileTable();

/// Something to remove: a file is deleted, a folder goes to the desktop trash whole.
struct RemovalTarget {
    std::filesystem::path path;
    bool folder = false;

    bool operator==(const RemovalTarget&) const = default;
};

struct DeletionStep {
    UserMessage message; // an information box, or a question whose default is No
    std::vector<RemovalTarget> targets;
};

struct DeletionPlan {
    std::optional<UserMessage> refusal; // nothing was ticked
    std::vector<DeletionStep> steps;
};

DeletionPlan CleanReportsPlan(const std::filesystem::path& output,
                              const std::set<ReportBox>& ticked);

/// The folders MAME writes into, as the preferences name them; a relative one lies in the
/// MAME folder, where MAME runs.
struct OutputFolders {
    std::filesystem::path nvram;
    std::filesystem::path cfg;
    std::filesystem::path inp;
    std::filesystem::path snap;

    static OutputFolders From(const Preferences& preferences);
};

/// The check boxes of "Output Directories", in their order.
enum class OutputKind { Nvram, Cfg, Inp, Snap };

/// `machine` is the machine of "Current Game Files"; empty means "All Files".
DeletionPlan CleanOutputPlan(const OutputFolders& folders, const std::vector<OutputKind>& ticked,
                             std::string_view machine);

/// The selected machine and the folders its files may lie in.
struct MachineFiles {
    std::string shortName;
    std::string description;
    bool romRequired = true;
    std::vector<std::string> romFolders;
    OutputFolders output;
};
DeletionStep DeleteRomStep(const MachineFiles& machine);
DeletionStep DeleteSamplesStep(std::string_view name, const std::vector<std::string>& folders);

/// Moves a folder to the desktop trash; the window's way of doing it is passed in.
using MoveToTrash = std::function<std::error_code(const std::filesystem::path&)>;

struct RemovalFailure {
    std::error_code error;
    std::filesystem::path path;
};

/// Removes the targets in order and stops at the first that fails.
std::optional<RemovalFailure> RemoveTargets(const std::vector<RemovalTarget>& targets,
                                            const MoveToTrash& moveToTrash);

/// The box of a failed removal: `routine` as in "Error In DeleteROM", the box's `title`.
UserMessage RemovalFailureMessage(std::string_view routine, std::string_view title,
                                  const RemovalFailure& failure);

} // namespace coinlight
