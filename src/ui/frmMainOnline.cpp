// The online commands: the news, the update check, and the artwork and samples downloads.
#include <QApplication>
#include <QEventLoop>
#include <QTextCursor>
#include <QTimer>

#include "MachineListView.h"
#include "Prompter.h"
#include "UserMessagePrompt.h"
#include "core/AtomicFileWriter.h"
#include "core/BeepTune.h"
#include "core/CommandLine.h"
#include "core/PreferenceKeys.h"
#include "core/ProfileFile.h"
#include "frmMain.h"
#include "online/NewsText.h"
#include "online/UpdateCheck.h"
#include "ui/online/DownloadPage.h"

namespace coinlight {

namespace {

/// The hourglass, which some steps put back before the routine ends.
class Hourglass {
public:
    Hourglass() { QApplication::setOverrideCursor(Qt::WaitCursor); }
    ~Hourglass() { Restore(); }
    Hourglass(const Hourglass&) = delete;
    Hourglass& operator=(const Hourglass&) = delete;

    void Restore() {
        if (m_on) {
            QApplication::restoreOverrideCursor();
            m_on = false;
        }
    }

private:
    bool m_on = true;
};

/// Marks an online command as running for as long as it lives.
class BusyMark {
public:
    explicit BusyMark(bool& busy) : m_busy(busy) { m_busy = true; }
    ~BusyMark() { m_busy = false; }
    BusyMark(const BusyMark&) = delete;
    BusyMark& operator=(const BusyMark&) = delete;

private:
    bool& m_busy;
};

void Inform(Prompter& prompter, const char* title, const char* text) {
    prompter.Message(QString::fromLatin1(title), QString::fromLatin1(text),
                     PromptIcon::Information);
}

void BeepTune() {
    for (const Tone& tone : kBeepTune) {
        QApplication::beep();
        QEventLoop pause;
        QTimer::singleShot(tone.milliseconds, &pause, &QEventLoop::quit);
        pause.exec();
    }
}

std::vector<std::string> ShortNamesOf(const MachineListView& list) {
    std::vector<std::string> names;
    const MachineListModel& model = list.Model();
    names.reserve(static_cast<std::size_t>(model.rowCount()));
    for (int row = 0; row < model.rowCount(); ++row) {
        names.emplace_back(model.Row(row)->ShortName());
    }
    return names;
}

} // namespace

std::string frmMain::FetchNews() {
    if (m_sites.project.empty()) {
        return {};
    }
    return m_internet.GetUrlText(SiteUrl(m_sites.project, "/news.txt"));
}

void frmMain::News() {
    if (m_onlineBusy) {
        return;
    }
    const BusyMark busy(m_onlineBusy);
    QApplication::processEvents();
    Hourglass hourglass;
    const std::string text = FetchNews();
    if (text.empty()) {
        hourglass.Restore();
        Inform(m_prompter, kNewsTitle, kNewsUnavailable);
        return;
    }
    const auto date = NewsDate(text);
    if (!date) {
        hourglass.Restore();
        ShowMessage(m_prompter,
                    OnlineCommandError("News", kNewsTitle,
                                       "Type mismatch: the news does not begin with a date (\"" +
                                           text.substr(0, 8) + "\")."));
        return;
    }
    ShowNewsPage(text, false);
    std::string error;
    if (!StoreNewsDate(*date, &error)) {
        hourglass.Restore();
        ShowMessage(m_prompter, OnlineCommandError("News", kNewsTitle, error));
        return;
    }
    FocusAfterNews();
}

void frmMain::NewsAtStart() {
    // Without a site there is nothing to fetch, and the start says nothing about it.
    if (m_sites.project.empty() || m_onlineBusy) {
        return;
    }
    const BusyMark busy(m_onlineBusy);
    Hourglass hourglass;
    const std::string text = FetchNews();
    if (text.empty()) {
        hourglass.Restore();
        Inform(m_prompter, kNewsTitle, kNewsUnavailable);
        return;
    }
    const StartupNewsDecision decision =
        DecideStartupNews(text, m_context.preferences.miscellaneous.news);
    if (decision.verdict != StartupNewsVerdict::Show) {
        return;
    }
    ShowNewsPage(text, true);
    FocusAfterNews();
    // A news that could not be noted shows again next time, which is all that can go wrong.
    StoreNewsDate(decision.dateToStore, nullptr);
}

void frmMain::ShowNewsPage(const std::string& text, bool greet) {
    const MainControls& c = m_controls;
    PanelTextHide();
    c.picIcon->hide();
    c.lblScroll->clear();
    c.lblArtwork->hide();
    ShowPage(c.fraVerify);
    DisableFormButtons();
    c.fraVerify->setTitle(QString::fromLatin1(kNewsTitle));
    c.fraVerify->repaint();
    if (greet) {
        BeepTune();
    }
    c.rtfVerify->setPlainText(QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size())));
    QTextCursor date(c.rtfVerify->document());
    date.movePosition(QTextCursor::NextCharacter, QTextCursor::KeepAnchor, kNewsBoldLength);
    QTextCharFormat bold;
    bold.setFontWeight(QFont::Bold);
    date.mergeCharFormat(bold);
    c.rtfVerify->moveCursor(QTextCursor::Start);
}

bool frmMain::StoreNewsDate(Day date, std::string* error) {
    const auto options = m_context.data.OptionsIni();
    if (!WriteProfileValue(options, kSectionMiscellaneous, kKeyNews, DayText(date), error) ||
        !INISpacing(options, error)) {
        return false;
    }
    m_context.preferences.miscellaneous.news = date;
    return true;
}

