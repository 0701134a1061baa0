#include "SoftwarePanelFixture.h"

#include <sstream>

#include "core/ProfileFile.h"

namespace coinlight::test {

namespace {

std::string OtherRecord(const std::string& name, const std::string& description,
                        const std::string& devices, const std::string& lists,
                        bool needsRom = false) {
    return RecordLine(Record(name, {{ColMachine, description},
                                    {ColBriefNames, devices},
                                    {ColSoftwareLists, lists},
                                    {ColRomRequired, needsRom ? "Yes" : "No"},
                                    {ColCategory, "Computer"}}));
}

} // namespace

SoftwarePanelFixture::SoftwarePanelFixture() {
    WriteFile(Output() / "otherinfo.txt",
              OtherRecord("a2600", "Atari 2600 (NTSC)", "cart", "a2600") +
                  OtherRecord("cpc464", "Amstrad CPC464", "cass;flop1;flop2", "cpc_cass;cpc_flop") +
                  OtherRecord("pet2001", "PET 2001", "N/A", "N/A") +
                  OtherRecord("redbox", "Red Box", "cart", "a2600", true));
    std::filesystem::copy_file(FixturesFolder() / "software-panel" / "software.xml",
                               Output() / "software.xml",
                               std::filesystem::copy_options::overwrite_existing);
    for (const char* title : {"a2600/pitfall.zip", "a2600/pit;fall.zip", "cpc_cass/twoside.zip",
                              "cpc_cass/charger.zip", "cpc_flop/oddone.7z"}) {
        WriteFile(SoftwareFolder() / title, "zip");
    }
    std::filesystem::create_directories(SoftwareFolder() / "cpc_flop" / "disky");
}

void SoftwarePanelFixture::ShowOther(const std::string& machine) {
    WriteOptions();
    WriteProfileValue(m_context.data.OptionsIni(), "Core Search Path Options", "Software",
                      SoftwareFolder().string());
    ASSERT_TRUE(Load()) << Told();
    MachineListView& other = *Controls().lvOther;
    other.SelectRow(other.Model().RowOfShortName(machine));
    Form().ViewOther();
    Form().show();
    ASSERT_EQ(other.SelectedMachine()->ShortName(), machine);
}

void SoftwarePanelFixture::SelectMachine(const std::string& machine) {
    MachineListView& other = *Controls().lvOther;
    other.SelectRow(other.Model().RowOfShortName(machine));
}

void SoftwarePanelFixture::SelectTitle(const std::string& name) {
    const SoftwareListModel& model = Software().Model();
    for (int row = 0; row < model.rowCount(); ++row) {
        if (model.Text(row, SoftwareListModel::ShortName) == name) {
            // Clicked as a user clicks it: the row becomes current before it is selected.
            const QModelIndex index = model.index(row, 0);
            Software().scrollTo(index);
            QTest::mouseClick(Software().viewport(), Qt::LeftButton, {},
                              Software().visualRect(index).center());
            EXPECT_EQ(Software().SelectedRow(), row) << name;
            return;
        }
    }
    ADD_FAILURE() << "no title " << name;
}

std::vector<std::string> SoftwarePanelFixture::Titles() {
    std::vector<std::string> names;
    const SoftwareListModel& model = Software().Model();
    for (int row = 0; row < model.rowCount(); ++row) {
        names.emplace_back(model.Text(row, SoftwareListModel::ShortName));
    }
    return names;
}

std::vector<std::string> SoftwarePanelFixture::Runs() const {
    std::vector<std::string> runs;
    std::istringstream launches(ReadFile(m_mame.Launches()));
    for (std::string line; std::getline(launches, line);) {
        // Leave out the working folder and the ini folder of every start.
        std::string arguments = line.substr(line.find('\t') + 1);
        if (arguments.starts_with("-inipath\t")) {
            arguments = arguments.substr(arguments.find('\t', 9) + 1);
        }
        std::replace(arguments.begin(), arguments.end(), '\t', ' ');
        runs.push_back(arguments);
    }
    return runs;
}

} // namespace coinlight::test
