// The menu tree's wiring: which command each entry calls, the link style, the entries' states,
// and the few commands that belong to the menu itself.
#include <QDesktopServices>
#include <QMenu>
#include <QMenuBar>
#include <QUrl>

#include "MachineListView.h"
#include "about/frmAbout.h"
#include "chrome/TitleStrip.h"
#include "core/AppFolders.h"
#include "core/FileTests.h"
#include "frmMain.h"
#include "menu/MenuRules.h"
#include "menu/MenuTree.h"

namespace coinlight {

namespace {

constexpr const char* kUnavailableView = "Unavailable Arcade Machines";

QString ToQString(const std::filesystem::path& path) {
    return QString::fromStdString(path.string());
}

/// The project's site, for the About box's link; none is set unless the build or the
/// environment names one.
std::string ProjectSiteAddress() {
    return ProcessEnvironment()("COINLIGHT_SITE").value_or(std::string());
}

} // namespace

std::function<void()> frmMain::MenuCommand(std::string_view entry) {
    using Command = std::function<void()>;
    // Only commands that exist: an entry without one is not shown.
    static const std::map<std::string_view, void (frmMain::*)()> kMethods = {
        {"mnuViewAll", &frmMain::ViewAllArcade},
        {"mnuViewAvailable", &frmMain::ViewAvailableArcade},
        {"mnuViewUnavailable", &frmMain::ViewUnavailableArcade},
        {"mnuViewArcadeFavorites", &frmMain::ViewFavoritesArcade},
        {"mnuViewOtherMachines", &frmMain::ViewOther},
        {"mnuViewOtherFavorites", &frmMain::ViewFavoritesOther},
        {"mnuToolsArcade", &frmMain::SettingsArcade},
        {"mnuToolsOther", &frmMain::SettingsOther},
        {"mnuToolsCustom", &frmMain::CustomSettings},
        {"mnuToolsRebuild", &frmMain::RebuildSettings},
        {"mnuToolsOpenAppFolder", &frmMain::OpenAppFolder},
        {"mnuToolsOpenDataFolder", &frmMain::OpenDataFolder},
        {"mnuReportsRebuild", &frmMain::RebuildReport},
        {"mnuReportsFind", &frmMain::Find},
        {"mnuHelpAbout", &frmMain::About},
        {"mnuMainAudit", &frmMain::Audit},
        {"mnuMainInfo", &frmMain::Info},
        {"mnuMainExport", &frmMain::Export},
        {"mnuToolsMaintenance", &frmMain::Maintenance},
        {"mnuToolsCheckOptions", &frmMain::CheckMameOptions},
        {"mnuReportsVerifyROMs", &frmMain::VerifyROMs},
        {"mnuReportsLastROM", &frmMain::LastROM},
        {"mnuReportsVerifySamples", &frmMain::VerifySamples},
        {"mnuReportsLastSample", &frmMain::LastSample},
        {"mnuReportsWhatROMsChanged", &frmMain::CompareCRCInfos},
        {"mnuReportsWhatROMsChangedReport", &frmMain::WhatROMsChangedReport},
        {"mnuReportsUnlistedMachines", &frmMain::Unlisted},
        {"mnuHelpHeritage", &frmMain::Heritage},
        {"mnuHelpCommandLines", &frmMain::MAMECommandLines},
        {"mnuHelpDefaultKeys", &frmMain::MAMEDefaultKeys},
        {"mnuHelpBGFX", &frmMain::MAMEBGFX},
        {"mnuHelpHLSL", &frmMain::MAMEHLSL},
        {"mnuHelpGLSL", &frmMain::MAMEGLSL},
        {"mnuHelpNews", &frmMain::News},
        {"mnuHelpUpdate", &frmMain::Update},
        {"mnuAddFavorite", &frmMain::AddFavorite},
        {"mnuRemoveFavorite", &frmMain::RemoveFavorite},
        {"mnuDeleteROM", &frmMain::DeleteROM},
        {"mnuDeleteSamples", &frmMain::DeleteSamples},
    };
    if (const auto found = kMethods.find(entry); found != kMethods.end()) {
        return [this, method = found->second] {
            (this->*method)();
        };
    }
    if (const Command command = ListCommand(entry)) {
        return command;
    }
    if (entry == "mnuViewShots") {
        // The entry's tick is the pane's state, set from options.ini at start as well: its
        // toggled signal opens and closes the pane.
        return [] {
        };
    }
    if (entry == "mnuMainPlay") {
        return [this] {
            LinkClicked(LinkStart);
        };
    }
    if (entry == "mnuMainExit") {
        return [this] {
            LinkClicked(LinkExit);
        };
    }
    if (entry == "mnuViewRefresh") {
        return [this] {
            m_inOtherView ? RefreshListsOther() : RefreshListsArcade();
        };
    }
    if (entry == "mnuToolsLCD") {
        return [this] {
            // The arcade settings opened on their LCD class.
            SettingsArcade();
            const int lcd = m_controls.cboSettings->findText(QStringLiteral("LCD"));
            if (lcd >= 0) {
                m_controls.cboSettings->setCurrentIndex(lcd);
            }
        };
    }
    if (entry == "mnuToolsOptions") {
        return [this] {
            Options();
            FixAllHidden();
        };
    }
    return Command();
}

std::function<void()> frmMain::ListCommand(std::string_view entry) {
    const auto selectedLists = [this] {
        const MachineRow* row = m_controls.lvOther->SelectedMachine();
        return row != nullptr ? std::string(row->Field(ColSoftwareLists)) : std::string();
    };
    if (entry == "mnuReportsVerifyAllSoftware") {
        return [this] {
            VerifySoftware({});
        };
    }
    if (entry == "mnuReportsLastAllSoftware") {
        return [this] {
            LastSoftware({});
        };
    }
    if (entry == "mnuReportsVerifyMachinesSoftware") {
        return [this, selectedLists] {
            VerifySoftware(selectedLists());
        };
    }
    if (entry == "mnuReportsLastMachinesSoftware") {
        return [this, selectedLists] {
            LastSoftware(selectedLists());
        };
    }
    if (entry == "mnuReportsFavoriteArcadeChanges") {
        return [this] {
            FavoriteChanges("arcadefavschanges.txt");
        };
    }
    if (entry == "mnuReportsFavoriteOtherChanges") {
        return [this] {
            FavoriteChanges("otherfavschanges.txt");
        };
    }
    if (entry == "mnuRefreshSoftware") {
        return [this] {
            if (const MachineRow* row = m_controls.lvOther->SelectedMachine()) {
                KillSoftsOther(std::string(row->ShortName()));
            }
        };
    }
    return {};
}

void frmMain::WireMenu() {
    MenuTree& tree = *m_controls.menus;
    tree.Bind([this](std::string_view entry) { return MenuCommand(entry); });
    connect(&tree, &MenuTree::AboutToShow, this, &frmMain::SetMenuState);
    connect(&tree, &MenuTree::EntryChosen, this, [this] {
        for (std::size_t index = 0; index < m_controls.lblMLinks.size(); ++index) {
            HighlightMenuLink(static_cast<int>(index), false);
        }
    });
}

void frmMain::ShowMenuStyle() {
    const MainControls& c = m_controls;
    const bool links = m_context.preferences.other.useLinks;
    c.menuBar->setVisible(!links);
    const auto& menus = c.menus->BarMenus();
    for (std::size_t index = 0; index < c.lblMLinks.size(); ++index) {
        c.lblMLinks[index]->setVisible(links && c.menus->HasEntries(menus[index]));
    }
}

void frmMain::HighlightMenuLink(int index, bool on) {
    if (index < 0 || index >= static_cast<int>(m_controls.lblMLinks.size())) {
        return;
    }
    LinkLabel* link = m_controls.lblMLinks[static_cast<std::size_t>(index)];
    link->setStyleSheet(on ? QStringLiteral("background: rgba(255, 255, 255, 56); "
                                            "border-radius: 3px;")
                           : QString());
}

void frmMain::MenuLinkClicked(int index) {
    const auto& menus = m_controls.menus->BarMenus();
    if (index < 0 || index >= static_cast<int>(menus.size())) {
        return;
    }
    SetMenuState(index);
    LinkLabel* link = m_controls.lblMLinks[static_cast<std::size_t>(index)];
    HighlightMenuLink(index, true);
    menus[static_cast<std::size_t>(index)]->exec(link->mapToGlobal(QPoint(0, link->height())));
    HighlightMenuLink(index, false);
}

void frmMain::SetMenuState(int linkIndex) {
    const MainControls& c = m_controls;
    const Preferences& preferences = m_context.preferences;
    MachineListView* list = ListOfView();
    MenuFacts facts;
    facts.pageOverLists = c.pages->currentWidget() != c.fraList;
    facts.inOtherView = m_inOtherView;
    facts.view = preferences.view.listView;
    facts.otherRomsEmpty = preferences.searchPaths.otherRoms.empty();
    facts.softwareRows = c.lvSoftware->model()->rowCount() != 0;
    facts.unlistedReport = FileExists(m_context.data.Output() / "unlisted.txt");
    facts.selectedUnavailable = c.lblPanel[6]->text() == QStringLiteral("Unavailable");
    facts.machineSelected = list->SelectedMachine() != nullptr;
    facts.startEnabled = c.cmdStart->isEnabled();
    facts.auditEnabled = c.cmdAudit->isEnabled() && list->Model().rowCount() != 0;
    facts.infoEnabled = c.cmdInfo->isEnabled();
    facts.listHasRows = list->Model().rowCount() != 0;
    for (const MenuEntryState& state : MenuStates(linkIndex, facts)) {
        if (QAction* action = c.menus->Action(state.name)) {
            action->setEnabled(state.enabled);
        } else if (QAction* head = c.menus->SubMenuHead(state.name)) {
            head->setEnabled(state.enabled);
        }
    }
    if (linkIndex == 1 && !facts.pageOverLists && DropsOtherFavourites(facts)) {
        c.mnuViewOtherFavorites->setChecked(false);
        m_context.preferences.view.favoriteOther = false;
    }
}

void frmMain::OpenAppFolder() {
    QDesktopServices::openUrl(QUrl::fromLocalFile(ToQString(m_context.appFolder)));
}

void frmMain::OpenDataFolder() {
    QDesktopServices::openUrl(QUrl::fromLocalFile(ToQString(m_context.data.root)));
}

void frmMain::About() {
    AboutFacts facts;
    facts.preferences = &m_context.preferences;
    facts.data = &m_context.data;
    facts.artworkFolders = m_artworkFolders;
    facts.siteAddress = ProjectSiteAddress();
    frmAbout about(facts, m_prompter, this);
    about.exec();
}

} // namespace coinlight
