#include "InfoSources.h"

#include <algorithm>

#include "core/FileTests.h"
#include "core/TextCase.h"

namespace coinlight {

namespace {

constexpr std::string_view kCheats = "cheat.7z";

bool ListedExtension(std::string_view name) {
    return name.size() >= 4 && (name.ends_with(".xml") || name.ends_with(".dat"));
}

/// The order a file manager would show: without regard to case, then by bytes.
bool NameOrder(const std::string& a, const std::string& b) {
    const std::string lowerA = ToLowerAscii(a);
    const std::string lowerB = ToLowerAscii(b);
    return lowerA != lowerB ? lowerA < lowerB : a < b;
}

} // namespace

InfoSourceKind SourceKindOf(std::string_view listedName) {
    const std::string name = ToLowerAscii(listedName);
    if (name == kCheats) {
        return InfoSourceKind::Cheats;
    }
    if (name == "history.xml") {
        return InfoSourceKind::History;
    }
    if (name == "command.dat" || name == "gameinit.dat" || name == "mameinfo.dat" ||
        name == "messinfo.dat") {
        return InfoSourceKind::DollarRecords;
    }
    return InfoSourceKind::HeaderOnly;
}

InfoSourceListing ListInfoSources(const std::filesystem::path& mameFolder,
                                  const std::filesystem::path& supportFolder) {
    InfoSourceListing listing;
    if (!mameFolder.empty() && FileExists(mameFolder / kCheats)) {
        listing.names.emplace_back(kCheats);
    }
    std::vector<std::string> found;
    std::error_code error;
    for (std::filesystem::directory_iterator entry(supportFolder, error), end;
         !error && entry != end; entry.increment(error)) {
        std::error_code typeError;
        const std::string name = entry->path().filename().string();
        if (entry->is_regular_file(typeError) && ListedExtension(name)) {
            found.push_back(name);
        }
    }
    // A support folder that is not there simply offers nothing.
    if (error && error != std::errc::no_such_file_or_directory) {
        listing.error = FileAccessError();
    }
    std::sort(found.begin(), found.end(), NameOrder);
    listing.names.insert(listing.names.end(), found.begin(), found.end());
    return listing;
}

std::filesystem::path SourceFile(std::string_view listedName,
                                 const std::filesystem::path& mameFolder,
                                 const std::filesystem::path& supportFolder) {
    const bool cheats = SourceKindOf(listedName) == InfoSourceKind::Cheats;
    return (cheats ? mameFolder : supportFolder) / listedName;
}

std::string InfoIntroText(bool anySource) {
    std::string text = "Coinlight supports...\n\n"
                       "cheat.7z, command.dat, gameinit.dat, history.xml, mameinfo.dat and "
                       "messinfo.dat.\n\n"
                       "Cheat.7z must be in your MAME directory and the other files must be in "
                       "your Coinlight support directory.";
    text +=
        anySource ? "\n\n\nSelect the file in the ListBox on the right." : "\n\n\nNo files found.";
    return text;
}

} // namespace coinlight
