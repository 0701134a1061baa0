#include "PanelText.h"

#include <QTextCursor>
#include <QTextEdit>

namespace coinlight {

void SetPanelText(QTextEdit& box, std::string_view text, bool boldHeader) {
    box.setCurrentCharFormat(QTextCharFormat());
    box.setPlainText(QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size())));
    if (!boldHeader) {
        return;
    }
    QTextCursor cursor(box.document());
    cursor.movePosition(QTextCursor::EndOfBlock, QTextCursor::KeepAnchor);
    QTextCharFormat bold;
    bold.setFontWeight(QFont::Bold);
    cursor.mergeCharFormat(bold);
}

} // namespace coinlight
