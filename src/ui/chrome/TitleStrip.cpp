#include "TitleStrip.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QMouseEvent>
#include <QPainter>
#include <QVBoxLayout>
#include <QWindow>

#include "WindowButton.h"
#include "ui/LinkLabel.h"
#include "ui/theme/TitleArt.h"

namespace coinlight {

namespace {

constexpr const char* kMenuCaptions[] = {"Main", "View", "Tools", "Reports", "Help"};
// Where the name painted on the strip ends, so that the links start under it.
constexpr int kLinksIndent = 50;

} // namespace

TitleStrip::TitleStrip(QWidget* parent) : QWidget(parent) {
    setObjectName(QStringLiteral("picTitle"));
    setFixedHeight(kTitleStripHeight);
    setAttribute(Qt::WA_OpaquePaintEvent);
    m_startMove = [this] {
        return StartSystemMove();
    };

    auto* upperRow = new QHBoxLayout;
    upperRow->setContentsMargins(0, 0, 0, 0);
    upperRow->setSpacing(0);
    upperRow->addStretch(1);
    for (int index = 0; index < 3; ++index) {
        auto* button = new WindowButton(index, this);
        m_buttons[static_cast<std::size_t>(index)] = button;
        upperRow->addWidget(button, 0, Qt::AlignTop);
        connect(button, &WindowButton::clicked, this, [this, index] { emit ButtonClicked(index); });
        connect(button, &WindowButton::Hovered, this,
                [this](int hovered, bool over) { ShowButtonPictures(over ? hovered : -1); });
    }

    m_lowerRow = new QHBoxLayout;
    m_lowerRow->setContentsMargins(kLinksIndent, 0, 12, 4);
    m_lowerRow->setSpacing(18);
    for (std::size_t index = 0; index < m_menuLinks.size(); ++index) {
        auto* link = new LinkLabel(QString::fromLatin1(kMenuCaptions[index]), this);
        link->setObjectName(QStringLiteral("lblMLinks_%1").arg(index));
        QFont bold;
        bold.setBold(true);
        link->setFont(bold);
        m_menuLinks[index] = link;
        m_lowerRow->addWidget(link, 0, Qt::AlignBottom);
    }
    m_lowerRow->addStretch(1);

    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addLayout(upperRow);
    layout->addStretch(1);
    layout->addLayout(m_lowerRow);
}

void TitleStrip::PlaceVersion(QLabel* version) {
    version->setParent(this);
    m_lowerRow->addWidget(version, 0, Qt::AlignBottom);
}

void TitleStrip::SetTitleImage(std::string_view key) {
    m_titleImage = key;
    for (WindowButton* button : m_buttons) {
        button->SetTitleImage(key);
    }
    update();
}

void TitleStrip::ShowButtonPictures(int hovered) {
    const Qt::WindowStates state = window()->windowState();
    const bool normal = !(state & (Qt::WindowMaximized | Qt::WindowFullScreen));
    const auto pictures = WindowButtonPictures(hovered, normal);
    for (std::size_t index = 0; index < m_buttons.size(); ++index) {
        m_buttons[index]->SetPicture(pictures[index]);
    }
}

bool TitleStrip::PressMovesWindow(Qt::MouseButton button, int y, Qt::WindowStates state) {
    const bool normal =
        !(state & (Qt::WindowMaximized | Qt::WindowFullScreen | Qt::WindowMinimized));
    return button == Qt::LeftButton && normal && y >= 0 && y < kDragLimit;
}

void TitleStrip::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    PaintTitleStrip(painter, QRectF(rect()), m_titleImage);
}

void TitleStrip::mousePressEvent(QMouseEvent* event) {
    const int y = mapTo(window(), event->position().toPoint()).y();
    if (PressMovesWindow(event->button(), y, window()->windowState()) && m_startMove()) {
        event->accept();
        return;
    }
    QWidget::mousePressEvent(event);
}

void TitleStrip::mouseDoubleClickEvent(QMouseEvent* event) {
    // As on any title bar, a double click sizes the window.
    if (event->button() == Qt::LeftButton) {
        emit ButtonClicked(kMaximizeButton);
        return;
    }
    QWidget::mouseDoubleClickEvent(event);
}

bool TitleStrip::StartSystemMove() {
    QWindow* handle = window()->windowHandle();
    return handle != nullptr && handle->startSystemMove();
}

} // namespace coinlight
