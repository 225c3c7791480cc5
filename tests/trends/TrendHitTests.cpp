// Hit distances at every pixel of a small pane compared with the brute-force distance to the drawn polyline,
// and properties of drawing.
#include "TrendFixture.h"

#include <algorithm>
#include <cmath>
#include <rapidcheck/gtest.h>

namespace zantroq::test {

namespace {

struct sPixel
{
    double x, y;
};

double SegmentLength(const sPixel& p, const sPixel& a, const sPixel& b)
{
    const double dx = b.x - a.x, dy = b.y - a.y, squared = dx * dx + dy * dy;
    const double t =
        squared == 0 ? 0.0 : std::clamp(((p.x - a.x) * dx + (p.y - a.y) * dy) / squared, 0.0, 1.0);
    return std::hypot(p.x - (a.x + t * dx), p.y - (a.y + t * dy));
}

} // namespace

class TrendHit : public CTrendTest
{
protected:
    // The first and last visible points of a series in pixels of the pane; false if there are fewer than two.
    bool Ends(int series, sPixel& left, sPixel& right) const
    {
        int visible = 0;
        for (int i = 1; i <= window.range.shown; ++i) {
            int px = 0, py = 0;
            window.pane.PaneGroups(2).PointToPixel(series, i, px, py);
            if (py == -1)
                continue;
            right = {static_cast<double>(px), static_cast<double>(py)};
            if (visible++ == 0)
                left = right;
        }
        return visible > 1;
    }

    // Between the ends of a line, the distance to the infinite line through them; beyond an end, the distance
    // to that end; the nearest of all lines, not rounded.
    double RuleDistance(const CBaseTrend& trend, int x, int y) const
    {
        double best = NotHittable;
        for (int series : trend.AllSeries()) {
            sPixel a{}, b{};
            if (!Ends(series, a, b))
                continue;
            double d = 0;
            if (x <= a.x)
                d = std::hypot(x - a.x, y - a.y);
            else if (x >= b.x)
                d = std::hypot(x - b.x, y - b.y);
            else
                d = std::fabs((b.x - a.x) * (a.y - y) - (a.x - x) * (b.y - a.y)) /
                    std::hypot(b.x - a.x, b.y - a.y);
            best = std::min(best, d);
        }
        return best;
    }

    // The distance to the drawn segments themselves.
    double SegmentsDistance(const CBaseTrend& trend, int x, int y) const
    {
        double best = NotHittable;
        for (int series : trend.AllSeries()) {
            sPixel a{}, b{};
            if (Ends(series, a, b))
                best = std::min(best, SegmentLength({static_cast<double>(x), static_cast<double>(y)}, a, b));
        }
        return best;
    }

