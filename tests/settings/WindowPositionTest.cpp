#include "settings/WindowPosition.h"

#include "support/UnreliableKey.h"

#include <gtest/gtest.h>

namespace zantroq {
namespace {

sWindowPosition Loaded(ISettingsKey& key, const std::string& title)
{
    sWindowPosition position;
    EXPECT_TRUE(LoadWindowPosition(key, title, position));
    return position;
}

} // namespace

TEST(WindowPosition, AMissingOneIsTheDefault)
{
    const auto key = MakeMemorySettingsKey();
    EXPECT_EQ(Loaded(*key, "X - Chart"), (sWindowPosition{{0, 0, 620, 460}, false}));
    EXPECT_TRUE(key->List().empty());
}

TEST(WindowPosition, TheRectangleIs16BytesWithTheLowByteFirst)
{
    const auto key = MakeMemorySettingsKey();
    SaveWindowPosition(*key, "X - Chart", {{-2, 0x01020304, 800, 600}, true});
    EXPECT_EQ(key->Read("RectPosition.X - Chart"),
              SettingValue(std::vector<std::uint8_t>{0xFE, 0xFF, 0xFF, 0xFF, 4, 3, 2, 1, 0x20, 3, 0, 0, 0x58,
                                                     2, 0, 0}));
    EXPECT_EQ(key->Read("RectPosition.X - Chart.Maximized"), SettingValue(1u));
    EXPECT_EQ(Loaded(*key, "X - Chart"), (sWindowPosition{{-2, 0x01020304, 800, 600}, true}));
}

TEST(WindowPosition, ARectangleOfAnotherLengthOrTypeIsMissing)
{
    const auto key = MakeMemorySettingsKey();
    key->Write("RectPosition.X", std::vector<std::uint8_t>(15, 1));
    key->Write("RectPosition.X.Maximized", std::string("1"));
    EXPECT_EQ(Loaded(*key, "X"), sWindowPosition{});
    key->Write("RectPosition.X", std::string(16, 'x'));
    EXPECT_EQ(Loaded(*key, "X"), sWindowPosition{});
}

TEST(WindowPosition, OnlyTheNumber1MeansMaximized)
{
    const auto key = MakeMemorySettingsKey();
    for (const std::uint32_t number : {0u, 1u, 2u, 4294967295u}) {
        key->Write("RectPosition.X.Maximized", number);
        EXPECT_EQ(Loaded(*key, "X").Maximized, number == 1) << number;
    }
}

TEST(WindowPosition, OneThatCannotBeReadIsTheDefaultToo)
{
    test::sUnreliableKey key;
    SaveWindowPosition(key, "X", {{1, 2, 3, 4}, true});
    key.Unreadable = {"RectPosition.X"};
    sWindowPosition position;
    EXPECT_FALSE(LoadWindowPosition(key, "X", position));
    EXPECT_EQ(position, (sWindowPosition{{0, 0, 620, 460}, true}));
    key.Unreadable = {"RectPosition.X.Maximized"};
    EXPECT_FALSE(LoadWindowPosition(key, "X", position));
    EXPECT_EQ(position, (sWindowPosition{{1, 2, 3, 4}, false}));
}

} // namespace zantroq
