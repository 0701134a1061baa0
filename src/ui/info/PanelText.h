#pragma once

#include <string_view>

class QTextEdit;

namespace coinlight {

/// Puts a text into the panel's text box as plain text, in the box's normal format: no
/// bold left over from an earlier search. With `boldHeader` the first line is bold.
void SetPanelText(QTextEdit& box, std::string_view text, bool boldHeader = false);

} // namespace coinlight
