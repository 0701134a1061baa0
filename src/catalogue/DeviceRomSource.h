#pragma once

#include "NameList.h"

namespace coinlight {

/// Where the second pass gets the device machines that have ROMs: a scan that may still
/// be running while the second pass starts.
class DeviceRomSource {
public:
    virtual ~DeviceRomSource() = default;
    /// True when Wait returns at once.
    virtual bool Done() const = 0;
    /// The list; a failure of the scan ends the routine.
    virtual const NameList& Wait() = 0;
};

} // namespace coinlight
