#include "VerifyPage.h"

#include <QHBoxLayout>
#include <QScrollBar>
#include <QTextCursor>
#include <QVBoxLayout>

namespace coinlight {

namespace {

/// Report files come from MAME and from Windows days alike: every kind of line end becomes
/// the page's one kind.
QString PageText(std::string_view text) {
    QString page = QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
    page.replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
    page.replace(QLatin1Char('\r'), QLatin1Char('\n'));
    return page;
}

} // namespace

VerifyPage::VerifyPage(QWidget* parent) : QGroupBox(parent) {
    setObjectName(QStringLiteral("fraVerify"));
    auto* layout = new QVBoxLayout(this);
    m_body = new QHBoxLayout;
    m_report = new QTextBrowser;
    m_report->setObjectName(QStringLiteral("rtfVerify"));
    m_report->setOpenExternalLinks(false);
    m_report->setTabStopDistance(100 * 2); // 100 dialog units, about 200 pixels
    m_body->addWidget(m_report, 1);
    layout->addLayout(m_body, 1);

    auto* commands = new QHBoxLayout;
    m_return = new QPushButton(QStringLiteral("&Return"), this);
    m_return->setObjectName(QStringLiteral("cmdGameList"));
    m_return->setToolTip(QStringLiteral("Returns To The Machine List"));
    m_return->setAutoDefault(false);
    m_returnLink = new LinkLabel(QStringLiteral("Return"), this);
    m_returnLink->setObjectName(QStringLiteral("lblBLinks_11"));
    m_cancel = new QPushButton(QStringLiteral("&Cancel"), this);
    m_cancel->setObjectName(QStringLiteral("cmdCancelVerify"));
    m_cancel->setToolTip(QStringLiteral("Stops MAME's Verification"));
    m_cancel->setAutoDefault(false);
    m_cancelLink = new LinkLabel(QStringLiteral("Cancel"), this);
    m_cancelLink->setObjectName(QStringLiteral("lblCancelVerify"));
    for (QWidget* command :
         {static_cast<QWidget*>(m_return), static_cast<QWidget*>(m_returnLink),
          static_cast<QWidget*>(m_cancel), static_cast<QWidget*>(m_cancelLink)}) {
        commands->addWidget(command);
    }
    commands->addStretch();
    layout->addLayout(commands);
    SetCancelShown(false);

    connect(m_cancel, &QPushButton::clicked, this, &VerifyPage::CancelRequested);
    connect(m_cancelLink, &QLabel::linkActivated, this, &VerifyPage::CancelRequested);
}

void VerifyPage::SetSidePanel(QWidget* panel) {
    m_body->addWidget(panel);
}

void VerifyPage::ShowText(std::string_view text) {
    m_report->setPlainText(PageText(text));
}

void VerifyPage::AppendText(std::string_view text) {
    QScrollBar* bar = m_report->verticalScrollBar();
    const bool atEnd = bar->value() == bar->maximum();
    QTextCursor end(m_report->document());
    end.movePosition(QTextCursor::End);
    end.insertText(PageText(text));
    if (atEnd) {
        bar->setValue(bar->maximum());
    }
}

std::string VerifyPage::PlainText() const {
    return m_report->toPlainText().toStdString();
}

void VerifyPage::BoldFirst(const QString& word, int from) {
    QTextDocument* document = m_report->document();
    const QTextCursor found = document->find(word, from, QTextDocument::FindCaseSensitively);
    if (found.isNull()) {
        return;
    }
    QTextCharFormat bold;
    bold.setFontWeight(QFont::Bold);
    QTextCursor selection = found;
    selection.mergeCharFormat(bold);
}

void VerifyPage::SetCancelShown(bool shown) {
    m_cancelShown = shown;
    m_cancel->setVisible(shown && !m_useLinks);
    m_cancelLink->setVisible(shown && m_useLinks);
}

void VerifyPage::SetUseLinks(bool links) {
    m_useLinks = links;
    SetCancelShown(m_cancelShown);
}

} // namespace coinlight
