#include "conveniences/Questions.h"

#include <gtest/gtest.h>

namespace zantroq::test {

TEST(Questions, WhatRemovesSomethingForGoodIsKnown)
{
    EXPECT_TRUE(AsksToDelete("Delete flashing trendline?"));
    EXPECT_TRUE(AsksToDelete("Delete all trendlines?"));
    EXPECT_TRUE(AsksToDelete("Do you really want to delete this tick?\n\nPrice: 1.00"));
    EXPECT_TRUE(AsksToDelete("Do you really want to delete this interval?\n\nHi: 1"));
    EXPECT_TRUE(AsksToDelete("Do you really want to clear the saved settings?"));
    EXPECT_FALSE(AsksToDelete("Restore deleted ticks?"));
    EXPECT_FALSE(AsksToDelete("Empty Symbol is not allowed"));
}

TEST(Questions, ABoxWithoutACaptionGetsATitle)
{
    EXPECT_EQ(BoxTitle("Delete all trendlines?", ""), "Trendline deletion");
    EXPECT_EQ(BoxTitle("Delete this?", "Tick deletion"), "Tick deletion");
    EXPECT_EQ(BoxTitle("Something else", ""), "Chart");
}

} // namespace zantroq::test
