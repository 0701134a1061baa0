#include "DeviceRomScan.h"

#include <new>

#include "CatalogueAbort.h"

namespace coinlight {

namespace {

constexpr int kLocation = 40;

void NextOrAbort(LineReader& reader, std::string_view& line) {
    if (!reader.Next(line)) {
        Abort(kErrorPastEnd, kPastEndText, kLocation);
    }
}

} // namespace

NameList CollectDeviceRoms(LineReader& machineXml) {
    if (!machineXml.IsOpen()) {
        Abort(kErrorFileNotFound, kFileNotFoundText, kLocation);
    }
    NameList devices;
    std::string_view line;
    // Devices are a tenth of the machines: searching the blocks for them beats looking at
    // each of the millions of lines.
    while (machineXml.NextHolding("isdevice=\"yes\"", line)) {
        const std::string name(AttributeOrAbort(line, "machine name=", kLocation));
        for (;;) {
            NextOrAbort(machineXml, line);
            if (line.find("<rom ") != std::string_view::npos) {
                devices.Add(name);
                if (!machineXml.NextHolding("</mach", line)) {
                    Abort(kErrorPastEnd, kPastEndText, kLocation);
                }
                break;
            }
            if (line.find("</mach") != std::string_view::npos) {
                break;
            }
        }
    }
    if (machineXml.Failed()) {
        Abort(kErrorDeviceIo, kDeviceIoText, kLocation);
    }
    return devices;
}

DeviceRomScanner::DeviceRomScanner(const std::filesystem::path& machineXml,
                                   std::function<bool()> writerFinished)
    : m_reader(machineXml) {
    if (writerFinished) {
        m_reader.FollowWriter(std::move(writerFinished));
    }
    m_thread = std::thread([this] {
        try {
            m_deviceRoms = CollectDeviceRoms(m_reader);
        } catch (const CatalogueAbort& abort) {
            m_error = abort.error;
        } catch (const std::bad_alloc&) {
            m_error = RunTimeError{kErrorOutOfMemory, kOutOfMemoryText, kLocation};
        }
        m_done.store(true, std::memory_order_release);
    });
}

DeviceRomScanner::~DeviceRomScanner() {
    if (m_thread.joinable()) {
        m_thread.join();
    }
}

const NameList& DeviceRomScanner::Wait() {
    if (m_thread.joinable()) {
        m_thread.join();
    }
    if (m_error) {
        throw CatalogueAbort{*m_error};
    }
    return m_deviceRoms;
}

} // namespace coinlight
