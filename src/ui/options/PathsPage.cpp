#include "PathsPage.h"

#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include "LayoutFill.h"
#include "PathRules.h"
#include "ui/Prompter.h"

namespace coinlight {

namespace {

constexpr int kFieldMinimumWidth = 180;

QString ToQString(const std::string& text) {
    return QString::fromStdString(text);
}

QPushButton* BrowseButton(QWidget* parent, const char* name, const QString& what) {
    auto* button = new QPushButton(QStringLiteral("..."), parent);
    button->setObjectName(QString::fromLatin1(name));
    button->setToolTip(QStringLiteral("Browse for ") + what);
    button->setAccessibleName(QStringLiteral("Browse for ") + what);
    button->setAutoDefault(false);
    button->setFixedWidth(button->fontMetrics().horizontalAdvance(QStringLiteral("....")) + 16);
    return button;
}

QLineEdit* PathEdit(QWidget* parent, const char* name) {
    auto* edit = new QLineEdit(parent);
    edit->setObjectName(QString::fromLatin1(name));
    edit->setMinimumWidth(kFieldMinimumWidth);
    return edit;
}

bool IsOutputField(const PathFieldInfo& info) {
    return info.rule == PathRule::Output;
}

} // namespace

PathsPage::PathsPage(Prompter& prompter, MameLocations locations, QWidget* parent)
    : QWidget(parent), m_prompter(prompter), m_locations(std::move(locations)) {
    setObjectName(QStringLiteral("fraPaths"));
    BuildForm();
}

void PathsPage::BuildForm() {
    auto* search = new QGroupBox(QStringLiteral("MAME And Its Files"), this);
    search->setObjectName(QStringLiteral("fraSearchPaths"));
    auto* searchGrid = new QGridLayout(search);
    auto* mameLabel = new QLabel(QStringLiteral("MAME &Executable:"), search);
    mameLabel->setObjectName(QStringLiteral("lblMAMEPath"));
    m_txtMAMEPath = PathEdit(search, "txtMAMEPath");
    mameLabel->setBuddy(m_txtMAMEPath);
    auto* cmdSelectMAME = BrowseButton(search, "cmdSelectMAME", QStringLiteral("MAME"));
    connect(cmdSelectMAME, &QPushButton::clicked, this, &PathsPage::cmdSelectMAME_Click);
    searchGrid->addWidget(mameLabel, 0, 0);
    searchGrid->addWidget(m_txtMAMEPath, 0, 1);
    searchGrid->addWidget(cmdSelectMAME, 0, 2);

    auto* output = new QGroupBox(QStringLiteral("Folders MAME Writes To"), this);
    output->setObjectName(QStringLiteral("fraOutputPaths"));
    auto* outputGrid = new QGridLayout(output);
    int searchRow = 1;
    int outputRow = 0;
    for (const PathFieldInfo& info : PathFields()) {
        if (IsOutputField(info)) {
            AddField(outputGrid, outputRow++, info);
        } else {
            AddField(searchGrid, searchRow++, info);
        }
    }
    searchGrid->setColumnStretch(1, 1);
    outputGrid->setColumnStretch(1, 1);
    auto* outputNote =
        new QLabel(QStringLiteral("MAME makes these folders when it first needs them."), output);
    outputNote->setObjectName(QStringLiteral("lblOutputPaths"));
    outputNote->setWordWrap(true);
    outputGrid->addWidget(outputNote, outputRow, 0, 1, 3);

    auto* multiple =
        new QLabel(QStringLiteral("* Multiple Paths Separated By A Semicolon Are Supported"), this);
    multiple->setObjectName(QStringLiteral("lblMultiplePathsAllowed"));
    multiple->setWordWrap(true);
    auto* fill = new QLabel(
        QStringLiteral("Choosing the MAME executable fills every empty field: from the folders "
                       "beside it, or, for a MAME installed by your distribution, from its "
                       "shared data and your own .mame folder."),
        this);
    fill->setObjectName(QStringLiteral("lblLayoutFill"));
    fill->setWordWrap(true);

    auto* right = new QVBoxLayout;
    right->addWidget(output);
    right->addWidget(multiple);
    right->addWidget(fill);
    right->addStretch(1);
    auto* left = new QVBoxLayout;
    left->addWidget(search);
    left->addStretch(1);
    auto* columns = new QHBoxLayout(this);
    columns->setContentsMargins(0, 0, 0, 0);
    columns->addLayout(left, 1);
    columns->addLayout(right, 1);
}

void PathsPage::AddField(QGridLayout* grid, int row, const PathFieldInfo& info) {
    QWidget* box = grid->parentWidget();
    const QString name = ToQString(info.name);
    auto* label =
        new QLabel(name + (info.multi ? QStringLiteral(" *:") : QStringLiteral(":")), box);
    label->setObjectName(QStringLiteral("lbl") + QString::fromLatin1(info.textBox + 3));
    QLineEdit* edit = PathEdit(box, info.textBox);
    label->setBuddy(edit);
    grid->addWidget(label, row, 0);
    grid->addWidget(edit, row, 1);
    m_fields[IndexOf(info.field)] = edit;
    if (info.button == nullptr) {
        // Coinlight's own folder: shown, never chosen.
        edit->setReadOnly(true);
        edit->setFocusPolicy(Qt::ClickFocus);
        edit->setToolTip(QStringLiteral("Coinlight writes MAME's settings here"));
        QPalette shown = edit->palette();
        shown.setColor(QPalette::Base, shown.color(QPalette::Window));
        edit->setPalette(shown);
        return;
    }
    auto* button = BrowseButton(box, info.button, QStringLiteral("the ") + name + " folder");
    const PathField field = info.field;
    connect(button, &QPushButton::clicked, this, [this, field] { SelectPaths(field); });
    grid->addWidget(button, row, 2);
}

void PathsPage::Load(const Preferences& preferences, const std::filesystem::path& iniFolder) {
    const std::string& folder = preferences.searchPaths.mame;
    const std::string& executable = preferences.mame.executable;
    if (!folder.empty() && !executable.empty()) {
        m_txtMAMEPath->setText(ToQString(folder + "/" + executable));
    }
    PathTexts texts = TextsFrom(preferences);
    texts[PathField::Ini] = iniFolder.string();
    SetTexts(texts);
}

QString PathsPage::MamePath() const {
    return m_txtMAMEPath->text();
}

void PathsPage::SetMamePath(const QString& path) {
    m_txtMAMEPath->setText(path);
}

PathTexts PathsPage::Texts() const {
    PathTexts texts;
    for (const PathFieldInfo& info : PathFields()) {
        texts[info.field] = m_fields[IndexOf(info.field)]->text().toStdString();
    }
    return texts;
}

void PathsPage::SetTexts(const PathTexts& texts) {
    for (const PathFieldInfo& info : PathFields()) {
        QLineEdit* edit = m_fields[IndexOf(info.field)];
        const QString text = ToQString(texts[info.field]);
        if (edit->text() != text) {
            edit->setText(text);
        }
    }
}

void PathsPage::FocusMamePath() {
    m_txtMAMEPath->setFocus(Qt::OtherFocusReason);
}

void PathsPage::FocusField(PathField field) {
    m_fields[IndexOf(field)]->setFocus(Qt::OtherFocusReason);
}

void PathsPage::OfferMameOnPath() {
    if (!m_txtMAMEPath->text().isEmpty()) {
        return;
    }
    if (const auto found = FindMameOnPath(m_locations.searchPath)) {
        m_txtMAMEPath->setText(ToQString(found->string()));
        TakeExecutable(found->string());
    }
}

void PathsPage::cmdSelectMAME_Click() {
    const auto current = SplitExecutablePath(MamePath().toStdString());
    const QString start = current && !IsRootOrRelative(current->folder)
                              ? ToQString(current->folder)
                              : QString::fromStdString(ExecutableFolder().string());
    const auto chosen = m_prompter.OpenFile(QStringLiteral("Select your MAME executable."), start,
                                            QStringLiteral("MAME (mame*);;All Files (*)"));
    if (!chosen) {
        return;
    }
    m_txtMAMEPath->setText(*chosen);
    if (TakeExecutable(chosen->toStdString())) {
        emit ChoiceMade();
    }
}

bool PathsPage::TakeExecutable(const std::string& executable) {
    const auto split = SplitExecutablePath(executable);
    if (!split || IsRootOrRelative(split->folder)) {
        m_prompter.Message(QString::fromLatin1(kOptionsTitle),
                           QStringLiteral("MAME should not reside in the root."));
        m_txtMAMEPath->clear();
        FocusMamePath();
        return false;
    }
    PathTexts texts = Texts();
    FillFromLayout(split->folder, m_locations, texts);
    SetTexts(texts);
    return true;
}

void PathsPage::SelectPaths(PathField field) {
    const PathFieldInfo& info = InfoOf(field);
    QLineEdit* edit = m_fields[IndexOf(field)];
    const std::string current = edit->text().toStdString();
    const auto first = SplitPaths(current).front();
    const auto chosen = m_prompter.Folder(ToQString(FolderPrompt(info)),
                                          IsRootOrRelative(first) ? QString() : ToQString(first));
    if (!chosen) {
        return;
    }
    const FolderChoice choice = ApplyFolderChoice(info, current, chosen->toStdString());
    edit->setText(ToQString(choice.text));
    if (choice.refusal) {
        m_prompter.Message(QString::fromLatin1(kCoinlightTitle), ToQString(*choice.refusal));
        edit->setFocus(Qt::OtherFocusReason);
        return;
    }
    emit ChoiceMade();
}

} // namespace coinlight
