#include "MaintenancePlan.h"

#include <algorithm>
#include <array>

#include "PermissionAdvice.h"
#include "core/UserMessage.h"

namespace coinlight {

namespace {

constexpr std::array<ReportFileEntry, 13> kReportFiles = {{
    {ReportBox::Roms, "arcadeauditroms.txt", "Arcade ROMs"},
    {ReportBox::Roms, "otherauditroms.txt", "Other ROMs"},
    {ReportBox::Roms, "otherauditallsoftware.txt", "All Software"},
    {ReportBox::Roms, "otherauditmachinessoftware.txt", "Other Machine's Software"},
    {ReportBox::Samples, "arcadeauditsamples.txt", "Samples"},
    {ReportBox::Rebuilt, "rebuilt.txt", "Rebuilt Settings"},
    {ReportBox::All, "All Arcade Machines.txt", "All Arcade Machines"},
    {ReportBox::Available, "Available Arcade Machines.txt", "Available Arcade Machines"},
    {ReportBox::Unavailable, "Unavailable Arcade Machines.txt", "Unavailable Arcade Machines"},
    {ReportBox::Other, "Other Machines.txt", "Other Machines"},
    {ReportBox::ArcadeChanges, "arcadefavschanges.txt", "Favorite Arcade Machine Changes"},
    {ReportBox::OtherChanges, "otherfavschanges.txt", "Favorite Other Machine Changes"},
    {ReportBox::WhatRomsChanged, "changedroms.txt", "What ROMs Changed"},
}};

UserMessage Inform(std::string text, std::string title = "Maintenance") {
    UserMessage message;
    message.title = std::move(title);
    message.text = std::move(text);
    message.icon = MessageIcon::Information;
    return message;
}

UserMessage Ask(std::string text) {
    UserMessage question;
    question.title = "Confirm Delete";
    question.text = std::move(text);
    question.icon = MessageIcon::Question;
    question.buttons = MessageButtons::YesNo;
    question.noIsDefault = true;
    return question;
}

bool IsFile(const std::filesystem::path& path) {
    std::error_code error;
    return std::filesystem::is_regular_file(path, error);
}

bool IsFolder(const std::filesystem::path& path) {
    std::error_code error;
    return std::filesystem::is_directory(path, error);
}

/// The files or the folders directly in `folder`, in name order; `extension` narrows files.
std::vector<RemovalTarget> Contents(const std::filesystem::path& folder, bool folders,
                                    std::string_view extension = {}) {
    std::vector<RemovalTarget> found;
    std::error_code error;
    if (folder.empty() || !IsFolder(folder)) {
        return found;
    }
    for (std::filesystem::directory_iterator entries(folder, error), end; !error && entries != end;
         entries.increment(error)) {
        const bool isFolder = entries->is_directory(error);
        if (isFolder != folders || (!folders && !entries->is_regular_file(error))) {
            continue;
        }
        if (!extension.empty() && entries->path().extension() != extension) {
            continue;
        }
        found.push_back({entries->path(), folders});
    }
    std::sort(found.begin(), found.end(),
              [](const RemovalTarget& a, const RemovalTarget& b) { return a.path < b.path; });
    return found;
}

/// A step that asks when there is something to remove and says so when there is not.
DeletionStep StepFor(std::vector<RemovalTarget> targets, std::string question,
                     std::string nothing) {
    if (targets.empty()) {
        return {Inform(std::move(nothing)), {}};
    }
    return {Ask(std::move(question)), std::move(targets)};
}

std::vector<RemovalTarget> OneFile(const std::filesystem::path& file) {
    return IsFile(file) ? std::vector<RemovalTarget>{{file, false}} : std::vector<RemovalTarget>{};
}

std::vector<RemovalTarget> OneFolder(const std::filesystem::path& folder) {
    return IsFolder(folder) ? std::vector<RemovalTarget>{{folder, true}}
                            : std::vector<RemovalTarget>{};
}

void AddFileSteps(std::vector<DeletionStep>& steps, const std::filesystem::path& folder,
                  std::string_view kind, std::string_view extension, std::string_view machine) {
    const std::string k(kind);
    const std::string name(machine);
    if (machine.empty()) {
        steps.push_back(StepFor(Contents(folder, false),
                                "Are you sure you want to delete all " + k + " files?",
                                "There are no " + k + " files to delete."));
        return;
    }
    steps.push_back(StepFor(OneFile(folder / (name + std::string(extension))),
                            "Are you sure you want to delete the " + k + " file for " + name + "?",
                            "There is no " + k + " file for " + name + "."));
}

void AddFolderStep(std::vector<DeletionStep>& steps, const std::filesystem::path& folder,
                   std::string_view kind, std::string_view machine) {
    const std::string name(machine);
    if (machine.empty()) {
        const std::string question =
            kind == "nvram" ? "Are you sure you want to delete all the nvram folders?"
                            : "Are you sure you want to delete all the snap folders and files in "
                              "them?";
        steps.push_back(
            StepFor(Contents(folder, true), question, "There are no folders to delete."));
        return;
    }
    steps.push_back(StepFor(OneFolder(folder / name),
                            "Are you sure you want to delete the " + name + " " +
                                std::string(kind) + " folder and all the files in it?",
                            "There is no folder for " + name + "."));
}

void AddSnapshotSteps(std::vector<DeletionStep>& steps, const std::filesystem::path& folder,
                      std::string_view machine) {
    AddFolderStep(steps, folder, "snap", machine);
    const std::string name(machine);
    if (machine.empty()) {
        steps.push_back(StepFor(Contents(folder, false, ".png"),
                                "Are you sure you want to delete all .png files in the root?",
                                "There are no .png files in the root to delete."));
        return;
    }
    steps.push_back(
        StepFor(OneFile(folder / (name + ".png")),
                "Are you sure you want to delete the " + name + ".png file in the root?",
                "There are no .png files in the root for " + name + "."));
}

std::filesystem::path InMameFolder(const std::string& mame, const std::string& path) {
    if (path.empty()) {
        return {};
    }
    const std::filesystem::path given(path);
    return given.is_absolute() || mame.empty() ? given : std::filesystem::path(mame) / given;
}

} // namespace

std::span<const ReportFileEntry> ReportFileTable() {
    return kReportFiles;
}

DeletionPlan CleanReportsPlan(const std::filesystem::path& output,
                              const std::set<ReportBox>& ticked) {
    DeletionPlan plan;
    if (ticked.empty()) {
        plan.refusal = Inform("You must first select a report or list.");
        return plan;
    }
    for (const ReportFileEntry& entry : kReportFiles) {
        if (!ticked.contains(entry.box)) {
            continue;
        }
        const std::string name(entry.name);
        plan.steps.push_back(StepFor(OneFile(output / entry.file),
                                     "Are you sure you want to delete the " + name + " report?",
                                     "There is no " + name + " report to delete."));
    }
    return plan;
}

OutputFolders OutputFolders::From(const Preferences& preferences) {
    const std::string& mame = preferences.searchPaths.mame;
    const OutputPathPreferences& paths = preferences.outputPaths;
    return {InMameFolder(mame, paths.nvram), InMameFolder(mame, paths.cfg),
            InMameFolder(mame, paths.input), InMameFolder(mame, paths.snapshot)};
}

DeletionPlan CleanOutputPlan(const OutputFolders& folders, const std::vector<OutputKind>& ticked,
                             std::string_view machine) {
    DeletionPlan plan;
    if (ticked.empty()) {
        plan.refusal = Inform("You must first select a directory.");
        return plan;
    }
    for (const OutputKind kind : ticked) {
        switch (kind) {
        case OutputKind::Nvram:
            AddFolderStep(plan.steps, folders.nvram, "nvram", machine);
            break;
        case OutputKind::Cfg:
            AddFileSteps(plan.steps, folders.cfg, "Cfg", ".cfg", machine);
            break;
        case OutputKind::Inp:
            AddFileSteps(plan.steps, folders.inp, "Inp", ".inp", machine);
            break;
        case OutputKind::Snap:
            AddSnapshotSteps(plan.steps, folders.snap, machine);
            break;
        }
    }
    return plan;
}

DeletionStep DeleteRomStep(const MachineFiles& machine) {
    const std::string& name = machine.shortName;
    std::string text =
        machine.romRequired
            ? "Are you sure you want to permanently delete the ROM " + machine.description + "?"
            : "Are you sure you want to permanently delete the machine " + machine.description +
                  "?";
    text += "\n\nAssociated .cfg, .nv, .inp and .png files if any will also be deleted.";
    if (machine.romRequired) {
        text += "\n\nUse caution as clone games may be using some of these files.";
    }
    DeletionStep step{Ask(text), {}};
    auto add = [&step](std::vector<RemovalTarget> found) {
        step.targets.insert(step.targets.end(), found.begin(), found.end());
    };
    for (const std::string& folder : machine.romFolders) {
        if (folder.empty()) {
            continue;
        }
        add(OneFile(std::filesystem::path(folder) / (name + ".zip")));
        add(OneFile(std::filesystem::path(folder) / (name + ".7z")));
    }
    const OutputFolders& output = machine.output;
    if (!output.cfg.empty()) {
        add(OneFile(output.cfg / (name + ".cfg")));
    }
    if (!output.nvram.empty()) {
        add(OneFolder(output.nvram / name));
    }
    if (!output.inp.empty()) {
        add(OneFile(output.inp / (name + ".inp")));
    }
    if (!output.snap.empty()) {
        add(OneFile(output.snap / (name + ".png")));
        add(OneFolder(output.snap / name));
    }
    return step;
}

DeletionStep DeleteSamplesStep(std::string_view name, const std::vector<std::string>& folders) {
    const std::string sample(name);
    DeletionStep step{Ask("Are you sure you want to permanently delete the sample " + sample +
                          " from your hard drive?\n\nUse caution as a clone game might be using "
                          "it."),
                      {}};
    for (const std::string& folder : folders) {
        if (folder.empty()) {
            continue;
        }
        for (const char* extension : {".zip", ".7z"}) {
            const auto found = OneFile(std::filesystem::path(folder) / (sample + extension));
            step.targets.insert(step.targets.end(), found.begin(), found.end());
        }
    }
    return step;
}

std::optional<RemovalFailure> RemoveTargets(const std::vector<RemovalTarget>& targets,
                                            const MoveToTrash& moveToTrash) {
    for (const RemovalTarget& target : targets) {
        std::error_code error;
        if (target.folder) {
            error = moveToTrash(target.path);
        } else {
            std::filesystem::remove(target.path, error);
        }
        if (error) {
            return RemovalFailure{error, target.path};
        }
    }
    return std::nullopt;
}

UserMessage RemovalFailureMessage(std::string_view routine, std::string_view title,
                                  const RemovalFailure& failure) {
    UserMessage message = Inform(FailureDescription(failure.error), std::string(title));
    message.icon = MessageIcon::Critical;
    if (IsPermissionFailure(failure.error)) {
        message.text = "Error In " + std::string(routine) + ": " + message.text + "\n\n" +
                       NoPermissionSentence(failure.path.parent_path());
    }
    return message;
}

} // namespace coinlight
