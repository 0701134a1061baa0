#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QKeyEvent>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>

#include "OptionsDialogFixture.h"

namespace coinlight::test {
namespace {

QStringList Checked(QListWidget* list) {
    QStringList rows;
    for (int index = 0; index < list->count(); ++index) {
        if (list->item(index)->checkState() == Qt::Checked) {
            rows << list->item(index)->text();
        }
    }
    return rows;
}

void Check(QListWidget* list, const QString& row) {
    const auto found = list->findItems(row, Qt::MatchExactly);
    ASSERT_EQ(found.size(), 1) << row.toStdString();
    found.front()->setCheckState(Qt::Checked);
}

class OptionsPreferences : public OptionsDialog {
protected:
    void WithCatalogueFiles() {
        std::filesystem::copy_file(FixturesFolder() / "options" / "biosfilter.txt",
                                   m_context.data.Output() / "biosfilter.txt");
        std::filesystem::create_directories(m_context.data.Support());
        std::filesystem::copy_file(FixturesFolder() / "options" / "catver.ini",
                                   m_context.data.Support() / "catver.ini");
    }

    QListWidget* Bios(frmOptions& form) { return Find<QListWidget>(form, "lstBIOS"); }
    QListWidget* Categories(frmOptions& form) { return Find<QListWidget>(form, "lstCategory"); }
    QCheckBox* Box(frmOptions& form, const char* name) { return Find<QCheckBox>(form, name); }
};

TEST_F(OptionsPreferences, BeforeTheFirstCatalogueBothListsWarnAndRest) {
    m_context.facts.hasCatver = true;
    auto form = Open();
    EXPECT_FALSE(Bios(*form)->isEnabled());
    EXPECT_FALSE(Categories(*form)->isEnabled());
    EXPECT_TRUE(Find<QLabel>(*form, "lblBIOSWarning")
                    ->text()
                    .startsWith("The BIOS Filter will not populate until Coinlight creates"));
    EXPECT_TRUE(Find<QLabel>(*form, "lblCategoryWarning")
                    ->text()
                    .startsWith("The Category Filter will not populate unless catver.ini"));
    EXPECT_FALSE(m_context.facts.hasCatver);
}

TEST_F(OptionsPreferences, TheListsFillFromTheCatalogueAndTheSavedEntriesAreTicked) {
    WithCatalogueFiles();
    m_context.preferences.biosFilter = {{"Neo-Geo MV-6F Machines: Neogeo", true}};
    m_context.preferences.categoryFilter = {{"Maze / Collect", true}, {"Gone / Away", true}};
    auto form = Open();
    EXPECT_TRUE(Bios(*form)->isEnabled());
    EXPECT_EQ(Bios(*form)->count(), 4);
    EXPECT_EQ(Categories(*form)->count(), 9);
    EXPECT_EQ(Checked(Bios(*form)), QStringList{"Hide Neo-Geo MV-6F Machines: Neogeo"});
    EXPECT_EQ(Checked(Categories(*form)), QStringList{"Hide Maze / Collect Systems"});
    EXPECT_TRUE(m_context.facts.hasCatver);
    EXPECT_TRUE(Find(*form, "lblBIOSWarning")->isHidden());

    // The keyboard alone ticks a row: the space bar on the current one.
    form->show();
    Click(*form, "cmdNext");
    Bios(*form)->setFocus();
    Bios(*form)->setCurrentRow(0);
    QKeyEvent space(QEvent::KeyPress, Qt::Key_Space, Qt::NoModifier, QStringLiteral(" "));
    QApplication::sendEvent(Bios(*form), &space);
    EXPECT_EQ(Checked(Bios(*form)).size(), 2);
}

TEST_F(OptionsPreferences, FiltersAreSavedWithTheirFlagAndNoneLeaveItOff) {
    WithCatalogueFiles();
    auto form = Open();
    FillValid(*form);
    Check(Bios(*form), "Hide Sega ST-V Machines: Stvbios");
    Check(Categories(*form), "Hide Quiz / Music * Mature * Systems");
    Box(*form, "chkHideYear")->setChecked(true);
    Find<QComboBox>(*form, "cboHideYear")->setCurrentText("1985");
    Find<QRadioButton>(*form, "optSettingsLevel_2")->setChecked(true);
    Find<QComboBox>(*form, "cboTheme")->setCurrentText("Onyx");
    PressOk(*form);
    ASSERT_TRUE(form->Outcome().accepted) << m_prompter.Texts().join('\n').toStdString();
    EXPECT_TRUE(form->Outcome().filtersChanged);
    EXPECT_TRUE(form->Outcome().lookChanged);
    Preferences saved = ReadBack();
    EXPECT_EQ(saved.biosFilter, (std::vector<FilterEntry>{{"Sega ST-V Machines: Stvbios", true}}));
    EXPECT_EQ(saved.categoryFilter, (std::vector<FilterEntry>{{"Quiz / Music * Mature *", true}}));
    EXPECT_TRUE(saved.other.hideYear);
    EXPECT_EQ(saved.other.year, "1985");
    EXPECT_EQ(saved.other.settingsLevel, 2);
    EXPECT_EQ(saved.other.theme, "Onyx");
    EXPECT_TRUE(saved.view.filters);
    EXPECT_EQ(m_context.preferences.biosFilter, saved.biosFilter) << "handed to the program";

    ScriptedPrompter prompter;
    frmOptions again(m_context, prompter, m_request);
    EXPECT_EQ(Checked(Categories(again)), QStringList{"Hide Quiz / Music * Mature * Systems"});
    Click(again, "cmdNext");
    Click(again, "cmdReset");
    Click(again, "cmdOK");
    ASSERT_TRUE(again.Outcome().accepted) << prompter.Texts().join('\n').toStdString();
    saved = ReadBack();
    EXPECT_TRUE(saved.biosFilter.empty());
    EXPECT_TRUE(saved.categoryFilter.empty());
    EXPECT_FALSE(saved.view.filters) << "the list titles lose their star";
    EXPECT_EQ(saved.other.theme, "Heritage");
}

TEST_F(OptionsPreferences, HidingEveryCloneTurnsOffWhatActsOnClones) {
    m_context.preferences.other.cloneShots = true;
    m_context.preferences.other.mergedRomSets = true;
    auto form = Open();
    FillValid(*form);
    EXPECT_TRUE(Box(*form, "chkCloneShots")->isChecked());
    Box(*form, "chkHideClonesArcade")->setChecked(true);
    EXPECT_TRUE(Box(*form, "chkCloneShots")->isEnabled()) << "other clones still show";
    Box(*form, "chkHideClonesOther")->setChecked(true);
    EXPECT_FALSE(Box(*form, "chkCloneShots")->isEnabled());
    EXPECT_FALSE(Box(*form, "chkMergedROMs")->isChecked());
    PressOk(*form);
    const Preferences saved = ReadBack();
    EXPECT_FALSE(saved.other.cloneShots);
    EXPECT_FALSE(saved.other.mergedRomSets);
    EXPECT_TRUE(saved.view.filters);
}

TEST_F(OptionsPreferences, StoredValuesSetTheControlsAndAnUnknownThemeIsSaid) {
    m_context.preferences.other.hideYear = false;
    m_context.preferences.other.year = "1962";
    m_context.preferences.other.settingsLevel = 1;
    m_context.preferences.other.theme = "Retired Theme";
    auto form = Open();
    auto* year = Find<QComboBox>(*form, "cboHideYear");
    EXPECT_EQ(year->currentText(), "1962") << "a year not offered is added";
    EXPECT_EQ(year->itemText(0), "1975");
    EXPECT_FALSE(year->isEnabled());
    Box(*form, "chkHideYear")->setChecked(true);
    EXPECT_TRUE(year->isEnabled());
    EXPECT_TRUE(Find<QLabel>(*form, "lblSettingsLevel")
                    ->text()
                    .startsWith("You can set options for Raster Color, Raster Monochrome"));
    Find<QRadioButton>(*form, "optSettingsLevel_0")->setChecked(true);
    EXPECT_TRUE(Find<QLabel>(*form, "lblSettingsLevel")
                    ->text()
                    .startsWith("You can set options for Raster, Vector, and LCD titles."));
    EXPECT_EQ(Find<QComboBox>(*form, "cboTheme")->count(), 15);
    EXPECT_EQ(Find<QComboBox>(*form, "cboTheme")->currentText(), "Heritage");
    EXPECT_EQ(m_prompter.Texts(),
              QStringList{"There was an error trying to set a depreciated value in a ComboBox.  "
                          "Coinlight will resume without setting that ComboBox."});
}

TEST_F(OptionsPreferences, MyDefaultsTickTheMakersChoiceAndNothingIsKeptOnCancel) {
    WithCatalogueFiles();
    auto form = Open();
    Click(*form, "cmdNext");
    Click(*form, "cmdMyDefaults");
    EXPECT_EQ(Checked(Bios(*form)), (QStringList{"Hide Max-A-Flex Machines: Maxaflex",
                                                 "Hide Neo-Geo MV-6F Machines: Neogeo",
                                                 "Hide PlayChoice-10 Machines: Playch10"}));
    EXPECT_EQ(
        Checked(Categories(*form)),
        (QStringList{"Hide Calculator / Pocket Systems", "Hide Quiz / Music * Mature * Systems",
                     "Hide Slot Machine / Video Slot Systems", "Hide Tabletop / Mahjong Systems"}));
    EXPECT_TRUE(Box(*form, "chkHideCHD")->isChecked());
    EXPECT_EQ(Find<QComboBox>(*form, "cboTheme")->currentText(), "Windows 11 Light");
    Click(*form, "cmdCancel");
    EXPECT_FALSE(OptionsWritten());
    EXPECT_TRUE(m_context.preferences.biosFilter.empty());
}

TEST_F(OptionsPreferences, TheDeveloperAidsShowOnlyInADevelopmentRun) {
    WithCatalogueFiles();
    const char* aids[] = {"cmdSelectAllBIOS", "cmdSelectAllCategory", "cmdPrintLB"};
    auto release = Open();
    for (const char* aid : aids) {
        EXPECT_TRUE(Find(*release, aid)->isHidden()) << aid;
    }
    m_context.facts.ideMode = true;
    auto development = Open();
    for (const char* aid : aids) {
        EXPECT_FALSE(Find(*development, aid)->isHidden()) << aid;
    }
    Click(*development, "cmdSelectAllCategory");
    EXPECT_EQ(Checked(Categories(*development)).size(), 9);
    EXPECT_TRUE(Checked(Bios(*development)).isEmpty());
}

TEST_F(OptionsPreferences, CatverIsReadOncePerRun) {
    WithCatalogueFiles();
    CategoryRowsCache cache;
    m_request.categoryCache = &cache;
    Open();
    std::filesystem::remove(m_context.data.Support() / "catver.ini");
    auto second = Open();
    EXPECT_EQ(Categories(*second)->count(), 9);
    EXPECT_TRUE(m_context.facts.hasCatver);
}

/// Widgets whose text needs more room than they were given.
QStringList Clipped(QWidget* page) {
    QStringList clipped;
    for (QWidget* widget : page->findChildren<QWidget*>()) {
        const bool hasText = qobject_cast<QLabel*>(widget) != nullptr ||
                             qobject_cast<QAbstractButton*>(widget) != nullptr;
        if (!hasText || !widget->isVisibleTo(page)) {
            continue;
        }
        const auto* label = qobject_cast<QLabel*>(widget);
        const auto* push = qobject_cast<QPushButton*>(widget);
        QSize needed = widget->sizeHint();
        if (label != nullptr && label->wordWrap()) {
            needed =
                QSize(widget->minimumSizeHint().width(), label->heightForWidth(widget->width()));
        } else if (push != nullptr) {
            // Styles ask for wide buttons; what matters is that the caption fits.
            const QFontMetrics metrics = push->fontMetrics();
            needed =
                QSize(metrics.horizontalAdvance(push->text().remove('&')) + 8, metrics.height());
        }
        if (widget->width() < needed.width() || widget->height() < needed.height()) {
            clipped << widget->objectName() + QStringLiteral(" ") +
                           QStringLiteral("%1x%2 < %3x%4")
                               .arg(widget->width())
                               .arg(widget->height())
                               .arg(needed.width())
                               .arg(needed.height());
        }
    }
    return clipped;
}

TEST_F(OptionsPreferences, BothPagesFitALaptopScreenWithNothingCut) {
    WithCatalogueFiles();
    m_context.facts.ideMode = true;                // every control on show
    m_context.preferences.other.settingsLevel = 2; // the longest description
    m_context.preferences.other.hideYear = true;
    m_context.preferences.other.year = "1990";
    WriteFile(m_folder / "games" / "mame", "");
    std::filesystem::permissions(m_folder / "games" / "mame", std::filesystem::perms::owner_all);
    m_request.locations.searchPath = (m_folder / "games").string();
    m_request.firstRun = true; // long paths in every field
    auto form = Open();
    const QSize least = form->minimumSizeHint();
    EXPECT_LE(least.width(), 1366);
    EXPECT_LE(least.height(), 768 - 80) << "room for a panel and the title bar";
    form->resize(std::max(least.width(), 1040), std::max(least.height(), 640));
    form->show();
    const QString shots = qEnvironmentVariable("COINLIGHT_SHOTS");
    for (const char* page : {"fraPaths", "fraPreferences"}) {
        if (std::string_view(page) == "fraPreferences") {
            Click(*form, "cmdNext");
        }
        QApplication::processEvents();
        EXPECT_EQ(Clipped(Find(*form, page)), QStringList{}) << page;
        if (!shots.isEmpty()) {
            form->grab().save(shots + QStringLiteral("/options-") + page + ".png");
        }
    }
}

} // namespace
} // namespace coinlight::test
