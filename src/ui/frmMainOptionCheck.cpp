// Which options the MAME in use really takes: asked of MAME at a new catalogue and from the
// Tools menu, shown on the text page, and named beside the values MAME refused after a run.
#include <QApplication>

#include "Prompter.h"
#include "frmMain.h"
#include "settings/MameOptionsCapture.h"
#include "settings/OptionSupport.h"

namespace coinlight {

std::unique_ptr<MameOptionsCapture> frmMain::AskMameForOptions() const {
    const Preferences& preferences = m_context.preferences;
    return std::make_unique<MameOptionsCapture>(preferences.searchPaths.mame,
                                                preferences.mame.executable, m_context.data);
}

void frmMain::CheckMameOptions() {
    QAction* entry = m_controls.mnuToolsCheckOptions;
    entry->setEnabled(false);
    QApplication::setOverrideCursor(Qt::WaitCursor);
    std::string error;
    const auto known = AskMameForOptions()->Finish([this] { Pump(); }, &error);
    QApplication::restoreOverrideCursor();
    entry->setEnabled(true);
    if (!known) {
        m_prompter.Inform(QStringLiteral("Coinlight could not learn which options this MAME "
                                         "takes.\n") +
                              QString::fromStdString(error),
                          PromptIcon::Warning);
        return;
    }
    m_controls.fraVerify->setTitle(QStringLiteral("MAME Options"));
    m_controls.rtfVerify->setPlainText(QString::fromStdString(MameOptionsReport(*known)));
    ShowPage(m_controls.fraVerify);
    m_controls.cmdGameList->setFocus();
}

std::vector<std::string> frmMain::UnsupportedSettingsControls() const {
    const auto known = KnownMameOptions::Read(MameOptionsFile(m_context.data));
    return known ? UnsupportedControls(*known) : std::vector<std::string>();
}

} // namespace coinlight
