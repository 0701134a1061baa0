#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <set>
#include <vector>

#include <QMainWindow>
#include <QPointer>

#include "MainControls.h"
#include "catalogue/CatalogueOutcome.h"
#include "core/AppContext.h"
#include "info/DocumentViewers.h"
#include "info/InfoSelection.h"
#include "lists/ListLoader.h"
#include "lists/MachineRows.h"
#include "lists/SelectionDetails.h"
#include "online/HttpTransport.h"
#include "online/SiteAddresses.h"
#include "options/CategoryRowsCache.h"
#include "options/MameLocations.h"
#include "reports/MaintenancePlan.h"
#include "reports/ReportHeading.h"
#include "reports/VerifyReports.h"
#include "settings/MameIniBase.h"
#include "settings/ProfileSave.h"
#include "settings/SettingsOk.h"
#include "settings/SettingsScreens.h"
#include "settings/StartBoxes.h"
#include "ui/online/ShiftKeyWatch.h"
#include "ui/online/WindowCloseWatch.h"

namespace coinlight {

class MachineListView;
class MameOptionsCapture;
class Prompter;
class frmCover;
class frmSplash;

/// The main window. Its load is the program's real start: folders, preferences, catalogue,
/// lists and look, in a fixed order, before the window is shown. Its public methods are the
/// user's commands; each reads as the routine's steps, the work itself lies in the logic
/// libraries.
class frmMain final : public QMainWindow {
    Q_OBJECT
public:
    frmMain(AppContext& context, Prompter& prompter, QWidget* parent = nullptr);
    ~frmMain() override;

    /// Runs the start sequence. False when the program must end; the user has been told why.
    bool FormLoad();

    void ShowCover();
    void UnloadCover();
    void RaiseFromAnotherStart();

    /// The steps that follow the load in the entry point.
    void AutoRunAtStart();
    void NewsAtStart();
    void StartScrolling();

    // Views
    void ViewAllArcade();
    void ViewAvailableArcade();
    void ViewUnavailableArcade();
    void ViewOther();
    void ViewFavoritesArcade();
    void ViewFavoritesOther();
    void ReturnList1();
    void ReturnList2();

    // Lists
    void RefreshListsArcade();
    void RefreshListsOther();
    void SortColumn(MachineListView& list, int column);

    // Search
    /// Puts the cursor in the search field (Ctrl+F, or "/" in a list).
    void FocusSearch();

    // The options of the MAME in use
    /// Asks MAME which options it takes and shows those Coinlight writes that it lacks.
    void CheckMameOptions();
    /// The settings controls whose options the MAME in use does not take, from what it
    /// said last; none when it has not been asked. For the settings page, which shows them
    /// disabled (MarkUnsupportedControls).
    std::vector<std::string> UnsupportedSettingsControls() const;

    // Commands
    void Options();
    void PlayArcade();
    void PlayOther();
    /// The slot listing of the selected other machine, asked of MAME once per run.
    void ListSlots();

    // Favourites
    void AddFavorite();
    void RemoveFavorite();
    /// `fileName`: "arcadefavschanges.txt" or "otherfavschanges.txt".
    void FavoriteChanges(const std::string& fileName);

    // Software of other machines
    /// Throws the software file of `machine` away and loads the panel anew; with an empty
    /// name throws every machine's file away and does nothing else.
    void KillSoftsOther(const std::string& machine);
    /// By its caption: shows the mame.ini the selected machine would get, lists the bad sets
    /// of a report, or prints the report page.
    void Find();

    // Online
    void News();
    void Update();
    /// The Download button of fraDownload: artwork or samples for every machine.
    void ArtSamDownload();
    /// A double click in lvAvailable: with Shift held, a machine without artwork gets its
    /// artwork downloaded; any other double click starts the machine.
    void AvailableDoubleClick();
    void UnavailableDoubleClick();
    // Audit and reports
    void Audit();
    void VerifyROMs();
    void VerifySamples();
    /// An empty `lists` means all software; any other value the machine whose software the
    /// panel loaded last (SetSoftwareMachine).
    void VerifySoftware(const std::string& lists);
    void LastROM();
    void LastSample();
    void LastSoftware(const std::string& lists);
    /// Ends a running verification; the page then says it was cancelled.
    void CancelVerify();
    void CompareCRCInfos();
    void WhatROMsChangedReport();
    void Export();
    /// The machine whose software was loaded last (SoftwareMachine); the software panel
    /// keeps it up to date, the software reports read it.
    void SetSoftwareMachine(std::string machine) { m_softwareMachine = std::move(machine); }
    const std::string& SoftwareMachine() const { return m_softwareMachine; }

