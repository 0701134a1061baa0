#include "SettingsPage.h"

#include <QCheckBox>
#include <QScrollBar>
#include <QSignalBlocker>

#include "settings/OptionCatalogue.h"

namespace coinlight {

namespace {

struct RuleEvent {
    std::string_view control;
    void (*rule)(SettingsPageState&);
};

// Which control's event runs which rule; the rules themselves live with the catalogue.
constexpr RuleEvent kRuleEvents[] = {
    {"chkThrottle", ControlStateThrottle},
    {"cboSound", ControlStateSound},
    {"chkSamples", ControlStateSound},
    {"chkJoystick", ControlStateJoystick},
    {"chkMouse", ControlStateInput},
    {"chkLightgun", ControlStateInput},
    {"chkPlugins", ControlStatePlugins},
    {"cboVideo", ControlStateVideo},
    {"chkWindow", ControlStateVideo},
    {"cboNumScreens", ControlStateNumScreens},
    {"chkHLSL", ControlStateHLSL},
    {"txtHLSL(3)", ControlStateHLSL},
    {"chkGLSL", ControlStateOpenGL},
    {"chkYIQ", ControlStateYIQ},
    {"chkBloomLUT", ControlStateBloomLUT},
    {"chkBloomUILUT", ControlStateBloomUILUT},
    {"chkAutoStretchXY", ControlStateAutoStretch},
};

} // namespace

void SettingsPage::ConnectRules() {
    const auto connectRule = [this](std::size_t row, Rule rule) {
        QWidget* control = m_rows[row].control;
        if (auto* box = qobject_cast<QCheckBox*>(control)) {
            connect(box, &QCheckBox::clicked, this, [this, rule] { RunRule(rule); });
        } else if (auto* combo = qobject_cast<QComboBox*>(control)) {
            connect(combo, &QComboBox::activated, this, [this, rule] { RunRule(rule); });
        } else if (auto* text = qobject_cast<QLineEdit*>(control)) {
            connect(text, &QLineEdit::textEdited, this, [this, rule] { RunRule(rule); });
        }
    };
    for (const RuleEvent& event : kRuleEvents) {
        connectRule(RowOfControl(event.control), event.rule);
    }
    const auto catalogue = OptionCatalogue();
    for (std::size_t row = 0; row < catalogue.size(); ++row) {
        if (ControlFamily(catalogue[row].control) == "cboInputDev") {
            connectRule(row, ControlStateInput);
        }
    }
}

void SettingsPage::SetBiosItems(std::vector<std::string> items) {
    m_choices.SetBiosItems(items);
    if (!Defined()) {
        return;
    }
    auto* combo = static_cast<QComboBox*>(Control(RowOfControl("cboBIOS")));
    const QSignalBlocker quiet(combo);
    combo->clear();
    for (const auto& item : items) {
        combo->addItem(QString::fromStdString(item));
    }
}

OptionValues SettingsPage::Values() const {
    OptionValues values;
    const auto catalogue = OptionCatalogue();
    for (std::size_t row = 0; row < m_rows.size(); ++row) {
        QWidget* control = m_rows[row].control;
        switch (catalogue[row].kind) {
        case OptionKind::Check:
            values[row].assign(1, static_cast<QCheckBox*>(control)->isChecked() ? '1' : '0');
            break;
        case OptionKind::Combo:
            values[row] = static_cast<QComboBox*>(control)->currentText().toStdString();
            break;
        case OptionKind::Text:
            values[row] = static_cast<QLineEdit*>(control)->text().toStdString();
            break;
        }
    }
    return values;
}

void SettingsPage::ShowValue(std::size_t row, const std::string& value) {
    QWidget* control = m_rows[row].control;
    const QSignalBlocker quiet(control);
    switch (OptionCatalogue()[row].kind) {
    case OptionKind::Check:
        static_cast<QCheckBox*>(control)->setChecked(value != "0");
        break;
    case OptionKind::Combo:
        static_cast<QComboBox*>(control)->setCurrentIndex(
            m_choices.IndexOf(row, value).value_or(-1));
        break;
    case OptionKind::Text:
        static_cast<QLineEdit*>(control)->setText(QString::fromStdString(value));
        break;
    }
}

void SettingsPage::SetValues(const OptionValues& values) {
    for (std::size_t row = 0; row < m_rows.size(); ++row) {
        ShowValue(row, values[row]);
    }
}

void SettingsPage::SetDefaults(DefaultsGroup group) {
    OptionValues values = Values();
    coinlight::SetDefaults(values, group);
    SetValues(values);
    switch (group) {
    case DefaultsGroup::HLSL:
        RunRule(ControlStateHLSL);
        break;
    case DefaultsGroup::YIQ:
        RunRule(ControlStateYIQ);
        break;
    case DefaultsGroup::Bloom:
        RunRule(ControlStateBloomLUT);
        RunRule(ControlStateBloomUILUT);
        break;
    case DefaultsGroup::Vector:
    case DefaultsGroup::None:
        break;
    }
}

void SettingsPage::ApplyScreen(SettingsScreen screen) {
    ApplyScreenBlocks(screen, m_states);
    ApplyStates();
}

std::vector<UserMessage> SettingsPage::ControlStateAll() {
    SettingsPageState page{Values(), m_states, true, {}};
    coinlight::ControlStateAll(page);
    *m_loadingSettings = false;
    m_states = page.states;
    for (std::size_t row = 0; row < m_rows.size(); ++row) {
        ShowValue(row, page.values[row]);
    }
    ApplyStates();
    return std::move(page.errors);
}

void SettingsPage::RunRule(Rule rule) {
    if (Loading() || !Defined()) {
        return;
    }
    const OptionValues before = Values();
    SettingsPageState page{before, m_states, false, {}};
    rule(page);
    m_states = page.states;
    for (std::size_t row = 0; row < m_rows.size(); ++row) {
        if (page.values[row] != before[row]) {
            ShowValue(row, page.values[row]); // the rules only ever untick
        }
    }
    ApplyStates();
    for (const UserMessage& error : page.errors) {
        emit RuleFailed(error);
    }
}

void SettingsPage::ApplyStates() {
    if (!Defined()) {
        return;
    }
    for (std::size_t row = 0; row < m_rows.size(); ++row) {
        const bool enabled = m_states.rows[row] && m_allowed[row];
        m_rows[row].control->setEnabled(enabled);
        if (m_rows[row].label != nullptr) {
            m_rows[row].label->setEnabled(enabled);
        }
    }
    for (std::size_t at = 0; at < kGroupCommandCount; ++at) {
        m_commandButtons[at]->setEnabled(m_states.commands[at]);
        m_commandLinks[at]->setEnabled(m_states.commands[at]);
    }
    for (int frame : {6, 26}) {
        m_frames[static_cast<std::size_t>(frame - 1)]->setEnabled(m_states.vectorFrames);
    }
}

void SettingsPage::SetRowAllowed(std::size_t row, bool allowed, const QString& toolTip) {
    if (!Defined()) {
        return;
    }
    m_allowed[row] = allowed;
    m_rows[row].control->setToolTip(toolTip);
    ApplyStates();
}

QWidget* SettingsPage::ControlOfIniOption(std::string_view option) const {
    const auto catalogue = OptionCatalogue();
    for (std::size_t row = 0; row < m_rows.size(); ++row) {
        for (std::string_view name : IniOptionNames(catalogue[row])) {
            if (name == option) {
                return m_rows[row].control;
            }
        }
    }
    return nullptr;
}

QPushButton* SettingsPage::CommandButton(GroupCommand command) const {
    return m_commandButtons[static_cast<std::size_t>(command)];
}

LinkLabel* SettingsPage::CommandLink(GroupCommand command) const {
    return m_commandLinks[static_cast<std::size_t>(command)];
}

void SettingsPage::ScrollToTop() {
    m_picDefaults->verticalScrollBar()->setValue(0);
}

void SettingsPage::SetUseLinks(bool useLinks) {
    m_useLinks = useLinks;
    for (auto [button, link] : {std::pair<QWidget*, QWidget*>{cmdOK, m_linkOK},
                                {cmdRestore, m_linkRestore},
                                {cmdCancel, m_linkCancel}}) {
        button->setVisible(!useLinks);
        link->setVisible(useLinks);
    }
    if (!Defined()) {
        return; // the group commands have no place yet
    }
    for (std::size_t at = 0; at < kGroupCommandCount; ++at) {
        m_commandButtons[at]->setVisible(!useLinks);
        m_commandLinks[at]->setVisible(useLinks);
    }
}

void SettingsPage::SetRestoreCaptions(const RestoreCaptions& captions) {
    cmdRestore->setText(QString::fromStdString(captions.button));
    m_linkRestore->SetCaption(QString::fromStdString(captions.link));
}

std::vector<std::pair<int, LinkLabel*>> SettingsPage::MainLinks() const {
    std::vector<std::pair<int, LinkLabel*>> links = {
        {kLinkOK, m_linkOK}, {kLinkRestore, m_linkRestore}, {kLinkCancel, m_linkCancel}};
    for (GroupCommand command : {GroupCommand::SelectHLSL, GroupCommand::HLSLDefaults,
                                 GroupCommand::YIQDefaults, GroupCommand::VectorPostDefaults,
                                 GroupCommand::BloomPostDefaults, GroupCommand::SelectBGFX}) {
        const std::string name = GroupCommandLinkName(command); // "lblBLinks(19)"
        links.emplace_back(std::stoi(name.substr(name.find('(') + 1)), CommandLink(command));
    }
    return links;
}

void SettingsPage::JumpToFrame(int index) {
    if (index >= 0 && static_cast<std::size_t>(index) < m_frames.size()) {
        m_picDefaults->verticalScrollBar()->setValue(
            m_frames[static_cast<std::size_t>(index)]->y());
    }
}

void SettingsPage::FindSetting(bool next) {
    const QString wanted = m_txtFind->text().trimmed();
    if (!Defined()) {
        return;
    }
    const auto mark = [this](std::size_t row, bool bold) {
        QWidget* caption = m_rows[row].label != nullptr ? static_cast<QWidget*>(m_rows[row].label)
                                                        : m_rows[row].control;
        QFont font = caption->font();
        font.setBold(bold);
        caption->setFont(font);
    };
    const std::size_t count = m_rows.size();
    const std::size_t start = next && m_foundRow ? *m_foundRow + 1 : 0;
    if (m_foundRow) {
        mark(*m_foundRow, false);
        m_foundRow.reset();
    }
    if (wanted.isEmpty()) {
        return;
    }
    const auto catalogue = OptionCatalogue();
    for (std::size_t step = 0; step < count; ++step) {
        const std::size_t row = (start + step) % count;
        const QString key = QString::fromUtf8(catalogue[row].key.data(),
                                              static_cast<qsizetype>(catalogue[row].key.size()));
        if (key.contains(wanted, Qt::CaseInsensitive)) {
            // The find box keeps the keyboard; the match stands out in bold.
            m_foundRow = row;
            mark(row, true);
            m_picDefaults->ensureWidgetVisible(m_rows[row].control, 20, 60);
            return;
        }
    }
}

} // namespace coinlight
