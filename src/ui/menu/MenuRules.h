#pragma once

#include <string_view>
#include <vector>

namespace coinlight {

/// What the menus' enabled states follow: the page on show, the view and the selection.
struct MenuFacts {
    bool pageOverLists = false; // a report, settings or maintenance page covers the lists
    bool inOtherView = false;
    std::string_view view;            // the List View preference
    bool otherRomsEmpty = false;      // no folder of other machines' ROMs is set
    bool softwareRows = false;        // the software list of the selected machine has rows
    bool unlistedReport = false;      // output/unlisted.txt exists
    bool selectedUnavailable = false; // the details strip reads "Unavailable"
    bool machineSelected = false;
    bool startEnabled = false; // the start, audit and information commands of the list
    bool auditEnabled = false;
    bool infoEnabled = false;
    bool listHasRows = false;
};

struct MenuEntryState {
    std::string_view name;
    bool enabled;
};

/// The enabled state of the entries of one menu (by its link index, 0 to 4) before it comes
/// up. Entries it does not name keep their state.
std::vector<MenuEntryState> MenuStates(int linkIndex, const MenuFacts& facts);

/// In an arcade view without other ROMs the other favourites cannot be shown: the entry is
/// unticked and the preference cleared along with disabling it.
bool DropsOtherFavourites(const MenuFacts& facts);

} // namespace coinlight
