#include "SoftwarePanel.h"

#include <QFontDatabase>
#include <QGridLayout>
#include <QVBoxLayout>

namespace coinlight {

namespace {

constexpr int kStandStill = 1000; // milliseconds

template <class Widget> Widget* Named(Widget* widget, const char* name) {
    widget->setObjectName(QString::fromLatin1(name));
    return widget;
}

} // namespace

SoftwarePanel::SoftwarePanel(QWidget* parent) : QWidget(parent) {
    setObjectName(QStringLiteral("picSoftware"));
    m_options[0] =
        Named(new QRadioButton(QStringLiteral("Available Software"), this), "optSoftware_0");
    m_options[1] =
        Named(new QRadioButton(QStringLiteral("Unavailable Software"), this), "optSoftware_1");
    m_options[0]->setChecked(true);
    m_runNoSoftware =
        Named(new QCheckBox(QStringLiteral("Don't Start Software"), this), "chkRunNoSoftware");
    m_runNoSoftware->setToolTip(QStringLiteral("Starts The Machine Without A Software Title"));
    m_stringEdit = Named(new QCheckBox(QStringLiteral("Command Line Edit"), this), "chkStringEdit");
    m_stringEdit->setToolTip(QStringLiteral("Lets You Edit The Command Line Before A Start"));
    m_slotsLink = Named(new LinkLabel(QStringLiteral("List Slot Options"), this), "lblBLinks_25");
    m_slotsLink->setToolTip(
        QStringLiteral("The Slots Of The Selected Machine, As MAME Lists Them"));

    // Two short rows rather than one long one: the panel shares the window's width with the
    // list above it, and the window must fit a small screen.
    auto* controls = new QGridLayout;
    controls->addWidget(m_options[0], 0, 0);
    controls->addWidget(m_options[1], 0, 1);
    controls->addWidget(m_slotsLink, 0, 3, Qt::AlignRight);
    controls->addWidget(m_runNoSoftware, 1, 0);
    controls->addWidget(m_stringEdit, 1, 1);
    controls->setColumnStretch(2, 1);

    m_tabs = Named(new QTabWidget(this), "tabSoftware");
    m_tabs->setDocumentMode(true);
    m_tabs->addTab(BuildListArea(), QStringLiteral("Software"));
    m_slotListing = Named(new QTextBrowser(this), "rtfListSlots");
    m_slotListing->setLineWrapMode(QTextEdit::NoWrap);
    m_slotListing->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    m_tabs->addTab(m_slotListing, QStringLiteral("Slot Options"));

    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addLayout(controls);
    layout->addWidget(m_tabs, 1);

    m_timer = Named(new QTimer(this), "tmrSoftware");
    m_timer->setInterval(kStandStill);
    m_timer->setSingleShot(true);
}

QWidget* SoftwarePanel::BuildListArea() {
    auto* area = new QWidget(this);
    auto* grid = new QGridLayout(area);
    grid->setContentsMargins(0, 0, 0, 0);
    m_list = new SoftwareListView(area);
    m_cover = Named(new QLabel(area), "picCover");
    m_cover->setAutoFillBackground(true);
    m_cover->hide();
    // Both in one cell: the cover lies over the list.
    grid->addWidget(m_list, 0, 0);
    grid->addWidget(m_cover, 0, 0);
    return area;
}

SoftwareKind SoftwarePanel::Kind() const {
    return m_options[1]->isChecked() ? SoftwareKind::Unavailable : SoftwareKind::Available;
}

void SoftwarePanel::SetCovered(bool covered) {
    m_cover->setVisible(covered);
    if (covered) {
        m_cover->raise();
    }
}

void SoftwarePanel::ShowSlotListing(const QString& text) {
    m_slotListing->setPlainText(text);
    m_tabs->setCurrentWidget(m_slotListing);
}

void SoftwarePanel::ClearSlotListing() {
    m_slotListing->clear();
    m_tabs->setCurrentIndex(0);
}

} // namespace coinlight
