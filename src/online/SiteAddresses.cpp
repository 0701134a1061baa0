#include "SiteAddresses.h"

namespace coinlight {

namespace {

std::string Address(const EnvironmentLookup& environment, const char* name, const char* builtIn) {
    return environment(name).value_or(builtIn);
}

} // namespace

SiteAddresses ReadSiteAddresses(const EnvironmentLookup& environment) {
    return {Address(environment, "COINLIGHT_SITE", COINLIGHT_BUILT_IN_SITE),
            Address(environment, "COINLIGHT_ARTWORK_SITE", COINLIGHT_BUILT_IN_ARTWORK_SITE),
            Address(environment, "COINLIGHT_SAMPLES_SITE", COINLIGHT_BUILT_IN_SAMPLES_SITE)};
}

std::string SiteUrl(const std::string& site, const std::string& path) {
    if (!site.empty() && site.back() == '/' && !path.empty() && path.front() == '/') {
        return site + path.substr(1);
    }
    return site + path;
}

} // namespace coinlight
