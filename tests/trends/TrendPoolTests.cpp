// Numbering of series and labels, the lists, and deletion in every order.
#include "TrendFixture.h"

#include "trends/PitchforkTrend.h"
#include "trends/SlopingTrend.h"
#include "trends/SpeedResistanceTrend.h"

#include <algorithm>
#include <numeric>

namespace zantroq::test {

using TrendPool = CTrendTest;

TEST_F(TrendPool, NewSeriesAreSetUpWithSolidLineAndGreyMarks)
{
    EXPECT_EQ(lists.AllocateSeries(), 4);
    const CSeriesStyle& style = window.pane.PaneGroups(2).SeriesStyles(4);
    EXPECT_EQ(window.pane.PaneGroups(2).PaneData().SeriesCount(), 4);
    EXPECT_EQ(style.LineLook().Pattern(), LineSolid);
    EXPECT_EQ(style.SymbolLook().Shape(), SymbolMark);
    EXPECT_EQ(style.SymbolLook().SymbolColor(), 0xC0C0C0u);
    EXPECT_EQ(style.SymbolLook().Size(), 3);
    EXPECT_EQ(lists.AllocateSeries(), 5);
    EXPECT_EQ(lists.SeriesCount(), 5);
}

TEST_F(TrendPool, NewSeriesIsShownAtOnceWhateverThePaneWasSetUpFor)
{
    CPaneData& data = window.pane.PaneGroups(2).PaneData();
    data.SetLastShownSeries(3);
    for (const int series : {4, 5}) {
        EXPECT_EQ(lists.AllocateSeries(), series);
        EXPECT_EQ(data.LastVisible(), series);
    }
    data.SetLastShownSeries(0); // no limit stays none
    lists.AllocateSeries();
    EXPECT_EQ(data.LastShownSeries(), 0);
    EXPECT_EQ(data.LastVisible(), 6);
}

TEST_F(TrendPool, SeriesGivenBackAreUsedAgainFirstInFirstOut)
{
    machine.OnCommand(DrawSpeedResistance);
    Down(1, 10, 100);
    Move(20, 110);
    Down(1, 20, 110);
    machine.OnCommand(DrawSloping);
    Down(1, 10, 100);
    Move(20, 110);
    Down(1, 20, 110);
    lists.Delete(&lists.List(TrendSpeedResistance).Item(0));
    lists.Delete(&lists.List(TrendSloping).Item(0));
    EXPECT_EQ(std::vector<int>(lists.Pool().Free().begin(), lists.Pool().Free().end()),
              (std::vector<int>{4, 5, 6, 7}));
    EXPECT_EQ(lists.AllocateSeries(), 4);
    EXPECT_EQ(lists.AllocateSeries(), 5);
    EXPECT_EQ(lists.AllocateSeries(), 6);
    EXPECT_EQ(lists.AllocateSeries(), 7);
    EXPECT_EQ(lists.AllocateSeries(), 8);
}

TEST_F(TrendPool, AfterRemoveAllTheNextLineTakesSeriesFourAgain)
{
    machine.OnCommand(DrawRetracements);
    Down(1, 10, 100);
    Move(20, 110);
    Down(1, 20, 110);
    EXPECT_EQ(lists.SeriesCount(), 13);
    EXPECT_EQ(lists.LabelCount(), 18);
    lists.RemoveAll();
    EXPECT_EQ(lists.Count(), 0);
    EXPECT_EQ(lists.LabelCount(), 9);
    EXPECT_EQ(window.pane.PaneLabels().Count(), 9);
    EXPECT_EQ(lists.AllocateSeries(), 4);
}

TEST_F(TrendPool, EarlierKindAndEarlierLineWinATie)
{
    const sTrendStyle style{0, 1, 0};
    const auto level = [&](TrendKind kind, std::unique_ptr<CBaseTrend> trend) {
        trend->m_endIndex = 140;
        CBaseTrend* const added = lists.List(kind).Add(std::move(trend));
        added->Draw();
        return added;
    };
    level(TrendSloping, std::make_unique<CSlopingTrend>(lists.AllocateSeries(), 110, 100.0, style));
    CBaseTrend* const first =
        level(TrendHorizontal, std::make_unique<CBaseTrend>(lists.AllocateSeries(), 110, 100.0, style));
    level(TrendHorizontal, std::make_unique<CBaseTrend>(lists.AllocateSeries(), 110, 100.0, style));
    int px = 0, py = 0, distance = 0;
    Pixel(25, 100, px, py);
    EXPECT_EQ(lists.FindNearest(px, py - 4, &distance), first);
    EXPECT_EQ(distance, 4);
    EXPECT_EQ(lists.m_lastHit, first);
}

// The rule rounds half up before the sign is removed, so below a sloping line four pixels give three.
TEST_F(TrendPool, SlopingLineIsOnePixelNearerFromBelow)
{
    auto trend = std::make_unique<CSlopingTrend>(lists.AllocateSeries(), 110, 100.0, sTrendStyle{0, 1, 0});
    trend->m_endIndex = 140;
    CBaseTrend* const added = lists.List(TrendSloping).Add(std::move(trend));
    added->Draw();
    int px = 0, py = 0;
    Pixel(25, 100, px, py);
    EXPECT_EQ(added->HitDistance(px, py - 4), 4);
    EXPECT_EQ(added->HitDistance(px, py + 4), 3);
}

TEST_F(TrendPool, FindNearestOfNothingIsNullWithMinusOne)
{
    int distance = 7;
    EXPECT_EQ(lists.FindNearest(100, 100, &distance), nullptr);
    EXPECT_EQ(distance, -1);
}

TEST_F(TrendPool, DeletingAStrangerIsIgnored)
{
    CBaseTrend stranger(4, 0, 0, {});
    lists.Delete(&stranger);
    lists.Delete(nullptr);
    EXPECT_TRUE(lists.Pool().Free().empty());
}

TEST_F(TrendPool, WithOnePointShownNothingCanBeHit)
{
    window.Show(100, 1, 50, 150);
    for (int command : {DrawHorizontal, DrawSloping, DrawParallel, DrawPitchfork, DrawFan, DrawRetracements,
                        DrawSpeedResistance}) {
        machine.OnCommand(command);
        Down(1, 1, 100);
    }
    int distance = 0;
    EXPECT_EQ(lists.Count(), 7);
    int px = 0, py = 0;
    Pixel(1, 100, px, py);
    lists.FindNearest(px, py, &distance);
    EXPECT_EQ(distance, NotHittable);
    window.Show(110, 1, 50, 150); // the lines now begin left of the one point that is shown
    lists.DrawAll();
    for (int kind = 0; kind < TrendKinds; ++kind) {
        const CTrendList& list = lists.List(static_cast<TrendKind>(kind));
        EXPECT_EQ(list.Item(0).HitDistance(px, py), NotHittable) << kind;
    }
}

TEST_F(TrendPool, SettersReachEveryMemberOfAKind)
{
    for (int i = 0; i < 2; ++i) {
        machine.OnCommand(DrawSloping);
        Down(1, 10, 100);
    }
    CTrendList& list = lists.List(TrendSloping);
    list.SetAllColors(0xABCDEF);
    list.SetAllWidths(3);
    list.SetAllExtendable(0);
    for (int i = 0; i < 2; ++i) {
        EXPECT_EQ(list.Item(i).m_color, 0xABCDEFu);
        EXPECT_EQ(list.Item(i).m_width, 3);
        EXPECT_EQ(list.Item(i).m_extendable, 0);
    }
}

// Three lines of each kind, deleted in each of the six orders: the series of a deleted line are released in
// order and contain only holes, and the series of the other lines are unchanged.
TEST_F(TrendPool, EveryOrderOfDeletionGivesEverySeriesBackAndLeavesTheOthersAlone)
{
    for (int command : {DrawHorizontal, DrawSloping, DrawParallel, DrawPitchfork, DrawFan, DrawRetracements,
                        DrawSpeedResistance}) {
        std::vector<int> order{0, 1, 2};
        do {
            lists.RemoveAll();
            std::vector<CBaseTrend*> trends;
            machine.OnCommand(command);
            for (int i = 0; i < 3; ++i) {
                Down(1, 10 + i, 100 + i);
                trends.push_back(machine.Current());
                Move(30 + i, 120 - i);
                Down(1, 30, 120);
                if (machine.State() == ParallelSecondLine || machine.State() == PitchforkThird) {
                    Move(15, 90 + i);
                    Down(1, 15, 90);
                }
            }
            std::vector<int> given;
            for (int step = 0; step < 3; ++step) {
                CBaseTrend* const doomed =
                    trends[static_cast<std::size_t>(order[static_cast<std::size_t>(step)])];
                const std::vector<int> series = doomed->AllSeries();
                given.insert(given.end(), series.begin(), series.end());
                std::vector<std::pair<int, double>> others;
                for (int later = step + 1; later < 3; ++later) {
                    for (int s : trends[static_cast<std::size_t>(order[static_cast<std::size_t>(later)])]
                                     ->AllSeries())
                        others.emplace_back(s, Y(s, 20));
                }
                lists.Delete(doomed);
                for (int s : series) {
                    for (int i = 1; i <= 60; ++i)
                        EXPECT_TRUE(Hole(s, i)) << command << " series " << s << " point " << i;
                }
                for (const auto& [s, y] : others)
                    EXPECT_EQ(Y(s, 20), y);
                EXPECT_EQ(std::vector<int>(lists.Pool().Free().begin(), lists.Pool().Free().end()), given);
                EXPECT_EQ(lists.LabelCount(), window.pane.PaneLabels().Count());
            }
            EXPECT_EQ(lists.Count(), 0);
        } while (std::next_permutation(order.begin(), order.end()));
    }
}

} // namespace zantroq::test
