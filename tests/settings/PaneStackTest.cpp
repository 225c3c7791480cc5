#include "settings/SettingsLoader.h"

#include <gtest/gtest.h>

namespace zantroq {
namespace {

struct PaneStack : testing::Test
{
    std::unique_ptr<ISettingsKey> Key = MakeMemorySettingsKey();
    void Put(const std::string& name, const std::string& text) { Key->Write(name, text); }
    void PutStack(const std::vector<int>& types, const std::vector<double>& borders)
    {
        Put("Number of displayed study charts", std::to_string(types.size()));
        for (std::size_t i = 0; i < types.size(); ++i)
            Put("Type of study chart " + std::to_string(i), std::to_string(types[i]));
        for (std::size_t i = 0; i < borders.size(); ++i)
            Put("Top of chart " + std::to_string(i + 1), std::to_string(borders[i]));
    }
    sPaneStack Load() { return LoadChartSettings(*Key, "20260102").Panes; }
    bool Has(const std::string& name) { return static_cast<bool>(Key->Read(name)); }
};

} // namespace

TEST_F(PaneStack, AStoredStackIsReadPaneByPane)
{
    PutStack({4, 0, 9}, {0.5, 0.7, 0.9, 1.0});
    Put("Maximized Chart Index", "2");
    Put("Chart 0 Minimized", "1");
    Put("Chart 3 Minimized", "1");
    const auto panes = Load();
    EXPECT_EQ(panes.StudyCount, 3);
    EXPECT_EQ(panes.StudyTypes[0], 4);
    EXPECT_EQ(panes.StudyTypes[1], 0);
    EXPECT_EQ(panes.StudyTypes[2], 9);
    EXPECT_EQ(panes.Bounds[0], 0.0);
    EXPECT_EQ(panes.Bounds[1], 0.5);
    EXPECT_EQ(panes.Bounds[2], 0.7);
    EXPECT_EQ(panes.Bounds[3], 0.9);
    EXPECT_EQ(panes.Bounds[4], 1.0);
    EXPECT_EQ(panes.MaximizedIndex, 2);
    EXPECT_EQ(panes.Minimized, (std::array<std::int32_t, 11>{1, 0, 0, 1}));
}

TEST_F(PaneStack, AStackWithoutStudiesIsKept)
{
    PutStack({}, {1.0});
    EXPECT_EQ(Load().StudyCount, 0);
    EXPECT_EQ(Load().Bounds[1], 1.0);
    EXPECT_FALSE(Has("Type of study chart 0"));
}

TEST_F(PaneStack, ATypeOf10EndsTheStackAndCorrectsTheCount)
{
    PutStack({1, 10, 3}, {0.4, 0.6, 0.8, 1.0});
    const auto panes = Load();
    EXPECT_EQ(panes.StudyCount, 1);
    EXPECT_EQ(panes.StudyTypes[0], 1);
    EXPECT_EQ(panes.Bounds[1], 0.4);
    EXPECT_EQ(panes.Bounds[2], 0.6);
}

TEST_F(PaneStack, AMissingOrNegativeTypeEndsTheStack)
{
    Put("Number of displayed study charts", "3");
    Put("Type of study chart 0", "2");
    EXPECT_EQ(Load().StudyCount, 1);
    Put("Type of study chart 1", "-4");
    EXPECT_EQ(Load().StudyCount, 1);
}

TEST_F(PaneStack, TheCountIsHeldBetween0And10)
{
    PutStack(std::vector<int>(12, 5), {});
    EXPECT_EQ(Load().StudyCount, 10);
    Put("Number of displayed study charts", "-5");
    EXPECT_EQ(Load().StudyCount, 0);
}

TEST_F(PaneStack, BordersThatDoNotAscendAreSpreadEvenlyInMemory)
{
    const std::vector<std::vector<double>> bad{
        {0.7, 0.4, 1.0}, {0.5, 0.5, 1.0}, {0.2, 0.4, 1.5}, {-0.2, 0.4, 1.0}, {0.3}};
    for (const auto& borders : bad) {
        Key = MakeMemorySettingsKey();
        PutStack({1, 2}, borders);
        const auto stored = Key->Read("Top of chart 1");
        const auto panes = Load();
        EXPECT_EQ(panes.Bounds[1], 1.0 / 3);
        EXPECT_EQ(panes.Bounds[2], 2.0 / 3);
        EXPECT_EQ(panes.Bounds[3], 1.0);
        EXPECT_EQ(Key->Read("Top of chart 1"), stored);
    }
    PutStack({1, 2}, {});
    Put("Top of chart 2", "nan");
    EXPECT_EQ(Load().Bounds[2], 2.0 / 3);
}

TEST_F(PaneStack, AMaximizedPaneThatIsNotThereIsNone)
{
    PutStack({1}, {0.5, 1.0});
    Put("Maximized Chart Index", "2");
    EXPECT_EQ(Load().MaximizedIndex, 999);
    Put("Maximized Chart Index", "-3");
    EXPECT_EQ(Load().MaximizedIndex, 999);
    Put("Maximized Chart Index", "1");
    EXPECT_EQ(Load().MaximizedIndex, 1);
}

TEST_F(PaneStack, NothingOfAStoredStackIsWrittenButTheMaximizedIndex)
{
    PutStack({1}, {0.5, 1.0});
    Load();
    EXPECT_EQ(Key->Read("Maximized Chart Index"), SettingValue(std::string("999")));
    EXPECT_FALSE(Has("Chart 0 Minimized"));
    EXPECT_FALSE(Has("Top of chart 3"));
    EXPECT_FALSE(Has("Study Data Color 0"));
}

} // namespace zantroq
