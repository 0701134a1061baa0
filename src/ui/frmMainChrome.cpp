// The window's own frame: the title strip's buttons and dragging, and the layout of the pages
// as the window changes size or state.
#include <QGuiApplication>
#include <QLayout>
#include <QScreen>

#include "MachineListView.h"
#include "chrome/TitleStrip.h"
#include "chrome/WindowButton.h"
#include "frmCover.h"
#include "frmMain.h"
#include "theme/ThemeTable.h"

namespace coinlight {

void frmMain::SetUpChrome() {
    // The strip is the title bar: the system draws none.
    setWindowFlag(Qt::FramelessWindowHint, true);
    const MainControls& c = m_controls;
    connect(c.picTitle, &TitleStrip::ButtonClicked, this, &frmMain::WindowButtonClicked);
    for (std::size_t index = 0; index < c.lblMLinks.size(); ++index) {
        connect(c.lblMLinks[index], &QLabel::linkActivated, this,
                [this, index] { MenuLinkClicked(static_cast<int>(index)); });
    }
    connect(static_cast<LinkLabel*>(c.lblGradient), &QLabel::linkActivated, this,
            &frmMain::ShowGradientChooser);
    connect(c.lblClrMAME, &QLabel::linkActivated, this, &frmMain::CreateClrMAMEFiles);
    connect(c.cmdDebug, &QPushButton::clicked, this, &frmMain::CreateCatver);
    connect(c.lvOther, &MachineListView::RowSelected, this, &frmMain::SetIconOther);
}

void frmMain::WindowButtonClicked(int index) {
    switch (index) {
    case kMinimizeButton:
        showMinimized();
        break;
    case kMaximizeButton: {
        // The cover hides the repaint between the two sizes.
        if (m_cover.isNull()) {
            m_cover = new frmCover;
        }
        const QColor back = palette().color(QPalette::Window);
        if (isMaximized()) {
            m_cover->ShowOver(m_normalGeometry, back);
            showNormal();
        } else {
            m_normalGeometry = geometry();
            const QScreen* screen = this->screen();
            m_cover->ShowOver(screen != nullptr ? screen->availableGeometry() : geometry(), back);
            showMaximized();
        }
        break;
    }
    case kCloseButton:
        close();
        break;
    default:
        break;
    }
    UnloadCover();
}

void frmMain::changeEvent(QEvent* event) {
    QMainWindow::changeEvent(event);
    if (event->type() == QEvent::WindowStateChange) {
        FormResize();
    }
}

void frmMain::resizeEvent(QResizeEvent* event) {
    QMainWindow::resizeEvent(event);
    FormResize();
}

void frmMain::FormResize() {
    const ControlFlags& flags = m_context.flags;
    if (flags.fatalErrorFlag || flags.closeRequested) {
        return;
    }
    QLayout* frame = layout();
    if (isMinimized()) {
        // Nothing is laid out for a window nobody sees; the whole layout runs on restore.
        frame->setEnabled(false);
        m_layoutsRested = true;
        return;
    }
    if (m_layoutsRested) {
        m_layoutsRested = false;
        frame->setEnabled(true);
        frame->activate();
    }
    if (IsHeritageTheme(m_context.preferences.other.theme)) {
        SetGradient();
    }
    m_controls.picTitle->ShowButtonPictures(-1);
}

} // namespace coinlight
