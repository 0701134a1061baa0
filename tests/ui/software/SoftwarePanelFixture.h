#pragma once

#include <QTest>

#include "lists/RecordBuilder.h"
#include "ui/MainWindowFixture.h"

namespace coinlight::test {

/// The main window over a few other machines with software lists, a software folder that
/// holds some of their titles, and the fake MAME.
class SoftwarePanelFixture : public MainWindowFixture {
protected:
    SoftwarePanelFixture();

    /// Loads the window and shows the Other Machines view with `machine` selected.
    void ShowOther(const std::string& machine);
    void SelectMachine(const std::string& machine);
    /// Waits out the moment the selection must stand still.
    void StandStill() { QTest::qWait(1300); }
    void SelectTitle(const std::string& name);

    SoftwarePanel& Page() { return *Controls().picSoftware; }
    SoftwareListView& Software() { return *Controls().lvSoftware; }
    std::vector<std::string> Titles();
    std::filesystem::path SoftFile(const std::string& machine) {
        return m_context.data.Software() / (machine + ".txt");
    }
    std::filesystem::path SoftwareFolder() const { return m_folder / "software"; }
    /// The argument lines of the fake MAME's runs, machine name onwards.
    std::vector<std::string> Runs() const;
};

} // namespace coinlight::test
