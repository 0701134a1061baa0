#pragma once

#include <array>
#include <string_view>

#include <QAbstractButton>

namespace coinlight {

/// Which button of the strip: its index in imgWindowState.
enum WindowButtonIndex : int { kMinimizeButton = 0, kMaximizeButton = 1, kCloseButton = 2 };

/// The pictures of the three buttons when `hovered` (an index, or -1 for none) is under the
/// mouse: the hovered one shows its H picture, the others their N picture, and the middle
/// one is Max in a normal window and Restore in a maximized one.
std::array<std::string_view, 3> WindowButtonPictures(int hovered, bool normalWindow);

/// One of the three window buttons drawn on the title strip (imgWindowState).
class WindowButton final : public QAbstractButton {
    Q_OBJECT
public:
    WindowButton(int index, QWidget* parent = nullptr);

    int Index() const { return m_index; }
    std::string_view Picture() const { return m_picture; }
    void SetPicture(std::string_view key);
    /// The strip's title key, whose colours the picture takes.
    void SetTitleImage(std::string_view key);

    QSize sizeHint() const override { return {46, 30}; }

signals:
    /// The mouse came over the button (true) or left it (false).
    void Hovered(int index, bool over);

protected:
    void paintEvent(QPaintEvent* event) override;
    void enterEvent(QEnterEvent* event) override;
    void leaveEvent(QEvent* event) override;

private:
    int m_index;
    std::string_view m_picture = "MinN";
    std::string_view m_titleImage = "TitleHeritage";
};

} // namespace coinlight
