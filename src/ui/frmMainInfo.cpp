// The information panel, the snapshot and cabinet icon of the selection, and the documents
// shown on the text page.
#include <QApplication>
#include <QDesktopServices>
#include <QIcon>
#include <QMenu>
#include <QUrl>

#include "MachineListView.h"
#include "UserMessagePrompt.h"
#include "core/FileTests.h"
#include "frmMain.h"
#include "info/InfoSearch.h"
#include "info/InfoSourceList.h"
#include "info/InfoSources.h"
#include "info/PanelText.h"
#include "info/SnapshotChoice.h"
#include "info/SnapshotPane.h"
#include "info/SnapshotPicture.h"

namespace coinlight {

namespace {

/// The selected row of the software list, read by column as the list shows it: the
/// description, sub-item 5 the short name, sub-item 8 the software list.
struct SoftwareRow {
    int count = 0;
    bool selected = false;
    std::string text;
    std::string name;
    std::string list;
};

SoftwareRow SoftwareRowOf(const QAbstractItemView& view) {
    SoftwareRow software;
    const QAbstractItemModel* model = view.model();
    if (model == nullptr) {
        return software;
    }
    software.count = model->rowCount();
    const QItemSelectionModel* selection = view.selectionModel();
    if (selection == nullptr || !selection->hasSelection()) {
        return software;
    }
    const int row = selection->selectedIndexes().front().row();
    const auto cell = [model, row](int column) {
        return model->index(row, column).data(Qt::DisplayRole).toString().toStdString();
    };
    software.selected = true;
    software.text = cell(0);
    software.name = cell(5);
    software.list = cell(8);
    return software;
}

/// The wait pointer for as long as a search runs.
class WaitPointer {
public:
    WaitPointer() { QApplication::setOverrideCursor(Qt::WaitCursor); }
    ~WaitPointer() { QApplication::restoreOverrideCursor(); }
    WaitPointer(const WaitPointer&) = delete;
    WaitPointer& operator=(const WaitPointer&) = delete;
};

} // namespace

void frmMain::ConnectInformation() {
    const MainControls& c = m_controls;
    m_openAddress = [](const QString& address) {
        return QDesktopServices::openUrl(QUrl(address));
    };
    connect(c.cmdInfo, &QPushButton::clicked, this, &frmMain::Info);
    connect(c.lstInfo, &InfoSourceList::SourceClicked, this, &frmMain::InfoSourceClicked);
    // The menu's tick is the pane's state: it is set from options.ini at start, too.
    connect(c.mnuViewShots, &QAction::toggled, this, &frmMain::ShowShotsPane);
}

// ---- The information panel ----

void frmMain::Info() {
    const MainControls& c = m_controls;
    SetReturnCommands(false);
    c.rtfVerify->hide();
    ShowPage(c.fraVerify);
    c.fraVerify->repaint();
    DisableFormButtons();
    c.fraVerify->setTitle(QStringLiteral("Information"));
    const InfoSourceListing sources =
        ListInfoSources(m_context.preferences.searchPaths.mame, m_context.data.Support());
    c.lstInfo->SetSources(sources.names);
    c.lstInfo->setEnabled(true);
    if (sources.error) {
        SetPanelText(*c.rtfVerify, ErrorPanelText(*sources.error));
    } else {
        SetPanelText(*c.rtfVerify, InfoIntroText(!sources.names.empty()));
    }
    c.rtfVerify->show();
    SetReturnCommands(true);
    if (!m_context.preferences.other.useLinks) {
        c.cmdGameList->setFocus();
    }
}

InfoSelection frmMain::CurrentInfoSelection() const {
    const MainControls& c = m_controls;
    InfoSelection selection;
    selection.listView = m_context.preferences.view.listView;
    selection.inOtherView = m_inOtherView;
    selection.arcadeMachine = c.lblPanel[2]->text().toStdString();
    if (const MachineRow* row = c.lvOther->SelectedMachine()) {
        selection.otherMachine = std::string(row->ShortName());
        selection.otherMachineText = std::string(row->Field(ColMachine));
    }
    selection.softwareCaption = !c.lblPanel[6]->text().isEmpty();
    const SoftwareRow software = SoftwareRowOf(*c.lvSoftware);
    selection.softwareSelected = software.selected;
    selection.softwareListEmpty = software.count == 0;
    selection.softwareName = software.name;
    selection.softwareList = software.list;
    selection.softwareText = software.text;
    return selection;
}

void frmMain::InfoSourceClicked(const QString& source) {
    const MainControls& c = m_controls;
    SetPanelText(*c.rtfVerify, "Please stand by...");
    c.rtfVerify->repaint();
    InfoPanel panel;
    {
        const WaitPointer wait;
        InfoSearchRequest request;
        request.source = source.toStdString();
        request.mameFolder = m_context.preferences.searchPaths.mame;
        request.supportFolder = m_context.data.Support();
        request.tempFolder = m_context.data.Temp();
        request.selection = CurrentInfoSelection();
        panel = RunInfoSearch(request);
    }
    SetPanelText(*c.rtfVerify, panel.text, panel.boldHeader);
    c.rtfVerify->show();
    SetReturnCommands(true);
    if (!m_context.preferences.other.useLinks) {
        c.cmdGameList->setFocus();
    }
}

void frmMain::SetReturnCommands(bool enabled) {
    const MainControls& c = m_controls;
    for (QWidget* control :
         {static_cast<QWidget*>(c.cmdGameList), static_cast<QWidget*>(c.lblBLinks[LinkReturnList1]),
          static_cast<QWidget*>(c.lblBLinks[LinkExit]), static_cast<QWidget*>(c.cmdExit)}) {
        control->setEnabled(enabled);
    }
}

// ---- Snapshot and cabinet icon ----

void frmMain::ViewShots() {
    m_controls.mnuViewShots->toggle();
}

void frmMain::ShowShotsPane(bool open) {
    const MainControls& c = m_controls;
    m_shotsOn = open;
    m_context.preferences.view.snapshots = open;
    if (!open) {
        c.picShots->ShowNothing();
        c.picShots->hide();
        return;
    }
    c.picShots->show();
    MachineListView* list = ListOfView();
    list->scrollTo(list->currentIndex(), QAbstractItemView::EnsureVisible);
    LoadSnapshot();
}

void frmMain::LoadSnapshot() {
    if (!m_shotsOn) {
        return;
    }
    const MainControls& c = m_controls;
    MachineListView* list = ListOfView();
    const MachineRow* row = list->SelectedMachine();
    if (row == nullptr) {
        c.picShots->ShowNothing();
        LayOutShots();
        return;
    }
    SnapshotQuery query;
    query.snapshotFolder = SnapshotFolder(m_context.preferences.outputPaths.snapshot,
                                          m_context.preferences.searchPaths.mame);
    query.machine = std::string(row->ShortName());
    query.setType = std::string(row->Field(ColSetType));
    query.cloneShots = m_context.preferences.other.cloneShots;
    if (list == c.lvOther && !c.lblPanel[6]->text().isEmpty()) {
        const SoftwareRow software = SoftwareRowOf(*c.lvSoftware);
        if (software.selected) {
            query.software = software.name;
        }
    }
    const auto file = ChooseSnapshot(query);
    QImage picture = file ? LoadSnapshotImage(*file) : QImage();
    if (picture.isNull()) {
        c.picShots->ShowMissing();
    } else {
        c.picShots->ShowPicture(std::move(picture));
    }
    LayOutShots();
}

void frmMain::LayOutShots() {
    const MainControls& c = m_controls;
    const FixedPicturePlace& place = m_context.markers.picturePlace;
    // A maximized window has room to spare, and the fixed place would waste it.
    if (!m_context.markers.noStretch || isMaximized()) {
        c.picShots->setMinimumHeight(0);
        c.picShots->setMaximumHeight(QWIDGETSIZE_MAX);
        c.picShots->Picture()->SetFixedPlace(std::nullopt);
        return;
    }
    const int height = place.height / kTwipsPerPixel;
    c.picShots->setFixedHeight(height);
    const int paneLeft = c.picShots->mapTo(this, QPoint(0, 0)).x();
    const int left = std::max(0, place.left / kTwipsPerPixel - paneLeft);
    c.picShots->Picture()->SetFixedPlace(QRect(left, 0, place.width / kTwipsPerPixel, height));
}

void frmMain::LoadCabinetIcon() {
    const MainControls& c = m_controls;
    if (m_inOtherView) {
        c.picIcon->hide();
        c.lblArtwork->hide();
    } else {
        const std::string name = c.lblPanel[2]->text().toStdString();
        c.picIcon->clear();
        const auto icon = CabinetIconFile(m_context.preferences.searchPaths.mame, name);
        const QPixmap picture =
            icon ? QIcon(QString::fromStdString(icon->string())).pixmap(32, 32) : QPixmap();
        c.picIcon->setPixmap(picture);
        c.picIcon->setVisible(!picture.isNull());
        c.lblArtwork->setVisible(AnyFileInFolders(name + ".zip", m_artworkFolders));
    }
    if (m_controls.pages->currentWidget() == c.fraList && !m_context.flags.formLoading) {
        ListOfView()->setFocus();
    }
}

// ---- Documents ----

void frmMain::MAMECommandLines() {
    ShowDocument(DocumentViewer::MAMECommandLines);
}

void frmMain::MAMEDefaultKeys() {
    ShowDocument(DocumentViewer::MAMEDefaultKeys);
}

void frmMain::MAMEBGFX() {
    ShowDocument(DocumentViewer::MAMEBGFX);
}

void frmMain::MAMEGLSL() {
    ShowDocument(DocumentViewer::MAMEGLSL);
}

void frmMain::MAMEHLSL() {
    ShowDocument(DocumentViewer::MAMEHLSL);
}

void frmMain::Heritage() {
    ShowDocument(DocumentViewer::Heritage);
}

void frmMain::Unlisted() {
    ShowDocument(DocumentViewer::Unlisted);
}

void frmMain::ShowDocument(DocumentViewer viewer) {
    const DocumentFolders folders{m_context.preferences.searchPaths.mame, m_context.appFolder,
                                  m_context.data};
    const DocumentToShow document = DocumentOf(viewer, folders);
    const DocumentOpening opening = OpenDocument(document, m_mameManual);
    switch (opening.kind) {
    case DocumentOpening::Kind::Tell:
        ShowMessage(m_prompter, opening.message);
        return;
    case DocumentOpening::Kind::OpenManual:
        if (!m_openAddress(QString::fromStdString(opening.manualAddress))) {
            m_prompter.Message(QString::fromStdString(document.caption),
                               QStringLiteral("Error launching browser."));
        }
        return;
    case DocumentOpening::Kind::Show:
        ShowTextPage(QString::fromStdString(document.caption), opening.text);
        return;
    }
}

void frmMain::ShowTextPage(const QString& caption, const std::string& text, bool afterStart) {
    const MainControls& c = m_controls;
    if (!afterStart) {
        PanelTextHide();
        c.lblScroll->clear();
    }
    c.picIcon->hide();
    c.lblArtwork->hide();
    ShowPage(c.fraVerify);
    DisableFormButtons();
    c.fraVerify->setTitle(caption);
    c.fraVerify->repaint();
    c.rtfVerify->hide();
    SetPanelText(*c.rtfVerify, text);
    c.rtfVerify->show();
    if (!afterStart) {
        c.lblScroll->setToolTip({});
    }
    if (!m_context.preferences.other.useLinks) {
        c.cmdGameList->setFocus();
    }
}

} // namespace coinlight
