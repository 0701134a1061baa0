#pragma once

#include <string_view>

#include <QGroupBox>
#include <QPushButton>
#include <QTextBrowser>

#include "ui/LinkLabel.h"

class QHBoxLayout;

namespace coinlight {

/// The shared text page (`fraVerify`): reports, information and documents are shown in
/// `rtfVerify` and left through `cmdGameList` or its link. While MAME verifies a whole
/// collection, a Cancel command stands beside them.
class VerifyPage final : public QGroupBox {
    Q_OBJECT
public:
    explicit VerifyPage(QWidget* parent = nullptr);

    QTextBrowser* Report() const { return m_report; }
    QPushButton* ReturnButton() const { return m_return; }
    LinkLabel* ReturnLink() const { return m_returnLink; }

    /// A widget shown beside the text, such as a list of information sources.
    void SetSidePanel(QWidget* panel);

    /// Replaces the text; CR LF, LF and CR alike end a line.
    void ShowText(std::string_view text);
    /// Adds text at the end, keeping the view at the end when it was there.
    void AppendText(std::string_view text);
    /// The text as the page shows it, lines ended by LF.
    std::string PlainText() const;

    /// Bold for the first `word` at or after character `from` (a line end counts as one);
    /// nothing when it is not there.
    void BoldFirst(const QString& word, int from);

    /// The Cancel command is there only while a verification runs.
    void SetCancelShown(bool shown);
    void SetUseLinks(bool links);

signals:
    void CancelRequested();

private:
    QHBoxLayout* m_body = nullptr;
    QTextBrowser* m_report = nullptr;
    QPushButton* m_return = nullptr;
    LinkLabel* m_returnLink = nullptr;
    QPushButton* m_cancel = nullptr;
    LinkLabel* m_cancelLink = nullptr;
    bool m_useLinks = true;
    bool m_cancelShown = false;
};

} // namespace coinlight
