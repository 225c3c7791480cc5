#include "settings/WindowPosition.h"

#include <gtest/gtest.h>

namespace zantroq {

TEST(WindowPosition, AMissingOneIsTheDefault)
{
    const auto key = MakeMemorySettingsKey();
    EXPECT_EQ(LoadWindowPosition(*key, "X - Chart"), (sWindowPosition{{0, 0, 620, 460}, false}));
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
    EXPECT_EQ(LoadWindowPosition(*key, "X - Chart"), (sWindowPosition{{-2, 0x01020304, 800, 600}, true}));
}

TEST(WindowPosition, ARectangleOfAnotherLengthOrTypeIsMissing)
{
    const auto key = MakeMemorySettingsKey();
    key->Write("RectPosition.X", std::vector<std::uint8_t>(15, 1));
    key->Write("RectPosition.X.Maximized", std::string("1"));
    EXPECT_EQ(LoadWindowPosition(*key, "X"), sWindowPosition{});
    key->Write("RectPosition.X", std::string(16, 'x'));
    EXPECT_EQ(LoadWindowPosition(*key, "X"), sWindowPosition{});
}

TEST(WindowPosition, AWindowIsSavedUnderItsTitleWithItsRestoredSize)
{
    class CWindow final : public ITopLevelWindow
    {
    public:
        std::string Title() const override { return "ABC - Chart"; }
        void SetTitle(const std::string&) override {}
        sWindowRect NormalRect() const override { return {10, 20, 30, 40}; }
        bool Maximized() const override { return false; }
        void SetCaption(const std::string&) override {}
        std::string Caption() const override { return ""; }
        void MoveTo(const sWindowRect&) override {}
        void Maximize() override {}
        sWindowRect VirtualScreen() const override { return {}; }
    } window;
    const auto key = MakeMemorySettingsKey();
    SaveWindowPosition(*key, window);
    EXPECT_EQ(LoadWindowPosition(*key, "ABC - Chart"), (sWindowPosition{{10, 20, 30, 40}, false}));
    EXPECT_EQ(key->Read("RectPosition.ABC - Chart.Maximized"), SettingValue(0u));
}

} // namespace zantroq
