#pragma once

namespace coinlight {

/// The release as it is written into options.ini and shown on the splash: major, two-digit
/// minor, revision.
inline constexpr const char* kCoinlightVersion = "26.02.0";

/// Files written by releases older than this (dots removed) are refused at start.
inline constexpr long kOldestAcceptedOptionsVersion = 26010;

} // namespace coinlight
