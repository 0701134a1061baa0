// The look of the main window: theme, fonts, the title gradient and the other list's marker.
#include <QApplication>
#include <QLinearGradient>
#include <QPainter>

#include "ColourConvert.h"
#include "MachineListView.h"
#include "frmMain.h"
#include "theme/ListIcons.h"
#include "theme/MainTheme.h"
#include "theme/ThemeTable.h"
#include "theme/TitleArt.h"
#include "theme/frmGradient.h"

namespace coinlight {

void frmMain::ApplyTheme() {
    if (!coinlight::ApplyTheme(*this, m_controls, m_context.preferences.other, m_prompter)) {
        m_context.flags.fatalErrorFlag = true;
    }
}

void frmMain::ApplyFonts() {
    coinlight::ApplyFonts(*this, m_controls, m_context.preferences.other);
}

bool frmMain::ApplyLookAtLoad() {
    ApplyFonts();
    FormResize();
    ApplyTheme();
    if (!m_context.flags.fatalErrorFlag) {
        return true;
    }
    // The next start writes a fresh options.ini with a theme it knows.
    std::error_code ignored;
    std::filesystem::remove(m_context.data.OptionsIni(), ignored);
    return false;
}

void frmMain::ApplyLookAfterOptions() {
    ApplyFonts();
    ApplyTheme();
    if (m_context.flags.fatalErrorFlag) {
        close();
    }
}

void frmMain::SetGradient() {
    // The gradient is painted with the window; this asks for the paint.
    update();
}

void frmMain::paintEvent(QPaintEvent* event) {
    QMainWindow::paintEvent(event);
    const OtherPreferences& look = m_context.preferences.other;
    if (!IsHeritageTheme(look.theme)) {
        return;
    }
    const QPalette system = QApplication::palette();
    const QColor top = system.color(QPalette::Button);
    const QColor bottom = ToQColor(look.gradientColor, system);
    const int from = kTitleStripHeight;
    QLinearGradient gradient(0, from, 0, height());
    gradient.setColorAt(0, top);
    gradient.setColorAt(1, bottom);
    QPainter painter(this);
    painter.fillRect(QRect(0, from, width(), height() - from), gradient);
}

void frmMain::ShowGradientChooser() {
    if (!m_controls.lblGradient->isEnabled()) {
        return;
    }
    frmGradient chooser(
        m_context.preferences.other.gradientColor, [this] { SetGradient(); },
        m_context.data.OptionsIni(), m_prompter, this);
    chooser.exec();
}

void frmMain::SetIconOther() {
    MachineListView& list = *m_controls.lvOther;
    const MachineRow* row = list.SelectedMachine();
    list.Model().SetMarkedMachine(row != nullptr ? std::string(row->ShortName()) : std::string(),
                                  OtherMarkerIcon(), BlankListIcon());
}

} // namespace coinlight