    CBaseTrend& DrawKind(int command, double x1, double y1, double x2, double y2)
    {
        machine.OnCommand(command);
        Down(1, x1, y1);
        Move(x2, y2);
        Down(1, x2, y2);
        if (machine.State() == ParallelSecondLine) {
            Move(x1, y1 + 12);
            Down(1, x1, y1);
        } else if (machine.State() == PitchforkThird) {
            Move(std::max(1.0, std::min(x1, x2) - 6), (y1 + y2) / 2 - 5);
            Down(1, x1, y1);
        }
        for (int kind = 0; kind < TrendKinds; ++kind) {
            if (lists.List(static_cast<TrendKind>(kind)).Count() > 0)
                return lists.List(static_cast<TrendKind>(kind)).Item(0);
        }
        throw std::logic_error("no line was drawn");
    }
};

constexpr int AllCommands[] = {DrawHorizontal, DrawSloping,      DrawParallel,       DrawPitchfork,
                               DrawFan,        DrawRetracements, DrawSpeedResistance};

TEST_F(TrendHit, EveryPixelOfASmallPaneAgreesWithTheRuleWorkedOutSlowly)
{
    for (int extendable : {0, 1}) {
        for (auto& style : window.settings.Trends)
            style.Extendable = extendable;
        for (int command : AllCommands) {
            lists.RemoveAll();
            window.Show(100, 30, 50, 150);
            window.pane.PaneArea().AreaBox().Width().SetValue(200);
            window.pane.PaneArea().AreaBox().Height().SetValue(150);
            const CBaseTrend& trend = DrawKind(command, 8, 80, 20, 110);
            const sPixelRect plot = window.pane.PlotRect();
            for (int y = plot.Top; y < plot.Bottom; ++y) {
                for (int x = plot.Left; x < plot.Right; ++x) {
                    const int hit = trend.HitDistance(x, y);
                    const double rule = RuleDistance(trend, x, y);
                    // The signed distance is rounded half up before its sign is removed, so on one side it is
                    // up to a pixel and a half too low.
                    ASSERT_GT(hit, rule - 1.5) << command << " at " << x << "," << y;
                    ASSERT_LE(hit, rule + 0.5 + 1e-9) << command << " at " << x << "," << y;
                }
            }
        }
    }
}

RC_GTEST_FIXTURE_PROP(TrendHit, DistanceIsNeverBelowTheTrueOneByMoreThanItsRounding, ())
{
    const int command = *rc::gen::elementOf(std::vector<int>(std::begin(AllCommands), std::end(AllCommands)));
    const double x1 = *rc::gen::inRange(2, 58), x2 = *rc::gen::inRange(2, 58);
    const double y1 = *rc::gen::inRange(55, 145), y2 = *rc::gen::inRange(55, 145);
    RC_PRE(x1 != x2);
    for (auto& style : window.settings.Trends)
        style.Extendable = *rc::gen::inRange(0, 2);
    const CBaseTrend& trend = DrawKind(command, x1, y1, x2, y2);
    const int scroll = *rc::gen::inRange(-30, 30);
    window.Show(100 + scroll, 60, 50, 150);
    lists.DrawAll();
    for (int n = 0; n < 40; ++n) {
        const int x = *rc::gen::inRange(58, 577), y = *rc::gen::inRange(17, 369);
        const int hit = trend.HitDistance(x, y);
        // One pixel more than the rounding of the rule: a pitchfork clicked from right to left is hit along a
        // part of its prong, whose end is rounded separately.
        if (hit != NotHittable)
            RC_ASSERT(hit >= std::min(RuleDistance(trend, x, y), SegmentsDistance(trend, x, y)) - 2.5);
    }
}

RC_GTEST_FIXTURE_PROP(TrendHit, DrawThenEraseLeavesOnlyHoles, ())
{
    const int command = *rc::gen::elementOf(std::vector<int>(std::begin(AllCommands), std::end(AllCommands)));
    CBaseTrend& trend = DrawKind(command, *rc::gen::inRange(2, 58), *rc::gen::inRange(55, 145), 30.4,
                                 *rc::gen::inRange(55, 145));
    trend.Erase();
    for (int series : trend.AllSeries()) {
        for (int i = 1; i <= 60; ++i)
            RC_ASSERT(Hole(series, i));
    }
}

RC_GTEST_FIXTURE_PROP(TrendHit, SameAnchorsGiveTheSameVectorsWhateverWasScrolledBefore, ())
{
    const int command = *rc::gen::elementOf(std::vector<int>(std::begin(AllCommands), std::end(AllCommands)));
    const CBaseTrend& trend = DrawKind(command, *rc::gen::inRange(2, 28), 80, 30.4, 120);
    const auto snapshot = [&] {
        std::vector<std::vector<double>> all;
        for (int series : trend.AllSeries()) {
            const auto y = window.pane.PaneGroups(2).PaneData().Y(series);
            all.emplace_back(y.begin(), y.end());
        }
        return all;
    };
    window.Show(120, 60, 50, 150);
    lists.DrawAll();
    const auto before = snapshot();
    const auto journey = *rc::gen::container<std::vector<int>>(rc::gen::inRange(0, 400));
    for (int first : journey) {
        window.Show(first, *rc::gen::inRange(1, 200), 50, 150);
        lists.DrawAll();
    }
    window.Show(120, 60, 50, 150);
    lists.DrawAll();
    RC_ASSERT(snapshot() == before);
}

} // namespace zantroq::test
