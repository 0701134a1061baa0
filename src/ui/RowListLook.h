#pragma once

class QTreeView;

namespace coinlight {

/// The look every list of rows shares: whole rows selected one at a time, nothing edited or
/// expanded, and headers the program sorts by itself when clicked.
void ShowAsRowList(QTreeView& view);

} // namespace coinlight
