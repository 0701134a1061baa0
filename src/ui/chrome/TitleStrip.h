#pragma once

#include <array>
#include <functional>
#include <string_view>

#include <QWidget>

class QHBoxLayout;
class QLabel;

namespace coinlight {

class LinkLabel;
class WindowButton;

/// The window's own title strip: the theme's title image, the link-style heads of the menus
/// (lblMLinks), the version and the three window buttons (imgWindowState). A press of the
/// left button on the strip moves the window, as a system title bar would.
class TitleStrip final : public QWidget {
    Q_OBJECT
public:
    /// How far down from the top of the window a press still moves it (900 twips).
    static constexpr int kDragLimit = 60;

    explicit TitleStrip(QWidget* parent = nullptr);

    std::string_view TitleImage() const { return m_titleImage; }
    void SetTitleImage(std::string_view key);

    const std::array<LinkLabel*, 5>& MenuLinks() const { return m_menuLinks; }
    const std::array<WindowButton*, 3>& Buttons() const { return m_buttons; }
    /// Puts the version label on the strip, right of the menu links.
    void PlaceVersion(QLabel* version);

    /// Sets the three pictures for the button under the mouse (-1: none) and the window state.
    void ShowButtonPictures(int hovered);

    /// What starts a move; by default the window system's own move. Returns whether a move
    /// began. Tests put a counter here.
    void SetMoveStarter(std::function<bool()> starter) { m_startMove = std::move(starter); }
    /// Whether a press at `y` (in the window's coordinates) in this window state moves it.
    static bool PressMovesWindow(Qt::MouseButton button, int y, Qt::WindowStates state);

signals:
    void ButtonClicked(int index);

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;

private:
    bool StartSystemMove();

    std::string_view m_titleImage = "TitleHeritage";
    std::array<LinkLabel*, 5> m_menuLinks{};
    std::array<WindowButton*, 3> m_buttons{};
    QHBoxLayout* m_lowerRow = nullptr;
    std::function<bool()> m_startMove;
};

} // namespace coinlight
