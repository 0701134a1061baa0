#include "TitleArea.h"

#include <QHBoxLayout>
#include <QMainWindow>
#include <QMenuBar>
#include <QSizeGrip>
#include <QVBoxLayout>

#include "TitleStrip.h"
#include "ui/MainControls.h"
#include "ui/menu/MenuTree.h"

namespace coinlight {

namespace {

/// The entries the window's parts reach directly, for their checks, ticks and states.
void TakeMenuPointers(MainControls& c) {
    const MenuTree& tree = *c.menus;
    c.mnuMain = tree.Menu("mnuMain");
    c.mnuView = tree.Menu("mnuView");
    c.mnuTools = tree.Menu("mnuTools");
    c.mnuReports = tree.Menu("mnuReports");
    c.mnuHelp = tree.Menu("mnuHelp");
    c.mnuRClick = tree.Menu("mnuRClick");
    c.mnuReportsROMs = tree.Menu("mnuReportsROMs");
    c.mnuReportsSoftware = tree.Menu("mnuReportsSoftware");
    c.mnuReportsSamples = tree.Menu("mnuReportsSamples");
    c.mnuReportsWhatsChanged = tree.Menu("mnuReportsWhatsChanged");
    c.mnuViewAll = tree.Action("mnuViewAll");
    c.mnuViewAvailable = tree.Action("mnuViewAvailable");
    c.mnuViewUnavailable = tree.Action("mnuViewUnavailable");
    c.mnuViewOtherMachines = tree.Action("mnuViewOtherMachines");
    c.mnuViewArcadeFavorites = tree.Action("mnuViewArcadeFavorites");
    c.mnuViewOtherFavorites = tree.Action("mnuViewOtherFavorites");
    c.mnuViewShots = tree.Action("mnuViewShots");
    c.mnuMainInfo = tree.Action("mnuMainInfo");
    c.mnuMainAudit = tree.Action("mnuMainAudit");
    c.mnuMainExport = tree.Action("mnuMainExport");
    c.mnuMainExit = tree.Action("mnuMainExit");
    c.mnuToolsArcade = tree.Action("mnuToolsArcade");
    c.mnuToolsOther = tree.Action("mnuToolsOther");
    c.mnuToolsCustom = tree.Action("mnuToolsCustom");
    c.mnuToolsRebuild = tree.Action("mnuToolsRebuild");
    c.mnuToolsMaintenance = tree.Action("mnuToolsMaintenance");
    c.mnuToolsCheckOptions = tree.Action("mnuToolsCheckOptions");
    c.mnuReportsVerifyROMs = tree.Action("mnuReportsVerifyROMs");
    c.mnuReportsLastROM = tree.Action("mnuReportsLastROM");
    c.mnuReportsVerifyAllSoftware = tree.Action("mnuReportsVerifyAllSoftware");
    c.mnuReportsLastAllSoftware = tree.Action("mnuReportsLastAllSoftware");
    c.mnuReportsVerifyMachinesSoftware = tree.Action("mnuReportsVerifyMachinesSoftware");
    c.mnuReportsLastMachinesSoftware = tree.Action("mnuReportsLastMachinesSoftware");
    c.mnuReportsVerifySamples = tree.Action("mnuReportsVerifySamples");
    c.mnuReportsLastSample = tree.Action("mnuReportsLastSample");
    c.mnuReportsWhatROMsChanged = tree.Action("mnuReportsWhatROMsChanged");
    c.mnuReportsWhatROMsChangedReport = tree.Action("mnuReportsWhatROMsChangedReport");
    c.mnuReportsRebuild = tree.Action("mnuReportsRebuild");
    c.mnuReportsFavoriteArcadeChanges = tree.Action("mnuReportsFavoriteArcadeChanges");
    c.mnuReportsFavoriteOtherChanges = tree.Action("mnuReportsFavoriteOtherChanges");
    c.mnuReportsUnlistedMachines = tree.Action("mnuReportsUnlistedMachines");
    c.mnuReportsFind = tree.Action("mnuReportsFind");
    c.mnuHelpHeritage = tree.Action("mnuHelpHeritage");
    c.mnuHelpCommandLines = tree.Action("mnuHelpCommandLines");
    c.mnuHelpDefaultKeys = tree.Action("mnuHelpDefaultKeys");
    c.mnuHelpBGFX = tree.Action("mnuHelpBGFX");
    c.mnuHelpHLSL = tree.Action("mnuHelpHLSL");
    c.mnuHelpGLSL = tree.Action("mnuHelpGLSL");
    c.mnuHelpNews = tree.Action("mnuHelpNews");
    c.mnuHelpUpdate = tree.Action("mnuHelpUpdate");
    c.mnuAddFavorite = tree.Action("mnuAddFavorite");
    c.mnuRemoveFavorite = tree.Action("mnuRemoveFavorite");
    c.mnuRefreshSoftware = tree.Action("mnuRefreshSoftware");
    c.mnuDeleteROM = tree.Action("mnuDeleteROM");
    c.mnuDeleteSamples = tree.Action("mnuDeleteSamples");
    c.mnuMainOptions = tree.Action("mnuToolsOptions");
}

} // namespace

void BuildTitleArea(QMainWindow& window, MainControls& c) {
    auto* area = new QWidget(&window);
    area->setObjectName(QStringLiteral("picTitleArea"));
    auto* layout = new QVBoxLayout(area);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);

    c.picTitle = new TitleStrip(area);
    c.imgWindowState = c.picTitle->Buttons();
    c.lblMLinks = c.picTitle->MenuLinks();
    c.lblVersion = new QLabel;
    c.lblVersion->setObjectName(QStringLiteral("lblVersion"));
    c.picTitle->PlaceVersion(c.lblVersion);
    c.menuBar = new QMenuBar(area);
    c.menuBar->setObjectName(QStringLiteral("mnuBar"));
    layout->addWidget(c.picTitle);
    layout->addWidget(c.menuBar);
    window.setMenuWidget(area);

    c.menus = new MenuTree(window, *c.menuBar);
    TakeMenuPointers(c);
}

void AddCornerControls(MainControls& c, QHBoxLayout& bottom) {
    c.lblGradient = new LinkLabel(QStringLiteral("Gradient"));
    c.lblGradient->setObjectName(QStringLiteral("lblGradient"));
    c.lblGradient->setToolTip(QStringLiteral("The Colour At The Foot Of The Window"));
    bottom.addWidget(c.lblGradient);

    auto* clrMame = new LinkLabel(QStringLiteral("ClrMAME"));
    clrMame->setObjectName(QStringLiteral("lblClrMAME"));
    clrMame->setToolTip(QStringLiteral("Writes The Files Of The Outside Tool ClrMAME"));
    clrMame->hide();
    c.lblClrMAME = clrMame;
    bottom.addWidget(clrMame);
    c.cmdDebug = new QPushButton(QStringLiteral("catver.ini"));
    c.cmdDebug->setObjectName(QStringLiteral("cmdDebug"));
    c.cmdDebug->setToolTip(QStringLiteral("Creates A New catver.ini From The Previous One"));
    c.cmdDebug->setAutoDefault(false);
    c.cmdDebug->hide();
    bottom.addWidget(c.cmdDebug);

    auto* grip = new QSizeGrip(nullptr);
    grip->setObjectName(QStringLiteral("sizeGrip"));
    bottom.addWidget(grip, 0, Qt::AlignBottom | Qt::AlignRight);
}

} // namespace coinlight
