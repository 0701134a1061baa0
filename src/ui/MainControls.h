#pragma once

#include <array>

#include <QAction>
#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QMenu>
#include <QPushButton>
#include <QStackedWidget>
#include <QTextBrowser>

#include "LinkLabel.h"
#include "software/SoftwarePanel.h"

class QMainWindow;
class QMenuBar;

namespace coinlight {

class DownloadPage;
class InfoSourceList;
class MachineListView;
class MachineSearchField;
class MaintenancePage;
class MenuTree;
class SettingsPage;
class SnapshotPane;
class TitleStrip;
class VerifyPage;
class WindowButton;

/// The link-style twins of the command buttons, by their index.
enum LinkIndex : int {
    LinkArcadeSettings = 0,
    LinkOtherSettings = 1,
    LinkFind = 2,
    LinkExit = 3,
    LinkStart = 4,
    LinkAudit = 5,
    LinkInfo = 6,
    LinkOK = 7,
    LinkRestore = 8,
    LinkCancel = 9,
    LinkReturnList1 = 11,
    LinkHLSLPath = 19,
    LinkHLSLDefaults = 20,
    LinkYIQDefaults = 21,
    LinkVectorPostDefaults = 22,
    LinkBloomPostDefaults = 23,
    LinkBGFXPath = 24,
    LinkListSlots = 25,
    kLinkCount = 26,
};

/// Every control of the main window, made once by BuildMainControls. Each carries its
/// control name as objectName (`lblPanel(2)` is `lblPanel_2`), which is how tests and the
/// theme code find them.
struct MainControls {
    // The title strip with the menus' link heads and the window buttons, and the menu bar
    // under it: the two show one menu tree, by the preference Use Links
    TitleStrip* picTitle = nullptr;
    std::array<WindowButton*, 3> imgWindowState{};
    std::array<LinkLabel*, 5> lblMLinks{};
    QMenuBar* menuBar = nullptr;
    MenuTree* menus = nullptr; // every menu and entry, by name

    // View menu
    QMenu* mnuView = nullptr;
    QAction* mnuViewAll = nullptr;
    QAction* mnuViewAvailable = nullptr;
    QAction* mnuViewUnavailable = nullptr;
    QAction* mnuViewOtherMachines = nullptr;
    QAction* mnuViewArcadeFavorites = nullptr;
    QAction* mnuViewOtherFavorites = nullptr;
    QAction* mnuViewShots = nullptr;
    QAction* mnuMainOptions = nullptr;
    QAction* mnuMainInfo = nullptr;
    QMenu* mnuTools = nullptr;
    QAction* mnuToolsArcade = nullptr;
    QAction* mnuToolsOther = nullptr;
    QAction* mnuToolsCustom = nullptr;
    QAction* mnuToolsRebuild = nullptr;
    QAction* mnuReportsRebuild = nullptr;
    QAction* mnuToolsCheckOptions = nullptr;
    QAction* mnuMainExit = nullptr;

    // Reports: the Main menu's audit and export, Maintenance in Tools, the Reports menu and
    // the right-click menu of the lists
    QMenu* mnuMain = nullptr;
    QAction* mnuMainAudit = nullptr;
    QAction* mnuMainExport = nullptr;
    QAction* mnuToolsMaintenance = nullptr;
    QMenu* mnuReports = nullptr;
    QMenu* mnuReportsROMs = nullptr;
    QAction* mnuReportsVerifyROMs = nullptr;
    QAction* mnuReportsLastROM = nullptr;
    QMenu* mnuReportsSoftware = nullptr;
    QAction* mnuReportsVerifyAllSoftware = nullptr;
    QAction* mnuReportsLastAllSoftware = nullptr;
    QAction* mnuReportsVerifyMachinesSoftware = nullptr;
    QAction* mnuReportsLastMachinesSoftware = nullptr;
    QMenu* mnuReportsSamples = nullptr;
    QAction* mnuReportsVerifySamples = nullptr;
    QAction* mnuReportsLastSample = nullptr;
    QMenu* mnuReportsWhatsChanged = nullptr;
    QAction* mnuReportsWhatROMsChanged = nullptr;
    QAction* mnuReportsWhatROMsChangedReport = nullptr;
    QAction* mnuReportsFind = nullptr;
    QMenu* mnuRClick = nullptr;
    QAction* mnuDeleteROM = nullptr;
    QAction* mnuDeleteSamples = nullptr;

