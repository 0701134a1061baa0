#include "MarkerFlags.h"

#include <string>

#include "FileTests.h"
#include "ProfileFile.h"
#include "ValueText.h"

namespace coinlight {

namespace {

int ReadTwips(const std::filesystem::path& file, const char* section, const char* key,
              int fallback) {
    return ParseInteger(ReadProfileValue(file, section, key, fallback)).value_or(fallback);
}

} // namespace

MarkerFlags ReadMarkerFlags(const DataLayout& layout) {
    MarkerFlags flags;
    flags.skipNews = FileExists(layout.Marker("!skipnews.txt"));
    flags.noScroll = FileExists(layout.Marker("!noscroll.txt"));
    flags.skipSearch = FileExists(layout.Marker("!skipsearch.txt"));
    flags.allowMany = FileExists(layout.Marker("!allowmany.txt"));
    const auto noStretch = layout.Marker("!nostretch.ini");
    flags.noStretch = FileExists(noStretch);
    if (flags.noStretch) {
        FixedPicturePlace& place = flags.picturePlace;
        place.left = ReadTwips(noStretch, "Position", "Left", place.left);
        place.top = ReadTwips(noStretch, "Position", "Top", place.top);
        place.height = ReadTwips(noStretch, "Size", "Height", place.height);
        place.width = ReadTwips(noStretch, "Size", "Width", place.width);
    }
    return flags;
}

std::set<int> HiddenColumns(const DataLayout& layout, int columnCount) {
    std::set<int> hidden;
    for (int column = 2; column <= columnCount; ++column) {
        if (FileExists(layout.Marker("!hide" + std::to_string(column) + ".txt"))) {
            hidden.insert(column);
        }
    }
    return hidden;
}

} // namespace coinlight
