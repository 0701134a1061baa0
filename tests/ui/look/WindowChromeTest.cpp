#include <gtest/gtest.h>

#include <QMouseEvent>
#include <QSignalSpy>
#include <QVBoxLayout>
#include <QWidget>

#include "ui/chrome/TitleStrip.h"
#include "ui/chrome/WindowButton.h"

namespace coinlight {
namespace {

TEST(WindowButtonPictures, OnlyTheHoveredButtonLightsAndTheMiddleOneFollowsTheWindowState) {
    using Pictures = std::array<std::string_view, 3>;
    EXPECT_EQ(WindowButtonPictures(-1, true), (Pictures{"MinN", "MaxN", "CloseN"}));
    EXPECT_EQ(WindowButtonPictures(kMinimizeButton, true), (Pictures{"MinH", "MaxN", "CloseN"}));
    EXPECT_EQ(WindowButtonPictures(kMaximizeButton, true), (Pictures{"MinN", "MaxH", "CloseN"}));
    EXPECT_EQ(WindowButtonPictures(kCloseButton, true), (Pictures{"MinN", "MaxN", "CloseH"}));
    EXPECT_EQ(WindowButtonPictures(-1, false), (Pictures{"MinN", "RestoreN", "CloseN"}));
    EXPECT_EQ(WindowButtonPictures(kMaximizeButton, false),
              (Pictures{"MinN", "RestoreH", "CloseN"}));
    EXPECT_EQ(WindowButtonPictures(7, false), (Pictures{"MinN", "RestoreN", "CloseN"}));
}

TEST(TitleStripDrag, OnlyALeftPressHighOnANormalWindowMovesIt) {
    const int limit = TitleStrip::kDragLimit;
    EXPECT_TRUE(TitleStrip::PressMovesWindow(Qt::LeftButton, 0, Qt::WindowNoState));
    EXPECT_TRUE(TitleStrip::PressMovesWindow(Qt::LeftButton, limit - 1, Qt::WindowNoState));
    EXPECT_TRUE(TitleStrip::PressMovesWindow(Qt::LeftButton, 5, Qt::WindowActive));
    EXPECT_FALSE(TitleStrip::PressMovesWindow(Qt::LeftButton, limit, Qt::WindowNoState));
    EXPECT_FALSE(TitleStrip::PressMovesWindow(Qt::LeftButton, -1, Qt::WindowNoState));
    EXPECT_FALSE(TitleStrip::PressMovesWindow(Qt::RightButton, 5, Qt::WindowNoState));
    EXPECT_FALSE(TitleStrip::PressMovesWindow(Qt::LeftButton, 5, Qt::WindowMaximized));
    EXPECT_FALSE(TitleStrip::PressMovesWindow(Qt::LeftButton, 5, Qt::WindowFullScreen));
    EXPECT_FALSE(TitleStrip::PressMovesWindow(Qt::LeftButton, 5, Qt::WindowMinimized));
}

class TitleStripWidget : public ::testing::Test {
protected:
    void SetUp() override {
        auto* layout = new QVBoxLayout(&m_window);
        layout->setContentsMargins(0, 0, 0, 0);
        m_strip = new TitleStrip;
        layout->addWidget(m_strip);
        layout->addStretch(1);
        m_window.resize(640, 400);
        m_strip->SetMoveStarter([this] {
            ++m_moves;
            return true;
        });
    }

    void Press(Qt::MouseButton button, QPoint at, QEvent::Type type = QEvent::MouseButtonPress) {
        QMouseEvent event(type, QPointF(at), m_strip->mapToGlobal(QPointF(at)), button, button,
                          Qt::NoModifier);
        QCoreApplication::sendEvent(m_strip, &event);
    }

    QWidget m_window;
    TitleStrip* m_strip = nullptr;
    int m_moves = 0;
};

TEST_F(TitleStripWidget, APressMovesTheWindowOnlyWhereAndWhenItMay) {
    Press(Qt::LeftButton, {100, 10});
    EXPECT_EQ(m_moves, 1);
    Press(Qt::RightButton, {100, 10});
    EXPECT_EQ(m_moves, 1);
    m_window.setWindowState(Qt::WindowMaximized);
    Press(Qt::LeftButton, {100, 10});
    EXPECT_EQ(m_moves, 1) << "a maximized window stays where it is";
}

TEST_F(TitleStripWidget, ADoubleClickSizesTheWindowAndHoverPicturesFollowTheState) {
    QSignalSpy clicked(m_strip, &TitleStrip::ButtonClicked);
    Press(Qt::LeftButton, {100, 10}, QEvent::MouseButtonDblClick);
    ASSERT_EQ(clicked.count(), 1);
    EXPECT_EQ(clicked.first().first().toInt(), kMaximizeButton);

    const auto& buttons = m_strip->Buttons();
    m_strip->ShowButtonPictures(kCloseButton);
    EXPECT_EQ(buttons[kCloseButton]->Picture(), "CloseH");
    EXPECT_EQ(buttons[kMinimizeButton]->Picture(), "MinN");
    m_window.setWindowState(Qt::WindowMaximized);
    m_strip->ShowButtonPictures(-1);
    EXPECT_EQ(buttons[kMaximizeButton]->Picture(), "RestoreN");
    m_window.setWindowState(Qt::WindowNoState);
    m_strip->ShowButtonPictures(kMaximizeButton);
    EXPECT_EQ(buttons[kMaximizeButton]->Picture(), "MaxH");
}

} // namespace
} // namespace coinlight
