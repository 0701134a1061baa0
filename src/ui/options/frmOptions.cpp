#include "frmOptions.h"

#include <QDate>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QScreen>
#include <QVBoxLayout>

#include "LayoutFill.h"
#include "OkPaths.h"
#include "OptionsWriter.h"
#include "PathRules.h"
#include "PathsPage.h"
#include "PreferencesPage.h"
#include "ui/Prompter.h"

namespace coinlight {

namespace {

constexpr int kDesignedWidth = 1040;
constexpr int kDesignedHeight = 640;

QPushButton* AddButton(QWidget* parent, QLayout* layout, const char* name, const QString& caption) {
    auto* button = new QPushButton(caption, parent);
    button->setObjectName(QString::fromLatin1(name));
    layout->addWidget(button);
    return button;
}

} // namespace

frmOptions::frmOptions(AppContext& context, Prompter& prompter, OptionsRequest request,
                       QWidget* parent)
    : QDialog(parent), m_context(context), m_prompter(prompter), m_request(std::move(request)) {
    setObjectName(QStringLiteral("frmOptions"));
    setWindowTitle(QStringLiteral("Options"));
    setSizeGripEnabled(true);
    BuildForm();
    FormLoad();
    FitScreen();
}

OptionsOutcome frmOptions::ShowModal(AppContext& context, Prompter& prompter,
                                     OptionsRequest request, QWidget* parent) {
    frmOptions form(context, prompter, std::move(request), parent);
    form.exec();
    return form.Outcome();
}

void frmOptions::BuildForm() {
    m_pages = new QStackedWidget(this);
    m_paths = new PathsPage(m_prompter, m_request.locations, m_pages);
    m_preferences = new PreferencesPage(m_prompter, m_context.facts.ideMode, m_pages);
    m_pages->addWidget(m_paths);
    m_pages->addWidget(m_preferences);
    connect(m_paths, &PathsPage::ChoiceMade, this, &frmOptions::FocusAfterChoice);

    auto* buttons = new QHBoxLayout;
    buttons->addStretch(1);
    m_cmdBack = AddButton(this, buttons, "cmdBack", QStringLiteral("< &Back"));
    m_cmdNext = AddButton(this, buttons, "cmdNext", QStringLiteral("&Next >"));
    m_cmdOK = AddButton(this, buttons, "cmdOK", QStringLiteral("OK"));
    m_cmdCancel = AddButton(this, buttons, "cmdCancel", QStringLiteral("Cancel"));
    connect(m_cmdBack, &QPushButton::clicked, this, &frmOptions::cmdBack_Click);
    connect(m_cmdNext, &QPushButton::clicked, this, &frmOptions::cmdNext_Click);
    connect(m_cmdOK, &QPushButton::clicked, this, &frmOptions::cmdOK_Click);
    connect(m_cmdCancel, &QPushButton::clicked, this, &frmOptions::cmdCancel_Click);

    auto* layout = new QVBoxLayout(this);
    layout->addWidget(m_pages, 1);
    layout->addLayout(buttons);
}

void frmOptions::FormLoad() {
    const DataLayout& folders = m_context.data;
    const Preferences& preferences = m_context.preferences;
    m_paths->Load(preferences, folders.Temp());

    const std::filesystem::path catverIni = folders.Support() / "catver.ini";
    std::optional<CategoryRows> categories = m_request.categoryCache != nullptr
                                                 ? m_request.categoryCache->Rows(catverIni)
                                                 : ReadCategoryRows(catverIni);
    m_context.facts.hasCatver = categories.has_value();
    m_preferences->Load(preferences, ReadBiosRows(folders.Output() / "biosfilter.txt"),
                        std::move(categories), QDate::currentDate().year());

    cmdBack_Click();
    if (m_request.firstRun) {
        m_paths->OfferMameOnPath();
    }
    m_paths->FocusMamePath();
}

void frmOptions::FitScreen() {
    QSize size(kDesignedWidth, kDesignedHeight);
    size = size.expandedTo(minimumSizeHint());
    if (const QScreen* screen = QGuiApplication::primaryScreen()) {
        size = size.boundedTo(screen->availableGeometry().size());
    }
    resize(size);
}

void frmOptions::cmdBack_Click() {
    m_pages->setCurrentWidget(m_paths);
    m_cmdNext->setEnabled(true);
    m_cmdNext->setDefault(true);
    m_cmdNext->setFocus(Qt::OtherFocusReason);
    m_cmdOK->setEnabled(false);
    m_cmdBack->setEnabled(false);
}

void frmOptions::cmdNext_Click() {
    m_pages->setCurrentWidget(m_preferences);
    m_cmdOK->setEnabled(true);
    m_cmdBack->setEnabled(true);
    m_cmdNext->setEnabled(false);
    m_cmdOK->setDefault(true);
    // An empty MAME or ROM field is pointed out by OK, which brings its page back.
    m_cmdOK->setFocus(Qt::OtherFocusReason);
}

void frmOptions::FocusAfterChoice() {
    (m_cmdOK->isEnabled() ? m_cmdOK : m_cmdNext)->setFocus(Qt::OtherFocusReason);
}

void frmOptions::cmdOK_Click() {
    Preferences next = m_context.preferences;
    m_preferences->ReadBack(next);

    OkPathsInput input;
    input.mamePath = m_paths->MamePath().toStdString();
    input.texts = m_paths->Texts();
    PrepareUserRomFolder(m_request.locations, input.texts);
    input.previous = &m_context.preferences;
    input.iniFolder = m_context.data.Temp();
    input.inOtherView = m_request.inOtherView;
    const OkPathsResult paths = CheckPathsForOk(input);
    for (const std::string& message : paths.messages) {
        m_prompter.Message(QString::fromLatin1(kOptionsTitle), QString::fromStdString(message));
    }
    m_paths->SetMamePath(QString::fromStdString(paths.mamePath));
    m_paths->SetTexts(paths.texts);
    if (!paths.ok) {
        cmdBack_Click();
        if (paths.focusField) {
            m_paths->FocusField(*paths.focusField);
        } else {
            m_paths->FocusMamePath();
        }
        return;
    }
    TakeOverPaths(paths, next);

    std::string error;
    if (!WriteOptionsIni(m_context.data.OptionsIni(), next, &error)) {
        m_prompter.Message(QString::fromLatin1(kCoinlightTitle),
                           QStringLiteral("Error in frmOptions: cmdOK_Click: ") +
                               QString::fromStdString(error),
                           PromptIcon::Critical);
        return;
    }
    m_outcome = CompareOptions(m_context.preferences, next);
    m_context.preferences = std::move(next);
    accept();
}

void frmOptions::cmdCancel_Click() {
    reject();
}

void frmOptions::reject() {
    m_outcome = OptionsOutcome{};
    if (m_request.firstRun) {
        // Nothing to start with: the start sequence ends the program.
        m_context.flags.closeRequested = true;
    }
    QDialog::reject();
}

} // namespace coinlight
