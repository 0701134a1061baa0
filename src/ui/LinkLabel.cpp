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
    // The colour is written into the text: a link's colour is otherwise fixed when the text
    // is parsed, from the application's palette, and a theme's would never show.
    if (event->type() == QEvent::EnabledChange || event->type() == QEvent::PaletteChange) {
        Render();
    }
}

void LinkLabel::Render() {
    const QString escaped = m_caption.toHtmlEscaped();
    const QPalette& colours = palette();
    setText(isEnabled() ? QStringLiteral("<a href=\"#\" style=\"color:%1\">%2</a>")
                              .arg(colours.color(QPalette::Link).name(), escaped)
                        : QStringLiteral("<span style=\"color:%1\">%2</span>")
                              .arg(colours.color(QPalette::Disabled, QPalette::WindowText).name(),
                                   escaped));
}

} // namespace coinlight
