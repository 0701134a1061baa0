#pragma once

#include <QTextDocument>

#include "ui/MainControls.h"
#include "ui/MainWindowFixture.h"

namespace coinlight::test {

/// The main window over the small catalogue, with a fake MAME that answers the audit and
/// verification questions from the reports fixtures.
class ReportsWindowFixture : public MainWindowFixture {
protected:
    ReportsWindowFixture() {
        std::filesystem::remove(m_mame.Data());
        std::filesystem::create_directory_symlink(FixturesFolder() / "reports-mame", m_mame.Data());
    }

    void Select(MachineListView* list, std::string_view name) {
        const int row = list->Model().RowOfShortName(name);
        ASSERT_GE(row, 0) << name;
        list->SelectRow(row);
    }
    QString Report() { return Controls().rtfVerify->toPlainText(); }
    QWidget* Page() { return Controls().pages->currentWidget(); }

    /// Whether the first `word` found at or after `from` is shown in bold.
    bool IsBold(const QString& word, int from = 0) {
        const QTextCursor found =
            Controls().rtfVerify->document()->find(word, from, QTextDocument::FindCaseSensitively);
        return !found.isNull() && found.charFormat().fontWeight() == QFont::Bold;
    }
    /// The MAME runs so far, one line each: the working folder and the arguments.
    std::string Runs() { return ReadFile(m_mame.Launches()); }
};

} // namespace coinlight::test