    // Maintenance
    void Maintenance();
    void UnneededFileSearch();
    void UnneededFileRemove();
    void CleanReports();
    void CleanOutputDirectories();
    void DeleteROM();
    void DeleteSamples();

    // Information, pictures and documents
    void Info();
    void ViewShots();
    void LoadSnapshot();
    void LoadCabinetIcon();
    void MAMECommandLines();
    void MAMEDefaultKeys();
    void MAMEBGFX();
    void MAMEGLSL();
    void MAMEHLSL();
    void Heritage();
    void Unlisted();

    /// Where MAME's installed manual is looked for, and how an address is opened in the
    /// desktop's browser (tests point both elsewhere).
    void SetMameManual(std::filesystem::path manual) { m_mameManual = std::move(manual); }
    void SetAddressOpener(std::function<bool(const QString&)> open) {
        m_openAddress = std::move(open);
    }
    // Settings screens
    void SettingsArcade();
    void SettingsOther();
    void CustomSettings();
    void OK();
    void Cancel();
    void Restore();
    void RebuildSettings();
    void RebuildReport();

    // Look and window: the theme, fonts and title gradient; the window's own buttons; the
    // layout of every page; the menu's own commands and the maker's tools
    void ApplyTheme();
    void ApplyFonts();
    void SetGradient();
    void SetIconOther();
    void FormResize();
    void WindowButtonClicked(int index);
    void MenuLinkClicked(int index);
    void About();
    void OpenAppFolder();
    void OpenDataFolder();
    void CreateCatver();
    void CreateClrMAMEFiles();

    /// Where the Options dialog looks for a packaged MAME (tests point it elsewhere).
    void SetMameLocations(MameLocations locations) { m_mameLocations = std::move(locations); }

