#include "LinkLabel.h"

#include <QEvent>

namespace coinlight {

LinkLabel::LinkLabel(const QString& caption, QWidget* parent) : QLabel(parent) {
    setTextFormat(Qt::RichText);
    setTextInteractionFlags(Qt::LinksAccessibleByMouse | Qt::LinksAccessibleByKeyboard);
    setFocusPolicy(Qt::TabFocus);
    setCursor(Qt::PointingHandCursor);
    SetCaption(caption);
}

void LinkLabel::SetCaption(const QString& caption) {
    m_caption = caption;
    Render();
}

void LinkLabel::changeEvent(QEvent* event) {
    QLabel::changeEvent(event);
    if (event->type() == QEvent::EnabledChange) {
        Render();
    }
}

void LinkLabel::Render() {
    const QString escaped = m_caption.toHtmlEscaped();
    setText(isEnabled() ? QStringLiteral("<a href=\"#\">%1</a>").arg(escaped)
                        : QStringLiteral("<span style=\"color:#8a8a8a\">%1</span>").arg(escaped));
}

} // namespace coinlight
