#pragma once

#include <array>
#include <set>
#include <vector>

#include <QCheckBox>
#include <QGroupBox>
#include <QLabel>
#include <QListWidget>
#include <QProgressBar>
#include <QPushButton>
#include <QRadioButton>

#include "reports/MaintenancePlan.h"
#include "reports/UnneededFiles.h"
#include "ui/LinkLabel.h"

namespace coinlight {

/// The Maintenance page (`fraMaintenance`): the unneeded file finder, the deletion of
/// reports and lists, and the clearing of MAME's output folders, each in a frame of its
/// own. The page holds the controls and says what the user chose; the main window runs
/// the routines.
class MaintenancePage final : public QGroupBox {
    Q_OBJECT
public:
    explicit MaintenancePage(QWidget* parent = nullptr);

    // Unneeded ROMs && Files
    SetFormat Format() const;
    /// The finder at work: its commands wait and the last result is gone.
    void BeginSearch();
    void EndSearch();
    void SetStatus(const QString& text);
    void StartProgress(int maximum);
    void SetProgress(int value);
    void EndProgress();
    /// Fills lstOrphan; the list and its commands are shown only when `shown`.
    void SetOrphans(std::vector<RomFolderFile> entries, bool shown);
    /// The selected rows, last first, as a removal goes through them.
    std::vector<int> SelectedOrphanRowsLastFirst() const;
    const RomFolderFile& OrphanAt(int row) const {
        return m_orphans[static_cast<std::size_t>(row)];
    }
    void RemoveOrphan(int row);
    int OrphanCount() const { return static_cast<int>(m_orphans.size()); }
    void DeselectAllOrphans();
    void ClearOrphanList();

    // Reports && Lists, Output Directories
    std::set<ReportBox> TickedReports() const;
    std::vector<OutputKind> TickedDirectories() const;
    bool CurrentMachineChosen() const;
    /// "Current Game Files" is offered only when there is a machine to speak of.
    void OfferCurrentMachine(bool offered);

    void SetUseLinks(bool links);

signals:
    void SearchRequested();
    void RemoveRequested();
    void CleanReportsRequested();
    void CleanOutputRequested();
    void ReturnRequested();

private:
    struct Command {
        QPushButton* button = nullptr;
        LinkLabel* link = nullptr;
    };
    Command AddCommand(QWidget* parent, const char* name, const QString& caption, int linkIndex);
    void ShowCommand(const Command& command, bool shown);
    void EnableCommand(const Command& command, bool enabled);
    QWidget* BuildUnneededFrame();
    QWidget* BuildReportsFrame();
    QWidget* BuildOutputFrame();
    void SelectAllReports();
    void SelectAllDirectories();

    bool m_useLinks = true;
    std::vector<Command> m_commands;

    std::array<QRadioButton*, 2> m_compression{};
    Command m_search;
    QLabel* m_folder = nullptr;
    QProgressBar* m_progress = nullptr;
    QCheckBox* m_allOrphans = nullptr;
    QListWidget* m_orphanList = nullptr;
    Command m_remove;
    std::vector<RomFolderFile> m_orphans;

    std::vector<std::pair<QCheckBox*, ReportBox>> m_reportBoxes;
    std::array<QCheckBox*, 4> m_directories{};
    QRadioButton* m_all = nullptr;
    QRadioButton* m_current = nullptr;
    Command m_return;
};

} // namespace coinlight
