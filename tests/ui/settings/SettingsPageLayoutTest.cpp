// The settings page must be usable at any scale: every text whole, the frames lined up and
// the keyboard walking the page from top to bottom. This runs at 100% and again at 200%.
#include <QAbstractButton>
#include <QApplication>
#include <QGroupBox>
#include <QPushButton>

#include "SettingsScreenFixture.h"

namespace coinlight::test {
namespace {

class SettingsPageLayout : public SettingsScreenFixture {
protected:
    /// The texts on show that are drawn narrower than they need, by object name.
    QStringList Clipped() {
        QApplication::processEvents();
        QStringList clipped;
        QList<QWidget*> texts;
        for (auto* label : Page().findChildren<QLabel*>()) {
            texts.append(label);
        }
        for (auto* box : Page().findChildren<QCheckBox*>()) {
            texts.append(box);
        }
        texts.append(Controls().cboSettings);
        for (QWidget* text : texts) {
            if (text->isVisible() && text->width() < text->sizeHint().width()) {
                clipped.append(text->objectName());
            }
        }
        // A push button's hint holds the style's least width; what counts is its text.
        for (auto* button : Page().findChildren<QPushButton*>()) {
            const int needed =
                button->fontMetrics().horizontalAdvance(button->text().remove(QLatin1Char('&')));
            if (button->isVisible() && button->contentsRect().width() < needed + 4) {
                clipped.append(button->objectName());
            }
        }
        for (auto* frame : Page().findChildren<QGroupBox*>()) {
            if (frame->width() < frame->fontMetrics().horizontalAdvance(frame->title()) + 16) {
                clipped.append(frame->objectName());
            }
        }
        return clipped;
    }

    void Open(int level, const QString& item) {
        Form().SettingsArcade();
        Controls().cboSettings->setCurrentIndex(Controls().cboSettings->findText(item));
        ASSERT_TRUE(PageShown()) << level << " " << item.toStdString();
    }
};

TEST_F(SettingsPageLayout, EveryScreenAtEveryLevelShowsItsTextsWhole) {
    for (int level : {0, 1, 2}) {
        std::filesystem::remove(m_context.data.OptionsIni());
        WriteOptions("[Preferences Other]\r\nSettings Level=" + std::to_string(level) + "\r\n");
        ASSERT_TRUE(Load()) << Told();
        Form().show();
        Select("pacman");
        Form().SettingsArcade();
        for (int item = 0; item < Controls().cboSettings->count(); ++item) {
            const QString name = Controls().cboSettings->itemText(item);
            Open(level, name);
            EXPECT_EQ(Clipped(), QStringList()) << "level " << level << ", " << name.toStdString();
            Page().cmdCancel->click();
        }
        Controls().mnuToolsCustom->trigger();
        EXPECT_EQ(Clipped(), QStringList()) << "custom screen";
        Page().cmdCancel->click();
    }
    Form().ViewOther();
    Form().SettingsOther();
    ASSERT_TRUE(PageShown());
    EXPECT_EQ(Page().title(), "Other Settings");
    EXPECT_EQ(Clipped(), QStringList()) << "other screen";
}

TEST_F(SettingsPageLayout, LinksStandInForTheButtons) {
    WriteOptions("[Preferences Other]\r\nUse Links=True\r\n");
    ASSERT_TRUE(Load()) << Told();
    Form().show();
    Select("pacman");
    Form().SettingsArcade();
    EXPECT_FALSE(Page().cmdOK->isVisible());
    EXPECT_TRUE(Controls().lblBLinks[LinkOK]->isVisible());
    EXPECT_TRUE(Controls().lblBLinks[LinkHLSLDefaults]->isVisible());
    EXPECT_EQ(Controls().lblBLinks[LinkExit]->Caption(), "Cancel");
    EXPECT_EQ(Clipped(), QStringList());
}

TEST_F(SettingsPageLayout, FramesLineUpAndTheKeyboardWalksDownThePage) {
    ASSERT_TRUE(Load()) << Told();
    Form().show();
    Select("asteroid");
    Form().SettingsArcade();
    QApplication::processEvents();
    // Every frame puts its first control at the same place across the page.
    const auto left = [this](std::string_view control) {
        return Page().Control(RowOfControl(control))->mapTo(&Page(), QPoint()).x();
    };
    EXPECT_EQ(left("cboFrameSkip"), left("cboBrightness"));
    EXPECT_EQ(left("cboFrameSkip"), left("txtHLSL(0)"));
    EXPECT_EQ(left("cboSpeed"), left("cboVolume"));

    // Following the focus from the first control: every control of the catalogue, in its
    // order, each no higher on the page than the one before within its column.
    QWidget* first = Page().Control(0);
    std::vector<std::size_t> rows;
    QWidget* at = first;
    for (int step = 0; step < 2000 && (step == 0 || at != first); ++step) {
        for (std::size_t row = 0; row < OptionCatalogue().size(); ++row) {
            if (Page().Control(row) == at) {
                rows.push_back(row);
            }
        }
        at = at->nextInFocusChain();
    }
    ASSERT_EQ(rows.size(), OptionCatalogue().size());
    EXPECT_TRUE(std::is_sorted(rows.begin(), rows.end()));
}

} // namespace
} // namespace coinlight::test
