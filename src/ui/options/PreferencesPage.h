#pragma once

#include <array>
#include <optional>
#include <string>
#include <vector>

#include <QButtonGroup>
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QWidget>

#include "FilterRows.h"
#include "core/Preferences.h"

namespace coinlight {

class LookControls;
class Prompter;

/// The filters and preferences page of the Options dialog: what the lists hide and how the
/// program looks. Its controls hold the values until OK reads them back.
class PreferencesPage final : public QWidget {
    Q_OBJECT
public:
    PreferencesPage(Prompter& prompter, bool ideMode, QWidget* parent = nullptr);

    /// The rows come from the catalogue and catver.ini; a list without its file stays
    /// disabled under its warning. The saved entries select their rows.
    void Load(const Preferences& preferences, std::optional<std::vector<std::string>> biosRows,
              std::optional<CategoryRows> categoryRows, int currentYear);

    /// The values of the controls into `preferences`, the filter flag worked out anew. A
    /// list without rows leaves its entries as they were.
    void ReadBack(Preferences& preferences) const;

    void cmdReset_Click();
    void cmdMyDefaults_Click();

private:
    struct FilterList {
        QListWidget* list = nullptr;
        QLabel* warning = nullptr;
        QPushButton* selectAll = nullptr;
        std::vector<std::string> rows;
    };

    void BuildForm();
    QWidget* BuildFilterList(FilterList& filter, const char* title, const char* listName,
                             const char* warningName, const char* selectAllName);
    QWidget* BuildHideSwitches();
    QWidget* BuildPreferences();
    QWidget* BuildSettingsLevel();
    QWidget* BuildButtons();
    QCheckBox* AddCheck(QWidget* parent, const char* name, const char* caption);

    void FillList(FilterList& filter, std::optional<std::vector<std::string>> rows,
                  const char* warning);
    void CheckRows(FilterList& filter, const std::vector<bool>& selected);
    std::vector<bool> CheckedRows(const FilterList& filter) const;
    void SelectAll(FilterList& filter);
    void PrintLists();

    /// The controls set from the single preferences; what has no control here is kept.
    void ShowOther(const OtherPreferences& other);
    OtherPreferences CurrentOther() const;
    void SelectYear(const std::string& year);
    void ClonesRule();
    void HideYearRule();
    void ShowSettingsLevelText();

    Prompter& m_prompter;
    bool m_ideMode = false;
    OtherPreferences m_other;
    FilterList m_bios;
    FilterList m_category;
    QCheckBox* m_chkHideClonesArcade = nullptr;
    QCheckBox* m_chkHideClonesOther = nullptr;
    QCheckBox* m_chkHidePrelim = nullptr;
    QCheckBox* m_chkHideVS = nullptr;
    QCheckBox* m_chkHideYear = nullptr;
    QComboBox* m_cboHideYear = nullptr;
    QCheckBox* m_chkHideBoot = nullptr;
    QCheckBox* m_chkHideCHD = nullptr;
    QCheckBox* m_chkHideImperfect = nullptr;
    QCheckBox* m_chkCloneShots = nullptr;
    QCheckBox* m_chkMergedROMs = nullptr;
    QCheckBox* m_chkKillCFG = nullptr;
    QCheckBox* m_chkUseLinks = nullptr;
    LookControls* m_look = nullptr;
    QButtonGroup* m_optSettingsLevel = nullptr;
    QLabel* m_lblSettingsLevel = nullptr;
};

} // namespace coinlight
