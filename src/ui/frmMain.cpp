#include "frmMain.h"

#include <QCloseEvent>
#include <QGuiApplication>
#include <QScreen>
#include <QVBoxLayout>

#include "Prompter.h"
#include "core/AppFolders.h"
#include "core/FileTests.h"
#include "core/OptionsIni.h"
#include "frmCover.h"
#include "frmSplash.h"

namespace coinlight {

namespace {

constexpr int kDesignedWidth = 1100;
constexpr int kDesignedHeight = 720;

QFrame* AddFrame(QWidget* parent, QLayout* layout, const char* name) {
    auto* frame = new QFrame(parent);
    frame->setObjectName(QString::fromLatin1(name));
    layout->addWidget(frame);
    return frame;
}

QString ToQString(const std::filesystem::path& path) {
    return QString::fromStdString(path.string());
}

} // namespace

frmMain::frmMain(AppContext& context, Prompter& prompter, QWidget* parent)
    : QMainWindow(parent), m_context(context), m_prompter(prompter) {
    setObjectName(QStringLiteral("frmMain"));
    setWindowTitle(QStringLiteral("Coinlight"));
    BuildForm();
}

frmMain::~frmMain() {
    UnloadAllForms();
}

void frmMain::BuildForm() {
    auto* central = new QWidget(this);
    auto* layout = new QVBoxLayout(central);
    m_fraList = AddFrame(central, layout, "fraList");
    m_fraVerify = AddFrame(central, layout, "fraVerify");
    m_fraDefaults = AddFrame(central, layout, "fraDefaults");
    m_fraMaintenance = AddFrame(central, layout, "fraMaintenance");
    m_fraVerify->hide();
    m_fraDefaults->hide();
    m_fraMaintenance->hide();
    auto* listLayout = new QVBoxLayout(m_fraList);
    m_lblStatus = new QLabel(m_fraList);
    m_lblStatus->setObjectName(QStringLiteral("lblStatus"));
    m_lblStatus->setAlignment(Qt::AlignCenter);
    m_lblStatus->setWordWrap(true);
    listLayout->addWidget(m_lblStatus);
    setCentralWidget(central);
}

frmSplash& frmMain::Splash() {
    if (m_splash.isNull()) {
        m_splash = new frmSplash(m_context.appFolder);
    }
    return *m_splash;
}

void frmMain::CentreOnScreen() {
    resize(kDesignedWidth, kDesignedHeight);
    const QScreen* screen = QGuiApplication::primaryScreen();
    if (screen != nullptr) {
        const QRect available = screen->availableGeometry();
        move(available.center() - rect().center());
    }
    m_normalGeometry = geometry();
}

bool frmMain::FormLoad() {
    ControlFlags& flags = m_context.flags;
    flags.formLoading = true;
    CentreOnScreen();
    const EnvironmentLookup environment = ProcessEnvironment();
    m_context.os = environment("OS").value_or("");
    m_context.facts.ideMode = IsIdeMode(environment);
    m_context.facts.hasCatver = FileExists(m_context.data.Support() / "catver.ini");

    const bool ok = PrepareFolders() && LoadOptions();
    flags.formLoading = false;
    if (!ok || flags.fatalErrorFlag || flags.closeRequested) {
        UnloadAllForms();
        return false;
    }
    if (!m_splash.isNull()) {
        m_splash->close();
    }
    ShowCover();
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
    InstallSupportFiles(FindDistributionSupport(m_context.appFolder), m_context.data);
    m_context.markers = ReadMarkerFlags(m_context.data);
    return true;
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
    const OptionsReadResult result = ReadOptionsIni(file, m_context.preferences);
    switch (result.status) {
    case OptionsReadStatus::VersionTooOld:
        if (!m_prompter.AskYesNo(QString::fromLatin1(kOptionsRecreateQuestion))) {
            m_context.flags.closeRequested = true;
            return false;
        }
        DiscardOptions(file, m_context.preferences);
        startOver = true;
        return true;
    case OptionsReadStatus::Problem:
        RecoverFromBadOptions();
        startOver = true;
        return true;
    case OptionsReadStatus::Ok:
        break;
    }
    if (m_context.preferences.mame.mameExeSize == 0) {
        RecoverFromBadOptions();
        startOver = true;
        return true;
    }
    if (m_context.preferences.view.windowState == 2) {
        setWindowState(Qt::WindowMaximized);
    }
    m_lblStatus->setText(QStringLiteral("MAME: ") +
                         QString::fromStdString(m_context.preferences.searchPaths.mame));
    return true;
}

void frmMain::RecoverFromBadOptions() {
    DiscardOptions(m_context.data.OptionsIni(), m_context.preferences);
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
    return !m_context.flags.closeRequested;
}

bool frmMain::ShowOptionsAtFirstRun() {
    // Until the Options dialog exists there is nothing to set up with: say so plainly.
    m_lblStatus->setText(
        QStringLiteral("Coinlight has not been set up yet: Options will ask where MAME is."));
    return !m_context.flags.fatalErrorFlag;
}

void frmMain::FatalLoadError(const QString& description, int statement) {
    m_prompter.Message(QStringLiteral("Coinlight"),
                       QStringLiteral("Error In Form_Load: ") + description +
                           QStringLiteral("\nLine Number: ") + QString::number(statement),
                       PromptIcon::Critical);
    m_context.flags.closeRequested = true;
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
    setWindowState((windowState() & ~Qt::WindowMinimized) | Qt::WindowActive);
    show();
    raise();
    activateWindow();
}

void frmMain::AutoRunAtStart() {
    // Starting a machine arrives with the launch code; until then there is nothing to run.
}

void frmMain::NewsAtStart() {
    // Without a project site address there is no news to fetch, and the step is silent.
}

void frmMain::StartScrolling() {
    // The information line arrives with the list views.
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

void frmMain::closeEvent(QCloseEvent* event) {
    EmptyTempFolder();
    const ControlFlags& flags = m_context.flags;
    const auto options = m_context.data.OptionsIni();
    if (!flags.fatalErrorFlag && !flags.closeRequested && FileExists(options)) {
        m_context.preferences.view.windowState = isMaximized() ? 2 : 0;
        std::string error;
        if (!SaveViewState(options, m_context.preferences, &error)) {
            m_prompter.Inform(QString::fromStdString(error), PromptIcon::Warning);
        }
    }
    UnloadAllForms();
    event->accept();
}

} // namespace coinlight
