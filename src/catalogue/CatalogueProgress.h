#pragma once

#include <cstdint>
#include <string_view>

namespace coinlight {

/// How the catalogue routines tell the user how far they got. The forms put each text on
/// the splash while it is up and on the main form's labels after start, and let pending
/// events run in Pump. Every method does nothing by default.
class CatalogueProgress {
public:
    virtual ~CatalogueProgress() = default;

    /// A capture of MAME's output: "Creating machine.xml..." (the splash also shows its
    /// "Please stand by...").
    virtual void ShowCapture(std::string_view /*text*/) {}
    /// The step in hand: "Creating Coinlight assist files...".
    virtual void ShowStep(std::string_view /*text*/) {}
    /// The caption beside the other count: "Other Machines:" (the splash shows both counts'
    /// captions from here on).
    virtual void ShowCountsHeading(std::string_view /*text*/) {}
    /// The counts, at the first machine of each kind, every 25th and at the end.
    virtual void ShowArcadeCount(std::int32_t /*count*/) {}
    virtual void ShowOtherCount(std::int32_t /*count*/) {}
    /// The end of a rebuild: the step texts and the other count are emptied.
    virtual void ClearStep() {}

    /// A category merge: `heading` ("Different catver.ini detected!") is for the main
    /// form, `note` ("Options will open next ...") for the splash, `text` for both.
    virtual void ShowCatverMerge(std::string_view /*heading*/, std::string_view /*text*/,
                                 std::string_view /*note*/) {}
    virtual void ClearCatverMerge() {}

    /// Lets pending window events run; called every few milliseconds of work.
    virtual void Pump() {}
};

} // namespace coinlight