    const MainControls& Controls() const { return m_controls; }
    bool InOtherView() const { return m_inOtherView; }

protected:
    void closeEvent(QCloseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void changeEvent(QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    // The load, step by step
    void CentreOnScreen();
    /// Brings a window that does not fit (a changed scale or screen) back onto the screen.
    void KeepOnScreen();
    bool PrepareFolders();
    void InstallMissingSupportFiles();
    bool LoadOptions();
    bool ReadBranch(bool& startOver);
    bool FirstRunBranch();
    void RecoverFromBadOptions();
    bool ShowOptionsAtFirstRun();
    bool EnsureMameExecutable();
    bool CheckSupportChanges();
    bool RebuildCatalogue(bool newMame);
    bool RebuildFromLists();
    bool CreateCatalogueFiles();
    bool ShowCatalogueOutcome(const CatalogueOutcome& outcome);
    bool MergeCategories();
    bool PurgeAllFavorites();
    void PurgeFavoritesOf(const std::string& word);
    bool RegenerateIfMissing();
    void WriteSupportSizes();
    void BuildListColumns();
    void ResetHiddenSortKeys();
    bool LoadAllLists();
    bool LoadBiosTables();
    void ApplyListsAppearance();
    void RestoreSelections();
    void ShowSavedView();
    void FixAllHidden();
    void FatalLoadError(const QString& description, int statement);

    // Look, chrome and menu steps
    bool ApplyLookAtLoad();
    void ApplyLookAfterOptions();
    void SetUpChrome();
    void ShowGradientChooser();
    void ShowMenuStyle();
    void WireMenu();
    std::function<void()> MenuCommand(std::string_view entry);
    /// The entries whose command takes the selected row or a fixed argument.
    std::function<void()> ListCommand(std::string_view entry);
    void SetMenuState(int linkIndex);
    void HighlightMenuLink(int index, bool on);

    // Lists
    bool LoadListsArcade();
    bool LoadListsOther();
    void ShowLoadingStatus(const QString& family);
    ListLoadJob ListJob(bool arcade, std::filesystem::path file) const;
    ListLoadJob ArcadeListJob();
    ListLoadJob OtherListJob();
    ListLoadProgress LoadProgress(bool arcade);
    bool ShowLoaded(LoadedList& loaded);
    bool ApplyArcadeList(LoadedList loaded);
    bool ApplyOtherList(LoadedList loaded);
    void ReportLoadCount(bool arcade, int rows);
    void ShowListInView(MachineListView& list, const ListState& saved);
    /// Selects the machine of the list's saved key, or the first row.
    void SelectSavedMachine(MachineListView& list);
    MachineListView* ListOfView();
    ListState& SavedStateOf(const MachineListView& list);
    void ShowDetails(MachineListView& list);
    void ApplyDetails(const SelectionDetails& details);
    DetailsSource DetailsSourceOf(const MachineListView& list, const MachineRow& row) const;

    // Search
    void ConnectSearch();
    /// Narrows `list` to what the search field holds; false when it already showed that.
    bool ApplySearch(MachineListView& list);
    void NarrowListOfView();
    /// "Machines: N", or "Machines: N of M" while a search narrows the list.
    QString MachineCountText(const MachineListView& list) const;

    // Commands' steps
    bool OpenOptions(bool firstRun);
    void CreateMAMEIni();
    StartBoxes CurrentStartBoxes() const;
    void SetStartBoxes(const StartBoxes& boxes);
    void StartBoxClicked(StartBox box, bool ticked);
    void RebuildPathArrays();
    /// Hides the window, runs MAME and waits; false when the failure ends the program.
    bool RunEmulator(const std::string& commandLine);
    void ShowStandardOutput(const std::string& text);
    void ShowErrorOutput(const std::string& text);
    /// Starts MAME's -showconfig; the capture keeps the answer when finished.
    std::unique_ptr<MameOptionsCapture> AskMameForOptions() const;

    // Online steps
    std::string FetchNews();
    void ShowNewsPage(const std::string& text, bool greet);
    bool StoreNewsDate(Day date, std::string* error);
    void FocusAfterNews();
    bool DownloadCancelled() const;
    DownloadOutcome DownloadArtworkFor(const std::string& name);
    // Reports' steps
    void ConnectReportControls();
    MachineListView* AuditList();
    void RunVerify(VerifyKind kind);
    void ShowLastReport(VerifyKind kind);
    void EnterReportPage(const QString& caption);
    void ShowReportFile(const std::filesystem::path& file);
    void OfferBadSets();
    void LeaveReportPage();
    void ListBadSets();
    void PrintReportPage();
    bool RunMame(const std::string& commandLine, const std::function<bool()>& whileRunning);
    void ShowHeadings(const ReportHeadings& headings);
    void ShowLink(int index, bool shown);
    void PrepareMaintenanceEntries(const MachineListView& list);
    bool CarryOutDeletions(const DeletionPlan& plan, const char* routine, const char* title);
    std::string MaintenanceMachine();

    // The software panel's steps
    void ConnectSoftwareControls();
    void OtherItemClick();
    void SoftwareTimerTick();
    void ClearSoftwareStuff();
    void LoadSoftwareLists();
    void FinishSoftwareLoad();
    void LoadListsSoftware(const std::string& machine);
    void SoftwareOptionClicked();
    void SoftwareColumnClicked(int column);
    void SoftwareItemClick();
    /// The one place a double click or Enter in lvSoftware goes: a rule that must act
    /// before the start belongs at its top.
    void SoftwareDoubleClick();
    void UpdateSoftwareControls();
    void UpdateStartControls();
    void FillSoftwareState(MameIniBase& base) const;

    // Favourites' steps
    void ConnectFavoritesControls();
    void PrepareListMenu(MachineListView& list);
    void PurgeBeforeViewing(const std::string& word);

    // Information's steps
    void ConnectInformation();
    void InfoSourceClicked(const QString& source);
    InfoSelection CurrentInfoSelection() const;
    void SetReturnCommands(bool enabled);
    void ShowShotsPane(bool open);
    void LayOutShots();
    void ShowDocument(DocumentViewer viewer);
    /// The one document viewer. `afterStart`: the output of a start, whose details strip and
    /// scrolling line keep what the start left there.
    void ShowTextPage(const QString& caption, const std::string& text, bool afterStart = false);
    // Settings screens' steps
    void ConnectSettingsControls();
    void DefineCombos();
    void LoadcboBIOS();
    void ChooseProfileName();
    void cboSettingsClicked();
    void RasterSettings();
    void VectorSettings();
    void LCDSettings();
    void ShowSettingsScreen(SettingsScreen screen);
    void LoadControls();
    void ShowRuleFailures(const std::vector<UserMessage>& failures);
    /// Disables what a page over the lists must not be used with; a settings screen also
    /// turns Exit into Cancel.
    void CoverCommands(bool settingsScreen);
    void UncoverCommands();
    void LeaveSettings();
    bool SettingsScreenOpen() const;
    void SetDefaultsOf(DefaultsGroup group);
    void BGFXPath();
    void HLSLPath();
    void ShaderFolder(const char* what, const char* control);
    void GLSLShader(int index);
    void SelectControllerMap();
    void ShowRebuildText(const QString& caption, const std::string& text);
    SettingsScreenFacts ScreenFacts() const;

    // Form state
    void ShowArcadeView(MachineListView& list, const char* viewText, QAction* menuEntry);
    void SetFrameCaption(const QString& view);
    void TickView(QAction* entry);
    void UpdateCommandSet();
    void SetStartCommands(bool enabled);
    void SetFamilyCheckBoxes(bool visible);
    void DisableFormButtons();
    void ShowPleaseWait(const QString& line1, const QString& line2);
    void PanelTextHide();
    void PanelTooltips();
    void PanelClearSoftware();
    void ShowPage(QWidget* page);
    void SetLinksOrButtons();
    void LinkClicked(int index);
    void ConnectControls();
    void EmptyTempFolder();
    void UnloadAllForms();
    frmSplash& Splash();
    frmSplash* SplashIfUp() const;
    void Pump();

    AppContext& m_context;
    Prompter& m_prompter;
    MainControls m_controls;
    QPointer<frmSplash> m_splash;
    QPointer<frmCover> m_cover;
    QRect m_normalGeometry;

    std::shared_ptr<const MachineRows> m_arcadeRows;
    std::shared_ptr<const MachineRows> m_otherRows;
    std::vector<std::string> m_arcadeRomFolders;
    std::vector<std::string> m_otherRomFolders;
    std::set<int> m_hiddenColumns;
    std::vector<std::string> m_artworkFolders;
    std::string m_cabinetPath; // where the cabinet pictures lie
    std::vector<std::string> m_softwareFolders;
    std::string m_profileName;                  // the class profile in force (ProfileName)
    std::string m_commandString;                // "Other Commands", then the last command line
    std::string m_displayType;                  // of the machine a settings screen opened for
    std::string m_selectedMachine;              // likewise
    std::filesystem::path m_currentProfilePath; // the profile the last load or save used
    struct CoveredCommand {
        QWidget* widget;
        bool enabled;
        bool visible;
    };
    std::vector<CoveredCommand> m_coveredCommands; // as they were before a settings screen
    std::string m_softwareMachine;                 // whose software the panel shows
    int m_softwareAvailable = 0;                   // iSoftwareA
    int m_softwareUnavailable = 0;                 // iSoftwareU
    bool m_skipOtherItemClick = false;             // an option click reloads by itself
    CategoryRowsCache m_categoryCache;
    MameLocations m_mameLocations = SystemMameLocations();
    long long m_currentMameSize = 0;
    bool m_inOtherView = false;
    bool m_openOptionsOnActivate = false;
    bool m_refreshBothFamilies = false;
    bool m_activatedOnce = false;

    HttpTransport m_internet;
    SiteAddresses m_sites = ReadSiteAddresses(ProcessEnvironment());
    ShiftKeyWatch m_shiftDown; // ShiftDown
    WindowCloseWatch m_closeWatch;
    bool m_onlineBusy = false;       // a transfer runs: another online command waits its turn
    bool m_shotsOn = false;          // ShotsOn: the snapshot pane is open
    bool m_verifyRunning = false;    // MAME verifies; the window waits for it
    bool m_cancelVerify = false;     // the user asked to stop it
    bool m_closeAfterVerify = false; // the window was closed meanwhile
    std::filesystem::path m_mameManual = DebianManual();
    std::function<bool(const QString&)> m_openAddress;
    bool m_layoutsRested = false; // while minimized nothing is laid out
};

} // namespace coinlight
