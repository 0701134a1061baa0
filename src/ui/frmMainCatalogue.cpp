// Rebuilding the catalogue when MAME or the support files changed, and keeping the
// favourites in step with it.
#include <QApplication>
#include <QElapsedTimer>

#include "MachineListView.h"
#include "Prompter.h"
#include "catalogue/AddCatver.h"
#include "catalogue/CatalogueProgress.h"
#include "catalogue/CreateSupportFiles.h"
#include "catalogue/RebuildFromMame.h"
#include "catalogue/RunMAMEList.h"
#include "catalogue/SoftwareCatalogue.h"
#include "core/FileTests.h"
#include "core/PreferenceKeys.h"
#include "core/ProfileFile.h"
#include "frmMain.h"
#include "frmSplash.h"
#include "lists/Favorites.h"
#include "settings/MameOptionsCapture.h"

namespace coinlight {

namespace {

/// Puts the catalogue's progress where the user looks: on the splash while it is up, on
/// the main window's please-wait labels after the start.
class FormCatalogueProgress final : public CatalogueProgress {
public:
    /// `splash`: the splash when it is up, else nothing.
    FormCatalogueProgress(frmSplash* splash, const MainControls& controls)
        : m_splash(splash), m_controls(controls) {}

    void ShowCapture(std::string_view text) override {
        if (m_splash != nullptr) {
            m_splash->SetOtherCaption(QStringLiteral("Please stand by..."));
        }
        ShowStep(text);
    }
    void ShowStep(std::string_view text) override {
        if (m_splash != nullptr) {
            m_splash->SetMessage(Text(text));
        } else {
            Set(1, Text(text));
        }
    }
    void ShowCountsHeading(std::string_view text) override {
        if (m_splash != nullptr) {
            m_splash->SetOtherCaption(Text(text));
        } else {
            Set(1, Text(text));
        }
    }
    void ShowArcadeCount(std::int32_t count) override {
        if (m_splash != nullptr) {
            m_splash->SetArcadeCount(QString::number(count));
        } else {
            Set(4, QString::number(count));
        }
    }
    void ShowOtherCount(std::int32_t count) override {
        if (m_splash != nullptr) {
            m_splash->SetOtherCount(QString::number(count));
        } else {
            Set(2, QString::number(count));
        }
    }
    void ClearStep() override {
        if (m_splash != nullptr) {
            m_splash->SetMessage({});
        }
        Set(1, {});
        Set(2, {});
    }
    void ShowCatverMerge(std::string_view heading, std::string_view text,
                         std::string_view note) override {
        if (m_splash != nullptr) {
            m_splash->SetMessage(Text(text));
            m_splash->SetMessageOptions(Text(note));
        } else {
            Set(0, Text(heading));
            Set(1, Text(text));
        }
    }
    void ClearCatverMerge() override {
        if (m_splash != nullptr) {
            m_splash->SetMessage({});
            m_splash->SetMessageOptions({});
        }
    }
    void Pump() override {
        if (!m_sinceLast.isValid() || m_sinceLast.elapsed() > 100) {
            QApplication::processEvents();
            m_sinceLast.restart();
        }
    }

private:
    static QString Text(std::string_view text) {
        return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
    }
    void Set(std::size_t label, const QString& text) {
        m_controls.lblRefresh[label]->setText(text);
        m_controls.lblRefresh[label]->repaint();
    }

