#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "DeviceRomSource.h"
#include "RunTimeError.h"
#include "core/AtomicFileWriter.h"

namespace coinlight {

/// Whether a machine needs device ROMs is known only when the first pass is through. Until
/// then this keeps the device names each machine refers to, and holds its info record in
/// file order; once the list is there the records are settled and written.
class PendingDeviceRoms {
public:
    explicit PendingDeviceRoms(DeviceRomSource& devices) : m_devices(devices) {}

    /// The list once the first pass is through, or nothing yet; the first time it is
    /// there, what waited is settled (see Settle).
    const NameList* Known(AtomicFileWriter& arcade, AtomicFileWriter& other, bool& currentHasOne);
    /// Waits for the first pass and settles what waited.
    const NameList& Wait(AtomicFileWriter& arcade, AtomicFileWriter& other, bool& currentHasOne);

    /// A reference of the current machine, or one whose name could not be read, which
    /// fails only if its turn comes: when no earlier reference named a device with ROMs.
    void AddReference(std::string_view name);
    void AddUnreadableReference(const RunTimeError& error);

    /// True when the current machine's record must wait its turn.
    bool MustHold() const { return !m_records.empty() || !m_current.Empty(); }
    /// Keeps the current machine's record, in which "No" stands at `deviceValueAt`.
    void Hold(bool other, std::string text, std::size_t deviceValueAt);
    /// The current machine is done with (its references go with it).
    void ClearCurrent() { m_current.Clear(); }

private:
    struct References {
        std::string names; // each followed by a line feed, which no name can hold
        std::vector<std::pair<std::size_t, RunTimeError>> failures; // after that many names
        std::size_t count = 0;
        bool Empty() const { return names.empty() && failures.empty(); }
        void Clear() {
            names.clear();
            failures.clear();
            count = 0;
        }
    };
    struct HeldRecord {
        bool other = false;
        std::string text;
        std::size_t deviceValueAt = 0;
        References references;
    };

    /// Writes the held records with "Yes" where a reference named a device with ROMs;
    /// `currentHasOne` tells the same of the current machine.
    void Settle(AtomicFileWriter& arcade, AtomicFileWriter& other, bool& currentHasOne);
    bool AnyDeviceRom(const References& references) const;

    DeviceRomSource& m_devices;
    const NameList* m_list = nullptr;
    References m_current;
    std::vector<HeldRecord> m_records;
};

} // namespace coinlight
