#include "frmAbout.h"

#include <QApplication>
#include <QButtonGroup>
#include <QCheckBox>
#include <QDesktopServices>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>
#include <QUrl>
#include <QVBoxLayout>

#include "AboutArt.h"
#include "core/Version.h"
#include "tools/MameVersion.h"
#include "ui/LinkLabel.h"
#include "ui/Prompter.h"

namespace coinlight {

namespace {

struct ExtrasButton {
    ExtrasKind kind;
    const char* name;
    const char* caption;
};

constexpr ExtrasButton kExtrasButtons[] = {
    {ExtrasKind::Artwork, "optArtwork", "Artwork"},
    {ExtrasKind::Samples, "optSamples", "Samples"},
    {ExtrasKind::Icons, "optIcons", "Icons"},
    {ExtrasKind::Cheats, "optCheats", "Cheats"},
    {ExtrasKind::Miscellaneous, "optOthersApp", "Miscellaneous"},
};

QLabel* AddLabel(QWidget* parent, const char* name, const QString& text) {
    auto* label = new QLabel(text, parent);
    label->setObjectName(QString::fromLatin1(name));
    return label;
}

} // namespace

frmAbout::frmAbout(AboutFacts facts, Prompter& prompter, QWidget* parent)
    : QDialog(parent), m_facts(std::move(facts)), m_prompter(prompter) {
    setObjectName(QStringLiteral("frmAbout"));
    setWindowTitle(QStringLiteral("About Coinlight"));
    BuildForm();
}

void frmAbout::BuildForm() {
    const qreal ratio = devicePixelRatioF();
    auto* imgTitle = AddLabel(this, "imgTitle", {});
    imgTitle->setPixmap(AboutTitlePicture(420, ratio));
    auto* imgCabinet = AddLabel(this, "imgCabinet", {});
    imgCabinet->setPixmap(AboutCabinetPicture(ratio));

    auto* lblVersion = AddLabel(
        this, "lblVersion", QStringLiteral("Version ") + QString::fromLatin1(kCoinlightVersion));
    QFont big = lblVersion->font();
    big.setPointSize(big.pointSize() + 3);
    big.setBold(true);
    lblVersion->setFont(big);
    auto* lblCredits =
        AddLabel(this, "lblCredits",
                 QStringLiteral("A front-end for the MAME emulator.\nWritten in C++ with Qt by the "
                                "Coinlight developers."));
    auto* lblRights = AddLabel(this, "lblRights", QStringLiteral("All Rights Reserved"));
    m_lblMAMEVersion = AddLabel(this, "lblMAMEVersion", {});
    auto* url = new LinkLabel(QStringLiteral("Click Here To Visit The Coinlight Website"), this);
    url->setObjectName(QStringLiteral("lblURL"));
    url->setVisible(!m_facts.siteAddress.empty());
    m_lblURL = url;
    connect(url, &QLabel::linkActivated, this, &frmAbout::lblURL_Click);

    auto* cmdVersion = new QPushButton(QStringLiteral("&MAME"), this);
    cmdVersion->setObjectName(QStringLiteral("cmdVersion"));
    cmdVersion->setToolTip(QStringLiteral("Shows The Current Version Of MAME"));
    cmdVersion->setAutoDefault(false);
    connect(cmdVersion, &QPushButton::clicked, this, &frmAbout::cmdVersion_Click);
    auto* cmdClose = new QPushButton(QStringLiteral("&Close"), this);
    cmdClose->setObjectName(QStringLiteral("cmdClose"));
    cmdClose->setToolTip(QStringLiteral("Returns To Coinlight"));
    cmdClose->setDefault(true);
    connect(cmdClose, &QPushButton::clicked, this, &QDialog::accept);
    m_chkOther = new QCheckBox(QStringLiteral("Other Extras"), this);
    m_chkOther->setObjectName(QStringLiteral("chkOther"));
    connect(m_chkOther, &QCheckBox::toggled, this, &frmAbout::chkOther_Click);

    auto* texts = new QVBoxLayout;
    texts->addWidget(lblVersion);
    texts->addWidget(m_lblMAMEVersion);
    texts->addSpacing(8);
    texts->addWidget(lblCredits);
    texts->addWidget(lblRights);
    texts->addWidget(url);
    texts->addStretch(1);
    texts->addWidget(m_chkOther);
    auto* middle = new QHBoxLayout;
    middle->addWidget(imgCabinet, 0, Qt::AlignTop);
    middle->addSpacing(12);
    middle->addLayout(texts, 1);
    auto* buttons = new QHBoxLayout;
    buttons->addWidget(cmdVersion);
    buttons->addStretch(1);
    buttons->addWidget(cmdClose);

    auto* layout = new QVBoxLayout(this);
    layout->addWidget(imgTitle);
    layout->addLayout(middle);
    layout->addWidget(BuildExtras());
    layout->addLayout(buttons);
    layout->setSizeConstraint(QLayout::SetFixedSize);
}

QWidget* frmAbout::BuildExtras() {
    m_fraOther = new QGroupBox(QStringLiteral("Extras Found"), this);
    m_fraOther->setObjectName(QStringLiteral("fraOther"));
    m_options = new QButtonGroup(m_fraOther);
    auto* choices = new QVBoxLayout;
    for (const ExtrasButton& button : kExtrasButtons) {
        auto* option = new QRadioButton(QString::fromLatin1(button.caption), m_fraOther);
        option->setObjectName(QString::fromLatin1(button.name));
        m_options->addButton(option, static_cast<int>(button.kind));
        choices->addWidget(option);
    }
    choices->addStretch(1);
    connect(m_options, &QButtonGroup::idClicked, this,
            [this](int kind) { ShowExtras(static_cast<ExtrasKind>(kind)); });
    m_flbExtras = new QListWidget(m_fraOther);
    m_flbExtras->setObjectName(QStringLiteral("flbExtras"));
    m_flbExtras->setMinimumSize(260, 140);
    m_lblTotal = AddLabel(m_fraOther, "lblTotal", QStringLiteral("Total Files:"));
    auto* files = new QVBoxLayout;
    files->addWidget(m_flbExtras, 1);
    files->addWidget(m_lblTotal);
    auto* layout = new QHBoxLayout(m_fraOther);
    layout->addLayout(choices);
    layout->addLayout(files, 1);
    m_fraOther->hide();
    return m_fraOther;
}

void frmAbout::cmdVersion_Click() {
    const Preferences& preferences = *m_facts.preferences;
    QApplication::setOverrideCursor(Qt::WaitCursor);
    const std::string version = MameVersion(preferences.searchPaths.mame,
                                            preferences.mame.executable, m_facts.data->Temp(), [] {
                                                QApplication::processEvents();
                                                return true;
                                            });
    QApplication::restoreOverrideCursor();
    m_lblMAMEVersion->setText(QStringLiteral("MAME Version: ") + QString::fromStdString(version));
}

void frmAbout::chkOther_Click() {
    m_fraOther->setVisible(m_chkOther->isChecked());
    if (m_chkOther->isChecked()) {
        m_options->button(static_cast<int>(ExtrasKind::Artwork))->setChecked(true);
        ShowExtras(ExtrasKind::Artwork);
    }
}

void frmAbout::ShowExtras(ExtrasKind kind) {
    const ExtrasSource source =
        SourceOfExtras(kind, *m_facts.preferences, m_facts.artworkFolders, m_facts.data->Support());
    const auto files = ListExtras(source);
    if (!files) {
        m_prompter.Message(QStringLiteral("Coinlight"), QString::fromStdString(source.error),
                           PromptIcon::Critical);
        return; // the list stays as it stood
    }
    m_flbExtras->clear();
    for (const std::string& file : *files) {
        m_flbExtras->addItem(QString::fromStdString(file));
    }
    m_lblTotal->setText(QStringLiteral("Total Files: ") + QString::number(files->size()));
}

void frmAbout::lblURL_Click() {
    if (!QDesktopServices::openUrl(QUrl(QString::fromStdString(m_facts.siteAddress)))) {
        m_prompter.Message(QStringLiteral("About Coinlight"),
                           QStringLiteral("Error launching browser."));
    }
}

} // namespace coinlight
