#pragma once

#include "core/Preferences.h"

class QTreeView;

namespace coinlight {

/// The look of one list from the preferences: back colour (or the star field of the
/// classic theme), text colour unless the list keeps its own, font size and grid lines.
void ApplyListAppearance(QTreeView& list, const OtherPreferences& preferences, bool starField,
                         bool ownTextColour);

} // namespace coinlight
