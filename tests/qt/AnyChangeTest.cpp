// A pane after long sequences of changes of all kinds, as studies, trendlines, scrolling, zooming and pane
// files make them: the cached and updated picture must equal the picture painted completely, point by point.
#include "qt/paint/PanePainter.h"
#include "support/PaneScenes.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <random>

namespace zantroq {
namespace {

class CAnyChange
{
public:
    // One value in `rareness` is a hole, an infinity or similar.
    CAnyChange(unsigned seed, int points, int rareness)
        : m_random(seed), m_rareness(rareness), m_pane(test::EmptyPane(200, 120))
    {
        for (int group : {1, 2}) {
            Data(group).SetSeriesCount(group == 1 ? 4 : 2);
            Data(group).SetPointCount(1, points);
        }
        test::FitAxes(*m_pane, Data(1).PointCount(1), 0, 100);
        for (int i = 0; i < 12; ++i)
            WriteVector(1 + Below(2));
    }

    const CChart2D& Pane() const { return *m_pane; }

    // Makes one change and returns its number.
    int Change()
    {
        const int kind = Below(34), group = 1 + Below(2);
        CPaneData& data = Data(group);
        const int series = 1 + Below(std::max(1, data.SeriesCount()));
        const int point = Below(2) ? data.PointCount(1) : 1 + Below(std::max(1, data.PointCount(1)));
        CPaneArea& area = m_pane->PaneArea();
        CSeriesStyle& style = m_pane->PaneGroups(group).SeriesStyles(series);
        switch (kind) {
        case 0:
        case 1:
        case 2:
        case 3:
        case 4:
        case 5:
            data.SetPointY(series, point, Value());
            break;
        case 6:
            data.SetPointX(series, point, Below(4) ? point + Below(3) - 1 : Value());
            break;
        case 7:
        case 8:
            WriteVector(group);
            break;
        case 9: // a new point in a full window, as a study takes it in
            for (int one = 1; one <= data.SeriesCount(); ++one)
                data.ShiftPoints(one, std::max(0, data.PointCount(1) - 1), 2);
            data.NumberPoints();
            data.SetPointY(series, data.PointCount(1), Value());
            break;
        case 10:
            data.SetPointCount(1, std::max(0, data.PointCount(1) + Below(5) - 2));
            break;
        case 11:
            data.SetSeriesCount(1 + Below(5));
            break;
        case 12:
            data.SetFirstShownSeries(1 + Below(2));
            data.SetLastShownSeries(Below(5));
            break;
        case 13:
            data.SetFirstPoint(series, Below(4) ? 1 : Below(20));
            break;
        case 14:
            data.NumberPoints();
            break;
        case 15:
            data.SetConstantY(series, Value());
            break;
        case 16: {
            static constexpr int types[] = {1, 1, 2, 5, 7, 8, 3};
            m_pane->PaneGroups(group).SetChartType(types[Below(7)]);
            break;
        }
        case 17: {
            static constexpr int patterns[] = {1, 2, 2, 3, 5, 4};
            style.LineLook().SetPattern(patterns[Below(6)]);
            break;
        }
        case 18:
            style.LineLook().SetWidth(Below(6) - 1);
            break;
        case 19:
            style.LineLook().SetColor(m_random() & 0xFFFFFF);
            style.FillLook().SetColor(m_random() & 0xFFFFFF);
            break;
        case 20:
            style.SymbolLook().SetShape(Below(3) ? SymbolNone : SymbolMark);
            style.SymbolLook().SetSize(Below(7));
            break;
        case 21: {
            const double low = Below(60), high = Below(8) ? low + 1 + Below(100) : low - Below(50);
            area.PaneAxes().Y().ViewLow().SetValue(low);
            area.PaneAxes().Y().ViewHigh().SetValue(high);
            break;
        }
        case 22:
            area.PaneAxes().X().ViewLow().SetValue(Below(4) ? 1 : Below(20));
            area.PaneAxes().X().ViewHigh().SetValue(Below(4) ? data.PointCount(1) + 0.5 : 20 + Below(400));
            break;
        case 23:
            area.PlotFrame().RightMargin().SetValue(Below(2) ? 23 : 58);
            area.PlotFrame().BottomMargin().SetValue(Below(4) ? 31 : 4);
            break;
        case 24:
            area.AreaBox().Width().SetValue(Below(6) ? 200 : 60 + Below(200));
            area.AreaBox().Height().SetValue(Below(6) ? 120 : 20 + Below(200));
            break;
        case 25:
            area.BarLook().SetBarWidth(Below(12) - 1);
            area.CandleLook().SetFilled(Below(2));
            break;
        case 26:
            area.PaneAxes().Y().AxisOrigin().SetValue(Value());
            break;
        case 27:
            area.PaneMarkers("x").SetShown(Below(4) != 0);
            area.PaneMarkers("x").SetPoint(Below(2) ? point : NoPoint);
            break;
        case 31:
            if (m_pane->PaneLabels().Count() < 3 || Below(2))
                test::AddLabel(*m_pane, "text", Below(3), 0x11 + Below(2) * 0x10 + Below(2))
                    .SetDataAnchor(point, 50);
            else
                m_pane->PaneLabels().Remove(1 + Below(m_pane->PaneLabels().Count()));
            break;
        case 28:
        case 29: // the same with x counting on
            Slide(data);
            break;
        case 30: {
            const std::span<double> y = data.YForOverwrite(series);
            std::fill_n(y.begin() + point / 2, y.size() / 3, Value());
            break;
        }
        default:
            area.PaneAxes().X().AxisGrid().SetSpacing(Below(3) * 10);
            area.PaneAxes().Y().AxisGrid().SetSpacing(Below(3) * 10);
            m_pane->PaneInterior().SetBackground(Below(2) ? 0xFFFFFF : 0x302010);
        }
        return kind;
    }

