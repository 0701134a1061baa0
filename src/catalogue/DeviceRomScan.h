#pragma once

#include <atomic>
#include <filesystem>
#include <functional>
#include <optional>
#include <thread>

#include "DeviceRomSource.h"
#include "NameList.h"
#include "RunTimeError.h"
#include "core/LineReader.h"

namespace coinlight {

/// The first pass over `machine.xml`: the short names of the device machines that have a
/// ROM of their own, as `|name|name|`. A machine that refers to one of them needs device
/// ROMs. Ends the routine with a read past the end when the file stops inside a device.
NameList CollectDeviceRoms(LineReader& machineXml);

/// Runs the first pass on a thread of its own, so that the second can start at once and
/// settle the device question for the machines it met in the meantime when this is done.
class DeviceRomScanner final : public DeviceRomSource {
public:
    /// `writerFinished`: while MAME still writes the file, true once it has finished (see
    /// LineReader::FollowWriter); empty for a finished file.
    explicit DeviceRomScanner(const std::filesystem::path& machineXml,
                              std::function<bool()> writerFinished = {});
    ~DeviceRomScanner() override;
    DeviceRomScanner(const DeviceRomScanner&) = delete;
    DeviceRomScanner& operator=(const DeviceRomScanner&) = delete;

    /// True when the scan has ended, so that Wait returns at once.
    bool Done() const override { return m_done.load(std::memory_order_acquire); }

    /// The list, once the scan has ended; its failure ends the routine.
    const NameList& Wait() override;

private:
    LineReader m_reader;
    NameList m_deviceRoms;
    std::optional<RunTimeError> m_error;
    std::atomic<bool> m_done{false};
    std::thread m_thread;
};

} // namespace coinlight
