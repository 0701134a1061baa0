#include <gtest/gtest.h>
#include <random>

#include "core/TextCase.h"
#include "lists/RowSort.h"

namespace coinlight {
namespace {

int NaiveCompare(std::string_view a, std::string_view b) {
    const std::string x = ToLowerAscii(a);
    const std::string y = ToLowerAscii(b);
    return x == y ? 0
                  : (std::lexicographical_compare(x.begin(), x.end(), y.begin(), y.end(),
                                                  [](char p, char q) {
                                                      return static_cast<unsigned char>(p) <
                                                             static_cast<unsigned char>(q);
                                                  })
                         ? -1
                         : 1);
}

TEST(CompareIgnoringCase, AgreesWithComparingLowerCasedCopies) {
    const std::vector<std::string> texts = {"",
                                            "a",
                                            "A",
                                            "Dizzy (Spain)",
                                            "DIZZY (spain)",
                                            "Dizzy (Spain) ",
                                            "dizzy [",
                                            "dizzy @",
                                            "dizzy `",
                                            "dizzy {",
                                            "Zap\xC3\xA9",
                                            "zap\xC3\x89",
                                            "Zzzzzzzzz",
                                            "zzzzzzzzzZ",
                                            "12345678abc",
                                            "12345678ABD"};
    for (const auto& a : texts) {
        for (const auto& b : texts) {
            EXPECT_EQ(CompareIgnoringCase(a, b), NaiveCompare(a, b)) << a << " | " << b;
        }
    }
}

TEST(SortOrderByText, OrdersAsAStableSortOfLowerCasedTextsWould) {
    std::mt19937 random(7);
    const char* stems[] = {
        "Dizzy - Prince of the Yolkfolk", "dizzy - prince", "The Hobbit", "THE HOBBIT", "Zap", "a"};
    const char* tails[] = {"", " (Spain)", " (spain)", " (alt)", " (ALT 2)", "\xC3\xA9t\xC3\xA9"};
    std::vector<std::string> texts;
    for (int i = 0; i < 600; ++i) {
        texts.push_back(std::string(stems[random() % 6]) + tails[random() % 6]);
    }
    for (const bool descending : {false, true}) {
        std::vector<std::uint32_t> order(texts.size());
        for (std::uint32_t i = 0; i < order.size(); ++i) {
            order[i] = i;
        }
        std::vector<std::uint32_t> expected = order;
        std::stable_sort(expected.begin(), expected.end(), [&](std::uint32_t a, std::uint32_t b) {
            const int compared = NaiveCompare(texts[a], texts[b]);
            return descending ? compared > 0 : compared < 0;
        });
        SortOrderByText(
            order, [&](std::uint32_t row) { return std::string_view(texts[row]); }, descending);
        EXPECT_EQ(order, expected) << (descending ? "descending" : "ascending");
    }
}

} // namespace
} // namespace coinlight
