// How the settings page is made: everything comes from the option catalogue, in its order.
#include <QCheckBox>
#include <QEvent>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QListView>
#include <QVBoxLayout>

#include "SettingsPage.h"
#include "settings/OptionCatalogue.h"

namespace coinlight {

namespace {

using namespace section;

QString ObjectName(std::string_view control) {
    // `txtHLSL(17)` is `txtHLSL_17`: an objectName holds no brackets.
    QString name = QString::fromLatin1(control.data(), static_cast<qsizetype>(control.size()));
    name.replace(QLatin1Char('('), QLatin1Char('_'));
    name.remove(QLatin1Char(')'));
    return name;
}

QString Text(std::string_view text) {
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

/// The label arrays that carry the captions of a control array, by the array's name.
const char* LabelFamilyOf(std::string_view family) {
    for (auto [controls, labels] : {std::pair{"txtHLSL", "lblHLSL"},
                                    {"txtYIQ", "lblYIQ"},
                                    {"txtVectorPost", "lblVectorPost"},
                                    {"txtBloomPost", "lblBloomPost"},
                                    {"txtGLSL", "lblGLSL"}}) {
        if (family == controls) {
            return labels;
        }
    }
    return nullptr;
}

/// The drop-downs whose items come from the system and can be long.
bool HasSystemItems(std::string_view control) {
    return control == "cboUIFont" || control == "cboEffect" || control == "cboController" ||
           control == "cboLanguage" || control == "cboResolutions";
}

/// Where the frames of the page begin. Each section of the catalogue is a frame; the
/// per-screen rows of the window section have one of their own, as they follow the number
/// of screens. That makes Frame(6) the core vector frame and Frame(26) the vector
/// post-processing frame.
bool StartsFrame(std::size_t row) {
    const auto catalogue = OptionCatalogue();
    if (row == 0 || catalogue[row].section != catalogue[row - 1].section) {
        return true;
    }
    return catalogue[row].control == "cboScreen(0)";
}

QString FrameTitle(std::size_t firstRow) {
    const OptionRow& row = OptionCatalogue()[firstRow];
    if (row.control == "cboScreen(0)") {
        return QStringLiteral("OSD Per-Screen Video Options");
    }
    // A frame title draws '&' as a mnemonic marker.
    return Text(row.section).replace(QLatin1Char('&'), QStringLiteral("&&"));
}

/// The command of the browse button that stands beside a control, if any.
std::optional<GroupCommand> BrowseCommandOf(std::string_view control) {
    if (control == "txtBGFX(0)") {
        return GroupCommand::SelectBGFX;
    }
    if (control == "txtHLSL(0)") {
        return GroupCommand::SelectHLSL;
    }
    if (ControlFamily(control) == "txtGLSL") {
        return SelectGLSL(ControlIndex(control).value_or(0));
    }
    return std::nullopt;
}

/// The defaults command at the foot of a frame, by its section.
std::optional<GroupCommand> DefaultsCommandOf(std::string_view section) {
    if (section == kDirect3DPostProcessing) {
        return GroupCommand::HLSLDefaults;
    }
    if (section == kNTSCPostProcessing) {
        return GroupCommand::YIQDefaults;
    }
    if (section == kVectorPostProcessing) {
        return GroupCommand::VectorPostDefaults;
    }
    if (section == kBloomPostProcessing) {
        return GroupCommand::BloomPostDefaults;
    }
    return std::nullopt;
}

bool IsDefaultsCommand(GroupCommand command) {
    return command >= GroupCommand::HLSLDefaults && command <= GroupCommand::BloomPostDefaults;
}

QString CommandCaption(GroupCommand command, bool link) {
    switch (command) {
    case GroupCommand::HLSLDefaults:
        return QStringLiteral("HLSL Defaults");
    case GroupCommand::YIQDefaults:
        return QStringLiteral("NTSC Defaults");
    case GroupCommand::VectorPostDefaults:
        return QStringLiteral("Vector Defaults");
    case GroupCommand::BloomPostDefaults:
        return QStringLiteral("Bloom Defaults");
    default:
        break;
    }
    return link ? QStringLiteral("Browse") : QStringLiteral("...");
}

} // namespace

SettingsPage::SettingsPage(QWidget* parent) : QGroupBox(parent) {
    setObjectName(QStringLiteral("fraDefaults"));
    auto* layout = new QVBoxLayout(this);

    auto* top = new QHBoxLayout;
    top->addStretch();
    auto* goToLabel = new QLabel(QStringLiteral("&Go To"));
    m_cboGoTo = new QComboBox;
    m_cboGoTo->setObjectName(QStringLiteral("cboGoTo"));
    m_cboGoTo->setToolTip(QStringLiteral("Shows A Group Of Settings"));
    goToLabel->setBuddy(m_cboGoTo);
    auto* findLabel = new QLabel(QStringLiteral("F&ind"));
    m_txtFind = new QLineEdit;
    m_txtFind->setObjectName(QStringLiteral("txtFind"));
    m_txtFind->setPlaceholderText(QStringLiteral("Setting name"));
    m_txtFind->setToolTip(QStringLiteral("Shows The First Setting Whose Name Holds The Text; "
                                         "Enter Shows The Next"));
    m_txtFind->setClearButtonEnabled(true);
    m_txtFind->installEventFilter(this);
    findLabel->setBuddy(m_txtFind);
    for (QWidget* widget : {static_cast<QWidget*>(goToLabel), static_cast<QWidget*>(m_cboGoTo),
                            static_cast<QWidget*>(findLabel), static_cast<QWidget*>(m_txtFind)}) {
        top->addWidget(widget);
    }
    layout->addLayout(top);

    m_picDefaults = new QScrollArea;
    m_picDefaults->setObjectName(QStringLiteral("picDefaults"));
    m_picDefaults->setWidgetResizable(true);
    m_picDefaults->setFrameShape(QFrame::NoFrame);
    m_picDefaultsInsert = new QWidget;
    m_picDefaultsInsert->setObjectName(QStringLiteral("picDefaultsInsert"));
    new QVBoxLayout(m_picDefaultsInsert);
    m_picDefaults->setWidget(m_picDefaultsInsert);
    layout->addWidget(m_picDefaults, 1);

    BuildCommands();
    auto* commands = new QHBoxLayout;
    for (QWidget* widget :
         {static_cast<QWidget*>(cmdOK), static_cast<QWidget*>(m_linkOK),
          static_cast<QWidget*>(cmdRestore), static_cast<QWidget*>(m_linkRestore),
          static_cast<QWidget*>(cmdCancel), static_cast<QWidget*>(m_linkCancel)}) {
        commands->addWidget(widget);
    }
    commands->addStretch();
    layout->addLayout(commands);

    connect(m_cboGoTo, &QComboBox::activated, this, &SettingsPage::JumpToFrame);
    connect(m_txtFind, &QLineEdit::textEdited, this, [this] { FindSetting(false); });
    SetUseLinks(false);
}

void SettingsPage::BuildCommands() {
    const auto button = [this](const QString& name, const QString& caption, const QString& tip) {
        auto* made = new QPushButton(caption, this);
        made->setObjectName(name);
        made->setToolTip(tip);
        // Enter on a focused button is that button's; anywhere else on the page it is OK.
        made->setAutoDefault(true);
        return made;
    };
    const auto link = [this](const QString& name, const QString& caption, const QString& tip) {
        auto* made = new LinkLabel(caption, this);
        made->setObjectName(name);
        made->setToolTip(tip);
        return made;
    };
    cmdOK = button(QStringLiteral("cmdOK"), QStringLiteral("&OK"),
                   QStringLiteral("Saves These Settings"));
    cmdRestore = button(QStringLiteral("cmdRestore"), QStringLiteral("R&estore MAME Defaults"),
                        QStringLiteral("Puts Back The Settings This Screen Started From"));
    cmdCancel = button(QStringLiteral("cmdCancel"), QStringLiteral("Ca&ncel"),
                       QStringLiteral("Returns To The Machine List Without Saving"));
    m_linkOK = link(QStringLiteral("lblBLinks_7"), QStringLiteral("OK"), cmdOK->toolTip());
    m_linkRestore = link(QStringLiteral("lblBLinks_8"), QStringLiteral("Restore MAME Defaults"),
                         cmdRestore->toolTip());
    m_linkCancel =
        link(QStringLiteral("lblBLinks_9"), QStringLiteral("Cancel"), cmdCancel->toolTip());
    for (std::size_t at = 0; at < kGroupCommandCount; ++at) {
        const auto command = static_cast<GroupCommand>(at);
        const bool defaults = IsDefaultsCommand(command);
        const QString tip = defaults ? QStringLiteral("Puts The Defaults Back In This Group")
                                     : QStringLiteral("Chooses With A Dialog");
        m_commandButtons[at] =
            button(ObjectName(GroupCommandName(command)), CommandCaption(command, false), tip);
        m_commandLinks[at] =
            link(ObjectName(GroupCommandLinkName(command)), CommandCaption(command, true), tip);
        if (!defaults) {
            const int width =
                m_commandButtons[at]->fontMetrics().horizontalAdvance(QStringLiteral("......")) +
                12;
            m_commandButtons[at]->setFixedWidth(width);
        }
        m_commandButtons[at]->hide();
        m_commandLinks[at]->hide();
    }
    cmdSelectControllerMap = button(QStringLiteral("cmdSelectControllerMap"), QStringLiteral("..."),
                                    QStringLiteral("Chooses With A Dialog"));
    cmdSelectControllerMap->setFixedWidth(m_commandButtons[0]->maximumWidth());
    cmdSelectControllerMap->hide();
}

void SettingsPage::DefineCombos(ComboChoices choices) {
    if (Defined()) {
        return;
    }
    m_choices = std::move(choices);
    m_allowed.assign(OptionCatalogue().size(), true);
    BuildRows();
    BuildFrames();
    ConnectRules();
    ApplyStates();
    SetUseLinks(m_useLinks);
}

void SettingsPage::BuildRows() {
    const auto catalogue = OptionCatalogue();
    m_rows.resize(catalogue.size());
    int settingLabels = 0;
    int bgfxLabels = 0;
    for (std::size_t row = 0; row < catalogue.size(); ++row) {
        m_rows[row].control = MakeControl(row);
        m_rows[row].label = MakeLabel(row, settingLabels, bgfxLabels);
    }
}

QWidget* SettingsPage::MakeControl(std::size_t row) {
    const OptionRow& option = OptionCatalogue()[row];
    QWidget* control = nullptr;
    switch (option.kind) {
    case OptionKind::Check:
        control = new QCheckBox(Text(option.key));
        break;
    case OptionKind::Combo: {
        auto* combo = new QComboBox;
        for (const auto& item : m_choices.Items(row)) {
            combo->addItem(QString::fromStdString(item));
        }
        // Long lists of system names must not widen the whole page: the closed box shows
        // what fits, the open list shows the names whole.
        combo->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
        combo->setMinimumContentsLength(8);
        if (HasSystemItems(option.control)) {
            combo->view()->setMinimumWidth(combo->view()->sizeHintForColumn(0) + 32);
        }
        control = combo;
        break;
    }
    case OptionKind::Text: {
        auto* box = new QLineEdit;
        box->setMaxLength(4095);
        control = box;
        break;
    }
    }
    control->setObjectName(ObjectName(option.control));
    control->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    if (option.control == "txtOtherCommands") {
        control->setToolTip(
            QStringLiteral("Add Other MAME Options That Are Not In Coinlight Such As -joymap"));
    }
    return control;
}

QLabel* SettingsPage::MakeLabel(std::size_t row, int& settingLabels, int& bgfxLabels) {
    const OptionRow& option = OptionCatalogue()[row];
    if (option.kind == OptionKind::Check) {
        return nullptr;
    }
    const std::string_view family = ControlFamily(option.control);
    QString name;
    if (option.control == "txtOtherCommands") {
        name = QStringLiteral("lblOtherCommands");
    } else if (family == "txtBGFX" || family == "cboBGFX") {
        name = QStringLiteral("lblBGFX_%1").arg(bgfxLabels++);
    } else if (const char* labels = LabelFamilyOf(family)) {
        name = QStringLiteral("%1_%2")
                   .arg(QLatin1String(labels))
                   .arg(ControlIndex(option.control).value_or(0));
    } else {
        name = QStringLiteral("lblSetting_%1").arg(++settingLabels);
    }
    auto* label = new QLabel(Text(option.key));
    label->setObjectName(name);
    label->setBuddy(m_rows[row].control);
    return label;
}

QWidget* SettingsPage::CellOf(std::size_t row) {
    const OptionRow& option = OptionCatalogue()[row];
    QPushButton* button = nullptr;
    LinkLabel* link = nullptr;
    if (const auto command = BrowseCommandOf(option.control)) {
        button = CommandButton(*command);
        link = CommandLink(*command);
    } else if (option.control == "txtControllerMap") {
        button = cmdSelectControllerMap;
    }
    if (button == nullptr) {
        return m_rows[row].control;
    }
    auto* cell = new QWidget;
    auto* layout = new QHBoxLayout(cell);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_rows[row].control, 1);
    layout->addWidget(button);
    if (link != nullptr) {
        layout->addWidget(link);
    }
    button->show();
    return cell;
}

void SettingsPage::BuildFrames() {
    const auto catalogue = OptionCatalogue();
    // One width for every label and every control, so that the frames line up below each
    // other and the eye can run down a column.
    const QFontMetrics metrics(font());
    int labelWidth = 0;
    for (const RowControls& row : m_rows) {
        if (row.label != nullptr && row.label->objectName() != QLatin1String("lblOtherCommands")) {
            labelWidth = std::max(labelWidth, metrics.horizontalAdvance(row.label->text()));
        }
    }
    labelWidth += metrics.averageCharWidth() * 2;
    const int controlWidth = metrics.horizontalAdvance(QStringLiteral("0.2126,0.7152,0.0722")) +
                             metrics.averageCharWidth() * 6;

    auto* pageLayout = static_cast<QVBoxLayout*>(m_picDefaultsInsert->layout());
    std::vector<QWidget*> focusOrder = {m_cboGoTo, m_txtFind};
    std::size_t first = 0;
    while (first < catalogue.size()) {
        std::size_t end = first + 1;
        while (end < catalogue.size() && !StartsFrame(end)) {
            ++end;
        }
        auto* frame = new QGroupBox(FrameTitle(first));
        frame->setObjectName(QStringLiteral("Frame_%1").arg(m_frames.size() + 1));
        m_frames.push_back(frame);
        m_cboGoTo->addItem(frame->title().replace(QStringLiteral("&&"), QStringLiteral("&")));
        auto* grid = new QGridLayout(frame);
        const bool wide = catalogue[first].control == "txtOtherCommands";
        // No spacing of the grid's own: it leaves out empty columns, and a column of check
        // boxes has no labels. The gaps are columns of their own instead.
        grid->setHorizontalSpacing(wide ? metrics.averageCharWidth() * 2 : 0);
        const std::size_t count = end - first;
        // Two columns read top to bottom, the left one first, as the keyboard walks them.
        const std::size_t perColumn = wide ? count : (count + 1) / 2;
        for (std::size_t row = first; row < end; ++row) {
            const int place = static_cast<int>(row - first);
            const int gridRow = place % static_cast<int>(perColumn);
            const int column = (place / static_cast<int>(perColumn)) * 3;
            if (m_rows[row].label != nullptr) {
                grid->addWidget(m_rows[row].label, gridRow, column);
            }
            grid->addWidget(CellOf(row), gridRow, column + 1);
            focusOrder.push_back(m_rows[row].control);
            if (const auto command = BrowseCommandOf(catalogue[row].control)) {
                focusOrder.push_back(CommandButton(*command));
                focusOrder.push_back(CommandLink(*command));
            } else if (catalogue[row].control == "txtControllerMap") {
                focusOrder.push_back(cmdSelectControllerMap);
            }
        }
        if (!wide) {
            for (int column : {0, 3}) {
                grid->setColumnMinimumWidth(column, labelWidth);
                grid->setColumnMinimumWidth(column + 1, controlWidth);
                grid->setColumnStretch(column + 1, 1);
            }
            grid->setColumnMinimumWidth(2, metrics.averageCharWidth() * 4);
        }
        if (const auto command = DefaultsCommandOf(catalogue[first].section)) {
            auto* foot = new QHBoxLayout;
            foot->addStretch();
            foot->addWidget(CommandButton(*command));
            foot->addWidget(CommandLink(*command));
            CommandButton(*command)->show();
            grid->addLayout(foot, static_cast<int>(perColumn), 0, 1, 5);
            focusOrder.push_back(CommandButton(*command));
            focusOrder.push_back(CommandLink(*command));
        }
        pageLayout->addWidget(frame);
        first = end;
    }
    pageLayout->addStretch();
    for (QWidget* widget :
         {static_cast<QWidget*>(cmdOK), static_cast<QWidget*>(m_linkOK),
          static_cast<QWidget*>(cmdRestore), static_cast<QWidget*>(m_linkRestore),
          static_cast<QWidget*>(cmdCancel), static_cast<QWidget*>(m_linkCancel)}) {
        focusOrder.push_back(widget);
    }
    for (std::size_t at = 1; at < focusOrder.size(); ++at) {
        setTabOrder(focusOrder[at - 1], focusOrder[at]);
    }
}

bool SettingsPage::eventFilter(QObject* watched, QEvent* event) {
    if (watched == m_txtFind && event->type() == QEvent::KeyPress) {
        const int key = static_cast<QKeyEvent*>(event)->key();
        if (key == Qt::Key_Return || key == Qt::Key_Enter) {
            // In the find box Enter looks further; it does not save the screen.
            FindSetting(true);
            return true;
        }
    }
    return QGroupBox::eventFilter(watched, event);
}

} // namespace coinlight