void frmMain::FocusAfterNews() {
    if (!m_context.preferences.other.useLinks) {
        m_controls.cmdGameList->setFocus();
    }
    m_controls.lblScroll->setToolTip({});
}

void frmMain::Update() {
    if (m_onlineBusy) {
        return;
    }
    const BusyMark busy(m_onlineBusy);
    QApplication::processEvents();
    Hourglass hourglass;
    m_internet.SetFirstChunkOnly();
    const std::string head = FetchNews();
    if (head.empty()) {
        hourglass.Restore();
        Inform(m_prompter, kUpdateTitle, kUpdateUnavailable);
        return;
    }
    const RemoteVersion version = ReadRemoteVersion(head);
    hourglass.Restore();
    if (!version.number) {
        ShowMessage(m_prompter, OnlineCommandError("Update", kUpdateTitle, version.error));
        return;
    }
    if (const auto verdict = UpdateVerdict(*version.number, OwnVersionNumber(), m_sites.project)) {
        ShowMessage(m_prompter, *verdict);
    }
}

bool frmMain::DownloadCancelled() const {
    return m_closeWatch.Closed() || m_controls.fraDownload->CancelRequested();
}

void frmMain::ArtSamDownload() {
    DownloadPage& page = *m_controls.fraDownload;
    Hourglass hourglass;
    const auto kind = page.ChosenKind();
    if (!kind || m_onlineBusy) {
        return;
    }
    const std::string& site = *kind == AssetKind::Artwork ? m_sites.artwork : m_sites.samples;
    if (site.empty()) {
        hourglass.Restore();
        m_prompter.Inform(*kind == AssetKind::Artwork
                              ? QStringLiteral("No artwork download site is set "
                                               "(COINLIGHT_ARTWORK_SITE).")
                              : QStringLiteral("No samples download site is set "
                                               "(COINLIGHT_SAMPLES_SITE)."),
                          PromptIcon::Information);
        return;
    }
    const BusyMark busy(m_onlineBusy);
    // Taken once: a list refreshed during the job must not move under it.
    const std::vector<std::string> names = ShortNamesOf(*m_controls.lvAll);
    const Preferences& preferences = m_context.preferences;
    const MameRun mame{preferences.searchPaths.mame, preferences.mame.executable,
                       preferences.searchPaths.ini};
    const auto cancelled = [this] {
        return DownloadCancelled();
    };

    BulkDownloadSteps steps;
    steps.showStatus = [&page](const std::string& status) {
        page.ShowStatus(QString::fromStdString(status));
    };
    steps.download = [this, &cancelled](const std::string& url, const std::filesystem::path& file) {
        return m_internet.DownloadToFile(url, file, cancelled);
    };
    steps.askSamples = [this, &mame, &cancelled](const std::string& name) {
        return AskMameForSamples(mame, name, m_context.data, [&cancelled] {
            QApplication::processEvents();
            return !cancelled();
        });
    };
    steps.cancelled = [&cancelled] {
        // Between machines too, so that a run of quick answers never starves the window.
        QApplication::processEvents();
        return cancelled();
    };

    page.SetRunning(true);
    const BulkDownloadResult result = RunBulkDownload(*kind, names, site, m_context.data, steps);
    page.SetRunning(false);
    hourglass.Restore();
    if (result.error) {
        m_prompter.Inform(QString::fromStdString(*result.error), PromptIcon::Critical);
        if (result.fatal) {
            m_context.flags.fatalErrorFlag = true;
            close();
        }
    }
}

DownloadOutcome frmMain::DownloadArtworkFor(const std::string& name) {
    if (!IsShortName(name) || m_cabinetPath.empty()) {
        return DownloadOutcome::Failed;
    }
    RemoveOrphanedTemporaries(m_cabinetPath);
    const std::string file = name + ".zip";
    return m_internet.DownloadToFile(ArtworkUrl(m_sites.artwork, file),
                                     std::filesystem::path(m_cabinetPath) / file,
                                     [this] { return m_closeWatch.Closed(); });
}

void frmMain::AvailableDoubleClick() {
    const std::string name = m_controls.lblPanel[2]->text().toStdString();
    // Without an artwork site there is no download to ask for, and the click starts as usual.
    const bool download = m_shiftDown.Down() && !name.empty() && !m_sites.artwork.empty() &&
                          m_controls.lblArtwork->isHidden() && !m_onlineBusy;
    if (!download) {
        PlayArcade();
        m_shiftDown.Clear();
        return;
    }
    const BusyMark busy(m_onlineBusy);
    QLabel* status = m_controls.lblPanel[1];
    status->setText(QStringLiteral(" Attempting To Download Artwork"));
    status->repaint();
    m_shiftDown.Clear();
    Hourglass hourglass;
    const DownloadOutcome outcome = DownloadArtworkFor(name);
    status->setText(outcome == DownloadOutcome::Succeeded ? QStringLiteral(" Download Successful")
                                                          : QStringLiteral(" Download Failed"));
    hourglass.Restore();
    m_shiftDown.Clear();
}

void frmMain::UnavailableDoubleClick() {
    m_prompter.Message(QStringLiteral("Start"), QStringLiteral("This ROM is unavailable."),
                       PromptIcon::Information);
    m_shiftDown.Clear();
}

} // namespace coinlight
