#include "MaintenancePage.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QScrollArea>
#include <QVBoxLayout>

namespace coinlight {

namespace {

template <class Widget> Widget* Named(Widget* widget, const QString& name) {
    widget->setObjectName(name);
    return widget;
}

QString Indexed(const char* name, int index) {
    return QStringLiteral("%1_%2").arg(QString::fromLatin1(name)).arg(index);
}

} // namespace

MaintenancePage::MaintenancePage(QWidget* parent) : QGroupBox(parent) {
    setObjectName(QStringLiteral("fraMaintenance"));
    setTitle(QStringLiteral("Maintenance"));
    auto* outer = new QVBoxLayout(this);
    auto* scroll = Named(new QScrollArea, QStringLiteral("picMaintenance"));
    scroll->setWidgetResizable(true);
    scroll->setFrameShape(QFrame::NoFrame);
    auto* inner = Named(new QWidget, QStringLiteral("picMaintenanceInsert"));
    auto* frames = new QVBoxLayout(inner);
    frames->addWidget(BuildUnneededFrame());
    auto* lower = new QHBoxLayout;
    lower->addWidget(BuildReportsFrame(), 1);
    lower->addWidget(BuildOutputFrame(), 1);
    frames->addLayout(lower);
    frames->addStretch();
    scroll->setWidget(inner);
    outer->addWidget(scroll, 1);

    auto* commands = new QHBoxLayout;
    m_return = AddCommand(this, "cmdGameList2", QStringLiteral("&Return"), 10);
    m_return.button->setToolTip(QStringLiteral("Returns To The Machine List"));
    commands->addWidget(m_return.button);
    commands->addWidget(m_return.link);
    commands->addStretch();
    outer->addLayout(commands);
    connect(m_return.button, &QPushButton::clicked, this, &MaintenancePage::ReturnRequested);
    connect(m_return.link, &QLabel::linkActivated, this, &MaintenancePage::ReturnRequested);
    SetUseLinks(m_useLinks);
    ClearOrphanList();
}

MaintenancePage::Command MaintenancePage::AddCommand(QWidget* parent, const char* name,
                                                     const QString& caption, int linkIndex) {
    Command command;
    command.button = Named(new QPushButton(caption, parent), QString::fromLatin1(name));
    command.button->setAutoDefault(false);
    QString plain = caption;
    plain.remove(QLatin1Char('&'));
    command.link = Named(new LinkLabel(plain, parent), Indexed("lblBLinks", linkIndex));
    m_commands.push_back(command);
    return command;
}

void MaintenancePage::ShowCommand(const Command& command, bool shown) {
    command.button->setVisible(shown && !m_useLinks);
    command.link->setVisible(shown && m_useLinks && command.button->isEnabled());
}

void MaintenancePage::EnableCommand(const Command& command, bool enabled) {
    // A disabled button stays in its place; its link has no disabled look and goes away.
    command.button->setEnabled(enabled);
    command.link->setVisible(enabled && m_useLinks);
}

QWidget* MaintenancePage::BuildUnneededFrame() {
    auto* frame = Named(new QGroupBox(QStringLiteral("Unneeded ROMs && Files")),
                        QStringLiteral("fraUnneeded"));
    auto* layout = new QVBoxLayout(frame);
    auto* row = new QHBoxLayout;
    row->addWidget(Named(new QLabel(QStringLiteral("My ROM sets are kept as:")),
                         QStringLiteral("lblCompression")));
    m_compression[0] = Named(new QRadioButton(QStringLiteral("7z")), Indexed("optCompression", 0));
    m_compression[1] = Named(new QRadioButton(QStringLiteral("Zip")), Indexed("optCompression", 1));
    m_compression[1]->setChecked(true);
    row->addWidget(m_compression[0]);
    row->addWidget(m_compression[1]);
    row->addSpacing(24);
    m_search = AddCommand(frame, "cmdROMs", QStringLiteral("Search"), 16);
    m_search.button->setToolTip(QStringLiteral("Finds Files The Machine Lists Do Not Need"));
    row->addWidget(m_search.button);
    row->addWidget(m_search.link);
    row->addStretch();
    layout->addLayout(row);

    m_folder = Named(new QLabel, QStringLiteral("lblFolder"));
    m_folder->setTextFormat(Qt::PlainText);
    m_folder->setWordWrap(true);
    layout->addWidget(m_folder);
    m_progress = Named(new QProgressBar, QStringLiteral("ProgressBar"));
    m_progress->hide();
    layout->addWidget(m_progress);

    m_allOrphans = Named(new QCheckBox(QStringLiteral("All")), QStringLiteral("chkAllOrphans"));
    layout->addWidget(m_allOrphans);
    m_orphanList = Named(new QListWidget, QStringLiteral("lstOrphan"));
    m_orphanList->setSelectionMode(QAbstractItemView::MultiSelection);
    m_orphanList->setMinimumHeight(160);
    layout->addWidget(m_orphanList, 1);
    auto* removeRow = new QHBoxLayout;
    m_remove = AddCommand(frame, "cmdRemove", QStringLiteral("Remove"), 26);
    m_remove.button->setToolTip(QStringLiteral("Moves The Selected Files Out Of The ROM Folders"));
    removeRow->addWidget(m_remove.button);
    removeRow->addWidget(m_remove.link);
    removeRow->addStretch();
    layout->addLayout(removeRow);

    connect(m_search.button, &QPushButton::clicked, this, &MaintenancePage::SearchRequested);
    connect(m_search.link, &QLabel::linkActivated, this, &MaintenancePage::SearchRequested);
    connect(m_remove.button, &QPushButton::clicked, this, &MaintenancePage::RemoveRequested);
    connect(m_remove.link, &QLabel::linkActivated, this, &MaintenancePage::RemoveRequested);
    connect(m_allOrphans, &QCheckBox::toggled, this, [this](bool all) {
        if (all) {
            m_orphanList->selectAll();
        } else {
            m_orphanList->clearSelection();
        }
    });
    return frame;
}

QWidget* MaintenancePage::BuildReportsFrame() {
    auto* frame =
        Named(new QGroupBox(QStringLiteral("Reports && Lists")), QStringLiteral("fraReports"));
    auto* layout = new QVBoxLayout(frame);
    const std::pair<const char*, const char*> boxes[] = {
        {"chkDeleteROMs", "ROMs / Software Reports"},
        {"chkDeleteSamples", "Samples Report"},
        {"chkDeleteRebuilt", "Rebuilt Settings"},
        {"chkDeleteAll", "All Arcade Machines"},
        {"chkDeleteAvailable", "Available Arcade Machines"},
        {"chkDeleteUnavailable", "Unavailable Arcade Machines"},
        {"chkDeleteOther", "Other Machines"},
        {"chkDeleteArcadeChanges", "Favorite Arcade Machine Changes"},
        {"chkDeleteOtherChanges", "Favorite Other Machine Changes"},
        {"chkDeleteWhatROMsChanged", "What ROMs Changed"},
    };
    int box = 0;
    for (const auto& [name, caption] : boxes) {
        auto* check = Named(new QCheckBox(QString::fromLatin1(caption)), QString::fromLatin1(name));
        layout->addWidget(check);
        m_reportBoxes.emplace_back(check, static_cast<ReportBox>(box++));
    }
    auto* row = new QHBoxLayout;
    const Command selectAll = AddCommand(frame, "cmdSelectAll_0", QStringLiteral("Select All"), 12);
    const Command remove = AddCommand(frame, "cmdReports", QStringLiteral("Delete"), 15);
    remove.button->setToolTip(QStringLiteral("Deletes The Ticked Reports And Lists"));
    for (const Command& command : {selectAll, remove}) {
        row->addWidget(command.button);
        row->addWidget(command.link);
    }
    row->addStretch();
    layout->addLayout(row);
    connect(selectAll.button, &QPushButton::clicked, this, &MaintenancePage::SelectAllReports);
    connect(selectAll.link, &QLabel::linkActivated, this, &MaintenancePage::SelectAllReports);
    connect(remove.button, &QPushButton::clicked, this, &MaintenancePage::CleanReportsRequested);
    connect(remove.link, &QLabel::linkActivated, this, &MaintenancePage::CleanReportsRequested);
    return frame;
}

QWidget* MaintenancePage::BuildOutputFrame() {
    auto* frame = Named(new QGroupBox(QStringLiteral("Output Directories")),
                        QStringLiteral("fraOutputDirectories"));
    auto* layout = new QVBoxLayout(frame);
    const char* const kinds[] = {"Nvram", "Cfg", "Inp", "Snap"};
    for (int i = 0; i < 4; ++i) {
        auto* check =
            Named(new QCheckBox(QString::fromLatin1(kinds[i])), Indexed("chkOutputDirectories", i));
        layout->addWidget(check);
        m_directories[static_cast<std::size_t>(i)] = check;
    }
    layout->addSpacing(12);
    m_all = Named(new QRadioButton(QStringLiteral("All Files")), QStringLiteral("optAll"));
    m_current =
        Named(new QRadioButton(QStringLiteral("Current Game Files")), QStringLiteral("optCurrent"));
    m_all->setChecked(true);
    layout->addWidget(m_all);
    layout->addWidget(m_current);
    layout->addStretch();
    auto* row = new QHBoxLayout;
    const Command selectAll = AddCommand(frame, "cmdSelectAll_1", QStringLiteral("Select All"), 14);
    const Command remove = AddCommand(frame, "cmdOutputDirectories", QStringLiteral("Delete"), 13);
    remove.button->setToolTip(QStringLiteral("Deletes What MAME Wrote In The Ticked Folders"));
    for (const Command& command : {selectAll, remove}) {
        row->addWidget(command.button);
        row->addWidget(command.link);
    }
    row->addStretch();
    layout->addLayout(row);
    connect(selectAll.button, &QPushButton::clicked, this, &MaintenancePage::SelectAllDirectories);
    connect(selectAll.link, &QLabel::linkActivated, this, &MaintenancePage::SelectAllDirectories);
    connect(remove.button, &QPushButton::clicked, this, &MaintenancePage::CleanOutputRequested);
    connect(remove.link, &QLabel::linkActivated, this, &MaintenancePage::CleanOutputRequested);
    return frame;
}

void MaintenancePage::SelectAllReports() {
    for (const auto& [box, which] : m_reportBoxes) {
        box->setChecked(true);
    }
}

void MaintenancePage::SelectAllDirectories() {
    for (QCheckBox* box : m_directories) {
        box->setChecked(true);
    }
}

SetFormat MaintenancePage::Format() const {
    return m_compression[0]->isChecked() ? SetFormat::SevenZip : SetFormat::Zip;
}

void MaintenancePage::BeginSearch() {
    ClearOrphanList();
    EnableCommand(m_search, false);
    EnableCommand(m_return, false);
}

void MaintenancePage::EndSearch() {
    EnableCommand(m_search, true);
    EnableCommand(m_return, true);
    EndProgress();
}

void MaintenancePage::SetStatus(const QString& text) {
    m_folder->setText(text);
    m_folder->repaint();
}

void MaintenancePage::StartProgress(int maximum) {
    m_progress->setRange(0, maximum);
    m_progress->setValue(0);
    m_progress->show();
}

void MaintenancePage::SetProgress(int value) {
    m_progress->setValue(value);
}

void MaintenancePage::EndProgress() {
    m_progress->reset();
    m_progress->hide();
}

void MaintenancePage::SetOrphans(std::vector<RomFolderFile> entries, bool shown) {
    m_orphans = std::move(entries);
    m_orphanList->clear();
    for (const RomFolderFile& entry : m_orphans) {
        m_orphanList->addItem(QString::fromStdString(entry.Text()));
    }
    m_allOrphans->setVisible(shown);
    m_orphanList->setVisible(shown);
    ShowCommand(m_remove, shown);
}

std::vector<int> MaintenancePage::SelectedOrphanRowsLastFirst() const {
    std::vector<int> rows;
    for (int row = m_orphanList->count() - 1; row >= 0; --row) {
        if (m_orphanList->item(row)->isSelected()) {
            rows.push_back(row);
        }
    }
    return rows;
}

void MaintenancePage::RemoveOrphan(int row) {
    delete m_orphanList->takeItem(row);
    m_orphans.erase(m_orphans.begin() + row);
}

void MaintenancePage::DeselectAllOrphans() {
    m_orphanList->clearSelection();
}

void MaintenancePage::ClearOrphanList() {
    const QSignalBlocker quiet(m_allOrphans);
    m_allOrphans->setChecked(false);
    m_allOrphans->hide();
    m_orphanList->clear();
    m_orphans.clear();
    m_orphanList->hide();
    ShowCommand(m_remove, false);
}

std::set<ReportBox> MaintenancePage::TickedReports() const {
    std::set<ReportBox> ticked;
    for (const auto& [box, which] : m_reportBoxes) {
        if (box->isChecked()) {
            ticked.insert(which);
        }
    }
    return ticked;
}

std::vector<OutputKind> MaintenancePage::TickedDirectories() const {
    std::vector<OutputKind> ticked;
    for (std::size_t i = 0; i < m_directories.size(); ++i) {
        if (m_directories[i]->isChecked()) {
            ticked.push_back(static_cast<OutputKind>(i));
        }
    }
    return ticked;
}

bool MaintenancePage::CurrentMachineChosen() const {
    return m_current->isEnabled() && m_current->isChecked();
}

void MaintenancePage::OfferCurrentMachine(bool offered) {
    m_current->setEnabled(offered);
    (offered ? m_current : m_all)->setChecked(true);
}

void MaintenancePage::SetUseLinks(bool links) {
    m_useLinks = links;
    for (const Command& command : m_commands) {
        const bool shown =
            command.button == m_remove.button ? m_orphanList->isVisibleTo(this) : true;
        ShowCommand(command, shown);
    }
}

} // namespace coinlight
