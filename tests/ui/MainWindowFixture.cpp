#include "MainWindowFixture.h"

#include <QAbstractButton>
#include <QApplication>
#include <QLineEdit>

namespace coinlight::test {

MainWindowFixture::MainWindowFixture() {
    m_context.appFolder = m_folder / "app";
    m_context.data.root = m_folder / "data";
    std::filesystem::create_directories(m_context.appFolder);
    std::filesystem::create_directories(Roms());
    m_mame = InstallFakeMame(m_folder / "mame", "fake-mame");
    const auto catalogue = FixturesFolder() / "catalogue-small" / "output";
    std::filesystem::create_directories(Output());
    for (const auto& entry : std::filesystem::directory_iterator(catalogue)) {
        std::filesystem::copy_file(entry.path(), Output() / entry.path().filename());
    }
    // A packaged MAME of the machine the tests run on must not fill the dialog.
    m_locations.distributionData = m_folder / "no-share";
    m_locations.home = m_folder / "no-home";
    m_locations.searchPath = "";
    m_dialogWatch.setInterval(20);
    QObject::connect(&m_dialogWatch, &QTimer::timeout, [this] { WatchForDialogs(); });
    m_dialogWatch.start();
    // The support files of the test's own: the shipped ones must not start a rebuild.
    WriteFile(m_context.data.Support() / "lists.txt", "Arcade\r\n|pacman|\r\nOther\r\n|a500|\r\n");
}

void MainWindowFixture::WriteOptions(const std::string& extraSections) {
    const auto mameSize = FileSize(m_mame.folder / m_mame.executable).value_or(0);
    const auto listsSize = FileSize(m_context.data.Support() / "lists.txt").value_or(0);
    WriteFile(m_context.data.OptionsIni(),
              "[Miscellaneous]\r\nCoinlight Version=26.02.0\r\nLists.txt Size=" +
                  std::to_string(listsSize) + "\r\n\r\n[MAME]\r\nExecutable=" + m_mame.executable +
                  "\r\nMame.exe Size=" + std::to_string(mameSize) +
                  "\r\n\r\n[Core Search Path Options]\r\nMAME=" + m_mame.folder.string() +
                  "\r\nArcade ROMs=" + Roms().string() + "\r\nOther ROMs=" + Roms().string() +
                  "\r\nIni=" + m_context.data.Temp().string() + "\r\n\r\n" + extraSections);
}

void MainWindowFixture::WatchForDialogs() {
    auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
    if (dialog == nullptr || !dialog->isVisible()) {
        return;
    }
    ++m_dialogsOpened;
    if (m_dialogAnswers.empty()) {
        ADD_FAILURE() << "a dialog no test expected: " << dialog->objectName().toStdString();
        dialog->reject();
        return;
    }
    auto act = std::move(m_dialogAnswers.front());
    m_dialogAnswers.pop_front();
    act(*dialog);
}

void MainWindowFixture::AnswerOptionsWithFakeMame() {
    AnswerDialog([this](QDialog& dialog) {
        const auto set = [&dialog](const char* name, const std::string& text) {
            auto* field = dialog.findChild<QLineEdit*>(QString::fromLatin1(name));
            ASSERT_NE(field, nullptr) << name;
            field->setText(QString::fromStdString(text));
        };
        set("txtMAMEPath", (m_mame.folder / m_mame.executable).string());
        set("txtArcadeROMPath", Roms().string());
        set("txtMESSROMPath", Roms().string());
        for (const char* name : {"txtSamPath", "txtArtworkPath", "txtCtrlrPath", "txtCheatPath",
                                 "txtPluginsPath", "txtLanguagePath"}) {
            const auto folder = m_folder / "mame-data" / name;
            std::filesystem::create_directories(folder);
            set(name, folder.string());
        }
        dialog.findChild<QAbstractButton*>(QStringLiteral("cmdNext"))->click();
        dialog.findChild<QAbstractButton*>(QStringLiteral("cmdOK"))->click();
        if (dialog.isVisible()) {
            ADD_FAILURE() << "Options refused: " << Told();
            dialog.reject();
        }
    });
}

bool MainWindowFixture::Load() {
    if (m_writeOptionsOnLoad && !FileExists(m_context.data.OptionsIni())) {
        WriteOptions();
    }
    m_form = std::make_unique<frmMain>(m_context, m_prompter);
    m_form->SetMameLocations(m_locations);
    return m_form->FormLoad();
}

std::vector<std::string> MainWindowFixture::Names(const MachineListView& list) const {
    std::vector<std::string> names;
    for (int row = 0; row < list.Model().rowCount(); ++row) {
        names.emplace_back(list.Model().Row(row)->ShortName());
    }
    return names;
}

} // namespace coinlight::test
