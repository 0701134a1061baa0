#pragma once

class QHBoxLayout;
class QMainWindow;

namespace coinlight {

struct MainControls;

/// The top of the window: the title strip (menu links, version, window buttons) and the menu
/// bar under it, which holds the whole menu tree.
void BuildTitleArea(QMainWindow& window, MainControls& controls);

/// The bottom corner: the gradient chooser's label, the maker's two tools and the size grip
/// a window without a system frame needs.
void AddCornerControls(MainControls& controls, QHBoxLayout& bottom);

} // namespace coinlight