    int Below(int count) { return static_cast<int>(m_random() % static_cast<unsigned>(count)); }

private:
    CPaneData& Data(int group) { return m_pane->PaneGroups(group).PaneData(); }

    void Slide(CPaneData& data)
    {
        const int points = data.PointCount(1);
        if (points < 2)
            return;
        const double next = data.PointX(1, points) + 1;
        for (int one = 1; one <= data.SeriesCount(); ++one) {
            data.ShiftPoints(one, points - 1, 2);
            data.SetPointY(one, points, Value());
        }
        data.SetPointX(1, points, next);
        CPaneAxis& x = m_pane->PaneArea().PaneAxes().X();
        x.ViewLow().SetValue(next - points + 1);
        x.ViewHigh().SetValue(next + 0.5);
    }

    double Value()
    {
        static const double strange[] = {HoleValue,
                                         std::nan(""),
                                         std::numeric_limits<double>::infinity(),
                                         -std::numeric_limits<double>::infinity(),
                                         1e300,
                                         -1e300};
        return Below(6) ? Below(1000) / 10.0 : strange[Below(6)];
    }

    void WriteVector(int group)
    {
        CPaneData& data = Data(group);
        std::vector<double> y;
        double value = Below(100);
        for (int i = 0; i < data.PointCount(1); ++i) {
            value += (Below(201) - 100) / 25.0 + (50 - value) * 0.01;
            y.push_back(Below(m_rareness) ? value : Value());
        }
        data.SetYVector(1 + Below(std::max(1, data.SeriesCount())), y);
    }

    std::mt19937 m_random;
    int m_rareness;
    test::Pane m_pane;
};

void ExpectThePictureThatIsPaintedFromNothing(CAnyChange& pane, double scale, int rounds)
{
    CPanePainter kept(pane.Pane(), "DejaVu Sans");
    std::string row;
    for (int round = 0; round < rounds; ++round) {
        for (int i = pane.Below(3); i >= 0; --i)
            row += " " + std::to_string(pane.Change());
        row = row.substr(row.size() < 60 ? 0 : row.size() - 60);
        CPanePainter plain(pane.Pane(), "DejaVu Sans", InkDetail::EveryPoint);
        const QImage& picture = kept.Picture(scale);
        ASSERT_TRUE(picture == plain.Picture(scale)) << "round " << round << ", changes" << row;
        if (round % 8 == 0) {
            CPanePainter byPoint(pane.Pane(), "DejaVu Sans", InkDetail::PointByPoint);
            ASSERT_TRUE(picture == byPoint.Picture(scale)) << "round " << round << ", changes" << row;
        }
    }
}

TEST(AnyChange, LeavesThePictureThatIsPaintedFromNothing)
{
    for (unsigned seed = 1; seed <= 40; ++seed) {
        SCOPED_TRACE(seed);
        CAnyChange pane(seed, seed % 2 ? 30 : 400, 40);
        ExpectThePictureThatIsPaintedFromNothing(pane, 1 + 0.5 * (seed % 3), 250);
        if (testing::Test::HasFatalFailure())
            return;
    }
}

// So many points per column that their blocks are used.
TEST(AnyChange, OfACrowdedPaneLeavesThePictureThatIsPaintedFromNothing)
{
    for (unsigned seed = 1; seed <= 24; ++seed) {
        SCOPED_TRACE(seed);
        CAnyChange pane(seed, 9000, seed % 3 ? 3000 : 200);
        ExpectThePictureThatIsPaintedFromNothing(pane, 1 + 0.5 * (seed % 2), 60);
        if (testing::Test::HasFatalFailure())
            return;
    }
}

} // namespace
} // namespace zantroq
