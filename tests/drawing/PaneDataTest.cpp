#include "scene/Chart2D.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <vector>

namespace zantroq {
namespace {

const double Hole = HoleValue;
const double NotANumber = std::numeric_limits<double>::quiet_NaN();

struct sPoints
{
    explicit sPoints(int series = 1, int points = 0)
    {
        data.SetSeriesCount(series);
        data.SetPointCount(1, points);
    }
    CChart2D chart;
    CPaneData& data = chart.PaneGroups(1).PaneData();
};

TEST(PaneData, NewPointsAreHolesNumberedFromOne)
{
    sPoints pane(2, 3);
    EXPECT_EQ(pane.data.PointCount(2), 3);
    EXPECT_EQ(pane.data.PointX(1, 1), 1.0);
    EXPECT_EQ(pane.data.PointX(2, 3), 3.0);
    EXPECT_EQ(pane.data.PointY(2, 3), Hole);
}

TEST(PaneData, NumbersOutOfRangeAreNotExamined)
{
    sPoints pane(1, 2);
    EXPECT_EQ(pane.data.PointCount(0), 0);
    EXPECT_EQ(pane.data.PointCount(2), 0);
    EXPECT_EQ(pane.data.PointX(1, 3), 0.0);
    EXPECT_EQ(pane.data.PointY(2, 1), Hole);
    pane.data.SetPointY(5, 1, 1.0);
    pane.data.SetPointX(1, 0, 9.0);
    pane.data.SetPointCount(7, 10);
    EXPECT_EQ(pane.data.PointCount(1), 2);
    EXPECT_EQ(pane.data.PointX(1, 1), 1.0);
    EXPECT_FALSE(pane.data.AdvanceDrawn(1, 3));
    EXPECT_FALSE(pane.data.ShiftPoints(1, 2, 2));
    EXPECT_FALSE(pane.data.ShiftPoints(1, std::numeric_limits<int>::max(), 2));
}

TEST(PaneData, AShortVectorIsRefusedAndALongOneCut)
{
    sPoints pane(1, 3);
    EXPECT_FALSE(pane.data.SetYVector(1, std::vector<double>{1, 2}));
    EXPECT_EQ(pane.data.PointY(1, 1), Hole);
    EXPECT_TRUE(pane.data.SetYVector(1, std::vector<double>{1, 2, 3, 4}));
    EXPECT_EQ(pane.data.PointY(1, 3), 3.0);
    EXPECT_EQ(pane.data.PointCount(1), 3);
}

TEST(PaneData, IntegerAndRealXVectorsLoadAlike)
{
    sPoints pane(1, 3);
    EXPECT_TRUE(pane.data.SetXVector(1, std::span<const int>(std::vector<int>{4, 5, 6})));
    std::vector<double> x;
    EXPECT_TRUE(pane.data.GetXVector(1, x));
    EXPECT_EQ(x, (std::vector<double>{4, 5, 6}));
    EXPECT_TRUE(pane.data.SetXVector(1, std::span<const double>(std::vector<double>{7, 8, 9})));
    EXPECT_EQ(pane.data.PointX(1, 2), 8.0);
    EXPECT_FALSE(pane.data.GetXVector(2, x));
}

TEST(PaneData, ShiftMovesTheTailToTheBeginning)
{
    sPoints pane(2, 4);
    pane.data.SetYVector(1, std::vector<double>{1, 2, 3, 4});
    pane.data.SetYVector(2, std::vector<double>{5, 6, 7, 8});
    EXPECT_TRUE(pane.data.ShiftPoints(2, 3, 2));
    EXPECT_EQ(pane.data.PointX(1, 1), 1.0) << "x moves with series 1";
    EXPECT_TRUE(pane.data.ShiftPoints(1, 3, 2));
    EXPECT_EQ(std::vector<double>(pane.data.Y(1).begin(), pane.data.Y(1).end()),
              (std::vector<double>{2, 3, 4, 4}));
    EXPECT_EQ(std::vector<double>(pane.data.Y(2).begin(), pane.data.Y(2).end()),
              (std::vector<double>{6, 7, 8, 8}));
    EXPECT_EQ(std::vector<double>(pane.data.X().begin(), pane.data.X().end()),
              (std::vector<double>{2, 3, 4, 4}));
}

TEST(PaneData, TheDrawnMarkerMovesOnUpToTheLastPoint)
{
    sPoints pane(1, 5);
    pane.data.SetDrawnTo(1, 2);
    EXPECT_TRUE(pane.data.AdvanceDrawn(1, 3));
    EXPECT_EQ(pane.data.DrawnTo(1), 5);
    EXPECT_FALSE(pane.data.AdvanceDrawn(1, 1));
    EXPECT_EQ(pane.data.DrawnTo(1), 5);
}

// Regression: a point of the warm-up that had a value was drawn.
TEST(PaneData, PointsBeforeAMarkerThatWasPutAreNotDrawn)
{
    sPoints pane(2, 5);
    EXPECT_EQ(pane.data.FirstDrawn(1), 0u);
    pane.data.SetDrawnTo(1, 2);
    EXPECT_EQ(pane.data.Undrawn(1), 0) << "the marker alone says nothing";
    const std::uint64_t before = pane.data.Revision();
    EXPECT_TRUE(pane.data.AdvanceDrawn(1, 2));
    EXPECT_EQ(pane.data.Undrawn(1), 2);
    EXPECT_EQ(pane.data.FirstDrawn(1), 2u);
    EXPECT_TRUE(pane.data.ChangesSince(before).Whole);
    EXPECT_TRUE(pane.data.SeriesChangedSince(1, before));
    EXPECT_FALSE(pane.data.SeriesChangedSince(2, before));
    EXPECT_TRUE(pane.data.AdvanceDrawn(1, 1));
    EXPECT_EQ(pane.data.Undrawn(1), 2) << "drawing goes on behind the marker";
    EXPECT_EQ(pane.data.FirstDrawn(2), 0u);
    pane.data.SetFirstPoint(1, 4);
    EXPECT_EQ(pane.data.FirstDrawn(1), 3u);
    pane.data.SetDrawnTo(1, 0);
    pane.data.SetFirstPoint(1, 1);
    EXPECT_TRUE(pane.data.AdvanceDrawn(1, 5));
    EXPECT_EQ(pane.data.FirstDrawn(1), 0u) << "drawn from the start again";
}

TEST(PaneData, ARestoredSeriesIsDrawnOnFromItsMarker)
{
    sPoints pane(1, 5);
    pane.data.SetDrawnTo(1, 3);
    pane.data.SetUndrawn(1, 1);
    EXPECT_TRUE(pane.data.AdvanceDrawn(1, 2));
    EXPECT_EQ(pane.data.Undrawn(1), 1);
    EXPECT_EQ(pane.data.DrawnTo(1), 5);
}

TEST(PaneData, AMarkerThatIsPutWhereItWasChangesNothing)
{
    sPoints pane(1, 5);
    pane.data.SetDrawnTo(1, 0);
    pane.data.AdvanceDrawn(1, 5);
    const std::uint64_t before = pane.data.Revision();
    pane.data.SetDrawnTo(1, 0);
    pane.data.AdvanceDrawn(1, 5);
    EXPECT_EQ(pane.data.Revision(), before);
}

TEST(PaneData, LastShownZeroMeansNoLimit)
{
    sPoints pane(4, 1);
    EXPECT_EQ(pane.data.FirstVisible(), 1);
    EXPECT_EQ(pane.data.LastVisible(), 4);
    pane.data.SetLastShownSeries(2);
    EXPECT_EQ(pane.data.LastVisible(), 2);
    pane.data.SetLastShownSeries(9);
    EXPECT_EQ(pane.data.LastVisible(), 4);
}

TEST(PaneData, OrderOfXIsKnownThroughEveryChange)
{
    sPoints pane(1, 3);
    EXPECT_TRUE(pane.data.XAscending());
    pane.data.SetPointX(1, 2, 7);
    EXPECT_FALSE(pane.data.XAscending());
    pane.data.SetPointX(1, 3, 8);
    EXPECT_TRUE(pane.data.XAscending());
    pane.data.SetPointX(1, 3, 7);
    EXPECT_TRUE(pane.data.XAscending()) << "equal neighbours are in order";
    pane.data.SetPointX(1, 1, NotANumber);
    EXPECT_FALSE(pane.data.XAscending());
    pane.data.SetXVector(1, std::span<const double>(std::vector<double>{1, 2, 3}));
    EXPECT_TRUE(pane.data.XAscending());
    pane.data.SetPointCount(1, 5);
    EXPECT_TRUE(pane.data.XAscending());
}

TEST(PaneDataChanges, OneChangedPointIsToldAlone)
{
    sPoints pane(4, 1000);
    const std::uint64_t before = pane.data.Revision();
    EXPECT_LT(pane.data.ChangesSince(before).Last, pane.data.ChangesSince(before).First);
    for (int series = 1; series <= 4; ++series)
        pane.data.SetPointY(series, 1000, series);
    const sPointChanges changes = pane.data.ChangesSince(before);
    EXPECT_FALSE(changes.Whole);
    EXPECT_EQ(changes.First, 1000);
    EXPECT_EQ(changes.Last, 1000);
    EXPECT_LT(pane.data.ChangesSince(pane.data.Revision()).Last, 1);
}

TEST(PaneDataChanges, EachAskerLearnsAllSinceItsOwnLastLook)
{
    sPoints pane(1, 100);
    const std::uint64_t slow = pane.data.Revision();
    pane.data.SetPointY(1, 10, 1);
    const std::uint64_t quick = pane.data.Revision();
    pane.data.ChangesSince(quick);
    pane.data.SetPointY(1, 90, 1);
    EXPECT_EQ(pane.data.ChangesSince(quick).First, 90);
    EXPECT_EQ(pane.data.ChangesSince(slow).First, 10);
    EXPECT_EQ(pane.data.ChangesSince(slow).Last, 90);
}

TEST(PaneDataChanges, ForgottenOrWholesaleChangesMeanEverything)
{
    sPoints pane(1, 100);
    const std::uint64_t before = pane.data.Revision();
    for (int point = 1; point <= 50; ++point) {
        pane.data.SetPointY(1, point, point);
        pane.data.ChangesSince(pane.data.Revision());
    }
    EXPECT_TRUE(pane.data.ChangesSince(before).Whole);
    const std::uint64_t later = pane.data.Revision();
    pane.data.SetYVector(1, std::vector<double>(100, 1.0));
    EXPECT_TRUE(pane.data.ChangesSince(later).Whole);
}

TEST(PaneDataChanges, WritingTheValueThatIsThereIsNoChange)
{
    sPoints pane(1, 3);
    pane.data.SetPointY(1, 2, 5);
    const std::uint64_t before = pane.data.Revision();
    pane.data.SetPointY(1, 2, 5);
    pane.data.SetPointX(1, 2, 2);
    pane.data.SetPointCount(1, 3);
    pane.data.SetSeriesCount(1);
    EXPECT_EQ(pane.data.Revision(), before);
}

} // namespace
} // namespace zantroq
