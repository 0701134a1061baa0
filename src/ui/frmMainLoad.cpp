// The main window's load: the program's start, step by step.
#include <QApplication>
#include <QGuiApplication>
#include <QScreen>

#include "ListAppearance.h"
#include "MachineListView.h"
#include "Prompter.h"
#include "core/AppFolders.h"
#include "core/FileTests.h"
#include "core/LineReader.h"
#include "core/MarkerFlags.h"
#include "core/OptionsIni.h"
#include "core/PreferenceKeys.h"
#include "core/ProfileFile.h"
#include "core/Version.h"
#include "frmMain.h"
#include "frmSplash.h"
#include "lists/ListColumns.h"
#include "options/PathRules.h"
#include "settings/MameIniBase.h"
#include "ui/online/DownloadPage.h"

namespace coinlight {

namespace {

QString ToQString(const std::filesystem::path& path) {
    return QString::fromStdString(path.string());
}

/// What the window manager's frame may add around the window.
constexpr QSize kFrameAllowance(16, 48);

/// The catalogue files that must all be there before a list can load.
constexpr const char* kCatalogueFiles[] = {
    "machine.xml",    "software.xml",   "arcadeinfo.txt", "otherinfo.txt", "crcinfo.txt",
    "biosfilter.txt", "arcadebios.txt", "otherbios.txt",  "bios.ini",      "softfilter.ini"};

} // namespace

void frmMain::CentreOnScreen() {
    QSize size(1100, 720);
    const QScreen* screen = QGuiApplication::primaryScreen();
    if (screen != nullptr) {
        // At a large scale the designed size can exceed the screen: the window takes what
        // there is, leaving room for the frame the window manager adds.
        const QRect available = screen->availableGeometry();
        size = size.boundedTo(available.size() - kFrameAllowance);
        resize(size);
        move(available.center() - rect().center());
    } else {
        resize(size);
    }
    m_normalGeometry = geometry();
}

void frmMain::KeepOnScreen() {
    const QScreen* screen = this->screen();
    if (screen == nullptr || isMaximized() || isMinimized()) {
        return;
    }
    const QRect available = screen->availableGeometry();
    QRect frame = frameGeometry();
    if (available.contains(frame)) {
        return;
    }
    const QSize frameExtra = frame.size() - size();
    resize(size().boundedTo(available.size() - frameExtra));
    frame = frameGeometry();
    frame.moveLeft(std::clamp(frame.left(), available.left(),
                              std::max(available.left(), available.right() - frame.width() + 1)));
    frame.moveTop(std::clamp(frame.top(), available.top(),
                             std::max(available.top(), available.bottom() - frame.height() + 1)));
    move(frame.topLeft());
    m_normalGeometry = geometry();
}

bool frmMain::FormLoad() {
    ControlFlags& flags = m_context.flags;
    flags.formLoading = true;
    CentreOnScreen();
    m_controls.lblShots->setText(
        QStringLiteral("Oops... image not found.  You can download snapshots online or press F12 "
                       "while a machine is running to create one."));
    const EnvironmentLookup environment = ProcessEnvironment();
    m_context.os = environment("OS").value_or("");
    m_context.facts.ideMode = IsIdeMode(environment);
    m_controls.fraDownload->setVisible(m_context.facts.ideMode);
    m_controls.rtfVerify->clear();
    m_context.facts.hasCatver = FileExists(m_context.data.Support() / "catver.ini");
    BuildListColumns();

    const bool loaded = PrepareFolders() && LoadOptions() && !flags.fatalErrorFlag &&
                        !flags.closeRequested && LoadAllLists();
    if (!loaded || flags.fatalErrorFlag || flags.closeRequested) {
        flags.formLoading = false;
        UnloadAllForms();
        return false;
    }
    ShowPage(m_controls.fraList);
    ApplyListsAppearance();
    RestoreSelections();
    ShowSavedView();
    m_controls.lblVersion->setText(QStringLiteral("Version: ") +
                                   QString::fromLatin1(kCoinlightVersion));
    if (!m_splash.isNull()) {
        m_splash->close();
    }
    SetLinksOrButtons();
    FixAllHidden();
    if (!ApplyLookAtLoad()) {
        flags.formLoading = false;
        UnloadAllForms();
        return false;
    }
    ShowCover();
    flags.formLoading = false;
    return true;
}

bool frmMain::PrepareFolders() {
    if (const auto problem = MakeFolderTree(m_context.data)) {
        FatalLoadError(QString::fromStdString(*problem), 9);
        return false;
    }
    if (const auto problem = MigrateOldNames(m_context.data)) {
        FatalLoadError(QString::fromStdString(*problem), 9);
        return false;
    }
    m_context.markers = ReadMarkerFlags(m_context.data);
    return true;
}

void frmMain::InstallMissingSupportFiles() {
    // Not before the user has said where MAME is: a cancelled first start leaves only folders.
    InstallSupportFiles(FindDistributionSupport(m_context.appFolder), m_context.data);
    m_context.facts.hasCatver = FileExists(m_context.data.Support() / "catver.ini");
}

void frmMain::BuildListColumns() {
    m_context.facts.hasNPlayers = FileExists(m_context.data.Support() / "nplayers.ini");
    const auto arcade = ArcadeListColumns(m_context.facts.hasNPlayers);
    m_hiddenColumns = HiddenColumns(m_context.data, static_cast<int>(arcade.size()));
    for (MachineListView* list :
         {m_controls.lvAll, m_controls.lvAvailable, m_controls.lvUnavailable}) {
        list->SetColumns(arcade, m_hiddenColumns);
    }
    m_controls.lvOther->SetColumns(OtherListColumns(), m_hiddenColumns);
}

bool frmMain::LoadOptions() {
    for (;;) {
        const bool hasOptions = FileExists(m_context.data.OptionsIni());
        const bool hasCatalogue = FileExists(m_context.data.Output() / "machine.xml");
        if (!hasOptions || !hasCatalogue) {
            return FirstRunBranch();
        }
        bool startOver = false;
        if (!ReadBranch(startOver)) {
            return false;
        }
        if (!startOver) {
            return true;
        }
        // A file that would not go away would bring us back here for ever.
        if (FileExists(m_context.data.OptionsIni())) {
            FatalLoadError(
                QStringLiteral("Cannot delete ") + ToQString(m_context.data.OptionsIni()), 11);
            return false;
        }
    }
}

bool frmMain::ReadBranch(bool& startOver) {
    const auto file = m_context.data.OptionsIni();
    Preferences& preferences = m_context.preferences;
    const OptionsReadResult result = ReadOptionsIni(file, preferences);
    if (result.status == OptionsReadStatus::VersionTooOld) {
        if (!m_prompter.AskYesNo(QString::fromLatin1(kOptionsRecreateQuestion))) {
            m_context.flags.closeRequested = true;
            return false;
        }
        DiscardOptions(file, preferences);
        startOver = true;
        return true;
    }
    if (result.status == OptionsReadStatus::Problem) {
        RecoverFromBadOptions();
        startOver = true;
        return true;
    }
    ResetHiddenSortKeys();
    InstallMissingSupportFiles();
    if (preferences.view.windowState == 2) {
        setWindowState(Qt::WindowMaximized);
    }
    if (preferences.mame.mameExeSize == 0) {
        RecoverFromBadOptions();
        startOver = true;
        return true;
    }
    if (!EnsureMameExecutable() || !CheckSupportChanges()) {
        return false;
    }
    preferences.mame.mameExeSize = m_currentMameSize;
    m_controls.mnuViewShots->setChecked(preferences.view.snapshots);
    m_controls.mnuViewArcadeFavorites->setChecked(preferences.view.favoriteArcade);
    m_controls.mnuViewOtherFavorites->setChecked(preferences.view.favoriteOther);
    return true;
}

bool frmMain::EnsureMameExecutable() {
    // A MAME that has gone (uninstalled, moved, a hand-edited path) is asked for again with
    // every other choice kept: noting its size as 0 would cost the user options.ini at the
    // next start.
    for (;;) {
        const SearchPathPreferences& paths = m_context.preferences.searchPaths;
        const auto executable =
            std::filesystem::path(paths.mame) / m_context.preferences.mame.executable;
        if (IsExecutableFile(executable)) {
            return true;
        }
        m_prompter.Inform(QStringLiteral("The MAME executable ") + ToQString(executable) +
                          QStringLiteral(" cannot be found.  Coinlight will open Options so you "
                                         "can correct this."));
        if (!OpenOptions(true) || m_context.flags.fatalErrorFlag) {
            m_context.flags.closeRequested = true;
            return false;
        }
    }
}

void frmMain::ResetHiddenSortKeys() {
    // A column hidden by a marker cannot be clicked, so it cannot stay the sort column.
    for (ListState* state :
         {&m_context.preferences.view.all, &m_context.preferences.view.available,
          &m_context.preferences.view.unavailable, &m_context.preferences.view.other}) {
        if (m_hiddenColumns.count(state->sortKey) != 0) {
            state->sortKey = 0;
            state->sortOrder = 0;
        }
    }
}

void frmMain::RecoverFromBadOptions() {
    DiscardOptions(m_context.data.OptionsIni(), m_context.preferences);
    for (MachineListView* list :
         {m_controls.lvAll, m_controls.lvAvailable, m_controls.lvUnavailable, m_controls.lvOther}) {
        list->Model().Clear();
    }
    m_prompter.Inform(QString::fromLatin1(kOptionsProblemMessage));
}

bool frmMain::FirstRunBranch() {
    // The defaults the interface needs before any file exists.
    m_context.preferences = Preferences{};
    if (!ShowOptionsAtFirstRun()) {
        return false;
    }
    for (const char* name : {"machine.xml", "software.xml"}) {
        std::error_code ignored;
        std::filesystem::remove(m_context.data.Output() / name, ignored);
    }
    if (m_context.flags.closeRequested) {
        return false;
    }
    InstallMissingSupportFiles();
    const SearchPathPreferences& paths = m_context.preferences.searchPaths;
    m_currentMameSize = static_cast<long long>(
        FileSize(std::filesystem::path(paths.mame) / m_context.preferences.mame.executable)
            .value_or(0));
    m_context.preferences.mame.mameExeSize = m_currentMameSize;
    return true;
}

bool frmMain::ShowOptionsAtFirstRun() {
    ShowPleaseWait(QStringLiteral("Please wait while Coinlight loads the Options form."), {});
    OpenOptions(true);
    return !m_context.flags.fatalErrorFlag;
}

bool frmMain::CheckSupportChanges() {
    Preferences& preferences = m_context.preferences;
    const SearchPathPreferences& paths = preferences.searchPaths;
    m_currentMameSize = static_cast<long long>(
        FileSize(std::filesystem::path(paths.mame) / preferences.mame.executable).value_or(0));
    if (m_currentMameSize != preferences.mame.mameExeSize && preferences.mame.mameExeSize != 0) {
        return RebuildCatalogue(true);
    }
    const auto lists = FileSize(m_context.data.Support() / "lists.txt");
    if (lists) {
        if (static_cast<long long>(*lists) != preferences.miscellaneous.listsTxtSize ||
            preferences.miscellaneous.listsTxtSize == 0) {
            Splash().show();
            Splash().SetMessage(QStringLiteral("Different lists.txt detected!"));
            const bool rebuilt = RebuildFromLists();
            preferences.miscellaneous.listsTxtSize = static_cast<long long>(*lists);
            return rebuilt;
        }
    } else {
        preferences.miscellaneous.listsTxtSize = 0;
    }
    const auto catver = FileSize(m_context.data.Support() / "catver.ini");
    if (!catver) {
        preferences.miscellaneous.catverIniSize = 0;
        return true;
    }
    if (static_cast<long long>(*catver) != preferences.miscellaneous.catverIniSize) {
        Splash().show();
        m_openOptionsOnActivate = true;
        if (!MergeCategories()) {
            return false;
        }
        preferences.miscellaneous.catverIniSize = static_cast<long long>(*catver);
    }
    return true;
}

void frmMain::WriteSupportSizes() {
    Preferences& preferences = m_context.preferences;
    if (const auto lists = FileSize(m_context.data.Support() / "lists.txt")) {
        preferences.miscellaneous.listsTxtSize = static_cast<long long>(*lists);
    }
    if (const auto catver = FileSize(m_context.data.Support() / "catver.ini")) {
        preferences.miscellaneous.catverIniSize = static_cast<long long>(*catver);
    }
    preferences.miscellaneous.coinlightVersion = kCoinlightVersion;
    ProfileEditor editor(m_context.data.OptionsIni());
    editor.Set(kSectionMame, kKeyMameExeSize, std::to_string(preferences.mame.mameExeSize));
    editor.Set(kSectionMiscellaneous, kKeyListsTxtSize,
               std::to_string(preferences.miscellaneous.listsTxtSize));
    editor.Set(kSectionMiscellaneous, kKeyCatverIniSize,
               std::to_string(preferences.miscellaneous.catverIniSize));
    editor.Set(kSectionMiscellaneous, kKeyCoinlightVersion, kCoinlightVersion);
    editor.Set(kSectionMiscellaneous, kKeyAutoRun, BoolText(preferences.miscellaneous.autoRun));
    std::string error;
    if (!editor.Commit(true, &error)) {
        m_prompter.Inform(QString::fromStdString(error), PromptIcon::Warning);
    }
}

bool frmMain::LoadAllLists() {
    const Preferences& preferences = m_context.preferences;
    RebuildPathArrays();
    const bool hasOther = !preferences.searchPaths.otherRoms.empty();
    m_controls.mnuViewOtherMachines->setEnabled(hasOther);
    m_controls.cmdOtherSettings->setEnabled(hasOther);
    m_controls.lblBLinks[LinkOtherSettings]->setEnabled(hasOther);
    WriteSupportSizes();
    Splash().show();
    Splash().repaint();
    if (!RegenerateIfMissing()) {
        return false;
    }
    if (!LoadListsArcade()) {
        return false;
    }
    if (hasOther && !LoadListsOther()) {
        return false;
    }
    if (!LoadBiosTables()) {
        return false;
    }
    m_cabinetPath = m_artworkFolders.empty() ? std::string() : m_artworkFolders.front();
    for (const auto& folder : m_artworkFolders) {
        if (folder.ends_with("/cabinet")) {
            m_cabinetPath = folder; // the last such folder wins
        }
    }
    if (!FileExists(MameIniFile(preferences))) {
        CreateMAMEIni();
    }
    return !m_context.flags.fatalErrorFlag;
}

bool frmMain::LoadBiosTables() {
    // Nothing reads these tables: what counts is that both files are there and readable,
    // so they are read through without being kept (they hold some 34,000 lines).
    for (const char* file : {"arcadebios.txt", "otherbios.txt"}) {
        LineReader reader(m_context.data.Output() / file);
        std::string_view line;
        while (reader.Next(line)) {
        }
        if (!reader.IsOpen() || reader.Failed()) {
            FatalLoadError(
                QStringLiteral("Cannot read ") + ToQString(m_context.data.Output() / file), 22);
            m_context.flags.fatalErrorFlag = true;
            return false;
        }
    }
    return true;
}

bool frmMain::RegenerateIfMissing() {
    for (const char* name : kCatalogueFiles) {
        if (!FileExists(m_context.data.Output() / name)) {
            return RebuildCatalogue(false) && PurgeAllFavorites();
        }
    }
    return true;
}

void frmMain::ApplyListsAppearance() {
    const OtherPreferences& other = m_context.preferences.other;
    const bool starField = other.theme == "Heritage";
    const MainControls& c = m_controls;
    for (QTreeView* list :
         {static_cast<QTreeView*>(c.lvAll), static_cast<QTreeView*>(c.lvAvailable),
          static_cast<QTreeView*>(c.lvUnavailable), static_cast<QTreeView*>(c.lvSoftware)}) {
        ApplyListAppearance(*list, other, starField, false);
    }
    // The other list never has the picture, and keeps its own text colour: red marks data.
    ApplyListAppearance(*c.lvOther, other, false, true);
}

void frmMain::RestoreSelections() {
    for (MachineListView* list :
         {m_controls.lvAll, m_controls.lvAvailable, m_controls.lvUnavailable, m_controls.lvOther}) {
        MachineListModel& model = list->Model();
        const ListState& saved = SavedStateOf(*list);
        model.Sort(0, false); // the lists become sorted once full, as designed
        if (saved.sortKey != 0 || saved.sortOrder != 0) {
            model.Sort(saved.sortKey, saved.sortOrder == 1);
        }
        SelectSavedMachine(*list);
    }
}

void frmMain::ShowSavedView() {
    const std::string& view = m_context.preferences.view.listView;
    if (view == "Available Arcade Machines") {
        ViewAvailableArcade();
    } else if (view == "Unavailable Arcade Machines") {
        ViewUnavailableArcade();
    } else if (view == "Other Machines") {
        if (m_controls.mnuViewOtherMachines->isEnabled()) {
            ViewOther();
        } else {
            ViewAllArcade();
        }
    } else if (view.empty() || view == "All Arcade Machines") {
        ViewAllArcade();
    }
}

void frmMain::FixAllHidden() {
    if (m_controls.lvAll->Model().TotalRows() != 0) {
        return;
    }
    m_prompter.Inform(QStringLiteral("Looks like you may have the filters set to hide everything.  "
                                     "Coinlight will open Options so you can correct this."));
    m_controls.lblRefresh[2]->clear();
    m_controls.lblRefresh[4]->clear();
    if (!m_splash.isNull()) {
        m_splash->SetOtherCount({});
        m_splash->SetArcadeCount({});
    }
    Options();
}

void frmMain::FatalLoadError(const QString& description, int statement) {
    m_prompter.Message(QStringLiteral("Coinlight"),
                       QStringLiteral("Error In Form_Load: ") + description +
                           QStringLiteral("\nLine Number: ") + QString::number(statement),
                       PromptIcon::Critical);
    m_context.flags.closeRequested = true;
}

} // namespace coinlight
