#include "settings/SymbolHistory.h"

#include "settings/WindowPosition.h"
#include "support/UnreliableKey.h"

#include <gtest/gtest.h>

namespace zantroq {
namespace {

struct SymbolHistory : testing::Test
{
    std::unique_ptr<ISettingsKey> Key = MakeMemorySettingsKey();
    CRetryingKey UserKey{*Key};
    CSymbolHistory History{UserKey};
    std::string Stored(const std::string& name)
    {
        const auto value = Key->Read(name);
        return value ? std::get<std::string>(*value) : "(missing)";
    }
};

} // namespace

TEST_F(SymbolHistory, NewestStandsFirstAndIsStoredFromNumber0)
{
    History.AddSymbol("A");
    History.AddSymbol("B");
    EXPECT_EQ(History.Items(), (std::vector<std::string>{"B", "A"}));
    EXPECT_EQ(Stored("SQ0"), "B");
    EXPECT_EQ(Stored("SQ1"), "A");
    EXPECT_EQ(Stored("SQ2"), "(missing)");
}

TEST_F(SymbolHistory, ASymbolOfTheListMovesToTheTop)
{
    for (const char* symbol : {"A", "B", "C", "A"})
        History.AddSymbol(symbol);
    EXPECT_EQ(History.Items(), (std::vector<std::string>{"A", "C", "B"}));
    EXPECT_EQ(Stored("SQ2"), "B");
}

TEST_F(SymbolHistory, EmptyAndMissingEntriesAreLeftOutOnLoading)
{
    Key->Write("SQ0", std::string());
    Key->Write("SQ3", std::string("X"));
    Key->Write("SQ19", std::string("Y"));
    Key->Write("SQ20", std::string("Z"));
    History.LoadSymbolHistory();
    EXPECT_EQ(History.Items(), (std::vector<std::string>{"X", "Y"}));
}

// Regression, two windows: the older one knows fewer symbols than are stored. After it stored its list,
// symbols that were already in the list followed.
TEST_F(SymbolHistory, NothingStaysStoredBehindTheEndOfTheList)
{
    for (const char* symbol : {"C1", "C2"})
        History.AddSymbol(symbol);
    CSymbolHistory newer(UserKey);
    newer.LoadSymbolHistory();
    for (const char* symbol : {"C3", "C4", "C5"})
        newer.AddSymbol(symbol);
    EXPECT_EQ(Stored("SQ4"), "C1");
    History.AddSymbol("C3");
    CSymbolHistory next(UserKey);
    next.LoadSymbolHistory();
    EXPECT_EQ(next.Items(), (std::vector<std::string>{"C3", "C2", "C1"}));
    EXPECT_EQ(Stored("SQ3"), "(missing)");
}

TEST_F(SymbolHistory, DoublesAndGapsInTheStoreGoWithTheNextSymbol)
{
    for (const auto& [name, symbol] : {std::pair{"SQ0", "A"}, {"SQ1", "A"}, {"SQ2", "B"}, {"SQ9", "D"}})
        Key->Write(name, std::string(symbol));
    History.LoadSymbolHistory();
    History.AddSymbol("A");
    EXPECT_EQ(Stored("SQ0") + Stored("SQ1") + Stored("SQ2"), "ABD");
    EXPECT_EQ(Stored("SQ3"), "(missing)");
    EXPECT_EQ(Stored("SQ9"), "(missing)");
}

TEST_F(SymbolHistory, AnEmptySymbolChangesNothing)
{
    History.AddSymbol("");
    EXPECT_TRUE(History.Items().empty());
    EXPECT_TRUE(Key->List().empty());
}

TEST_F(SymbolHistory, The21stSymbolPushesOutTheOldestAndItsWindowPositionStays)
{
    for (int i = 1; i <= 20; ++i)
        History.AddSymbol("S" + std::to_string(i));
    SaveWindowPosition(*Key, "S1 - Chart", {{1, 2, 3, 4}, true});
    Key->Write("RectPosition.S1", 1u);
    Key->Write("RectPosition.S1.Maximized", 1u);
    History.AddSymbol("S21");
    EXPECT_EQ(History.Items().size(), 20u);
    EXPECT_EQ(History.Items().front(), "S21");
    EXPECT_EQ(History.Items().back(), "S2");
    EXPECT_EQ(Stored("SQ19"), "S2");
    EXPECT_FALSE(Key->Read("RectPosition.S1"));
    EXPECT_FALSE(Key->Read("RectPosition.S1.Maximized"));
    sWindowPosition position;
    EXPECT_TRUE(LoadWindowPosition(*Key, "S1 - Chart", position));
    EXPECT_EQ(position, (sWindowPosition{{1, 2, 3, 4}, true}));
}

TEST_F(SymbolHistory, ASymbolOfAFullListPushesNothingOut)
{
    for (int i = 1; i <= 20; ++i)
        History.AddSymbol("S" + std::to_string(i));
    History.AddSymbol("S1");
    EXPECT_EQ(History.Items().size(), 20u);
    EXPECT_EQ(History.Items().back(), "S2");
}

TEST_F(SymbolHistory, SymbolsThatCouldNotBeReadStandBehindTheNewOnes)
{
    test::sUnreliableKey below;
    below.Put("SQ0", "A");
    below.Put("SQ1", "B");
    below.Put("SQ2", "C");
    CRetryingKey key(below);
    CSymbolHistory history(key);
    below.SetLocked(true);
    history.LoadSymbolHistory();
    EXPECT_TRUE(history.Items().empty());
    history.AddSymbol("X");
    history.AddSymbol("B");
    EXPECT_EQ(history.Items(), (std::vector<std::string>{"B", "X"}));
    below.SetLocked(false);
    EXPECT_EQ(below.Stored("SQ0"), "A");
    key.Retry();
    const auto stored = [&] { return below.Stored("SQ0") + below.Stored("SQ1") + below.Stored("SQ2"); };
    EXPECT_EQ(stored() + below.Stored("SQ3"), "BXAC");
    EXPECT_EQ(below.Stored("SQ4"), "(missing)");
    history.AddSymbol("C");
    EXPECT_EQ(history.Items(), (std::vector<std::string>{"C", "B", "X", "A"}));
    EXPECT_EQ(stored() + below.Stored("SQ3"), "CBXA");
}

TEST_F(SymbolHistory, OneUnreadSymbolIsEnoughToKeepTheOthersFromBeingMoved)
{
    test::sUnreliableKey below;
    for (int i = 0; i < 20; ++i)
        below.Put("SQ" + std::to_string(i), "S" + std::to_string(i));
    below.Unreadable = {"SQ7"};
    CRetryingKey key(below);
    CSymbolHistory history(key);
    history.LoadSymbolHistory();
    history.AddSymbol("X");
    EXPECT_EQ(below.Stored("SQ0"), "S0");
    below.Unreadable = {};
    history.AddSymbol("Y");
    EXPECT_EQ(history.Items().size(), 20u);
    EXPECT_EQ(below.Stored("SQ0") + below.Stored("SQ1") + below.Stored("SQ2"), "YXS0");
    EXPECT_EQ(below.Stored("SQ19"), "S17");
}

TEST_F(SymbolHistory, AnotherWindowReadsTheSameList)
{
    for (int i = 1; i <= 25; ++i)
        History.AddSymbol("S" + std::to_string(i));
    CSymbolHistory other(UserKey);
    other.LoadSymbolHistory();
    EXPECT_EQ(other.Items(), History.Items());
}

} // namespace zantroq
