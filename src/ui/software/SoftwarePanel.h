#pragma once

#include <array>

#include <QCheckBox>
#include <QLabel>
#include <QRadioButton>
#include <QTabWidget>
#include <QTextBrowser>
#include <QTimer>
#include <QWidget>

#include "SoftwareListView.h"
#include "lists/SoftwareRows.h"
#include "ui/LinkLabel.h"

namespace coinlight {

/// `picSoftware`, beside the Other Machines list: the titles of the selected machine in
/// `lvSoftware`, the choice between available and unavailable titles, the two boxes that
/// steer a start, and the machine's slot listing. The panel holds the controls; the main
/// window's routines decide what they show.
class SoftwarePanel final : public QWidget {
    Q_OBJECT
public:
    explicit SoftwarePanel(QWidget* parent = nullptr);

    SoftwareListView* List() const { return m_list; }
    /// `optSoftware(0)` "Available Software" and `optSoftware(1)` "Unavailable Software".
    QRadioButton* Option(int index) const { return m_options[static_cast<std::size_t>(index)]; }
    QCheckBox* RunNoSoftware() const { return m_runNoSoftware; }
    QCheckBox* StringEdit() const { return m_stringEdit; }
    /// `lblBLinks(25)`, "List Slot Options".
    LinkLabel* SlotsLink() const { return m_slotsLink; }
    QTextBrowser* SlotListing() const { return m_slotListing; }
    /// `tmrSoftware`: the selection of a machine must stand still this long before its
    /// software is loaded, so that arrowing through the list makes no files on the way.
    QTimer* Timer() const { return m_timer; }
    QWidget* Cover() const { return m_cover; }

    SoftwareKind Kind() const;

    /// `picCover` over the list while it fills, so that it is not seen filling.
    void SetCovered(bool covered);
    /// Shows a slot listing in its tab, or empties it.
    void ShowSlotListing(const QString& text);
    void ClearSlotListing();

private:
    QWidget* BuildListArea();

    std::array<QRadioButton*, 2> m_options{};
    QCheckBox* m_runNoSoftware = nullptr;
    QCheckBox* m_stringEdit = nullptr;
    LinkLabel* m_slotsLink = nullptr;
    QTabWidget* m_tabs = nullptr;
    SoftwareListView* m_list = nullptr;
    QLabel* m_cover = nullptr;
    QTextBrowser* m_slotListing = nullptr;
    QTimer* m_timer = nullptr;
};

} // namespace coinlight
