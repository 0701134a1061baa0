#include "online/SiteAddresses.h"

#include <gtest/gtest.h>
#include <map>

namespace coinlight {
namespace {

EnvironmentLookup Environment(std::map<std::string, std::string> values) {
    return [values = std::move(values)](const char* name) -> std::optional<std::string> {
        const auto found = values.find(name);
        if (found == values.end()) {
            return std::nullopt;
        }
        return found->second;
    };
}

TEST(SiteAddresses, TheEnvironmentWinsOverTheBuildEvenWhenEmpty) {
    const SiteAddresses sites =
        ReadSiteAddresses(Environment({{"COINLIGHT_SITE", "http://127.0.0.1:1"},
                                       {"COINLIGHT_ARTWORK_SITE", "http://127.0.0.1:2"},
                                       {"COINLIGHT_SAMPLES_SITE", ""}}));
    EXPECT_EQ(sites.project, "http://127.0.0.1:1");
    EXPECT_EQ(sites.artwork, "http://127.0.0.1:2");
    EXPECT_EQ(sites.samples, "");
}

TEST(SiteAddresses, APathFollowsTheAddressWithOneSlash) {
    EXPECT_EQ(SiteUrl("http://a.example", "/news.txt"), "http://a.example/news.txt");
    EXPECT_EQ(SiteUrl("http://a.example/", "/news.txt"), "http://a.example/news.txt");
    EXPECT_EQ(SiteUrl("", "/news.txt"), "/news.txt");
}

} // namespace
} // namespace coinlight
