#include "settings/SettingsStore.h"

#include "settings/SettingsTable.h"
#include "support/UnreliableKey.h"

#include <gtest/gtest.h>

namespace zantroq {
namespace {

struct SettingsStore : testing::Test
{
    std::unique_ptr<ISettingsKey> Key = MakeMemorySettingsKey();
    CSettingsStore Store{*Key};
    std::string Stored(const std::string& name)
    {
        const auto value = Key->Read(name);
        return value ? std::get<std::string>(*value) : "(missing)";
    }
};

constexpr int PtsIndexId = 32787, DeviationsId = 32801, ScrollByItemsId = 32790, ItemsId = 32791,
              PercentId = 32792;

} // namespace

TEST_F(SettingsStore, TheKeyIsTheCharts)
{
    EXPECT_EQ(GetSettingsKeyPath(), "Software\\Zantro\\Zantroq\\Applications\\Chart");
}

TEST_F(SettingsStore, MissingNumbersReadAsMinusOneAndTextsStayAsTheyWere)
{
    std::string text = "before";
    EXPECT_EQ(Store.ReadInt("nothing"), -1);
    EXPECT_EQ(Store.ReadDouble("nothing"), -1.0);
    EXPECT_EQ(Store.ReadString("nothing", text), ReadResult::Missing);
    EXPECT_EQ(text, "before");
}

TEST_F(SettingsStore, NumbersAreKeptAsText)
{
    Store.WriteInt("i", -25);
    Store.WriteDouble("d", 0.66);
    EXPECT_EQ(Stored("i"), "-25");
    EXPECT_EQ(Stored("d"), "0.660000");
    EXPECT_EQ(Store.ReadInt("i"), -25);
    EXPECT_EQ(Store.ReadDouble("d"), 0.66);
}

TEST_F(SettingsStore, ATextIsReadUpTo256Bytes)
{
    Store.WriteString("s", std::string(300, 'x'));
    std::string text;
    ASSERT_EQ(Store.ReadString("s", text), ReadResult::Found);
    EXPECT_EQ(text, std::string(256, 'x'));
    EXPECT_EQ(Stored("s").size(), 300u);
}

TEST_F(SettingsStore, ANumberOfAnotherTypeIsMissing)
{
    Key->Write("PTS INDEX", 5u);
    EXPECT_EQ(Store.ReadInt("PTS INDEX"), -1);
    EXPECT_EQ(Store.LoadInt(PtsIndexId, 3), 3);
    EXPECT_EQ(Stored("PTS INDEX"), "3");
}

TEST_F(SettingsStore, LoadWritesTheDefaultOfAMissingValue)
{
    EXPECT_EQ(Store.LoadInt(PtsIndexId, 3), 3);
    EXPECT_EQ(Stored("PTS INDEX"), "3");
    EXPECT_EQ(Store.LoadDouble(DeviationsId, 2.0), 2.0);
    EXPECT_EQ(Stored("BB DIVIATIONS NUMBER"), "2.000000");
    EXPECT_TRUE(Store.LoadBool(ScrollByItemsId, true));
    EXPECT_EQ(Stored("SCROLLING BY ITEMS"), "1");
}

TEST_F(SettingsStore, LoadLeavesAStoredValueAlone)
{
    Store.WriteString("PTS INDEX", " 7 points");
    EXPECT_EQ(Store.LoadInt(PtsIndexId, 3), 7);
    EXPECT_EQ(Stored("PTS INDEX"), " 7 points");
}

TEST_F(SettingsStore, AStoredMinusOneIsMissing)
{
    Store.WriteInt("PTS INDEX", -1);
    EXPECT_EQ(Store.LoadInt(PtsIndexId, 3), 3);
    EXPECT_EQ(Stored("PTS INDEX"), "3");
}

TEST_F(SettingsStore, WhatCannotBeReadTakesItsDefaultWhichIsNotWritten)
{
    test::sUnreliableKey key;
    CSettingsStore store(key);
    key.Put("PTS INDEX", "7");
    key.Put("BB DIVIATIONS NUMBER", "2.5");
    key.Put("SCROLLING BY ITEMS", "0");
    key.Reads = false;
    EXPECT_EQ(store.LoadInt(PtsIndexId, 3), 3);
    EXPECT_EQ(store.LoadDouble(DeviationsId, 2.0), 2.0);
    EXPECT_TRUE(store.LoadBool(ScrollByItemsId, true));
    store.FillIn("PTS INDEX", 3);
    std::string text = "before";
    EXPECT_EQ(store.ReadString("PTS INDEX", text), ReadResult::Unreadable);
    EXPECT_EQ(text, "before");
    EXPECT_EQ(store.ReadInt("PTS INDEX"), -1);
    EXPECT_EQ(key.Stored("PTS INDEX"), "7");
    EXPECT_EQ(key.Stored("BB DIVIATIONS NUMBER"), "2.5");
    EXPECT_EQ(key.Stored("SCROLLING BY ITEMS"), "0");
}

TEST_F(SettingsStore, FillingInWritesOnlyWhereNothingStands)
{
    Store.FillIn("a", 1);
    Store.FillIn("a", 2);
    EXPECT_EQ(Stored("a"), "1");
}

TEST_F(SettingsStore, ABooleanOf2IsReplacedByTheDefault)
{
    Store.WriteString("SCROLLING BY ITEMS", "2");
    EXPECT_TRUE(Store.LoadBool(ScrollByItemsId, true));
    EXPECT_EQ(Stored("SCROLLING BY ITEMS"), "1");
    Store.WriteString("SCROLLING BY ITEMS", "2");
    EXPECT_FALSE(Store.LoadBool(ScrollByItemsId, false));
    EXPECT_EQ(Stored("SCROLLING BY ITEMS"), "0");
}

TEST_F(SettingsStore, TheTwoUnnamedNumbersShareOneValue)
{
    EXPECT_EQ(Store.LoadInt(ItemsId, 1), 1);
    EXPECT_EQ(Store.LoadInt(PercentId, 20), 1);
    EXPECT_EQ(Stored(""), "1");
    EXPECT_EQ(Key->List().size(), 1u);
}

TEST_F(SettingsStore, DeleteTellsWhetherThereWasAValue)
{
    Store.WriteInt("x", 1);
    EXPECT_TRUE(Store.DeleteValue("x"));
    EXPECT_FALSE(Store.DeleteValue("x"));
    EXPECT_EQ(Store.ReadInt("x"), -1);
}

TEST_F(SettingsStore, TrailingBlankIsPartOfTheName)
{
    Store.WriteInt("STUDY AVG PERIOD ", 4);
    EXPECT_EQ(Store.ReadInt("STUDY AVG PERIOD"), -1);
    EXPECT_EQ(Store.ReadInt("STUDY AVG PERIOD "), 4);
}

} // namespace zantroq