    frmSplash* m_splash;
    const MainControls& m_controls;
    QElapsedTimer m_sinceLast;
};

} // namespace

frmSplash* frmMain::SplashIfUp() const {
    frmSplash* splash = m_splash.data();
    return splash != nullptr && splash->isVisible() ? splash : nullptr;
}

bool frmMain::ShowCatalogueOutcome(const CatalogueOutcome& outcome) {
    for (const auto& message : outcome.messages) {
        m_prompter.Inform(QString::fromStdString(message.text),
                          message.critical ? PromptIcon::Critical : PromptIcon::Information);
    }
    if (outcome.fatalError) {
        m_context.flags.fatalErrorFlag = true;
    }
    return !outcome.fatalError;
}

bool frmMain::CreateCatalogueFiles() {
    FormCatalogueProgress progress(SplashIfUp(), m_controls);
    const SupportFilesResult result =
        CreateSupportFiles(CatalogueSourcesIn(m_context.data, m_context.facts.hasCatver), progress);
    return ShowCatalogueOutcome(result.outcome);
}

bool frmMain::RebuildCatalogue(bool newMame) {
    ControlFlags& flags = m_context.flags;
    flags.listsRegenerating = true;
    if (newMame) {
        Splash().show();
        m_openOptionsOnActivate = true;
        Splash().SetMessageOptions(QStringLiteral("Different version of MAME detected!"));
        for (const char* file : {"machine.xml", "software.xml"}) {
            if (const auto problem = BackupMAMEFile(file, m_context.data)) {
                m_prompter.Inform(QString::fromStdString(*problem), PromptIcon::Warning);
            }
        }
    }
    // MAME's two lists are made at once, and the catalogue as the machine list arrives.
    const MameProgram mame{m_context.preferences.searchPaths.mame,
                           m_context.preferences.mame.executable};
    // What the MAME takes is asked at the same time, and kept for the settings screens.
    const auto options = AskMameForOptions();
    FormCatalogueProgress progress(SplashIfUp(), m_controls);
    const SupportFilesResult result =
        RebuildFromMame(mame, m_context.data, m_context.facts.hasCatver, progress, [&] {
            if (newMame) {
                Splash().SetMessageOptions(
                    QStringLiteral("When Options opens, press OK to re-save your selections."));
            }
        });
    const bool created = ShowCatalogueOutcome(result.outcome);
    if (created) {
        // A MAME that cannot tell leaves the last answer; nobody needs to hear of it.
        options->Finish([&progress] { progress.Pump(); });
    }
    if (created && newMame) {
        PurgeAllFavorites();
        std::error_code ignored;
        std::filesystem::remove(m_context.data.Output() / "changedroms.txt", ignored);
        coinlight::KillSoftsOther(m_context.data.Software(), "");
    }
    flags.listsRegenerating = false;
    return created && !flags.fatalErrorFlag;
}

bool frmMain::RebuildFromLists() {
    m_context.flags.listsRegenerating = true;
    const bool created = CreateCatalogueFiles();
    m_context.flags.listsRegenerating = false;
    return created;
}

bool frmMain::MergeCategories() {
    for (const auto& [info, favourites, word] :
         {std::tuple{"arcadeinfo.txt", "arcadefavs.txt", "Arcade"},
          std::tuple{"otherinfo.txt", "otherfavs.txt", "Other"}}) {
        FormCatalogueProgress progress(SplashIfUp(), m_controls);
        if (!ShowCatalogueOutcome(AddCatver(info, m_context.data, progress))) {
            return false;
        }
        if (FileExists(m_context.data.Output() / favourites)) {
            PurgeFavoritesOf(word);
        }
    }
    return true;
}

bool frmMain::PurgeAllFavorites() {
    PurgeFavoritesOf("Arcade");
    PurgeFavoritesOf("Other");
    return !m_context.flags.fatalErrorFlag;
}

void frmMain::PurgeFavoritesOf(const std::string& word) {
    const bool arcade = word == "Arcade";
    const std::string family = arcade ? "arcade" : "other";
    const auto output = m_context.data.Output();
    if (!FileExists(output / (family + "favs.txt"))) {
        return;
    }
    const QString status =
        QStringLiteral("Verifying %1 favorites list...").arg(QString::fromStdString(word));
    if (frmSplash* splash = SplashIfUp()) {
        splash->SetMessage(status);
    } else {
        m_controls.lblRefresh[1]->setText(status);
        m_controls.lblRefresh[1]->repaint();
    }
    const PurgeOutcome outcome =
        PurgeFavorites(output / (family + "favs.txt"), output / (family + "info.txt"),
                       output / (family + "favschanges.txt"), word);
    for (const auto& message : outcome.messages) {
        m_prompter.Message(QString::fromStdString(message.title),
                           QString::fromStdString(message.text),
                           message.information ? PromptIcon::Information : PromptIcon::None);
    }
    if (!outcome.error.empty()) {
        m_prompter.Inform(QString::fromStdString(outcome.error), PromptIcon::Warning);
    }
    if (outcome.nowEmpty) {
        ViewPreferences& view = m_context.preferences.view;
        (arcade ? view.favoriteArcade : view.favoriteOther) = false;
        (arcade ? m_controls.mnuViewArcadeFavorites : m_controls.mnuViewOtherFavorites)
            ->setChecked(false);
        ProfileEditor editor(m_context.data.OptionsIni());
        editor.Set(kSectionView, arcade ? "Favorite Arcade" : "Favorite Other", BoolText(false));
        editor.Commit(true);
    }
    if (!m_splash.isNull()) {
        m_splash->SetMessage({});
    }
    m_controls.lblRefresh[1]->clear();
    m_controls.lblRefresh[2]->clear();
}

} // namespace coinlight
