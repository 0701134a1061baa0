// The maker's two authoring tools, shown on his own machine only.
#include <QApplication>
#include <QSysInfo>

#include "Prompter.h"
#include "core/AppFolders.h"
#include "core/TextFile.h"
#include "core/ValueText.h"
#include "frmMain.h"
#include "tools/CatverMaker.h"
#include "tools/ClrMameFiles.h"
#include "tools/MaintainerPaths.h"
#include "tools/MameVersion.h"

namespace coinlight {

namespace {

bool PumpEvents() {
    QApplication::processEvents();
    return true;
}

} // namespace

void frmMain::CreateCatver() {
    if (m_prompter.Message(QString::fromLatin1(kCreateCatverTitle),
                           QString::fromLatin1(kCreateCatverQuestion), PromptIcon::None,
                           PromptButtons::OkCancel) != PromptAnswer::Ok) {
        return;
    }
    const Preferences& preferences = m_context.preferences;
    const std::string version =
        MameVersion(preferences.searchPaths.mame, preferences.mame.executable,
                    m_context.data.Temp(), PumpEvents);
    if (version.empty()) {
        return;
    }
    QApplication::setOverrideCursor(Qt::WaitCursor);
    const auto made = MakeCatverFromFiles(
        m_context.data.Output() / "machine.xml", m_context.data.Support() / "lists.txt",
        m_context.data.Support() / "catver.ini", version, DayText(Today()));
    QApplication::restoreOverrideCursor();
    std::string error;
    const auto desktop = MaintainerDesktop(ProcessEnvironment());
    if (const auto* failure = std::get_if<std::string>(&made)) {
        error = *failure;
    } else {
        std::error_code ignored;
        std::filesystem::create_directories(desktop, ignored);
        WriteFileBytes(desktop / "catver.ini", std::get<MadeCatver>(made).text, &error);
    }
    if (!error.empty()) {
        m_prompter.Message(QStringLiteral("Coinlight"),
                           QStringLiteral("Error In cmdDebug_Click: ") +
                               QString::fromStdString(error),
                           PromptIcon::Critical);
        return;
    }
    m_controls.lblScroll->setText(QString::fromStdString((desktop / "catver.ini").string()));
}

void frmMain::CreateClrMAMEFiles() {
    ClrMameRequest request;
    request.dataFolder = m_context.data.root;
    request.toolFolder = ClrMameFolder(ProcessEnvironment());
    request.progress = [this](const char* stage) {
        m_controls.lblScroll->setText(QString::fromLatin1(stage));
        m_controls.lblScroll->repaint();
    };
    QApplication::setOverrideCursor(Qt::WaitCursor);
    const ClrMameOutcome outcome = coinlight::CreateClrMAMEFiles(request);
    QApplication::restoreOverrideCursor();
    m_controls.lblScroll->clear();
    for (const ClrMameMessage& message : outcome.messages) {
        m_prompter.Message(QString::fromStdString(message.title),
                           QString::fromStdString(message.text),
                           message.information ? PromptIcon::Information : PromptIcon::Critical);
    }
}

} // namespace coinlight
