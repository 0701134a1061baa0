#include "reports/MaintenancePlan.h"

#include <gtest/gtest.h>

#include "Unremovable.h"
#include "support/TestFiles.h"

using namespace coinlight;
using namespace coinlight::test;

namespace {

std::vector<std::string> TextsOf(const DeletionPlan& plan) {
    std::vector<std::string> texts;
    for (const auto& step : plan.steps) {
        texts.push_back(step.message.text);
    }
    return texts;
}

/// A trash of the test's own: folders are moved into it, so a test can see they went there.
MoveToTrash TrashIn(const std::filesystem::path& trash) {
    return [trash](const std::filesystem::path& path) {
        std::error_code error;
        std::filesystem::create_directories(trash, error);
        std::filesystem::rename(path, trash / path.filename(), error);
        return error;
    };
}

class OutputFolderPlans : public ::testing::Test {
protected:
    OutputFolderPlans() {
        m_folders = {m_folder / "nvram", m_folder / "cfg", m_folder / "inp", m_folder / "snap"};
        WriteFile(m_folders.nvram / "pacman" / "pacman.nv", "n");
        WriteFile(m_folders.nvram / "galaga" / "galaga.nv", "n");
        WriteFile(m_folders.cfg / "pacman.cfg", "c");
        WriteFile(m_folders.cfg / "default.cfg", "c");
        WriteFile(m_folders.snap / "pacman" / "0000.png", "p");
        WriteFile(m_folders.snap / "pacman.png", "p");
        WriteFile(m_folders.snap / "notes.txt", "kept: not a picture");
        std::filesystem::create_directories(m_folders.inp);
    }
    const std::vector<OutputKind> kAll = {OutputKind::Nvram, OutputKind::Cfg, OutputKind::Inp,
                                          OutputKind::Snap};
    TempFolder m_folder;
    OutputFolders m_folders;
};

} // namespace

TEST_F(OutputFolderPlans, CurrentGameFilesNameTheMachineAndFindOnlyItsFiles) {
    const DeletionPlan plan = CleanOutputPlan(m_folders, kAll, "pacman");
    EXPECT_EQ(
        TextsOf(plan),
        (std::vector<std::string>{
            "Are you sure you want to delete the pacman nvram folder and all the files in it?",
            "Are you sure you want to delete the Cfg file for pacman?",
            "There is no Inp file for pacman.",
            "Are you sure you want to delete the pacman snap folder and all the files in it?",
            "Are you sure you want to delete the pacman.png file in the root?"}));
    EXPECT_EQ(plan.steps[0].targets,
              (std::vector<RemovalTarget>{{m_folders.nvram / "pacman", true}}));
    EXPECT_EQ(plan.steps[1].targets,
              (std::vector<RemovalTarget>{{m_folders.cfg / "pacman.cfg", false}}));
    EXPECT_EQ(plan.steps[2].message.title, "Maintenance");
    EXPECT_EQ(plan.steps[3].message.title, "Confirm Delete");
    EXPECT_TRUE(plan.steps[3].message.noIsDefault);

    const DeletionPlan other = CleanOutputPlan(m_folders, kAll, "dkong");
    EXPECT_EQ(TextsOf(other),
              (std::vector<std::string>{
                  "There is no folder for dkong.", "There is no Cfg file for dkong.",
                  "There is no Inp file for dkong.", "There is no folder for dkong.",
                  "There are no .png files in the root for dkong."}));
}

TEST_F(OutputFolderPlans, AllFilesTakeEveryFolderOrFileOfTheirKind) {
    const DeletionPlan plan = CleanOutputPlan(m_folders, kAll, "");
    EXPECT_EQ(
        TextsOf(plan),
        (std::vector<std::string>{
            "Are you sure you want to delete all the nvram folders?",
            "Are you sure you want to delete all Cfg files?", "There are no Inp files to delete.",
            "Are you sure you want to delete all the snap folders and files in them?",
            "Are you sure you want to delete all .png files in the root?"}));
    EXPECT_EQ(plan.steps[0].targets,
              (std::vector<RemovalTarget>{{m_folders.nvram / "galaga", true},
                                          {m_folders.nvram / "pacman", true}}));
    EXPECT_EQ(plan.steps[1].targets.size(), 2u);
    EXPECT_EQ(plan.steps[4].targets,
              (std::vector<RemovalTarget>{{m_folders.snap / "pacman.png", false}}));

    EXPECT_EQ(CleanOutputPlan(m_folders, {}, "").refusal->text,
              "You must first select a directory.");
    EXPECT_EQ(TextsOf(CleanOutputPlan(OutputFolders{}, {OutputKind::Nvram}, "")),
              (std::vector<std::string>{"There are no folders to delete."}))
        << "a folder MAME was never given holds nothing";
}

