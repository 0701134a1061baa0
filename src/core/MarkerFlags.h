#pragma once

#include <set>

#include "DataLayout.h"

namespace coinlight {

/// Where the snapshot goes when `!nostretch.ini` asks for a fixed rectangle, in twips.
struct FixedPicturePlace {
    int left = 4140;
    int top = 285;
    int height = 4760;
    int width = 4760;
};

/// Files in the settings folder whose mere presence changes behaviour. They are looked at
/// once per start, before options.ini is read.
struct MarkerFlags {
    bool skipNews = false;   // !skipnews.txt: no news fetch at start
    bool noScroll = false;   // !noscroll.txt: the information line stands still
    bool noStretch = false;  // !nostretch.ini: the snapshot keeps a fixed place
    bool skipSearch = false; // !skipsearch.txt: every machine counts as available
    bool allowMany = false;  // !allowmany.txt: read too late to let a second instance run
    FixedPicturePlace picturePlace;
};

MarkerFlags ReadMarkerFlags(const DataLayout& layout);

/// The list columns (from 2 up to `columnCount`) hidden by a `!hide<n>.txt` marker.
std::set<int> HiddenColumns(const DataLayout& layout, int columnCount);

} // namespace coinlight
