#include "MainControls.h"

#include <QHBoxLayout>
#include <QMainWindow>
#include <QMenuBar>
#include <QSplitter>
#include <QVBoxLayout>

#include "MachineListView.h"
#include "MachineSearchField.h"
#include "chrome/TitleArea.h"
#include "info/InfoSourceList.h"
#include "info/SnapshotPane.h"
#include "ui/online/DownloadPage.h"
#include "ui/reports/MaintenancePage.h"
#include "ui/reports/VerifyPage.h"
#include "ui/settings/SettingsPage.h"

namespace coinlight {

namespace {

template <class Widget> Widget* Named(Widget* widget, const QString& name) {
    widget->setObjectName(name);
    return widget;
}

QString IndexedName(const char* name, int index) {
    return QStringLiteral("%1_%2").arg(QString::fromLatin1(name)).arg(index);
}

QPushButton* AddButton(QWidget* parent, const char* name, const QString& caption,
                       const QString& tip = {}) {
    auto* button = Named(new QPushButton(caption, parent), QString::fromLatin1(name));
    button->setToolTip(tip);
    button->setAutoDefault(false);
    return button;
}

LinkLabel* AddLink(QWidget* parent, MainControls& controls, int index, const QString& caption) {
    auto* link = Named(new LinkLabel(caption, parent), IndexedName("lblBLinks", index));
    controls.lblBLinks[static_cast<std::size_t>(index)] = link;
    return link;
}

void AllowListMenus(MainControls& c) {
    for (MachineListView* list : {c.lvAll, c.lvAvailable, c.lvOther}) {
        list->setContextMenuPolicy(Qt::CustomContextMenu);
    }
}

QWidget* BuildListFrame(MainControls& c) {
    c.fraList =
        Named(new QGroupBox(QStringLiteral("All Arcade Machines")), QStringLiteral("fraList"));
    auto* layout = new QVBoxLayout(c.fraList);
    c.txtSearch = new MachineSearchField;
    layout->addWidget(c.txtSearch);

    c.lists = Named(new QStackedWidget, QStringLiteral("lists"));
    c.lvAll = new MachineListView("lvAll", false);
    c.lvAvailable = new MachineListView("lvAvailable", false);
    c.lvUnavailable = new MachineListView("lvUnavailable", false);
    c.lvOther = new MachineListView("lvOther", true);
    c.picSoftware = new SoftwarePanel;
    c.lvSoftware = c.picSoftware->List();
    c.lblBLinks[LinkListSlots] = c.picSoftware->SlotsLink();
    auto* other = Named(new QSplitter(Qt::Vertical), QStringLiteral("otherPage"));
    other->addWidget(c.lvOther);
    other->addWidget(c.picSoftware);
    other->setStretchFactor(0, 3);
    other->setStretchFactor(1, 2);
    c.otherPage = other;
    for (QWidget* list : {static_cast<QWidget*>(c.lvAll), static_cast<QWidget*>(c.lvAvailable),
                          static_cast<QWidget*>(c.lvUnavailable), c.otherPage}) {
        c.lists->addWidget(list);
    }
    layout->addWidget(c.lists, 1);
    c.picShots = new SnapshotPane;
    c.lblShots = c.picShots->MissingText();
    c.picShots->hide();
    layout->addWidget(c.picShots, 1);
    return c.fraList;
}

QWidget* BuildVerifyFrame(MainControls& c) {
    c.verifyPage = new VerifyPage;
    c.fraVerify = c.verifyPage;
    c.rtfVerify = c.verifyPage->Report();
    c.cmdGameList = c.verifyPage->ReturnButton();
    c.lblBLinks[LinkReturnList1] = c.verifyPage->ReturnLink();
    c.lstInfo = new InfoSourceList; // moves with the report page
    c.verifyPage->SetSidePanel(c.lstInfo);
    return c.fraVerify;
}

QWidget* BuildPleaseWait(MainControls& c) {
    c.fraPleaseWait = Named(new QGroupBox, QStringLiteral("fraPleaseWait"));
    auto* layout = new QVBoxLayout(c.fraPleaseWait);
    layout->addStretch();
    for (int i = 0; i < 5; ++i) {
        auto* label = Named(new QLabel, IndexedName("lblRefresh", i));
        label->setAlignment(Qt::AlignCenter);
        c.lblRefresh[static_cast<std::size_t>(i)] = label;
        layout->addWidget(label);
    }
    QFont big = c.lblRefresh[0]->font();
    big.setPointSize(big.pointSize() + 4);
    big.setBold(true);
    c.lblRefresh[0]->setFont(big);
    layout->addStretch();
    return c.fraPleaseWait;
}

QLayout* BuildDetailsStrip(MainControls& c) {
    auto* strip = new QHBoxLayout;
    c.lblToggle = Named(new LinkLabel(QStringLiteral("\u25C6")), QStringLiteral("lblToggle"));
    c.lblToggle->setToolTip(QStringLiteral("Next Arcade List"));
    strip->addWidget(c.lblToggle);
    const int stretch[7] = {2, 6, 2, 2, 1, 1, 3};
    for (int i = 0; i < 7; ++i) {
        auto* label = Named(new QLabel, IndexedName("lblPanel", i));
        label->setFrameShape(QFrame::StyledPanel);
        label->setFrameShadow(QFrame::Sunken);
        label->setMinimumWidth(24);
        label->setTextFormat(Qt::PlainText);
        c.lblPanel[static_cast<std::size_t>(i)] = label;
        strip->addWidget(label, stretch[i]);
    }
    // Room for the largest count MAME can have, also when a search shows part of it.
    c.lblPanel[0]->setMinimumWidth(
        c.lblPanel[0]->fontMetrics().horizontalAdvance(QStringLiteral("Machines: 88888 of 88888")) +
        8);
    return strip;
}

QLayout* BuildStartRow(QWidget* parent, MainControls& c) {
    auto* row = new QHBoxLayout;
    c.cmdStart = AddButton(parent, "cmdStart", QStringLiteral("&Start"),
                           QStringLiteral("Starts The Selected Machine"));
    c.cmdAudit = AddButton(parent, "cmdAudit", QStringLiteral("&Audit"),
                           QStringLiteral("Audits The Selected Machine"));
    c.cmdInfo = AddButton(parent, "cmdInfo", QStringLiteral("&Info"),
                          QStringLiteral("Information About The Selected Machine"));
    row->addWidget(c.cmdStart);
    row->addWidget(AddLink(parent, c, LinkStart, QStringLiteral("Start")));
    row->addWidget(c.cmdAudit);
    row->addWidget(AddLink(parent, c, LinkAudit, QStringLiteral("Audit")));
    row->addWidget(c.cmdInfo);
    row->addWidget(AddLink(parent, c, LinkInfo, QStringLiteral("Info")));
    row->addSpacing(24);
    c.chkAutoSave =
        Named(new QCheckBox(QStringLiteral("Auto Save")), QStringLiteral("chkAutoSave"));
    c.chkAutoRun = Named(new QCheckBox(QStringLiteral("Auto Run")), QStringLiteral("chkAutoRun"));
    c.chkRecord = Named(new QCheckBox(QStringLiteral("Record")), QStringLiteral("chkRecord"));
    c.chkPlayback = Named(new QCheckBox(QStringLiteral("Playback")), QStringLiteral("chkPlayback"));
    for (QCheckBox* box : {c.chkAutoSave, c.chkAutoRun, c.chkRecord, c.chkPlayback}) {
        // The boxes come and go with the selection; the row must not change height with them.
        QSizePolicy policy = box->sizePolicy();
        policy.setRetainSizeWhenHidden(true);
        box->setSizePolicy(policy);
        row->addWidget(box);
    }
    row->addStretch();
    return row;
}

QWidget* BuildCabinetRow(MainControls& c) {
    // Its own height whether or not the machine has an icon: the commands below stay put.
    auto* cabinet = Named(new QWidget, QStringLiteral("picCabinet"));
    cabinet->setFixedHeight(34);
    auto* row = new QHBoxLayout(cabinet);
    row->setContentsMargins(0, 0, 0, 0);
    c.picIcon = Named(new QLabel, QStringLiteral("picIcon"));
    c.picIcon->setFixedSize(32, 32);
    c.picIcon->hide();
    c.lblArtwork = Named(new QLabel(QStringLiteral("Artwork")), QStringLiteral("lblArtwork"));
    c.lblArtwork->setToolTip(QStringLiteral("This Machine Has An Artwork File"));
    c.lblArtwork->hide();
    row->addWidget(c.picIcon);
    row->addWidget(c.lblArtwork);
    row->addStretch();
    return cabinet;
}

QWidget* BuildSideColumn(MainControls& c) {
    auto* side = Named(new QWidget, QStringLiteral("picSide"));
    auto* layout = new QVBoxLayout(side);
    layout->addWidget(BuildCabinetRow(c));
    c.cmdArcadeSettings = AddButton(side, "cmdArcadeSettings", QStringLiteral("Arcade Settings"),
                                    QStringLiteral("Settings For Arcade Machines"));
    c.cmdOtherSettings = AddButton(side, "cmdOtherSettings", QStringLiteral("Other Settings"),
                                   QStringLiteral("Settings For Other Machines"));
    c.cmdFind =
        AddButton(side, "cmdFind", QStringLiteral("&MAME.Ini"),
                  QStringLiteral("The MAME.Ini File That Will Be Used For The Selected Game"));
    c.cmdExit =
        AddButton(side, "cmdExit", QStringLiteral("E&xit"), QStringLiteral("Closes Coinlight"));
    layout->addWidget(c.cmdArcadeSettings);
    layout->addWidget(AddLink(side, c, LinkArcadeSettings, QStringLiteral("Arcade Settings")));
    c.cboSettings = Named(new QComboBox(side), QStringLiteral("cboSettings"));
    c.cboSettings->setToolTip(QStringLiteral("The Class Of Machines These Settings Are For"));
    c.cboSettings->hide();
    layout->addWidget(c.cboSettings);
    layout->addWidget(c.cmdOtherSettings);
    layout->addWidget(AddLink(side, c, LinkOtherSettings, QStringLiteral("Other Settings")));
    layout->addWidget(c.cmdFind);
    layout->addWidget(AddLink(side, c, LinkFind, QStringLiteral("MAME.Ini")));
    layout->addStretch();
    layout->addWidget(c.cmdExit);
    layout->addWidget(AddLink(side, c, LinkExit, QStringLiteral("Exit")));
    side->setFixedWidth(2430 / 15 + 40);
    return side;
}

} // namespace

void SetLinkText(LinkLabel* link, const QString& text) {
    link->SetCaption(text);
}

MainControls BuildMainControls(QMainWindow& window) {
    MainControls c;
    BuildTitleArea(window, c);

    auto* central = Named(new QWidget(&window), QStringLiteral("central"));
    auto* outer = new QVBoxLayout(central);
    auto* top = new QHBoxLayout;
    auto* left = new QVBoxLayout;

    c.pages = Named(new QStackedWidget, QStringLiteral("pages"));
    c.fraDefaults = new SettingsPage;
    for (auto [index, link] : c.fraDefaults->MainLinks()) {
        c.lblBLinks[static_cast<std::size_t>(index)] = link;
    }
    c.maintenancePage = new MaintenancePage;
    c.fraMaintenance = c.maintenancePage;
    for (QWidget* page :
         {BuildListFrame(c), BuildVerifyFrame(c), static_cast<QWidget*>(c.fraDefaults),
          static_cast<QWidget*>(c.fraMaintenance), BuildPleaseWait(c)}) {
        c.pages->addWidget(page);
    }
    left->addWidget(c.pages, 1);
    left->addLayout(BuildDetailsStrip(c));
    left->addLayout(BuildStartRow(central, c));
    c.fraDownload = new DownloadPage(central);
    c.fraDownload->hide();
    left->addWidget(c.fraDownload);
    top->addLayout(left, 1);
    top->addWidget(BuildSideColumn(c));
    outer->addLayout(top, 1);

    auto* bottom = new QHBoxLayout;
    c.lblScroll = Named(new QLabel, QStringLiteral("lblScroll"));
    c.lblScroll->setTextInteractionFlags(Qt::TextSelectableByMouse);
    bottom->addWidget(c.lblScroll, 1);
    AddCornerControls(c, *bottom);
    // No text: the user finds it by clicking the corner, as the start time has always been.
    c.lblStartTime = Named(new QLabel(QStringLiteral("  ")), QStringLiteral("lblStartTime"));
    c.lblStartTime->setFixedSize(12, 12);
    bottom->addWidget(c.lblStartTime);
    outer->addLayout(bottom);
    window.setCentralWidget(central);
    AllowListMenus(c);
    return c;
}

} // namespace coinlight
