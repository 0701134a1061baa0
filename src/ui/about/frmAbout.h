#pragma once

#include <string>
#include <vector>

#include <QDialog>

#include "AboutExtras.h"
#include "core/DataLayout.h"

class QButtonGroup;
class QCheckBox;
class QGroupBox;
class QLabel;
class QListWidget;

namespace coinlight {

class Prompter;

/// What the About box shows and counts.
struct AboutFacts {
    const Preferences* preferences = nullptr;
    const DataLayout* data = nullptr;
    std::vector<std::string> artworkFolders;
    std::string siteAddress; // the project's site; without one its link is not shown
};

/// The About box: the version, the running MAME's version on request, the credits, the link
/// to the site, and the counts of the extras found on disk.
class frmAbout final : public QDialog {
    Q_OBJECT
public:
    frmAbout(AboutFacts facts, Prompter& prompter, QWidget* parent = nullptr);

    void cmdVersion_Click();
    void chkOther_Click();
    void lblURL_Click();
    void ShowExtras(ExtrasKind kind);

private:
    void BuildForm();
    QWidget* BuildExtras();

    AboutFacts m_facts;
    Prompter& m_prompter;
    QLabel* m_lblMAMEVersion = nullptr;
    QLabel* m_lblURL = nullptr;
    QCheckBox* m_chkOther = nullptr;
    QGroupBox* m_fraOther = nullptr;
    QButtonGroup* m_options = nullptr;
    QListWidget* m_flbExtras = nullptr;
    QLabel* m_lblTotal = nullptr;
};

} // namespace coinlight
