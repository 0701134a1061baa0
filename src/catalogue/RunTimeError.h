#pragma once

#include <string>

namespace coinlight {

/// A failure inside a catalogue routine, with the number and text the user has always
/// been shown for it, and where it happened ("Line Number: ").
struct RunTimeError {
    int number = 0;
    std::string description;
    int location = 0;
};

inline constexpr int kErrorInvalidCall = 5;
inline constexpr int kErrorOverflow = 6;
inline constexpr int kErrorFileNotFound = 53;
inline constexpr int kErrorPastEnd = 62;
inline constexpr int kErrorFileAccess = 75;

inline constexpr const char* kInvalidCallText = "Invalid procedure call or argument";
inline constexpr const char* kOverflowText = "Overflow";
inline constexpr const char* kFileNotFoundText = "File not found";
inline constexpr const char* kPastEndText = "Input past end of file";

/// Thrown inside a catalogue routine and caught at its edge, where it becomes the message
/// of that routine: the one handler at the end of each routine, as the user knows it.
/// It never leaves the catalogue library.
struct CatalogueAbort {
    RunTimeError error;
};

[[noreturn]] inline void Abort(int number, std::string description, int location) {
    throw CatalogueAbort{{number, std::move(description), location}};
}

} // namespace coinlight
