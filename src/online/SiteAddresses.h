#pragma once

#include <string>

#include "core/AppFolders.h"

namespace coinlight {

/// The three web sites Coinlight talks to. Each is empty unless the build names it, and the
/// environment variable of the same name wins over the build (tests point them at a server
/// of their own). An empty address means the feature has no site.
struct SiteAddresses {
    std::string project; // COINLIGHT_SITE: news.txt and the update check
    std::string artwork; // COINLIGHT_ARTWORK_SITE
    std::string samples; // COINLIGHT_SAMPLES_SITE
};

SiteAddresses ReadSiteAddresses(const EnvironmentLookup& environment);

/// `site` + `path`, without doubling the slash between them when the address ends in one.
std::string SiteUrl(const std::string& site, const std::string& path);

} // namespace coinlight
