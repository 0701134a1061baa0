#include "PendingDeviceRoms.h"

#include "CatalogueAbort.h"

namespace coinlight {

const NameList* PendingDeviceRoms::Known(AtomicFileWriter& arcade, AtomicFileWriter& other,
                                         bool& currentHasOne) {
    if (m_list == nullptr && m_devices.Done()) {
        Wait(arcade, other, currentHasOne);
    }
    return m_list;
}

const NameList& PendingDeviceRoms::Wait(AtomicFileWriter& arcade, AtomicFileWriter& other,
                                        bool& currentHasOne) {
    if (m_list == nullptr) {
        m_list = &m_devices.Wait();
        Settle(arcade, other, currentHasOne);
    }
    return *m_list;
}

void PendingDeviceRoms::AddReference(std::string_view name) {
    m_current.names.append(name).push_back('\n');
    ++m_current.count;
}

void PendingDeviceRoms::AddUnreadableReference(const RunTimeError& error) {
    m_current.failures.emplace_back(m_current.count, error);
}

void PendingDeviceRoms::Hold(bool other, std::string text, std::size_t deviceValueAt) {
    m_records.push_back({other, std::move(text), deviceValueAt, std::move(m_current)});
    m_current.Clear();
}

bool PendingDeviceRoms::AnyDeviceRom(const References& references) const {
    auto failure = references.failures.begin();
    std::size_t start = 0;
    for (std::size_t index = 0;; ++index) {
        if (failure != references.failures.end() && failure->first == index) {
            throw CatalogueAbort{failure->second};
        }
        const std::size_t end = references.names.find('\n', start);
        if (end == std::string::npos) {
            return false;
        }
        if (m_list->Contains(std::string_view(references.names).substr(start, end - start))) {
            return true;
        }
        start = end + 1;
    }
}

void PendingDeviceRoms::Settle(AtomicFileWriter& arcade, AtomicFileWriter& other,
                               bool& currentHasOne) {
    for (HeldRecord& record : m_records) {
        if (AnyDeviceRom(record.references)) {
            record.text.replace(record.deviceValueAt, 2, "Yes");
        }
        (record.other ? other : arcade).Write(record.text);
    }
    m_records.clear();
    currentHasOne = AnyDeviceRom(m_current);
    m_current.Clear();
}

} // namespace coinlight
