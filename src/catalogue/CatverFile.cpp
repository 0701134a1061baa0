#include "CatverFile.h"

#include "core/ProfileFile.h"

namespace coinlight {

CatverFile::CatverFile(const std::filesystem::path& file) : m_document(LoadProfile(file)) {}

std::string CatverFile::CategoryOf(std::string_view shortName) const {
    return ReadProfileValue(*m_document, "Category", shortName, "Unknown");
}

} // namespace coinlight
