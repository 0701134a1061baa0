#include "core/BigMemory.h"

#include <gtest/gtest.h>
#include <vector>

#include "support/TestFiles.h"

namespace coinlight {
namespace {

TEST(BigMemory, AReadFileKeepsItsBytesWhateverHappensToTheFile) {
    test::TempFolder folder;
    const auto file = folder / "arcadeinfo.txt";
    test::WriteFile(file, "\"a\",\"b\"\r\n");
    auto text = ReadFileBig(file);
    ASSERT_TRUE(text);
    EXPECT_EQ(text->View(), "\"a\",\"b\"\r\n");
    // Another program may replace the file, or cut it to nothing in place.
    test::WriteFile(folder / "new.txt", "other");
    std::filesystem::rename(folder / "new.txt", file);
    std::filesystem::resize_file(file, 0);
    EXPECT_EQ(text->View(), "\"a\",\"b\"\r\n");

    test::WriteFile(folder / "empty.txt", "");
    const auto empty = ReadFileBig(folder / "empty.txt");
    ASSERT_TRUE(empty);
    EXPECT_TRUE(empty->View().empty());
    EXPECT_FALSE(ReadFileBig(folder / "missing.txt"));
    EXPECT_FALSE(ReadFileBig(folder.Path())) << "a folder is no text";
}

TEST(BigMemory, LargeContainersGrowAndShrinkThroughTheBigAllocator) {
    std::vector<std::uint64_t, BigAllocator<std::uint64_t>> numbers;
    for (std::uint64_t i = 0; i < 600'000; ++i) { // 4.8 MB: past the threshold more than once
        numbers.push_back(i * 3);
    }
    EXPECT_EQ(numbers[599'999], 1'799'997u);
    numbers.shrink_to_fit();
    numbers.resize(10);
    numbers.shrink_to_fit();
    EXPECT_EQ(numbers.back(), 27u);
}

} // namespace
} // namespace coinlight