TEST_F(OutputFolderPlans, FilesAreDeletedFoldersTrashedAndAFailureStopsTheRest) {
    const auto trash = m_folder / "trash";
    const DeletionPlan plan = CleanOutputPlan(m_folders, kAll, "pacman");
    EXPECT_FALSE(RemoveTargets(plan.steps[0].targets, TrashIn(trash)));
    EXPECT_TRUE(std::filesystem::exists(trash / "pacman" / "pacman.nv"));
    EXPECT_FALSE(RemoveTargets(plan.steps[1].targets, TrashIn(trash)));
    EXPECT_FALSE(std::filesystem::exists(m_folders.cfg / "pacman.cfg"));
    EXPECT_FALSE(std::filesystem::exists(trash / "pacman.cfg")) << "files are deleted, not trashed";

    const DeletionPlan all = CleanOutputPlan(m_folders, {OutputKind::Cfg, OutputKind::Snap}, "");
    const Unremovable held(m_folders.cfg / "default.cfg");
    if (!held.Holds()) {
        GTEST_SKIP() << "this file system cannot make a file unremovable";
    }
    const auto failure = RemoveTargets(all.steps[0].targets, TrashIn(trash));
    ASSERT_TRUE(failure);
    EXPECT_EQ(failure->path, m_folders.cfg / "default.cfg");
    const UserMessage message =
        RemovalFailureMessage("CleanOutputDirectories", "Maintenance", *failure);
    EXPECT_EQ(message.title, "Maintenance");
    EXPECT_NE(message.text.find("Error In CleanOutputDirectories: "), std::string::npos);
    EXPECT_NE(
        message.text.find("permission to read or write files in " + m_folders.cfg.string() + "."),
        std::string::npos)
        << message.text;
}

TEST(ReportPlans, EachTickedBoxItsFilesInTableOrder) {
    TempFolder output;
    WriteFile(output / "arcadeauditroms.txt", "r");
    WriteFile(output / "otherauditallsoftware.txt", "s");
    WriteFile(output / "changedroms.txt", "c");
    const DeletionPlan plan =
        CleanReportsPlan(output.Path(), {ReportBox::WhatRomsChanged, ReportBox::Roms});
    EXPECT_EQ(TextsOf(plan), (std::vector<std::string>{
                                 "Are you sure you want to delete the Arcade ROMs report?",
                                 "There is no Other ROMs report to delete.",
                                 "Are you sure you want to delete the All Software report?",
                                 "There is no Other Machine's Software report to delete.",
                                 "Are you sure you want to delete the What ROMs Changed report?"}));
    EXPECT_EQ(CleanReportsPlan(output.Path(), {}).refusal->text,
              "You must first select a report or list.");
}

TEST(MachinePlans, DeleteRomNamesTheMachineAndGathersItsFiles) {
    TempFolder folder;
    MachineFiles machine;
    machine.shortName = "pacman";
    machine.description = "Pac-Man (Midway)";
    machine.romFolders = {(folder / "roms").string(), "", (folder / "more").string()};
    machine.output = {folder / "nvram", folder / "cfg", folder / "inp", folder / "snap"};
    WriteFile(folder / "roms" / "pacman.zip", "z");
    WriteFile(folder / "more" / "pacman.7z", "7");
    WriteFile(folder / "nvram" / "pacman" / "x.nv", "n");
    WriteFile(folder / "snap" / "pacman.png", "p");
    const DeletionStep step = DeleteRomStep(machine);
    EXPECT_EQ(step.message.text,
              "Are you sure you want to permanently delete the ROM Pac-Man (Midway)?\n\nAssociated "
              ".cfg, .nv, .inp and .png files if any will also be deleted.\n\nUse caution as clone "
              "games may be using some of these files.");
    EXPECT_EQ(step.targets, (std::vector<RemovalTarget>{{folder / "roms" / "pacman.zip", false},
                                                        {folder / "more" / "pacman.7z", false},
                                                        {folder / "nvram" / "pacman", true},
                                                        {folder / "snap" / "pacman.png", false}}));
    machine.romRequired = false;
    EXPECT_EQ(DeleteRomStep(machine).message.text.find(
                  "Are you sure you want to permanently delete the machine Pac-Man (Midway)?"),
              0u);
    EXPECT_EQ(DeleteRomStep(machine).message.text.find("Use caution"), std::string::npos);

    const DeletionStep samples = DeleteSamplesStep("galaga", {(folder / "samples").string()});
    EXPECT_TRUE(samples.targets.empty());
    EXPECT_EQ(samples.message.text, "Are you sure you want to permanently delete the sample galaga "
                                    "from your hard drive?\n\nUse caution as a clone game might be "
                                    "using it.");
}
