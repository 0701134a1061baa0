// The samples question put to Debian's MAME, whose answer format the count relies on.
#include <gtest/gtest.h>

#include "online/AssetDownload.h"
#include "support/TestFiles.h"

namespace coinlight {
namespace {

const std::filesystem::path kMame = "/usr/games/mame";

TEST(RealMameSamples, AMachineWithSamplesIsToldFromOneWithout) {
    if (!std::filesystem::exists(kMame)) {
        GTEST_SKIP() << "Debian's MAME is not installed at " << kMame;
    }
    test::TempFolder folder;
    DataLayout data{folder / "data"};
    std::filesystem::create_directories(data.Temp());
    const MameRun mame{kMame.parent_path(), kMame.filename().string(), data.Temp()};
    const auto ask = [&](const char* name) {
        return AskMameForSamples(mame, name, data, [] { return true; }).answer;
    };
    EXPECT_EQ(ask("zaxxon"), SamplesAnswer::Has);
    EXPECT_EQ(ask("pong"), SamplesAnswer::HasNone) << "MAME prints nothing for it";
    EXPECT_EQ(ask("nosuchmachine"), SamplesAnswer::HasNone) << "one line of complaint";
    EXPECT_FALSE(std::filesystem::exists(data.Temp() / "lsamples.txt"));
}

} // namespace
} // namespace coinlight
