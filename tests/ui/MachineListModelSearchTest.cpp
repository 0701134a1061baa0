// The list model's narrowing: a filtered order over the shared rows.
#include <gtest/gtest.h>

#include "lists/MachineRows.h"
#include "ui/MachineListModel.h"

namespace coinlight::test {
namespace {

std::shared_ptr<const MachineRows> Machines(std::initializer_list<const char*> names) {
    auto machines = std::make_shared<MachineRows>();
    for (const char* name : names) {
        std::array<std::string_view, kRecordFieldCount> fields{};
        fields[ColMachine] = name;
        fields[ColName] = name;
        machines->rows.emplace_back(fields, "", true);
    }
    return machines;
}

std::vector<std::string> Shown(const MachineListModel& model) {
    std::vector<std::string> names;
    for (int row = 0; row < model.rowCount(); ++row) {
        names.emplace_back(model.Row(row)->ShortName());
    }
    return names;
}

TEST(MachineListModelSearch, SortingWhileNarrowedOrdersBothThePartAndTheWhole) {
    MachineListModel model(false);
    model.Reset(Machines({"pacman", "galaga", "puckman", "pacland"}), {0, 1, 2, 3});
    model.Narrow(SearchQuery("pac"));
    EXPECT_EQ(Shown(model), (std::vector<std::string>{"pacman", "pacland"}));
    EXPECT_EQ(model.RowOfShortName("pacland"), 1);
    EXPECT_EQ(model.RowOfShortName("galaga"), -1) << "not on show";
    model.Sort(ColName, true);
    EXPECT_EQ(Shown(model), (std::vector<std::string>{"pacman", "pacland"}));
    model.Sort(ColName, false);
    EXPECT_EQ(Shown(model), (std::vector<std::string>{"pacland", "pacman"}));
    model.Narrow(SearchQuery("pacm"));
    EXPECT_EQ(Shown(model), std::vector<std::string>{"pacman"});
    model.Narrow(SearchQuery("p"));
    EXPECT_EQ(Shown(model), (std::vector<std::string>{"pacland", "pacman", "puckman"}))
        << "a shorter text looks at the whole list again";
    model.Narrow(SearchQuery());
    EXPECT_EQ(Shown(model), (std::vector<std::string>{"galaga", "pacland", "pacman", "puckman"}));
    EXPECT_EQ(model.TotalRows(), 4);
}

TEST(MachineListModelSearch, NewRowsAreNarrowedByTheQueryInForce) {
    MachineListModel model(false);
    model.Reset(Machines({"pacman", "galaga"}), {0, 1});
    model.Narrow(SearchQuery("gal"));
    model.Reset(Machines({"galaxian", "pacman", "galaga", "xevious"}), {0, 1, 2, 3});
    EXPECT_EQ(Shown(model), (std::vector<std::string>{"galaxian", "galaga"}));
    EXPECT_EQ(model.TotalRows(), 4);
    model.Clear();
    EXPECT_EQ(model.rowCount(), 0);
    EXPECT_EQ(model.Row(0), nullptr);
}

} // namespace
} // namespace coinlight::test
