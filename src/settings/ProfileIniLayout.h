#pragma once

#include <cstdint>
#include <span>
#include <string_view>

namespace coinlight {

/// One step in writing a profile into mame.ini.
struct ProfileIniStep {
    enum class Kind : std::uint8_t {
        Heading, // `first` is the heading text
        Section, // every option of the profile section `first`, in catalogue order
        Rows,    // the catalogue rows from the one whose mame.ini option is `first` to `last`
        Fixed,   // the option `first` with the value `last`, whatever the profile says
        Bare,    // the option `first` alone
    };
    Kind kind;
    std::string_view first;
    std::string_view last;
};

/// The option sections of mame.ini in the order MAME lists them. Options Coinlight does
/// not offer are fixed here; the catalogue supplies all others.
std::span<const ProfileIniStep> ProfileIniLayout();

} // namespace coinlight
