#pragma once

#include <string>
#include <vector>

namespace coinlight {

/// A message for the user, shown with the title "Coinlight".
struct CatalogueMessage {
    std::string text;
    bool critical = true; // the critical icon; otherwise the information icon
};

/// What a catalogue routine leaves for its caller: the messages to show, in order, and
/// whether the failure ends the sequence (the caller sets FatalErrorFlag and unwinds).
struct CatalogueOutcome {
    std::vector<CatalogueMessage> messages;
    bool fatalError = false;

    bool Succeeded() const { return !fatalError; }
};

} // namespace coinlight
