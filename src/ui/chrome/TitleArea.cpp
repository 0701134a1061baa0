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

void TakeMenuPointers(MainControls& c) {
    const MenuTree& tree = *c.menus;
    c.mnuView = tree.Menu("mnuView");
    c.mnuTools = tree.Menu("mnuTools");
    c.mnuViewAll = tree.Action("mnuViewAll");
    c.mnuViewAvailable = tree.Action("mnuViewAvailable");
    c.mnuViewUnavailable = tree.Action("mnuViewUnavailable");
    c.mnuViewOtherMachines = tree.Action("mnuViewOtherMachines");
    c.mnuViewArcadeFavorites = tree.Action("mnuViewArcadeFavorites");
    c.mnuViewOtherFavorites = tree.Action("mnuViewOtherFavorites");
    c.mnuViewShots = tree.Action("mnuViewShots");
    c.mnuMainOptions = tree.Action("mnuToolsOptions");
    c.mnuToolsArcade = tree.Action("mnuToolsArcade");
    c.mnuToolsOther = tree.Action("mnuToolsOther");
    c.mnuToolsCustom = tree.Action("mnuToolsCustom");
    c.mnuToolsRebuild = tree.Action("mnuToolsRebuild");
    c.mnuReportsRebuild = tree.Action("mnuReportsRebuild");
    c.mnuMainExit = tree.Action("mnuMainExit");
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
