#pragma once

#include <string>
#include <string_view>

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
inline constexpr int kErrorOutOfMemory = 7;
inline constexpr int kErrorFileNotFound = 53;
inline constexpr int kErrorPastEnd = 62;
inline constexpr int kErrorDeviceIo = 57;
inline constexpr int kErrorFileAccess = 75;

inline constexpr const char* kInvalidCallText = "Invalid procedure call or argument";
inline constexpr const char* kOverflowText = "Overflow";
inline constexpr const char* kOutOfMemoryText = "Out of memory";
inline constexpr const char* kFileNotFoundText = "File not found";
inline constexpr const char* kPastEndText = "Input past end of file";
inline constexpr const char* kDeviceIoText = "Device I/O error";

/// The text of a routine's error handler: "Error In <routine>: <description>", a line
/// break, "Line Number: <location>".
inline std::string HandlerMessage(std::string_view routine, const RunTimeError& error) {
    return "Error In " + std::string(routine) + ": " + error.description +
           "\nLine Number: " + std::to_string(error.location);
}

} // namespace coinlight
