#include "frmGradient.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include "ColourList.h"
#include "core/PreferenceKeys.h"
#include "core/ProfileFile.h"
#include "ui/Prompter.h"

namespace coinlight {

frmGradient::frmGradient(Colour& gradientColour, std::function<void()> setGradient,
                         std::filesystem::path optionsIni, Prompter& prompter, QWidget* parent)
    : QDialog(parent), m_gradientColour(gradientColour), m_setGradient(std::move(setGradient)),
      m_optionsIni(std::move(optionsIni)), m_prompter(prompter) {
    setObjectName(QStringLiteral("frmGradient"));
    setWindowTitle(QStringLiteral("Gradient"));

    m_odclSysCol = new QComboBox(this);
    m_odclSysCol->setObjectName(QStringLiteral("odclSysCol"));
    FillColourCombo(*m_odclSysCol, GradientColours());
    auto* caption = new QLabel(QStringLiteral("&Colour at the foot of the window:"), this);
    caption->setBuddy(m_odclSysCol);
    auto* cmdOK = new QPushButton(QStringLiteral("OK"), this);
    cmdOK->setObjectName(QStringLiteral("cmdOK"));
    cmdOK->setDefault(true);

    auto* buttons = new QHBoxLayout;
    buttons->addStretch(1);
    buttons->addWidget(cmdOK);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(caption);
    layout->addWidget(m_odclSysCol);
    layout->addLayout(buttons);

    const int current = IndexOfColour(GradientColours(), m_gradientColour);
    if (current < 0) {
        m_prompter.Message(QStringLiteral("Coinlight"),
                           QStringLiteral("Problem getting color.  Reverting to default setting."));
    }
    m_odclSysCol->setCurrentIndex(std::max(0, current));
    if (current < 0) {
        odclSysCol_Change(0);
    }
    connect(m_odclSysCol, &QComboBox::currentIndexChanged, this, &frmGradient::odclSysCol_Change);
    connect(cmdOK, &QPushButton::clicked, this, &frmGradient::cmdOK_Click);
}

void frmGradient::odclSysCol_Change(int index) {
    if (index < 0) {
        return;
    }
    m_gradientColour = ColourAt(*m_odclSysCol, index);
    m_setGradient();
}

void frmGradient::cmdOK_Click() {
    std::string error;
    if (!WriteProfileValue(m_optionsIni, kSectionOther, kKeyGradientColor,
                           ColourText(m_gradientColour), &error) ||
        !INISpacing(m_optionsIni, &error)) {
        m_prompter.Message(QStringLiteral("Coinlight"), QString::fromStdString(error),
                           PromptIcon::Critical);
        return;
    }
    accept();
}

} // namespace coinlight
