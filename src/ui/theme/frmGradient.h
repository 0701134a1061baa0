#pragma once

#include <filesystem>
#include <functional>

#include <QDialog>

#include "core/ValueText.h"

class QComboBox;

namespace coinlight {

class Prompter;

/// The chooser of the colour at the foot of the title gradient (GradientColor). The window
/// follows each choice at once; OK writes it to options.ini.
class frmGradient final : public QDialog {
    Q_OBJECT
public:
    frmGradient(Colour& gradientColour, std::function<void()> setGradient,
                std::filesystem::path optionsIni, Prompter& prompter, QWidget* parent = nullptr);

    void cmdOK_Click();

private:
    void odclSysCol_Change(int index);

    Colour& m_gradientColour;
    std::function<void()> m_setGradient;
    std::filesystem::path m_optionsIni;
    Prompter& m_prompter;
    QComboBox* m_odclSysCol = nullptr;
};

} // namespace coinlight
