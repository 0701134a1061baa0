#pragma once

#include <array>
#include <functional>
#include <optional>
#include <string_view>
#include <vector>

#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollArea>

#include "settings/ComboChoices.h"
#include "settings/ControlRules.h"
#include "settings/OptionValues.h"
#include "settings/ProfileSave.h"
#include "settings/SettingsScreens.h"
#include "ui/LinkLabel.h"

namespace coinlight {

/// The settings page (fraDefaults): one control for every row of the option catalogue, in
/// the catalogue's frames, made from the catalogue table once and reused by every screen.
/// Each control is named as the catalogue names it (`txtHLSL(17)` is `txtHLSL_17`). The
/// page knows the dependency rules of its controls and runs them on their events; what to
/// load and save, and when, is for the main window to decide.
class SettingsPage final : public QGroupBox {
    Q_OBJECT
public:
    /// The link twins of the page's buttons, by their index among the main window's links.
    static constexpr int kLinkOK = 7;
    static constexpr int kLinkRestore = 8;
    static constexpr int kLinkCancel = 9;

    explicit SettingsPage(QWidget* parent = nullptr);

    /// The flag that rests the event rules while a screen fills the controls.
    void UseLoadingFlag(bool& loadingSettings) { m_loadingSettings = &loadingSettings; }

    /// Makes the controls and fills the drop-downs (DefineCombos); later calls do nothing.
    void DefineCombos(ComboChoices choices);
    bool Defined() const { return !m_rows.empty(); }
    /// The drop-downs' items, which decide what a profile value may be.
    const ComboChoices& Choices() const { return m_choices; }
    /// LoadcboBIOS: the BIOS list of the screen about to open.
    void SetBiosItems(std::vector<std::string> items);

    OptionValues Values() const;
    /// Shows the values; they must be ones the controls accept.
    void SetValues(const OptionValues& values);
    /// The catalogue defaults, over the whole page or one block. Outside a load the block's
    /// rules follow, as they would after the user ticked its boxes.
    void SetDefaults(DefaultsGroup group = DefaultsGroup::None);

    /// What a screen switches before its rules run (the vector blocks, the UI mode key).
    void ApplyScreen(SettingsScreen screen);
    /// All the rules after a load; ends the load. Gives the failures to show.
    std::vector<UserMessage> ControlStateAll();
    const ControlStates& States() const { return m_states; }

    /// For controls that must stay disabled whatever the rules say (an option the running
    /// MAME does not know): the rules' states are then and-ed with this.
    void SetRowAllowed(std::size_t row, bool allowed, const QString& toolTip = {});

    QWidget* Control(std::size_t row) const { return m_rows[row].control; }
    QLabel* Label(std::size_t row) const { return m_rows[row].label; }
    /// The control that writes a mame.ini option ("beam_width_min", "autoror").
    QWidget* ControlOfIniOption(std::string_view option) const;
    QPushButton* CommandButton(GroupCommand command) const;
    LinkLabel* CommandLink(GroupCommand command) const;

    void ScrollToTop();
    void SetUseLinks(bool useLinks);
    void SetRestoreCaptions(const RestoreCaptions& captions);
    /// The page's links that belong to the main window's link array, with their index.
    std::vector<std::pair<int, LinkLabel*>> MainLinks() const;

    QPushButton* cmdOK = nullptr;
    QPushButton* cmdRestore = nullptr;
    QPushButton* cmdCancel = nullptr;
    QPushButton* cmdSelectControllerMap = nullptr;

signals:
    /// A rule failed; the text is for the user.
    void RuleFailed(const UserMessage& message);

private:
    struct RowControls {
        QWidget* control = nullptr;
        QLabel* label = nullptr; // none for a check box, whose caption is its label
    };
    using Rule = void (*)(SettingsPageState&);

    // Made once
    void BuildCommands();
    void BuildRows();
    QWidget* MakeControl(std::size_t row);
    QLabel* MakeLabel(std::size_t row, int& settingLabels, int& bgfxLabels);
    QWidget* CellOf(std::size_t row);
    void BuildFrames();
    void ConnectRules();
    void JumpToFrame(int index);
    void FindSetting(bool next);
    bool eventFilter(QObject* watched, QEvent* event) override;

    bool Loading() const { return *m_loadingSettings; }
    void RunRule(Rule rule);
    void ApplyStates();
    void ShowValue(std::size_t row, const std::string& value);

    bool m_ownLoadingFlag = false;
    bool* m_loadingSettings = &m_ownLoadingFlag;
    ComboChoices m_choices;
    ControlStates m_states;
    std::vector<bool> m_allowed;
    std::vector<RowControls> m_rows;
    std::array<QPushButton*, kGroupCommandCount> m_commandButtons{};
    std::array<LinkLabel*, kGroupCommandCount> m_commandLinks{};
    std::vector<QGroupBox*> m_frames; // Frame(1) first
    LinkLabel* m_linkOK = nullptr;
    LinkLabel* m_linkRestore = nullptr;
    LinkLabel* m_linkCancel = nullptr;
    QComboBox* m_cboGoTo = nullptr;
    QLineEdit* m_txtFind = nullptr;
    QScrollArea* m_picDefaults = nullptr;
    QWidget* m_picDefaultsInsert = nullptr;
    bool m_useLinks = false;
    std::optional<std::size_t> m_foundRow; // the row the find box shows in bold
};

} // namespace coinlight
