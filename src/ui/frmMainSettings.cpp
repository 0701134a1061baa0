// The settings screens: the class profiles of arcade machines, the profile of other
// machines and the profiles of single machines, with OK, Cancel and Restore, and Rebuild
// Settings with its report.
#include <QApplication>
#include <QLineEdit>
#include <QTextCharFormat>
#include <QTextCursor>
#include <QTextDocument>

#include "MachineListView.h"
#include "Prompter.h"
#include "UserMessagePrompt.h"
#include "core/FileTests.h"
#include "core/TextCase.h"
#include "frmMain.h"
#include "settings/BiosChoices.h"
#include "settings/MonochromeList.h"
#include "settings/OptionCatalogue.h"
#include "settings/ProfileChoice.h"
#include "settings/ProfileLoad.h"
#include "settings/RebuildSettings.h"
#include "ui/settings/SettingsPage.h"
#include "ui/settings/SystemComboSources.h"

namespace coinlight {

namespace {

QString ToQString(std::string_view text) {
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

} // namespace

void frmMain::ConnectSettingsControls() {
    const MainControls& c = m_controls;
    SettingsPage& page = *c.fraDefaults;
    page.UseLoadingFlag(m_context.flags.loadingSettings);
    connect(&page, &SettingsPage::RuleFailed, this,
            [this](const UserMessage& message) { ShowMessage(m_prompter, message); });
    connect(c.cmdArcadeSettings, &QPushButton::clicked, this, &frmMain::SettingsArcade);
    connect(c.cmdOtherSettings, &QPushButton::clicked, this, &frmMain::SettingsOther);
    connect(c.cboSettings, &QComboBox::currentIndexChanged, this, &frmMain::cboSettingsClicked);
    connect(page.cmdOK, &QPushButton::clicked, this, &frmMain::OK);
    connect(page.cmdRestore, &QPushButton::clicked, this, &frmMain::Restore);
    connect(page.cmdCancel, &QPushButton::clicked, this, &frmMain::Cancel);
    connect(page.cmdSelectControllerMap, &QPushButton::clicked, this,
            &frmMain::SelectControllerMap);
    const std::pair<GroupCommand, int> commands[] = {
        {GroupCommand::SelectHLSL, LinkHLSLPath},
        {GroupCommand::HLSLDefaults, LinkHLSLDefaults},
        {GroupCommand::YIQDefaults, LinkYIQDefaults},
        {GroupCommand::VectorPostDefaults, LinkVectorPostDefaults},
        {GroupCommand::BloomPostDefaults, LinkBloomPostDefaults},
        {GroupCommand::SelectBGFX, LinkBGFXPath}};
    for (auto [command, link] : commands) {
        connect(page.CommandButton(command), &QPushButton::clicked, this,
                [this, link = link] { LinkClicked(link); });
    }
    for (int index = 0; index < kGLSLShaderCount; ++index) {
        const GroupCommand command = SelectGLSL(index);
        connect(page.CommandButton(command), &QPushButton::clicked, this,
                [this, index] { GLSLShader(index); });
        connect(page.CommandLink(command), &QLabel::linkActivated, this,
                [this, index] { GLSLShader(index); });
    }
}

bool frmMain::SettingsScreenOpen() const {
    return m_controls.pages->currentWidget() == m_controls.fraDefaults;
}

void frmMain::DefineCombos() {
    SettingsPage& page = *m_controls.fraDefaults;
    if (page.Defined()) {
        return;
    }
    // Made at first use rather than at start: many users never open a settings screen.
    ComboSources sources = PreferenceComboSources(m_context.preferences.searchPaths);
    AddSystemComboSources(sources);
    page.DefineCombos(ComboChoices(sources));
}

SettingsScreenFacts frmMain::ScreenFacts() const {
    return {m_controls.fraDefaults->title().toStdString(), m_profileName, m_selectedMachine,
            m_displayType};
}

void frmMain::LoadcboBIOS() {
    BiosChoices choices = ClassBiosChoices();
    if (ScreenFacts().Custom()) {
        choices = MachineBiosChoices(m_context.data.Output() / "bios.ini", m_selectedMachine);
        if (choices.overflowLength) {
            ShowMessage(m_prompter, BiosOverflowMessage(*choices.overflowLength));
        }
    }
    m_controls.fraDefaults->SetBiosItems(std::move(choices.items));
}

void frmMain::ChooseProfileName() {
    const bool monochrome = MonochromeList::Load(m_context.data).Contains(m_selectedMachine);
    m_profileName =
        coinlight::ChooseProfileName({m_displayType, m_context.preferences.other.settingsLevel,
                                      monochrome, m_controls.lblPanel[4]->text().toStdString()},
                                     m_profileName);
}

void frmMain::SettingsArcade() {
    const MainControls& c = m_controls;
    DefineCombos();
    {
        const QSignalBlocker quiet(c.cboSettings);
        c.cboSettings->clear();
    }
    c.cboSettings->show();
    m_displayType.clear();
    m_selectedMachine.clear();
    if (const MachineRow* row = ListOfView()->SelectedMachine()) {
        m_displayType = std::string(row->Field(ColImages).substr(0, 6));
        m_selectedMachine = std::string(row->ShortName());
    }
    LoadcboBIOS();
    ChooseProfileName();
    const int level = m_context.preferences.other.settingsLevel;
    {
        const QSignalBlocker quiet(c.cboSettings);
        for (const auto& item : SettingsLevelItems(level)) {
            c.cboSettings->addItem(ToQString(item));
        }
        c.cboSettings->setCurrentIndex(-1);
    }
    c.cboSettings->setToolTip(level == 2 ? ToQString(SettingsLevelTip(level))
                                         : QStringLiteral("The Class Of Machines These "
                                                          "Settings Are For"));
    // Choosing the item of the class in force opens its screen. A machine of unknown
    // orientation has no such item: the user picks one.
    for (int index = 0; index < c.cboSettings->count(); ++index) {
        const auto settingsClass =
            ClassOfSettingsItem(c.cboSettings->itemText(index).toStdString());
        if (settingsClass && settingsClass->profileName == m_profileName) {
            c.cboSettings->setCurrentIndex(index);
            break;
        }
    }
}

void frmMain::cboSettingsClicked() {
    const auto settingsClass =
        ClassOfSettingsItem(m_controls.cboSettings->currentText().toStdString());
    if (!settingsClass) {
        return;
    }
    m_profileName = settingsClass->profileName;
    switch (settingsClass->screen) {
    case SettingsScreen::Raster:
        RasterSettings();
        break;
    case SettingsScreen::Vector:
        VectorSettings();
        break;
    case SettingsScreen::LCD:
    case SettingsScreen::Other:
        LCDSettings();
        break;
    }
    m_controls.cboSettings->setFocus();
}

void frmMain::RasterSettings() {
    ShowSettingsScreen(SettingsScreen::Raster);
}

void frmMain::VectorSettings() {
    ShowSettingsScreen(SettingsScreen::Vector);
}

void frmMain::LCDSettings() {
    ShowSettingsScreen(SettingsScreen::LCD);
}

void frmMain::SettingsOther() {
    DefineCombos();
    m_profileName = "other";
    LoadcboBIOS();
    m_controls.cboSettings->hide();
    ShowSettingsScreen(SettingsScreen::Other);
}

void frmMain::ShowSettingsScreen(SettingsScreen screen) {
    const MainControls& c = m_controls;
    SettingsPage& page = *c.fraDefaults;
    m_context.flags.loadingSettings = true;
    page.ScrollToTop();
    if (!ScreenFacts().Custom()) {
        PanelTextHide();
    }
    c.lblScroll->clear();
    CoverCommands(true);
    ShowPage(&page);
    page.setTitle(ToQString(ScreenCaption(screen)));
    const auto profile = ProfilePath(m_context.data, ToLowerAscii(m_profileName));
    if (FileExists(profile)) {
        m_currentProfilePath = profile;
        LoadControls();
    } else {
        page.SetDefaults();
    }
    // The processor count is known on every system this runs on: the list stays open.
    page.ApplyScreen(screen);
    page.SetRestoreCaptions(ClassRestoreCaptions());
    page.SetUseLinks(m_context.preferences.other.useLinks);
    ShowRuleFailures(page.ControlStateAll());
}

void frmMain::CustomSettings() {
    const MainControls& c = m_controls;
    SettingsPage& page = *c.fraDefaults;
    MachineListView* list = ListOfView();
    const MachineRow* row = list->SelectedMachine();
    if (row == nullptr || list == c.lvUnavailable) {
        return;
    }
    DefineCombos();
    page.setTitle(ToQString(kCustomSettingsCaption));
    CoverCommands(true);
    m_selectedMachine = std::string(row->ShortName());
    m_displayType = m_inOtherView ? "Other" : std::string(row->Field(ColImages).substr(0, 6));
    LoadcboBIOS();
    if (!m_inOtherView) {
        ChooseProfileName();
    }
    const auto screen = ScreenOfDisplayType(m_displayType).value_or(SettingsScreen::Raster);
    const auto custom = ProfilePath(m_context.data, m_selectedMachine);
    c.cboSettings->hide();
    if (!FileExists(custom)) {
        // A new profile of a machine starts from its class profile.
        switch (screen) {
        case SettingsScreen::Other:
            SettingsOther();
            break;
        default:
            ShowSettingsScreen(screen);
            break;
        }
        page.setTitle(ToQString(kCustomSettingsCaption));
    } else {
        m_context.flags.loadingSettings = true;
        page.ScrollToTop();
        c.lblScroll->clear();
        ShowPage(&page);
        m_currentProfilePath = custom;
        LoadControls();
        page.ApplyScreen(screen);
        page.SetUseLinks(m_context.preferences.other.useLinks);
        ShowRuleFailures(page.ControlStateAll());
    }
    const auto classProfile =
        ProfilePath(m_context.data, RestoreClassProfile(m_displayType, m_profileName));
    page.SetRestoreCaptions(CustomRestoreCaptions(m_displayType, FileExists(classProfile)));
}

void frmMain::LoadControls() {
    SettingsPage& page = *m_controls.fraDefaults;
    const LoadedProfile loaded = LoadProfileValues(m_currentProfilePath, page.Choices());
    for (std::size_t row : loaded.refused) {
        ShowMessage(m_prompter, RefusalMessage(row, page.title().toStdString()));
    }
    page.SetValues(loaded.values);
}

void frmMain::ShowRuleFailures(const std::vector<UserMessage>& failures) {
    for (const UserMessage& failure : failures) {
        ShowMessage(m_prompter, failure);
    }
}

void frmMain::CoverCommands(bool settingsScreen) {
    const MainControls& c = m_controls;
    if (m_coveredCommands.empty()) {
        for (QWidget* widget :
             {static_cast<QWidget*>(c.cmdStart), static_cast<QWidget*>(c.cmdAudit),
              static_cast<QWidget*>(c.cmdInfo), static_cast<QWidget*>(c.cmdArcadeSettings),
              static_cast<QWidget*>(c.cmdOtherSettings), static_cast<QWidget*>(c.cmdFind),
              static_cast<QWidget*>(c.chkAutoSave), static_cast<QWidget*>(c.chkAutoRun),
              static_cast<QWidget*>(c.chkRecord), static_cast<QWidget*>(c.chkPlayback),
              static_cast<QWidget*>(c.picSoftware)}) {
            m_coveredCommands.push_back({widget, widget->isEnabled(), !widget->isHidden()});
        }
        for (int link :
             {LinkArcadeSettings, LinkOtherSettings, LinkFind, LinkStart, LinkAudit, LinkInfo}) {
            QWidget* widget = c.lblBLinks[static_cast<std::size_t>(link)];
            m_coveredCommands.push_back({widget, widget->isEnabled(), !widget->isHidden()});
        }
    }
    DisableFormButtons();
    // The page lies where the start commands are used: they wait as well.
    SetStartCommands(false);
    for (QWidget* widget : {static_cast<QWidget*>(c.cmdAudit), static_cast<QWidget*>(c.cmdInfo),
                            static_cast<QWidget*>(c.lblBLinks[LinkAudit]),
                            static_cast<QWidget*>(c.lblBLinks[LinkInfo])}) {
        widget->setEnabled(false);
    }
    if (settingsScreen) {
        c.cmdExit->setText(QStringLiteral("&Cancel"));
        c.cmdExit->setToolTip(QStringLiteral("Returns To The Machine List Without Saving"));
        SetLinkText(c.lblBLinks[LinkExit], QStringLiteral("Cancel"));
    }
}

void frmMain::UncoverCommands() {
    const MainControls& c = m_controls;
    for (const CoveredCommand& covered : m_coveredCommands) {
        covered.widget->setEnabled(covered.enabled);
        covered.widget->setVisible(covered.visible);
    }
    m_coveredCommands.clear();
    c.cmdExit->setText(QStringLiteral("E&xit"));
    c.cmdExit->setToolTip(QStringLiteral("Closes Coinlight"));
    SetLinkText(c.lblBLinks[LinkExit], QStringLiteral("Exit"));
}

void frmMain::OK() {
    SettingsPage& page = *m_controls.fraDefaults;
    OptionValues values = page.Values();
    m_commandString.clear();
    const SettingsOkOutcome outcome = SettingsOk(m_context.data, ScreenFacts(), values);
    page.SetValues(values); // the boxes show what the save cleaned
    m_currentProfilePath = outcome.currentProfile;
    if (outcome.panelText) {
        m_controls.lblPanel[6]->setText(ToQString(*outcome.panelText));
    }
    ShowRuleFailures(outcome.messages);
    LeaveSettings();
}

void frmMain::Cancel() {
    LeaveSettings();
}

void frmMain::LeaveSettings() {
    const MainControls& c = m_controls;
    c.fraDefaults->setTitle({});
    c.cboSettings->hide();
    ShowPage(c.fraList);
    UncoverCommands();
    MachineListView* list = ListOfView();
    list->setFocus();
    if (list->SelectedMachine() != nullptr) {
        ShowDetails(*list);
    }
}

void frmMain::Restore() {
    SettingsPage& page = *m_controls.fraDefaults;
    m_context.flags.loadingSettings = true;
    const SettingsScreenFacts facts = ScreenFacts();
    m_profileName = ClassProfileName(facts);
    m_currentProfilePath = ProfilePath(m_context.data, ToLowerAscii(m_profileName));
    if (const auto source = RestoreSource(m_context.data, facts)) {
        m_currentProfilePath = *source;
        LoadControls();
    } else {
        page.SetDefaults();
    }
    ShowRuleFailures(page.ControlStateAll());
    page.cmdOK->setFocus();
}

void frmMain::SetDefaultsOf(DefaultsGroup group) {
    m_controls.fraDefaults->SetDefaults(group);
}

void frmMain::ShaderFolder(const char* what, const char* control) {
    SettingsPage& page = *m_controls.fraDefaults;
    const auto chosen =
        m_prompter.Folder(QStringLiteral("Select your %1 folder...").arg(QLatin1String(what)));
    if (!chosen) {
        return;
    }
    const std::size_t row = RowOfControl(control);
    auto* box = static_cast<QLineEdit*>(page.Control(row));
    const ShaderFolderChoice choice = CheckShaderFolder(what, chosen->toStdString());
    if (choice.refusal) {
        ShowMessage(m_prompter, *choice.refusal);
        box->setText(ToQString(OptionCatalogue()[row].defaultValue));
        return;
    }
    box->setText(ToQString(*choice.value));
}

void frmMain::BGFXPath() {
    ShaderFolder("BGFX", "txtBGFX(0)");
}

void frmMain::HLSLPath() {
    ShaderFolder("HLSL", "txtHLSL(0)");
}

void frmMain::GLSLShader(int index) {
    const QString title = index < 4
                              ? QStringLiteral("Select GLSL Shader MAME %1.").arg(index)
                              : QStringLiteral("Select GLSL Shader Screen %1.").arg(index - 4);
    const QString filter = index < 4 ? QStringLiteral("Shader Files (*.vsh);;All Files (*)")
                                     : QStringLiteral("All Files (*)");
    const auto chosen = m_prompter.OpenFile(
        title, QString::fromStdString(m_context.preferences.searchPaths.mame), filter);
    if (!chosen) {
        return;
    }
    const std::string control = "txtGLSL(" + std::to_string(index) + ")";
    static_cast<QLineEdit*>(m_controls.fraDefaults->Control(RowOfControl(control)))
        ->setText(ToQString(GLSLShaderValue(chosen->toStdString())));
}

void frmMain::SelectControllerMap() {
    const auto chosen =
        m_prompter.OpenFile(QStringLiteral("Select Controller Map."),
                            QString::fromStdString(m_context.preferences.searchPaths.mame),
                            QStringLiteral("All Files (*)"));
    if (chosen) {
        static_cast<QLineEdit*>(m_controls.fraDefaults->Control(RowOfControl("txtControllerMap")))
            ->setText(*chosen);
    }
}

void frmMain::RebuildSettings() {
    const MainControls& c = m_controls;
    const auto files = SettingsFiles(m_context.data);
    if (files.empty()) {
        m_prompter.Message(QStringLiteral("Rebuild Settings"),
                           QStringLiteral("There are no setting files."));
        return;
    }
    const QString question = QStringLiteral(
        "This will check the values in all your setting files to see if they are compatible "
        "with this version of Coinlight.  If any incompatible values are found, they will be "
        "set to MAME defaults.  This will not check the value names so you will have to open "
        "each one of the settings in Coinlight and re-save them to correct the name changes.  "
        "Do you want to continue?");
    if (m_prompter.Message(QStringLiteral("Confirm Rebuild"), question, PromptIcon::Question,
                           PromptButtons::YesNo) != PromptAnswer::Yes) {
        return;
    }
    DefineCombos();
    c.fraVerify->setTitle(QStringLiteral("Rebuild Settings"));
    c.rtfVerify->clear();
    ShowPage(c.fraVerify);
    CoverCommands(false);
    QApplication::setOverrideCursor(Qt::WaitCursor);
    const RebuildOutcome outcome = coinlight::RebuildSettings(
        m_context.data, c.fraDefaults->Choices(), [this](std::size_t done, std::size_t total) {
            if (done == 1 || done % 25 == 0 || done == total) {
                m_controls.lblPanel[1]->setText(
                    QStringLiteral(" Progress: %1%").arg(done * 100 / total));
                Pump();
            }
        });
    QApplication::restoreOverrideCursor();
    UncoverCommands();
    if (outcome.failure) {
        ShowMessage(m_prompter, *outcome.failure);
    }
    ShowRebuildText(QStringLiteral("Rebuild Settings"), outcome.text);
}

void frmMain::RebuildReport() {
    const auto text = RebuildReportText(m_context.data);
    if (!text) {
        m_prompter.Message(
            QStringLiteral("Rebuild Settings Report"),
            QStringLiteral("Cannot find Rebuild Settings report.  You can run Rebuild Settings "
                           "from the Tools pull-down menu above and if errors are found it will "
                           "create one for you."));
        return;
    }
    ShowRebuildText(QStringLiteral("Rebuilt Settings Report"), *text);
}

void frmMain::ShowRebuildText(const QString& caption, const std::string& text) {
    const MainControls& c = m_controls;
    c.fraVerify->setTitle(caption);
    c.rtfVerify->setPlainText(QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size())));
    if (text.starts_with(kRebuildHeader)) {
        QTextCharFormat bold;
        bold.setFontWeight(QFont::Bold);
        for (const QString& word : {QStringLiteral("Filename"), QStringLiteral("Setting")}) {
            QTextCursor cursor = c.rtfVerify->document()->find(word);
            cursor.mergeCharFormat(bold);
        }
    }
    ShowPage(c.fraVerify);
    c.cmdGameList->setFocus();
}

} // namespace coinlight
