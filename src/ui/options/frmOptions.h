#pragma once

#include <QDialog>
#include <QPushButton>
#include <QStackedWidget>

#include "OptionsOutcome.h"
#include "OptionsRequest.h"
#include "core/AppContext.h"

namespace coinlight {

class Prompter;
class PathsPage;
class PreferencesPage;

/// The Options dialog: where MAME and its folders are, what the lists hide and how the
/// program looks. It opens on the paths page; Next leads to the filters and preferences,
/// where OK checks everything, writes options.ini and hands the new preferences to the
/// application. Cancel writes nothing.
class frmOptions final : public QDialog {
    Q_OBJECT
public:
    frmOptions(AppContext& context, Prompter& prompter, OptionsRequest request,
               QWidget* parent = nullptr);

    /// Opens the dialog modally and tells what came of it.
    static OptionsOutcome ShowModal(AppContext& context, Prompter& prompter, OptionsRequest request,
                                    QWidget* parent = nullptr);

    const OptionsOutcome& Outcome() const { return m_outcome; }

    void cmdNext_Click();
    void cmdBack_Click();
    void cmdOK_Click();
    void cmdCancel_Click();

    /// Escape and the window's close button cancel, as the Cancel button does.
    void reject() override;

private:
    void BuildForm();
    void FormLoad();
    void FitScreen();
    void FocusAfterChoice();

    AppContext& m_context;
    Prompter& m_prompter;
    OptionsRequest m_request;
    OptionsOutcome m_outcome;
    QStackedWidget* m_pages = nullptr;
    PathsPage* m_paths = nullptr;
    PreferencesPage* m_preferences = nullptr;
    QPushButton* m_cmdBack = nullptr;
    QPushButton* m_cmdNext = nullptr;
    QPushButton* m_cmdOK = nullptr;
    QPushButton* m_cmdCancel = nullptr;
};

} // namespace coinlight
