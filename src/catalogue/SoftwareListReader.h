#pragma once

#include <array>
#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "core/LineReader.h"
#include "MachineField.h"
#include "RunTimeError.h"
#include "SoftwareCatalogue.h"
#include "core/AtomicFileWriter.h"

namespace coinlight {

/// Turns one software list of `software.xml` into the records of a machine's software
/// file: the item in hand is built line by line and written at its `</software>` when it
/// has a good ROM or disk; a no-dump or a compatibility mismatch drops it whole.
class SoftwareListReader {
public:
    SoftwareListReader(const SoftwareSources& sources, std::string_view machine,
                       std::string_view list, AtomicFileWriter& out);

    /// Appends the list's records to the output; on failure, what went wrong, with the
    /// item in hand still readable through Devices and Name.
    std::optional<RunTimeError> Run();

    std::size_t Records() const { return m_records; }
    const std::string& Devices() const { return m_item[SoftwareField::Devices]; }
    const std::string& Name() const { return m_item[SoftwareField::Name]; }

private:
    struct Item {
        std::array<std::string, kSoftwareFieldCount> fields;
        std::string& operator[](SoftwareField field) {
            return fields[static_cast<std::size_t>(field)];
        }
        const std::string& operator[](SoftwareField field) const {
            return fields[static_cast<std::size_t>(field)];
        }
    };

    void Scan();
    void Line(std::string_view line);
    void SharedFeature(std::string_view line);
    void Finish();
    void Drop();
    void Clear();

    const SoftwareSources& m_sources;
    std::string m_list;
    AtomicFileWriter& m_out;
    std::vector<std::string> m_filterValues;
    LineReader* m_reader = nullptr;
    Item m_item;
    bool m_hasRom = false;
    bool m_hasDisk = false;
    bool m_hasPart = false;
    std::size_t m_records = 0;
    std::string m_scratch;
    std::string m_record;
};

} // namespace coinlight
