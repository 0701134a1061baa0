#include "PreferencesPage.h"

#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QRadioButton>
#include <QStandardPaths>
#include <QVBoxLayout>

#include "LookControls.h"
#include "PathRules.h"
#include "PreferenceChoices.h"
#include "PreferencePresets.h"
#include "core/TextFile.h"
#include "ui/Prompter.h"

namespace coinlight {

namespace {

// The statement of the form's load that fills the category list, for the error message.
constexpr int kFillCategoriesStatement = 2;

QString ToQString(std::string_view text) {
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

QLabel* AddLabel(QWidget* parent, const char* name, const QString& text) {
    auto* label = new QLabel(text, parent);
    label->setObjectName(QString::fromLatin1(name));
    label->setWordWrap(true);
    return label;
}

QPushButton* AddButton(QWidget* parent, const char* name, const QString& caption) {
    auto* button = new QPushButton(caption, parent);
    button->setObjectName(QString::fromLatin1(name));
    button->setAutoDefault(false);
    return button;
}

} // namespace

PreferencesPage::PreferencesPage(Prompter& prompter, bool ideMode, QWidget* parent)
    : QWidget(parent), m_prompter(prompter), m_ideMode(ideMode) {
    setObjectName(QStringLiteral("fraPreferences"));
    BuildForm();
}

void PreferencesPage::BuildForm() {
    auto* lists = new QHBoxLayout;
    lists->addWidget(
        BuildFilterList(m_bios, "BIOS &Filter", "lstBIOS", "lblBIOSWarning", "cmdSelectAllBIOS"));
    lists->addWidget(BuildFilterList(m_category, "Ca&tegory Filter", "lstCategory",
                                     "lblCategoryWarning", "cmdSelectAllCategory"));
    m_look = new LookControls(m_prompter, this);
    lists->addWidget(m_look);
    auto* choices = new QHBoxLayout;
    choices->addWidget(BuildHideSwitches());
    choices->addWidget(BuildPreferences());
    choices->addWidget(BuildSettingsLevel(), 1);

    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addLayout(lists, 1);
    layout->addLayout(choices);
    layout->addWidget(BuildButtons());
}

QWidget* PreferencesPage::BuildFilterList(FilterList& filter, const char* title,
                                          const char* listName, const char* warningName,
                                          const char* selectAllName) {
    auto* box = new QGroupBox(this);
    auto* layout = new QVBoxLayout(box);
    auto* caption = new QLabel(QString::fromLatin1(title), box);
    filter.list = new QListWidget(box);
    filter.list->setObjectName(QString::fromLatin1(listName));
    filter.list->setMinimumHeight(120);
    caption->setBuddy(filter.list);
    filter.warning = AddLabel(box, warningName, {});
    filter.warning->hide();
    filter.selectAll = AddButton(box, selectAllName, QStringLiteral("Select All"));
    filter.selectAll->setVisible(m_ideMode);
    connect(filter.selectAll, &QPushButton::clicked, this, [this, &filter] { SelectAll(filter); });
    layout->addWidget(caption);
    layout->addWidget(filter.list, 1);
    layout->addWidget(filter.warning);
    layout->addWidget(filter.selectAll, 0, Qt::AlignLeft);
    return box;
}

QCheckBox* PreferencesPage::AddCheck(QWidget* parent, const char* name, const char* caption) {
    auto* check = new QCheckBox(QString::fromUtf8(caption), parent);
    check->setObjectName(QString::fromLatin1(name));
    return check;
}

QWidget* PreferencesPage::BuildHideSwitches() {
    auto* box = new QGroupBox(QStringLiteral("Hide"), this);
    box->setObjectName(QStringLiteral("fraHide"));
    auto* layout = new QVBoxLayout(box);
    m_chkHideClonesArcade = AddCheck(box, "chkHideClonesArcade", "Hide Clone Arcade Machines");
    m_chkHideClonesOther = AddCheck(box, "chkHideClonesOther", "Hide Clone Other Machines");
    m_chkHidePrelim = AddCheck(box, "chkHidePrelim", "Hide Preliminary Arcade Machines");
    m_chkHideVS = AddCheck(box, "chkHideVS", "Hide \"Vs.\" Arcade Machines");
    m_chkHideYear = AddCheck(box, "chkHideYear", "Hide Arcade Machines After:");
    m_cboHideYear = new QComboBox(box);
    m_cboHideYear->setObjectName(QStringLiteral("cboHideYear"));
    m_cboHideYear->setMinimumContentsLength(4);
    m_cboHideYear->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    m_chkHideBoot = AddCheck(box, "chkHideBoot", "Hide Bootleg Arcade Machines");
    // "&&" is how a caption shows one "&".
    m_chkHideCHD = AddCheck(box, "chkHideCHD",
                            "Hide Arcade && Other Machines Which Require Hard Disk (.chd) Images");
    m_chkHideImperfect = AddCheck(box, "chkHideImperfect", "Hide Imperfect Arcade Machines");
    auto* year = new QHBoxLayout;
    year->addWidget(m_chkHideYear);
    year->addWidget(m_cboHideYear);
    year->addStretch(1);
    for (QCheckBox* check :
         {m_chkHideClonesArcade, m_chkHideClonesOther, m_chkHidePrelim, m_chkHideVS}) {
        layout->addWidget(check);
    }
    layout->addLayout(year);
    for (QCheckBox* check : {m_chkHideBoot, m_chkHideCHD, m_chkHideImperfect}) {
        layout->addWidget(check);
    }
    layout->addStretch(1);
    connect(m_chkHideClonesArcade, &QCheckBox::toggled, this, &PreferencesPage::ClonesRule);
    connect(m_chkHideClonesOther, &QCheckBox::toggled, this, &PreferencesPage::ClonesRule);
    connect(m_chkHideYear, &QCheckBox::toggled, this, &PreferencesPage::HideYearRule);
    return box;
}

QWidget* PreferencesPage::BuildPreferences() {
    auto* box = new QGroupBox(QStringLiteral("Preferences"), this);
    box->setObjectName(QStringLiteral("fraOtherPreferences"));
    auto* layout = new QVBoxLayout(box);
    m_chkCloneShots = AddCheck(box, "chkCloneShots", "Show Parent Screen Shot For Clones");
    m_chkMergedROMs = AddCheck(box, "chkMergedROMs", "ROM Sets Are Merged");
    m_chkMergedROMs->setToolTip(QStringLiteral(
        "Coinlight Will Assume All Clones Are Installed If The Parent ROM Is Installed"));
    m_chkKillCFG = AddCheck(box, "chkKillCFG", "Delete Machine's .Cfg After Run");
    m_chkUseLinks = AddCheck(box, "chkUseLinks", "Link Style UI");
    for (QWidget* widget : std::initializer_list<QWidget*>{m_chkCloneShots, m_chkMergedROMs,
                                                           m_chkKillCFG, m_chkUseLinks}) {
        layout->addWidget(widget);
    }
    layout->addStretch(1);
    return box;
}

QWidget* PreferencesPage::BuildSettingsLevel() {
    auto* box = new QGroupBox(QStringLiteral("Settings Level"), this);
    box->setObjectName(QStringLiteral("fraSettingsLevel"));
    auto* layout = new QVBoxLayout(box);
    auto* options = new QHBoxLayout;
    m_optSettingsLevel = new QButtonGroup(box);
    for (std::size_t index = 0; index < kSettingsLevelCaptions.size(); ++index) {
        auto* option = new QRadioButton(ToQString(kSettingsLevelCaptions[index]), box);
        option->setObjectName(QStringLiteral("optSettingsLevel_%1").arg(index));
        m_optSettingsLevel->addButton(option, static_cast<int>(index));
        options->addWidget(option);
    }
    options->addStretch(1);
    m_lblSettingsLevel = AddLabel(box, "lblSettingsLevel", {});
    m_lblSettingsLevel->setAlignment(Qt::AlignTop | Qt::AlignLeft);
    m_lblSettingsLevel->setMinimumWidth(220);
    connect(m_optSettingsLevel, &QButtonGroup::idToggled, this, [this](int, bool checked) {
        if (checked) {
            ShowSettingsLevelText();
        }
    });
    layout->addLayout(options);
    layout->addWidget(m_lblSettingsLevel, 1);
    return box;
}

QWidget* PreferencesPage::BuildButtons() {
    auto* row = new QWidget(this);
    auto* layout = new QHBoxLayout(row);
    layout->setContentsMargins(0, 0, 0, 0);
    auto* cmdReset = AddButton(row, "cmdReset", QStringLiteral("&Defaults"));
    auto* cmdMyDefaults = AddButton(row, "cmdMyDefaults", QStringLiteral("&My Defaults"));
    auto* cmdPrintLB = AddButton(row, "cmdPrintLB", QStringLiteral("&Print Lists"));
    cmdPrintLB->setVisible(m_ideMode);
    connect(cmdReset, &QPushButton::clicked, this, &PreferencesPage::cmdReset_Click);
    connect(cmdMyDefaults, &QPushButton::clicked, this, &PreferencesPage::cmdMyDefaults_Click);
    connect(cmdPrintLB, &QPushButton::clicked, this, &PreferencesPage::PrintLists);
    layout->addWidget(cmdReset);
    layout->addWidget(cmdMyDefaults);
    layout->addWidget(cmdPrintLB);
    layout->addStretch(1);
    return row;
}

void PreferencesPage::Load(const Preferences& preferences,
                           std::optional<std::vector<std::string>> biosRows,
                           std::optional<CategoryRows> categoryRows, int currentYear) {
    m_cboHideYear->clear();
    for (const std::string& year : HideYears(currentYear)) {
        m_cboHideYear->addItem(QString::fromStdString(year));
    }
    FillList(m_bios, std::move(biosRows), kBiosWarning);
    if (categoryRows && categoryRows->badLineNumber) {
        m_prompter.Message(QString::fromLatin1(kCoinlightTitle),
                           QStringLiteral("Error in frmOptions: Form_Load: catver.ini line %1 "
                                          "has no \"=\": %2\nLine Number: %3")
                               .arg(*categoryRows->badLineNumber)
                               .arg(QString::fromStdString(categoryRows->badLine))
                               .arg(kFillCategoriesStatement),
                           PromptIcon::Critical);
    }
    FillList(m_category, categoryRows ? std::optional(std::move(categoryRows->rows)) : std::nullopt,
             kCategoryWarning);
    CheckRows(m_bios, SelectedRows(m_bios.rows, preferences.biosFilter, BiosRow));
    CheckRows(m_category, SelectedRows(m_category.rows, preferences.categoryFilter, CategoryRow));
    ShowOther(preferences.other);
}

void PreferencesPage::FillList(FilterList& filter, std::optional<std::vector<std::string>> rows,
                               const char* warning) {
    filter.list->clear();
    filter.rows = rows.value_or(std::vector<std::string>{});
    for (const std::string& row : filter.rows) {
        auto* item = new QListWidgetItem(QString::fromStdString(row), filter.list);
        item->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsUserCheckable);
        item->setCheckState(Qt::Unchecked);
    }
    filter.list->setEnabled(rows.has_value());
    filter.warning->setText(rows ? QString() : QString::fromLatin1(warning));
    filter.warning->setVisible(!rows);
}

void PreferencesPage::CheckRows(FilterList& filter, const std::vector<bool>& selected) {
    for (int index = 0; index < filter.list->count(); ++index) {
        const bool on = static_cast<std::size_t>(index) < selected.size() &&
                        selected[static_cast<std::size_t>(index)];
        filter.list->item(index)->setCheckState(on ? Qt::Checked : Qt::Unchecked);
    }
}

std::vector<bool> PreferencesPage::CheckedRows(const FilterList& filter) const {
    std::vector<bool> selected(static_cast<std::size_t>(filter.list->count()));
    for (int index = 0; index < filter.list->count(); ++index) {
        selected[static_cast<std::size_t>(index)] =
            filter.list->item(index)->checkState() == Qt::Checked;
    }
    return selected;
}

void PreferencesPage::SelectAll(FilterList& filter) {
    CheckRows(filter, std::vector<bool>(filter.rows.size(), true));
    filter.list->scrollToTop();
}

void PreferencesPage::PrintLists() {
    const std::filesystem::path desktop =
        QStandardPaths::writableLocation(QStandardPaths::DesktopLocation).toStdString();
    std::string error;
    if (!WriteTextLines(desktop / "lstBIOS.txt", m_bios.rows, &error) ||
        !WriteTextLines(desktop / "lstCategory.txt", m_category.rows, &error)) {
        m_prompter.Message(QString::fromLatin1(kCoinlightTitle),
                           QStringLiteral("Error In frmOptions: cmdPrintLB: ") +
                               QString::fromStdString(error),
                           PromptIcon::Critical);
    }
}

void PreferencesPage::ShowOther(const OtherPreferences& other) {
    m_other = other;
    m_chkHideClonesArcade->setChecked(other.hideArcadeClones);
    m_chkHideClonesOther->setChecked(other.hideOtherClones);
    m_chkHidePrelim->setChecked(other.hidePreliminary);
    m_chkHideVS->setChecked(other.hideVs);
    m_chkHideYear->setChecked(other.hideYear);
    m_chkHideBoot->setChecked(other.hideBootleg);
    m_chkHideCHD->setChecked(other.hideChd);
    m_chkHideImperfect->setChecked(other.hideImperfect);
    SelectYear(other.year);
    m_chkCloneShots->setChecked(other.cloneShots);
    m_chkMergedROMs->setChecked(other.mergedRomSets);
    m_chkKillCFG->setChecked(other.deleteCfg);
    m_chkUseLinks->setChecked(other.useLinks);
    if (QAbstractButton* level = m_optSettingsLevel->button(other.settingsLevel)) {
        level->setChecked(true);
    }
    ShowSettingsLevelText();
    m_look->Show(other);
    HideYearRule();
    ClonesRule();
}

OtherPreferences PreferencesPage::CurrentOther() const {
    OtherPreferences other = m_other;
    other.hideArcadeClones = m_chkHideClonesArcade->isChecked();
    other.hideOtherClones = m_chkHideClonesOther->isChecked();
    other.hidePreliminary = m_chkHidePrelim->isChecked();
    other.hideVs = m_chkHideVS->isChecked();
    other.hideYear = m_chkHideYear->isChecked();
    other.hideBootleg = m_chkHideBoot->isChecked();
    other.hideChd = m_chkHideCHD->isChecked();
    other.hideImperfect = m_chkHideImperfect->isChecked();
    other.year = m_cboHideYear->currentText().toStdString();
    other.cloneShots = m_chkCloneShots->isChecked();
    other.settingsLevel = std::max(0, m_optSettingsLevel->checkedId());
    m_look->Read(other);
    other.mergedRomSets = m_chkMergedROMs->isChecked();
    other.deleteCfg = m_chkKillCFG->isChecked();
    other.useLinks = m_chkUseLinks->isChecked();
    return other;
}

void PreferencesPage::SelectYear(const std::string& year) {
    if (year.empty()) {
        m_cboHideYear->setCurrentIndex(-1);
        return;
    }
    const QString text = QString::fromStdString(year);
    if (m_cboHideYear->findText(text) < 0) {
        m_cboHideYear->addItem(text);
    }
    m_cboHideYear->setCurrentIndex(m_cboHideYear->findText(text));
}

void PreferencesPage::ClonesRule() {
    // With every clone hidden there is no clone left for these two to act on.
    const bool noClones = m_chkHideClonesArcade->isChecked() && m_chkHideClonesOther->isChecked();
    if (noClones) {
        m_chkCloneShots->setChecked(false);
        m_chkMergedROMs->setChecked(false);
    }
    m_chkCloneShots->setEnabled(!noClones);
    m_chkMergedROMs->setEnabled(!noClones);
}

void PreferencesPage::HideYearRule() {
    m_cboHideYear->setEnabled(m_chkHideYear->isChecked());
}

void PreferencesPage::ShowSettingsLevelText() {
    m_lblSettingsLevel->setText(ToQString(SettingsLevelText(m_optSettingsLevel->checkedId())));
}

void PreferencesPage::ReadBack(Preferences& preferences) const {
    if (!m_bios.rows.empty()) {
        preferences.biosFilter = EntriesOf(m_bios.rows, CheckedRows(m_bios), BiosName);
    }
    if (!m_category.rows.empty()) {
        preferences.categoryFilter =
            EntriesOf(m_category.rows, CheckedRows(m_category), CategoryName);
    }
    preferences.other = CurrentOther();
    preferences.view.filters = CheckFilters(preferences);
}

void PreferencesPage::cmdReset_Click() {
    CheckRows(m_bios, {});
    CheckRows(m_category, {});
    OtherPreferences other = CurrentOther();
    ResetOtherPreferences(other);
    ShowOther(other);
    m_look->Reset();
}

void PreferencesPage::cmdMyDefaults_Click() {
    std::vector<bool> bios;
    for (const std::string& row : m_bios.rows) {
        bios.push_back(MyDefaultsSelectsBios(row));
    }
    std::vector<bool> categories;
    for (const std::string& row : m_category.rows) {
        categories.push_back(MyDefaultsSelectsCategory(row));
    }
    CheckRows(m_bios, bios);
    CheckRows(m_category, categories);
    OtherPreferences other = CurrentOther();
    ApplyMyDefaults(other, m_ideMode);
    ShowOther(other);
    m_look->MyDefaults();
}

} // namespace coinlight
