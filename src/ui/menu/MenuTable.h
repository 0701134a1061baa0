#pragma once

#include <span>
#include <string_view>

namespace coinlight {

/// One menu of the tree: its name, caption and the index of the link that opens it in the
/// link style (-1 for the lists' context menu, which no link opens).
struct MenuDefinition {
    std::string_view name;
    std::string_view caption;
    int linkIndex;
};

/// One entry of a menu, in the order shown. An entry under a `group` stands in a sub-menu of
/// that caption, named `subMenu`.
struct MenuEntryDefinition {
    std::string_view menu;
    std::string_view name;
    std::string_view caption;
    bool checkable = false;
    bool separatorBefore = false;
    std::string_view group = {};
    std::string_view subMenu = {};
};

/// The program's one menu tree. Both the menu bar and the link style show it.
std::span<const MenuDefinition> Menus();
std::span<const MenuEntryDefinition> MenuEntries();

} // namespace coinlight
