#include "lists/RowSort.h"

#include <gtest/gtest.h>

#include "RecordBuilder.h"

namespace coinlight {
namespace {

TEST(RowSort, SortsIgnoringCaseAndKeepsTiesInOrder) {
    MachineRows machines;
    auto& rows = machines.rows;
    for (const auto& [name, year] : std::vector<std::pair<std::string, std::string>>{
             {"b", "1982"}, {"A", "1980"}, {"c", "1980"}, {"a2", "1981"}}) {
        rows.emplace_back(test::Views(test::Record(name, {{ColYear, year}})), "", true);
    }
    std::vector<std::uint32_t> order = {0, 1, 2, 3};
    SortRows(order, machines, ColName, false);
    EXPECT_EQ(order, (std::vector<std::uint32_t>{1, 3, 0, 2}));
    SortRows(order, machines, ColYear, true);
    EXPECT_EQ(order, (std::vector<std::uint32_t>{0, 3, 1, 2})) << "1980s keep the name order";
}

} // namespace
} // namespace coinlight
