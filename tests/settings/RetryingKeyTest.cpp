#include "settings/RetryingKey.h"

#include "support/UnreliableKey.h"

#include <gtest/gtest.h>

namespace zantroq {
namespace {

struct RetryingKey : testing::Test
{
    test::sUnreliableKey Below;
    CRetryingKey Key{Below};
    bool Put(std::string_view name, const std::string& text) { return Key.Write(name, text); }
};

} // namespace

TEST_F(RetryingKey, WhatCanBeWrittenIsWrittenAtOnce)
{
    EXPECT_TRUE(Put("a", "1"));
    EXPECT_EQ(Below.Stored("a"), "1");
    EXPECT_TRUE(Key.Delete("a"));
    EXPECT_FALSE(Key.Delete("a"));
    EXPECT_FALSE(Key.IsWaiting());
}

TEST_F(RetryingKey, WhatCouldNotBeWrittenIsWrittenLater)
{
    Below.SetLocked(true);
    EXPECT_FALSE(Put("a", "1"));
    Key.Retry();
    EXPECT_TRUE(Key.IsWaiting());
    Below.SetLocked(false);
    EXPECT_EQ(Below.Stored("a"), "(missing)");
    Key.Retry();
    EXPECT_EQ(Below.Stored("a"), "1");
    EXPECT_FALSE(Key.IsWaiting());
}

TEST_F(RetryingKey, TheNextChangeTakesTheKeptOnesAlong)
{
    Below.SetLocked(true);
    Put("a", "1");
    Below.SetLocked(false);
    EXPECT_TRUE(Put("b", "2"));
    EXPECT_EQ(Below.Stored("a"), "1");
    EXPECT_EQ(Below.Stored("b"), "2");
}

TEST_F(RetryingKey, TheLastTryIsMadeWhenTheKeyGoes)
{
    {
        CRetryingKey key(Below);
        Below.SetLocked(true);
        key.Write("a", std::string("1"));
        Below.SetLocked(false);
    }
    EXPECT_EQ(Below.Stored("a"), "1");
}

TEST_F(RetryingKey, OfOneValueTheLastChangeCounts)
{
    Below.Put("gone", "x");
    Below.Put("back", "x");
    Below.SetLocked(true);
    Put("a", "1");
    Put("a", "2");
    Put("gone", "1");
    Key.Delete("gone");
    Key.Delete("back");
    Put("back", "1");
    Key.Delete("never there");
    Below.SetLocked(false);
    Key.Retry();
    EXPECT_EQ(Below.Stored("a"), "2");
    EXPECT_EQ(Below.Stored("gone"), "(missing)");
    EXPECT_EQ(Below.Stored("back"), "1");
    EXPECT_FALSE(Key.IsWaiting());
}

TEST_F(RetryingKey, ChangesAreCarriedOutInTheirOrderUpToTheOneThatIsRefused)
{
    std::string log;
    bool refused = true;
    const auto note = [&](char mark) {
        return [&log, &refused, mark](ISettingsKey&) {
            log += mark;
            return mark == 'a' || !refused;
        };
    };
    EXPECT_TRUE(Key.Make("a", note('a')));
    EXPECT_FALSE(Key.Make("b", note('b')));
    EXPECT_FALSE(Key.Make("c", note('c')));
    EXPECT_EQ(log, "abb");
    refused = false;
    Key.Retry();
    EXPECT_EQ(log, "abbbc");
}

// A retry every two seconds must not block the window; a change by the user may.
TEST(RetryingKeyWaiting, ARetryWaitsForNobody)
{
    struct sWaitingKey final : ISettingsKey
    {
        std::string Log; // 'w' for a write that may wait, 'n' for a write that may not
        bool Waiting = true;
        CSettingRead Read(std::string_view) override { return CSettingRead::Missing(); }
        bool Write(std::string_view, const SettingValue&) override
        {
            Log += Waiting ? 'w' : 'n';
            return false;
        }
        bool Delete(std::string_view) override { return false; }
        std::vector<std::pair<std::string, SettingValue>> List() override { return {}; }
        void SetWaiting(bool waiting) override { Waiting = waiting; }
    } below;
    {
        CRetryingKey key(below);
        key.Write("a", 1u);
        EXPECT_EQ(below.Log, "w");
        key.Retry();
        key.Retry();
        EXPECT_EQ(below.Log, "wnn");
        key.Write("b", 1u);
        EXPECT_EQ(below.Log, "wnnw");
    }
    EXPECT_EQ(below.Log, "wnnww");
}

} // namespace zantroq
