#pragma once

#include <QFrame>
#include <QLabel>
#include <QMainWindow>
#include <QPointer>

#include "core/AppContext.h"

namespace coinlight {

class Prompter;
class frmCover;
class frmSplash;

/// The main window. Its load is the program's real start: folders, preferences, catalogue,
/// lists and look, in a fixed order, before the window is shown.
class frmMain final : public QMainWindow {
    Q_OBJECT
public:
    frmMain(AppContext& context, Prompter& prompter, QWidget* parent = nullptr);
    ~frmMain() override;

    /// Runs the start sequence. False when the program must end; the user has been told why.
    bool FormLoad();

    /// Lays the cover over the window while it paints; UnloadCover takes it away.
    void ShowCover();
    void UnloadCover();

    /// Brings the window back to the front, restored if it was minimised.
    void RaiseFromAnotherStart();

    /// The steps that follow the load: the machine left selected starts at once when the
    /// user asked for that; fresh news is shown; the information line starts moving.
    void AutoRunAtStart();
    void NewsAtStart();
    void StartScrolling();

protected:
    void closeEvent(QCloseEvent* event) override;

private:
    void BuildForm();
    void CentreOnScreen();
    bool PrepareFolders();
    bool LoadOptions();
    bool ReadBranch(bool& startOver);
    bool FirstRunBranch();
    void RecoverFromBadOptions();
    bool ShowOptionsAtFirstRun();
    void FatalLoadError(const QString& description, int statement);
    void EmptyTempFolder();
    void UnloadAllForms();
    frmSplash& Splash();

    AppContext& m_context;
    Prompter& m_prompter;
    QPointer<frmSplash> m_splash;
    QPointer<frmCover> m_cover;
    QFrame* m_fraList = nullptr;
    QFrame* m_fraVerify = nullptr;
    QFrame* m_fraDefaults = nullptr;
    QFrame* m_fraMaintenance = nullptr;
    QLabel* m_lblStatus = nullptr;
    QRect m_normalGeometry;
};

} // namespace coinlight
