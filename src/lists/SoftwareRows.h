#pragma once

#include <array>
#include <cstdint>
#include <filesystem>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "catalogue/MachineField.h"
#include "core/BigMemory.h"
#include "core/UserMessage.h"

namespace coinlight {

/// Which titles the software list shows: `optSoftware(0)` or `optSoftware(1)`.
enum class SoftwareKind { Available, Unavailable };

/// The rows of a machine's software file, pointing into the file's text, which they keep:
/// 20,000 titles cost no allocation of their own.
class SoftwareRows {
public:
    static constexpr std::size_t kFields = kSoftwareFieldCount;

    SoftwareRows() = default;
    explicit SoftwareRows(BigBuffer file) : m_file(std::move(file)) {}

    std::size_t size() const { return m_rows.size(); }
    std::string_view Text() const { return m_file.View(); }
    std::string_view Field(std::size_t row, SoftwareField field) const {
        return Field(row, static_cast<std::size_t>(field));
    }
    std::string_view Field(std::size_t row, std::size_t field) const {
        const Spans& spans = m_rows[row];
        return Text().substr(spans.begin[field], spans.size[field]);
    }

    /// Adds a row of fields that lie inside the text.
    void Add(const std::array<std::string_view, kFields>& fields);
    void Reserve(std::size_t rows) { m_rows.reserve(rows); }

private:
    struct Spans {
        std::array<std::uint32_t, kFields> begin;
        std::array<std::uint32_t, kFields> size;
    };
    BigBuffer m_file;
    std::vector<Spans> m_rows;
};

/// What LoadListsSoftware read: the rows of the kind asked for, and how many of each kind
/// it added (the other count stays 0, as only the chosen kind is added).
struct SoftwareLoad {
    std::shared_ptr<const SoftwareRows> rows;
    int available = 0;   // iSoftwareA
    int unavailable = 0; // iSoftwareU
    /// The information box of a load that ended early; `rows` holds what came before.
    std::optional<UserMessage> error;
};

/// Reads a software file (records of ten quoted fields) and keeps the rows of `kind`. The
/// counters are 16-bit, as they have always been: a 32,768th row of a kind ends the load
/// with an overflow, which no machine of today's MAME comes near.
SoftwareLoad LoadListsSoftware(const std::filesystem::path& file, SoftwareKind kind);

/// A software file this long or longer is worth a warning before it loads.
inline constexpr std::uintmax_t kLongSoftwareFile = 900001;

} // namespace coinlight
