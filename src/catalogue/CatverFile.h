#pragma once

#include <filesystem>
#include <memory>
#include <string>
#include <string_view>

#include "core/ProfileDocument.h"

namespace coinlight {

/// `support/catver.ini`: the category of a machine, "Unknown" when it has none.
class CatverFile {
public:
    explicit CatverFile(const std::filesystem::path& file);
    std::string CategoryOf(std::string_view shortName) const;
    const ProfileDocument& Document() const { return *m_document; }

private:
    std::shared_ptr<const ProfileDocument> m_document;
};

} // namespace coinlight
