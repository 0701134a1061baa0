#include "SoftwareRows.h"

#include <cstring>
#include <limits>

#include "catalogue/QuotedFieldReader.h"
#include "catalogue/RunTimeError.h"
#include "core/TextFile.h"

namespace coinlight {

namespace {

constexpr const char* kRoutine = "LoadListsSoftware";
constexpr int kLargestCount = std::numeric_limits<std::int16_t>::max();

/// The fields of the record in hand, or empty ones where it was cut short.
std::string_view FieldOrEmpty(const std::array<std::string_view, SoftwareRows::kFields>& fields,
                              std::size_t filled, SoftwareField field) {
    const auto index = static_cast<std::size_t>(field);
    return index < filled ? fields[index] : std::string_view();
}

UserMessage LoadError(const RunTimeError& error,
                      const std::array<std::string_view, SoftwareRows::kFields>& fields,
                      std::size_t filled) {
    UserMessage message;
    message.icon = MessageIcon::Information;
    message.text =
        HandlerMessage(kRoutine, error) +
        "\n\nSoftware List: " + std::string(FieldOrEmpty(fields, filled, SoftwareField::List)) +
        "\nDevice Type: " + std::string(FieldOrEmpty(fields, filled, SoftwareField::Devices)) +
        "\nSoftware: " + std::string(FieldOrEmpty(fields, filled, SoftwareField::Name));
    return message;
}

std::size_t LineCount(std::string_view text) {
    std::size_t lines = 0;
    for (const char* at = text.data();
         (at = static_cast<const char*>(std::memchr(
              at, '\n', text.size() - static_cast<std::size_t>(at - text.data())))) != nullptr;
         ++at) {
        ++lines;
    }
    return lines;
}

} // namespace

void SoftwareRows::Add(const std::array<std::string_view, kFields>& fields) {
    Spans spans;
    for (std::size_t i = 0; i < kFields; ++i) {
        spans.begin[i] = static_cast<std::uint32_t>(fields[i].data() - m_text.data());
        spans.size[i] = static_cast<std::uint32_t>(fields[i].size());
    }
    m_rows.push_back(spans);
}

SoftwareLoad LoadListsSoftware(const std::filesystem::path& file, SoftwareKind kind) {
    SoftwareLoad load;
    std::array<std::string_view, SoftwareRows::kFields> fields;
    auto bytes = ReadFileBytes(file);
    if (!bytes || bytes->size() > std::numeric_limits<std::uint32_t>::max()) {
        load.rows = std::make_shared<SoftwareRows>();
        load.error = LoadError({kErrorFileNotFound, kFileNotFoundText, 1}, fields, 0);
        return load;
    }
    auto rows = std::make_shared<SoftwareRows>(std::move(*bytes));
    load.rows = rows;
    const std::string_view text = rows->Text();
    rows->Reserve(LineCount(text));
    int& count = kind == SoftwareKind::Available ? load.available : load.unavailable;
    const std::string_view wanted = kind == SoftwareKind::Available ? "A" : "U";
    QuotedFieldReader reader(text);
    while (!reader.AtEnd()) {
        std::size_t filled = 0;
        if (!reader.ReadFields(fields, filled)) {
            load.error = LoadError({kErrorPastEnd, kPastEndText, 4}, fields, filled);
            return load;
        }
        if (fields[static_cast<std::size_t>(SoftwareField::Availability)] != wanted) {
            continue;
        }
        if (count == kLargestCount) {
            load.error = LoadError({kErrorOverflow, kOverflowText, 7}, fields, fields.size());
            return load;
        }
        rows->Add(fields);
        ++count;
    }
    return load;
}

} // namespace coinlight
