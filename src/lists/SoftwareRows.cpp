#include "SoftwareRows.h"

#include <limits>

#include "QuotedLine.h"
#include "catalogue/QuotedFieldReader.h"
#include "catalogue/RunTimeError.h"

namespace coinlight {

namespace {

constexpr const char* kRoutine = "LoadListsSoftware";
constexpr int kLargestCount = std::numeric_limits<std::int16_t>::max();
/// A record's ten fields take some sixty bytes at least: room for every row at once.
constexpr std::size_t kShortestLine = 60;

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

} // namespace

void SoftwareRows::Add(const std::array<std::string_view, kFields>& fields) {
    const char* base = Text().data();
    Spans spans;
    for (std::size_t i = 0; i < kFields; ++i) {
        spans.begin[i] = static_cast<std::uint32_t>(fields[i].data() - base);
        spans.size[i] = static_cast<std::uint32_t>(fields[i].size());
    }
    m_rows.push_back(spans);
}

namespace {

/// Keeps the rows of one kind, counting them as the 16-bit counters always have.
class KindFilter {
public:
    KindFilter(SoftwareKind kind, SoftwareLoad& load, SoftwareRows& rows)
        : m_wanted(kind == SoftwareKind::Available ? 'A' : 'U'),
          m_count(kind == SoftwareKind::Available ? load.available : load.unavailable),
          m_load(load), m_rows(rows) {}

    /// False when the load must end here.
    bool Take(const std::array<std::string_view, SoftwareRows::kFields>& fields) {
        const std::string_view availability =
            fields[static_cast<std::size_t>(SoftwareField::Availability)];
        if (availability.size() != 1 || availability[0] != m_wanted) {
            return true;
        }
        if (m_count == kLargestCount) {
            m_load.error = LoadError({kErrorOverflow, kOverflowText, 7}, fields, fields.size());
            return false;
        }
        m_rows.Add(fields);
        ++m_count;
        return true;
    }

private:
    char m_wanted;
    int& m_count;
    SoftwareLoad& m_load;
    SoftwareRows& m_rows;
};

} // namespace

SoftwareLoad LoadListsSoftware(const std::filesystem::path& file, SoftwareKind kind) {
    SoftwareLoad load;
    std::array<std::string_view, SoftwareRows::kFields> fields;
    auto text = ReadFileBig(file);
    if (!text || text->View().size() > std::numeric_limits<std::uint32_t>::max()) {
        load.rows = std::make_shared<SoftwareRows>();
        load.error = LoadError({kErrorFileNotFound, kFileNotFoundText, 1}, fields, 0);
        return load;
    }
    auto rows = std::make_shared<SoftwareRows>(std::move(*text));
    load.rows = rows;
    const std::string_view view = rows->Text();
    rows->Reserve(view.size() / kShortestLine);
    KindFilter filter(kind, load, *rows);
    // Line by line while every line is a whole record, as a file Coinlight made is; from
    // the first line that is not, the general reader takes over, which reads a record
    // across line ends the way such a file has always been read.
    std::size_t at = 0;
    while (at < view.size()) {
        const std::size_t newline = view.find('\n', at);
        const std::size_t next = newline == std::string_view::npos ? view.size() : newline + 1;
        std::size_t end = newline == std::string_view::npos ? view.size() : newline;
        if (end > at && view[end - 1] == '\r') {
            --end;
        }
        const std::string_view line = view.substr(at, end - at);
        if (!line.empty() && !SplitQuotedLine(line, fields)) {
            break;
        }
        at = next;
        if (!line.empty() && !filter.Take(fields)) {
            return load;
        }
    }
    QuotedFieldReader reader(view.substr(at));
    while (!reader.AtEnd()) {
        std::size_t filled = 0;
        if (!reader.ReadFields(fields, filled)) {
            load.error = LoadError({kErrorPastEnd, kPastEndText, 4}, fields, filled);
            return load;
        }
        if (!filter.Take(fields)) {
            return load;
        }
    }
    return load;
}

} // namespace coinlight
