#pragma once

#include <string>
#include <vector>

#include <QString>

class QWidget;

namespace coinlight {

/// What a control says of itself when the MAME in use does not take its option.
QString UnsupportedOptionTip();

/// The objectName of a settings control named as the catalogue names it: `txtHLSL(17)` is
/// `txtHLSL_17`, `chkHLSL` stays as it is.
QString ObjectNameOfControl(const std::string& control);

/// Disables each control of `page` that `controls` names (see UnsupportedControls), with
/// the labels whose buddy it is, and gives both the tool tip that says why. Values are
/// left alone: the profile keeps, saves and writes them as before. Controls the page does
/// not have are passed over. Returns how many controls were marked.
int MarkUnsupportedControls(QWidget& page, const std::vector<std::string>& controls);

} // namespace coinlight
