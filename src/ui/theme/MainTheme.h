#pragma once

class QWidget;

namespace coinlight {

struct MainControls;
struct OtherPreferences;
class Prompter;

/// ApplyTheme: colours the whole main window by the theme the preferences name, deriving
/// every colour anew. False for a name no release knows: the user has been told, and the
/// run must end.
bool ApplyTheme(QWidget& form, const MainControls& controls, const OtherPreferences& look,
                Prompter& prompter);

/// ApplyFonts: the preferred font for every control, at the design's size, with the few
/// controls that keep a face of their own; the lists at the preferred list size.
void ApplyFonts(QWidget& form, const MainControls& controls, const OtherPreferences& look);

} // namespace coinlight
