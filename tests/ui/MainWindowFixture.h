#pragma once

#include <deque>
#include <functional>
#include <gtest/gtest.h>
#include <memory>

#include <QDialog>
#include <QLabel>
#include <QTimer>

#include "core/FileTests.h"
#include "support/ScriptedPrompter.h"
#include "support/TestFiles.h"
#include "ui/MachineListView.h"
#include "ui/frmMain.h"

namespace coinlight::test {

/// A data folder with a small catalogue, a fake MAME and a ROM folder, ready for the main
/// window's load. Tests change what they need before calling Load().
class MainWindowFixture : public ::testing::Test {
protected:
    MainWindowFixture();

    /// Writes options.ini from the keys given plus the ones every start needs.
    void WriteOptions(const std::string& extraSections = {});
    void AddRom(const std::string& name) { WriteFile(Roms() / (name + ".zip"), "zip"); }
    std::filesystem::path Roms() const { return m_folder / "roms"; }
    std::filesystem::path Output() const { return m_context.data.Output(); }

    bool Load();

    /// The next modal dialog (Options, as a rule) is worked by `act` instead of a person.
    /// A dialog no test asked for is cancelled and fails the test, so nothing waits for ever.
    void AnswerDialog(std::function<void(QDialog&)> act) {
        m_dialogAnswers.push_back(std::move(act));
    }
    /// Fills the Options dialog as a first user would and presses OK.
    void AnswerOptionsWithFakeMame();
    int DialogsOpened() const { return m_dialogsOpened; }
    /// What the user was told, for the message of a failed assertion.
    std::string Told() const { return m_prompter.Texts().join(" | ").toStdString(); }
    frmMain& Form() { return *m_form; }
    const MainControls& Controls() { return m_form->Controls(); }
    QString Panel(int index) {
        return Controls().lblPanel[static_cast<std::size_t>(index)]->text();
    }
    std::vector<std::string> Names(const MachineListView& list) const;

    TempFolder m_folder;
    AppContext m_context;
    ScriptedPrompter m_prompter;
    FakeMame m_mame;
    std::unique_ptr<frmMain> m_form;
    bool m_writeOptionsOnLoad = true; // a start with preferences, unless a test says not
    MameLocations m_locations;        // where Options looks for a packaged MAME: nowhere real

private:
    void WatchForDialogs();

    std::deque<std::function<void(QDialog&)>> m_dialogAnswers;
    QTimer m_dialogWatch;
    int m_dialogsOpened = 0;
};

} // namespace coinlight::test
