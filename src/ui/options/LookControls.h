#pragma once

#include <QGroupBox>

#include "core/Preferences.h"

class QCheckBox;
class QComboBox;
class QLabel;
class QPushButton;

namespace coinlight {

class Prompter;

/// The look part of the preferences page: the theme, the lists' colours, size, font and grid
/// lines, with a sample of a list that follows each choice. The colours live in the sample's
/// two labels until OK reads them back, as the preferences keep them (a system colour stays
/// one).
class LookControls final : public QGroupBox {
    Q_OBJECT
public:
    LookControls(Prompter& prompter, QWidget* parent = nullptr);

    /// The stored values, without previewing: the sample shows what is saved.
    void Show(const OtherPreferences& look);
    /// The controls' values into the look preferences.
    void Read(OtherPreferences& look) const;

    /// What "Defaults" and "My Defaults" set here besides the values they give Show: the
    /// default list colours, and the sample of the theme they chose.
    void Reset();
    void MyDefaults();

    void cboTheme_Change();
    void chkStarfield_Click();
    void cmdFontColor_Click();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void BuildForm();
    void SelectTheme(const std::string& theme);
    void SelectCombo(QComboBox& combo, const std::string& value);
    void SetListBackIndex(int index);
    void odclListBackColor_Change(int index);
    void SetSample(Colour back, Colour text);
    void ShowSampleFont();
    void EnableColourControls(const struct ThemePreview& preview);
    /// A heritage pair the lists could not be read with falls back to one they can.
    void KeepSampleReadable(bool starField);

    Prompter& m_prompter;
    OtherPreferences m_stored; // the values the dialog opened with
    bool m_showing = false;    // set while Show fills the controls: no preview then
    Colour m_listBack;
    Colour m_listText;
    QComboBox* m_cboTheme = nullptr;
    QComboBox* m_odclListBackColor = nullptr;
    QLabel* m_lblListBackColor = nullptr;
    QLabel* m_lblListFontColor = nullptr;
    QPushButton* m_cmdFontColor = nullptr;
    QLabel* m_lblListBack = nullptr;
    QLabel* m_lblListText = nullptr;
    QLabel* m_imgStarfield = nullptr;
    QCheckBox* m_chkStarfield = nullptr;
    QComboBox* m_cboListFontSize = nullptr;
    QComboBox* m_cboGUIFont = nullptr;
    QCheckBox* m_chkListGridlines = nullptr;
};

} // namespace coinlight
