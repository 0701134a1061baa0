#include "frmMain.h"

#include <QApplication>
#include <QCloseEvent>
#include <QElapsedTimer>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QScreen>
#include <QSysInfo>

#include "MachineListView.h"
#include "Prompter.h"
#include "core/AppFolders.h"
#include "core/FileTests.h"
#include "core/OptionsIni.h"
#include "frmCover.h"
#include "frmSplash.h"
#include "tools/MaintainerPaths.h"
#include "ui/online/DownloadPage.h"
#include "ui/reports/MaintenancePage.h"
#include "ui/reports/VerifyPage.h"
#include "ui/settings/SettingsPage.h"

namespace coinlight {

frmMain::frmMain(AppContext& context, Prompter& prompter, QWidget* parent)
    : QMainWindow(parent), m_context(context), m_prompter(prompter),
      m_controls(BuildMainControls(*this)) {
    setObjectName(QStringLiteral("frmMain"));
    setWindowTitle(QStringLiteral("Coinlight"));
    PanelTooltips();
    m_controls.lblStartTime->installEventFilter(this);
    ConnectControls();
    SetUpChrome();
    WireMenu();
}

frmMain::~frmMain() {
    UnloadAllForms();
}

void frmMain::ConnectControls() {
    const MainControls& c = m_controls;
    connect(c.cmdExit, &QPushButton::clicked, this, [this] { LinkClicked(LinkExit); });
    connect(c.cmdStart, &QPushButton::clicked, this, [this] { LinkClicked(LinkStart); });
    connect(c.cmdFind, &QPushButton::clicked, this, &frmMain::Find);
    for (auto [box, which] :
         {std::pair{c.chkAutoSave, StartBox::AutoSave}, std::pair{c.chkRecord, StartBox::Record},
          std::pair{c.chkPlayback, StartBox::Playback},
          std::pair{c.chkAutoRun, StartBox::AutoRun}}) {
        connect(box, &QCheckBox::toggled, this,
                [this, which = which](bool ticked) { StartBoxClicked(which, ticked); });
    }
    connect(c.cmdGameList, &QPushButton::clicked, this, &frmMain::ReturnList1);
    for (std::size_t index = 0; index < c.lblBLinks.size(); ++index) {
        if (c.lblBLinks[index] != nullptr) {
            connect(c.lblBLinks[index], &QLabel::linkActivated, this,
                    [this, index] { LinkClicked(static_cast<int>(index)); });
        }
    }
    connect(c.lblToggle, &QLabel::linkActivated, this, [this] {
        const std::string& view = m_context.preferences.view.listView;
        if (view == "All Arcade Machines") {
            ViewAvailableArcade();
        } else if (view == "Available Arcade Machines") {
            ViewUnavailableArcade();
        } else if (view == "Unavailable Arcade Machines") {
            ViewAllArcade();
        }
    });
    for (MachineListView* list : {c.lvAll, c.lvAvailable, c.lvUnavailable, c.lvOther}) {
        connect(list, &MachineListView::ColumnClicked, this,
                [this, list](int column) { SortColumn(*list, column); });
        connect(list, &MachineListView::RowSelected, this, [this, list] {
            // The saved key follows the selection, so that a refresh finds the machine again.
            if (const MachineRow* row = list->SelectedMachine()) {
                SavedStateOf(*list).key = "k." + std::string(row->ShortName());
            }
            ShowDetails(*list);
        });
    }
    ConnectReportControls();
    ConnectSettingsControls();
    connect(c.lvAll, &MachineListView::RowActivated, this, &frmMain::PlayArcade);
    connect(c.lvAvailable, &MachineListView::RowActivated, this, &frmMain::AvailableDoubleClick);
    connect(c.lvOther, &MachineListView::RowActivated, this, &frmMain::PlayOther);
    connect(c.lvUnavailable, &MachineListView::RowActivated, this,
            &frmMain::UnavailableDoubleClick);
    m_shiftDown.Watch(c.lvAvailable);
    m_shiftDown.Watch(c.lvUnavailable);
    m_closeWatch.Watch(this);
    connect(c.fraDownload, &DownloadPage::DownloadClicked, this, &frmMain::ArtSamDownload);
    ConnectSoftwareControls();
    ConnectFavoritesControls();
    ConnectInformation();
    ConnectSearch();
}

void frmMain::LinkClicked(int index) {
    switch (index) {
    case LinkArcadeSettings:
        SettingsArcade();
        break;
    case LinkOtherSettings:
        SettingsOther();
        break;
    case LinkExit:
        // On a settings screen the command reads Cancel and leaves the screen.
        if (SettingsScreenOpen()) {
            Cancel();
        } else {
            close();
        }
        break;
    case LinkOK:
        OK();
        break;
    case LinkRestore:
        Restore();
        break;
    case LinkCancel:
        Cancel();
        break;
    case LinkHLSLPath:
        HLSLPath();
        break;
    case LinkHLSLDefaults:
        SetDefaultsOf(DefaultsGroup::HLSL);
        break;
    case LinkYIQDefaults:
        SetDefaultsOf(DefaultsGroup::YIQ);
        break;
    case LinkVectorPostDefaults:
        SetDefaultsOf(DefaultsGroup::Vector);
        break;
    case LinkBloomPostDefaults:
        SetDefaultsOf(DefaultsGroup::Bloom);
        break;
    case LinkBGFXPath:
        BGFXPath();
        break;
    case LinkStart:
        if (m_inOtherView) {
            PlayOther();
        } else {
            PlayArcade();
        }
        break;
    case LinkReturnList1:
        ReturnList1();
        break;
    case LinkFind:
        Find();
        break;
    case LinkAudit:
        Audit();
        break;
    case LinkInfo:
        Info();
        break;
    case LinkListSlots:
        ListSlots();
        break;
    default:
        break; // the commands behind the other links come with their screens
    }
}

frmSplash& frmMain::Splash() {
    if (m_splash.isNull()) {
        m_splash = new frmSplash(m_context.appFolder);
    }
    return *m_splash;
}

void frmMain::Pump() {
    // Let the interface breathe during long loops, but not for every record: a check of the
    // clock is cheap, a pass of the event loop is not.
    static QElapsedTimer sinceLast;
    if (!sinceLast.isValid() || sinceLast.elapsed() > 100) {
        QApplication::processEvents();
        sinceLast.restart();
    }
}

void frmMain::ShowCover() {
    if (m_cover.isNull()) {
        m_cover = new frmCover;
    }
    const QColor back = palette().color(QPalette::Window);
    if (windowState() & Qt::WindowMaximized) {
        const QScreen* screen = QGuiApplication::primaryScreen();
        m_cover->ShowOver(screen != nullptr ? screen->geometry() : geometry(), back);
    } else if (!(windowState() & Qt::WindowMinimized)) {
        m_cover->ShowOver(m_normalGeometry, back);
    }
}

void frmMain::UnloadCover() {
    if (!m_cover.isNull()) {
        m_cover->close();
        m_cover->deleteLater();
    }
}

void frmMain::RaiseFromAnotherStart() {
    if (m_context.flags.emulatorRunning) {
        return; // the window comes back by itself when MAME ends
    }
    setWindowState((windowState() & ~Qt::WindowMinimized) | Qt::WindowActive);
    show();
    raise();
    activateWindow();
}

void frmMain::AutoRunAtStart() {
    const QSignalBlocker quiet(m_controls.chkAutoRun);
    m_controls.chkAutoRun->setChecked(true);
    PlayArcade();
}

void frmMain::StartScrolling() {
    // The information line arrives with the information panel.
}

void frmMain::PanelTooltips() {
    const char* const tips[] = {"Total Machines",
                                "Machine",
                                "Name",
                                "",
                                "Main Orientation: H = Horizontal   V = Vertical   U = Unknown",
                                "Set Type: P = Parent   C = Clone",
                                "Settings Used If Available"};
    for (std::size_t i = 0; i < m_controls.lblPanel.size(); ++i) {
        m_controls.lblPanel[i]->setToolTip(QString::fromLatin1(tips[i]));
    }
}

bool frmMain::eventFilter(QObject* watched, QEvent* event) {
    if (watched == m_controls.lblStartTime && event->type() == QEvent::MouseButtonRelease) {
        const double seconds = m_context.readyTimer - m_context.startTimer;
        m_prompter.Message(QStringLiteral("Start-Up Time"),
                           QString::number(static_cast<long long>(seconds + 0.5)) +
                               QStringLiteral(" Second(s)"),
                           PromptIcon::Information);
        return true;
    }
    return QMainWindow::eventFilter(watched, event);
}

void frmMain::DisableFormButtons() {
    const MainControls& c = m_controls;
    for (QWidget* control :
         {static_cast<QWidget*>(c.cmdArcadeSettings), static_cast<QWidget*>(c.cmdOtherSettings),
          static_cast<QWidget*>(c.cmdFind), static_cast<QWidget*>(c.lblBLinks[LinkArcadeSettings]),
          static_cast<QWidget*>(c.lblBLinks[LinkOtherSettings]),
          static_cast<QWidget*>(c.lblBLinks[LinkFind])}) {
        control->setEnabled(false);
    }
    SetFamilyCheckBoxes(false);
}

void frmMain::ShowPleaseWait(const QString& line1, const QString& line2) {
    const MainControls& c = m_controls;
    c.lblRefresh[0]->setText(line1);
    c.lblRefresh[3]->setText(line2);
    for (int i : {1, 2, 4}) {
        c.lblRefresh[static_cast<std::size_t>(i)]->clear();
    }
    ShowPage(c.fraPleaseWait);
    c.fraPleaseWait->repaint();
}

void frmMain::PanelTextHide() {
    for (QLabel* label : m_controls.lblPanel) {
        label->clear();
    }
}

void frmMain::ShowPage(QWidget* page) {
    m_controls.pages->setCurrentWidget(page);
}

void frmMain::SetFamilyCheckBoxes(bool visible) {
    const MainControls& c = m_controls;
    for (QCheckBox* box : {c.chkAutoSave, c.chkAutoRun, c.chkRecord, c.chkPlayback}) {
        box->setVisible(visible);
    }
}

void frmMain::SetStartCommands(bool enabled) {
    m_controls.cmdStart->setEnabled(enabled);
    m_controls.lblBLinks[LinkStart]->setEnabled(enabled);
}

void frmMain::SetLinksOrButtons() {
    const MainControls& c = m_controls;
    const bool links = m_context.preferences.other.useLinks;
    const std::pair<QWidget*, int> twins[] = {{c.cmdArcadeSettings, LinkArcadeSettings},
                                              {c.cmdOtherSettings, LinkOtherSettings},
                                              {c.cmdFind, LinkFind},
                                              {c.cmdExit, LinkExit},
                                              {c.cmdStart, LinkStart},
                                              {c.cmdAudit, LinkAudit},
                                              {c.cmdInfo, LinkInfo},
                                              {c.cmdGameList, LinkReturnList1}};
    for (const auto& [button, link] : twins) {
        button->setVisible(!links);
        c.lblBLinks[static_cast<std::size_t>(link)]->setVisible(links);
    }
    ShowMenuStyle();
    c.verifyPage->SetUseLinks(links);
    c.maintenancePage->SetUseLinks(links);
}

void frmMain::EmptyTempFolder() {
    std::error_code error;
    for (const auto& entry : std::filesystem::directory_iterator(m_context.data.Temp(), error)) {
        if (entry.is_regular_file(error)) {
            std::filesystem::remove(entry.path(), error);
        }
    }
}

void frmMain::UnloadAllForms() {
    if (!m_splash.isNull()) {
        m_splash->close();
        delete m_splash;
    }
    if (!m_cover.isNull()) {
        m_cover->close();
        delete m_cover;
    }
}

void frmMain::showEvent(QShowEvent* event) {
    QMainWindow::showEvent(event);
    // The frame exists only once the window is up.
    QMetaObject::invokeMethod(this, &frmMain::KeepOnScreen, Qt::QueuedConnection);
    // The maker's own machine shows his two tools; nobody else's does.
    const bool maker =
        IsMaintainerMachine(ProcessEnvironment(), QSysInfo::machineHostName().toStdString());
    m_controls.lblClrMAME->setVisible(maker);
    m_controls.cmdDebug->setVisible(maker);
    if (m_activatedOnce) {
        return;
    }
    m_activatedOnce = true;
    if (m_openOptionsOnActivate) {
        m_openOptionsOnActivate = false;
        // After the window is up: a modal dialog before it would open over nothing.
        QMetaObject::invokeMethod(this, &frmMain::Options, Qt::QueuedConnection);
    }
}

void frmMain::keyPressEvent(QKeyEvent* event) {
    if (event->key() != Qt::Key_Return && event->key() != Qt::Key_Enter) {
        QMainWindow::keyPressEvent(event);
        return;
    }
    QWidget* page = m_controls.pages->currentWidget();
    if (page == m_controls.fraList) {
        LinkClicked(LinkStart);
    } else if (page == m_controls.fraDefaults) {
        OK();
    } else if (page == m_controls.fraVerify) {
        if (m_controls.cmdGameList->isEnabled()) { // not while a report is being made
            ReturnList1();
        }
    } else if (page == m_controls.fraMaintenance) {
        ReturnList2();
    }
}

void frmMain::closeEvent(QCloseEvent* event) {
    if (m_verifyRunning) {
        // MAME is stopped first; the window closes when the verification has ended.
        m_closeAfterVerify = true;
        CancelVerify();
        event->ignore();
        return;
    }
    // A settings screen on show turns Exit into Cancel: then nothing is cleaned or saved.
    const bool settingsOpen = m_controls.cmdExit->text() == QStringLiteral("&Cancel") ||
                              m_controls.lblBLinks[LinkExit]->Caption() == QStringLiteral("Cancel");
    if (!settingsOpen) {
        EmptyTempFolder();
        const ControlFlags& flags = m_context.flags;
        const auto options = m_context.data.OptionsIni();
        if (!flags.fatalErrorFlag && !flags.closeRequested && FileExists(options)) {
            m_context.preferences.view.windowState = isMaximized() ? 2 : 0;
            for (MachineListView* list : {m_controls.lvAll, m_controls.lvAvailable,
                                          m_controls.lvUnavailable, m_controls.lvOther}) {
                const MachineRow* row = list->SelectedMachine();
                SavedStateOf(*list).key =
                    row != nullptr ? "k." + std::string(row->ShortName()) : std::string();
            }
            std::string error;
            if (!SaveViewState(options, m_context.preferences, &error)) {
                m_prompter.Inform(QString::fromStdString(error), PromptIcon::Warning);
            }
        }
    }
    UnloadAllForms();
    event->accept();
}

} // namespace coinlight