    // Reports menu: the favourites entries
    QAction* mnuReportsFavoriteArcadeChanges = nullptr;
    QAction* mnuReportsFavoriteOtherChanges = nullptr;

    // The lists' right-click menu
    QAction* mnuAddFavorite = nullptr;
    QAction* mnuRemoveFavorite = nullptr;
    QAction* mnuRefreshSoftware = nullptr;

    // Reports and Help menus: the documents
    QAction* mnuReportsUnlistedMachines = nullptr;
    QAction* mnuHelpHeritage = nullptr;
    QAction* mnuHelpCommandLines = nullptr;
    QAction* mnuHelpDefaultKeys = nullptr;
    QAction* mnuHelpBGFX = nullptr;
    QAction* mnuHelpHLSL = nullptr;
    QAction* mnuHelpGLSL = nullptr;
    QMenu* mnuHelp = nullptr;
    QAction* mnuHelpNews = nullptr;
    QAction* mnuHelpUpdate = nullptr;

    // Pages: one of them is on show at a time
    QStackedWidget* pages = nullptr;
    QGroupBox* fraList = nullptr;
    QGroupBox* fraVerify = nullptr;
    VerifyPage* verifyPage = nullptr; // fraVerify as the page it is
    SettingsPage* fraDefaults = nullptr;
    QGroupBox* fraMaintenance = nullptr;
    MaintenancePage* maintenancePage = nullptr; // fraMaintenance as the page it is
    QGroupBox* fraPleaseWait = nullptr;
    std::array<QLabel*, 5> lblRefresh{};

    // The lists
    MachineSearchField* txtSearch = nullptr; // narrows the list on show as the user types
    QStackedWidget* lists = nullptr;
    MachineListView* lvAll = nullptr;
    MachineListView* lvAvailable = nullptr;
    MachineListView* lvUnavailable = nullptr;
    QWidget* otherPage = nullptr;
    MachineListView* lvOther = nullptr;
    SoftwarePanel* picSoftware = nullptr; // beside lvOther
    SoftwareListView* lvSoftware = nullptr;
    LinkLabel* lblToggle = nullptr;

    QTextBrowser* rtfVerify = nullptr;
    InfoSourceList* lstInfo = nullptr;

    // The snapshot under the lists, the cabinet icon and the artwork sign beside them
    SnapshotPane* picShots = nullptr;
    QLabel* picIcon = nullptr;
    QLabel* lblArtwork = nullptr;

    // Details strip and commands
    std::array<QLabel*, 7> lblPanel{};
    QPushButton* cmdStart = nullptr;
    QPushButton* cmdAudit = nullptr;
    QPushButton* cmdInfo = nullptr;
    QPushButton* cmdArcadeSettings = nullptr;
    QPushButton* cmdOtherSettings = nullptr;
    QComboBox* cboSettings = nullptr; // the class profile of an arcade settings screen
    QPushButton* cmdFind = nullptr;
    QPushButton* cmdExit = nullptr;
    QPushButton* cmdGameList = nullptr;
    std::array<LinkLabel*, kLinkCount> lblBLinks{};
    QCheckBox* chkAutoSave = nullptr;
    QCheckBox* chkAutoRun = nullptr;
    QCheckBox* chkRecord = nullptr;
    QCheckBox* chkPlayback = nullptr;
    DownloadPage* fraDownload = nullptr; // shown in a development run only
    QLabel* lblVersion = nullptr;
    QLabel* lblScroll = nullptr;
    QLabel* lblStartTime = nullptr;  // an unmarked corner that tells how long the start took
    QLabel* lblClrMAME = nullptr;    // a developer's label, shown on the maker's machine only
    QLabel* lblShots = nullptr;      // in picShots
    QLabel* lblGradient = nullptr;   // opens the gradient chooser of the heritage themes
    QPushButton* cmdDebug = nullptr; // the maker's catver.ini tool, shown on his machine only
};

/// Makes the controls, lays them out in `window` and returns them.
MainControls BuildMainControls(QMainWindow& window);

/// Changes what a link says.
void SetLinkText(LinkLabel* link, const QString& text);

} // namespace coinlight
