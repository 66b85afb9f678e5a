// The 1-based tables of the model.

#include "model/table.h"

#include <gtest/gtest.h>

namespace kvelder {
namespace {

TEST(Table, RowsAreNumberedFromOne)
{
    Table<int, 3> t;
    t(1) = 10;
    t(3) = 30;
    EXPECT_EQ(t(1), 10);
    EXPECT_EQ(t(2), 0);
    EXPECT_EQ(t(3), 30);
}

TEST(Table2, SpansAndPointsAreNumberedFromOneAndDoNotOverlap)
{
    Table2<float, 2, 3> t;
    for (int i = 1; i <= 2; ++i) {
        for (int j = 1; j <= 3; ++j) {
            t(i, j) = static_cast<float>(10 * i + j);
        }
    }
    for (int i = 1; i <= 2; ++i) {
        for (int j = 1; j <= 3; ++j) {
            EXPECT_EQ(t(i, j), static_cast<float>(10 * i + j));
        }
    }
    t.fill(0);
    EXPECT_EQ(t, (Table2<float, 2, 3>{}));
}

#ifndef NDEBUG
TEST(TableDeathTest, IndexOutsideTheTableStopsADebugBuild)
{
    Table<int, 5> t;
    Table2<int, 5, 4> t2;
    EXPECT_DEATH(t(0) = 1, "");
    EXPECT_DEATH(t(6) = 1, "");
    EXPECT_DEATH(t2(5, 5) = 1, "");
}
#endif

} // namespace
} // namespace kvelder
