#include "WindowButton.h"

#include <QPainter>

#include "WindowButtonArt.h"
#include "ui/theme/TitleArt.h"

namespace coinlight {

std::array<std::string_view, 3> WindowButtonPictures(int hovered, bool normalWindow) {
    const bool minimize = hovered == kMinimizeButton;
    const bool middle = hovered == kMaximizeButton;
    const bool close = hovered == kCloseButton;
    std::string_view sizing;
    if (normalWindow) {
        sizing = middle ? "MaxH" : "MaxN";
    } else {
        sizing = middle ? "RestoreH" : "RestoreN";
    }
    return {minimize ? "MinH" : "MinN", sizing, close ? "CloseH" : "CloseN"};
}

WindowButton::WindowButton(int index, QWidget* parent) : QAbstractButton(parent), m_index(index) {
    setObjectName(QStringLiteral("imgWindowState_%1").arg(index));
    setFocusPolicy(Qt::NoFocus);
    setFixedSize(sizeHint());
    const char* const tips[] = {"Minimize", "Maximize", "Close"};
    setToolTip(QString::fromLatin1(tips[index]));
    SetPicture(WindowButtonPictures(-1, true)[static_cast<std::size_t>(index)]);
}

void WindowButton::SetPicture(std::string_view key) {
    if (key == m_picture) {
        return;
    }
    m_picture = key;
    if (m_index == kMaximizeButton) {
        setToolTip(key.starts_with("Restore") ? QStringLiteral("Restore Down")
                                              : QStringLiteral("Maximize"));
    }
    update();
}

void WindowButton::SetTitleImage(std::string_view key) {
    m_titleImage = key;
    update();
}

void WindowButton::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    PaintWindowButton(painter, QRectF(rect()), m_picture, TitleStyleOf(m_titleImage));
}

void WindowButton::enterEvent(QEnterEvent* event) {
    QAbstractButton::enterEvent(event);
    emit Hovered(m_index, true);
}

void WindowButton::leaveEvent(QEvent* event) {
    QAbstractButton::leaveEvent(event);
    emit Hovered(m_index, false);
}

} // namespace coinlight
