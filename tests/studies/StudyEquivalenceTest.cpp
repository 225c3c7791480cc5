// After any mixture of draws, scrolls, live updates, new symbols and a second chart in the process, a pane
// equals the plain definition bit for bit.
#include "PlainStudy.h"
#include "StudyPane.h"

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <bit>
#include <cmath>
#include <random>
#include <sstream>

namespace zantroq {
namespace {

using CRandom = std::mt19937;

int Between(CRandom& random, int low, int high)
{
    return std::uniform_int_distribution<int>(low, high)(random);
}
bool OneIn(CRandom& random, int n)
{
    return Between(random, 1, n) == 1;
}

bool SameBits(double a, double b)
{
    return (std::isnan(a) && std::isnan(b)) ||
           std::bit_cast<std::uint64_t>(a) == std::bit_cast<std::uint64_t>(b);
}

// How the bars of a series are generated.
struct sShape
{
    bool Ticks = false;
    int FlatOneIn = 20, GapOneIn = 100, OddOneIn = 500;
    int VolumeScale = 0; // powers of ten
    double Price = 100, Step = 1;
};

sShape MakeShape(CRandom& random)
{
    sShape shape;
    shape.Ticks = OneIn(random, 3);
    shape.FlatOneIn = OneIn(random, 3) ? 2 : 20;
    shape.OddOneIn = OneIn(random, 3) ? 30 : 1000000;
    shape.VolumeScale = Between(random, 0, 17);
    shape.Price = OneIn(random, 4) ? 3000000 : OneIn(random, 4) ? 0.0005 : 100;
    shape.Step = shape.Price * 0.01;
    return shape;
}

void AddBars(CBarSeries& series, const sShape& shape, CRandom& random, int count)
{
    std::uniform_real_distribution<double> unit(-1, 1);
    for (int i = 0; i < count; ++i) {
        double close = series.Count() == 0 ? shape.Price : series.ClosePrices.back();
        if (!OneIn(random, shape.FlatOneIn))
            close += unit(random) * shape.Step;
        if (OneIn(random, shape.GapOneIn))
            close += unit(random) * shape.Step * 30;
        if (OneIn(random, shape.OddOneIn))
            close = OneIn(random, 2) ? 0 : -close;
        const double scale = std::pow(10.0, OneIn(random, 50) ? 0 : shape.VolumeScale);
        const auto volume = static_cast<std::int64_t>(std::fabs(unit(random)) * scale);
        if (shape.Ticks) {
            series.AddTick(close, volume % 2147483647);
            continue;
        }
        const bool flatBar = OneIn(random, shape.FlatOneIn);
        const double high = flatBar ? close : close + std::fabs(unit(random)) * shape.Step;
        const double low = flatBar ? close : close - std::fabs(unit(random)) * shape.Step;
        series.Add(close, high, low, close, volume);
    }
}

int RandomPeriod(CRandom& random, int largest)
{
    if (OneIn(random, 12)) {
        const int odd[] = {0, -1, -7, 1000000000, 2147483647, -2147483647 - 1};
        return odd[Between(random, 0, 5)];
    }
    return Between(random, 1, OneIn(random, 4) ? largest : std::min(largest, 12));
}

void RandomSettings(sChartSettings& all, int kind, CRandom& random)
{
    sStudySettings& s = all.Studies;
    s.Periods[static_cast<std::size_t>(kind)] = RandomPeriod(random, kind == StudyStochastics ? 9 : 60);
    s.MacdShort = RandomPeriod(random, 30);
    s.MacdLong = OneIn(random, 5) ? RandomPeriod(random, 30) : Between(random, 1, 40);
    s.StoFast = OneIn(random, 2);
    s.VolumeAverageAllData = OneIn(random, 2);
    s.ShowVolumeAverage = !OneIn(random, 4);
    s.RsiUpperLevel = Between(random, -5, 110);
    all.FixedScale = OneIn(random, 4);
    all.AxisOnRight = OneIn(random, 3);
    all.Request.DataType = Between(random, 0, 4);
}

// A pane and its plain twin.
class CTwins
{
public:
    CTwins(int kind, CRandom& random, plain::sStates& states)
        : m_pane(kind), m_kind(kind), m_states(states), m_random(random)
    {
        RandomSettings(m_pane.Window.AllSettings, kind, random);
        m_pane.Window.Shown.ptsIndex = OneIn(random, 5) ? Between(random, 4, 7) : Between(random, 0, 3);
        NewSymbol();
    }

    void Act()
    {
        switch (Between(m_random, 0, 9)) {
        case 0:
            NewSymbol();
            break;
        case 1:
            m_pane.Window.Reset = !m_pane.Window.Reset;
            break;
        case 2:
            MoveMarker();
            break;
        case 3:
        case 4:
            AddBars(m_pane.Series, m_shape, m_random, Between(m_random, 0, 3));
            DrawAt(m_pane.Series.Count());
            break;
        case 5:
            DrawAt(Between(m_random, 0, m_pane.Series.Count()));
            break;
        default:
            Tick(OneIn(m_random, 4) ? Between(m_random, 1, 70) : Between(m_random, 1, 3));
        }
    }

    void Check()
    {
        const int kind = m_kind;
        RC_LOG() << "kind " << kind << ", points " << m_pane.Series.Count() << ", first " << m_view.first
                 << ", shown " << m_view.shown << ", period "
                 << m_pane.Settings().Periods[static_cast<std::size_t>(kind)] << ", MACD "
                 << m_pane.Settings().MacdShort << "/" << m_pane.Settings().MacdLong << "\n";
        if (m_twin.lines.empty())
            return;
        CheckLine("x", m_pane.Data().X(), m_twin.x);
        for (std::size_t line = 0; line < m_twin.lines.size(); ++line)
            CheckLine("series " + std::to_string(line + 1), m_pane.Data().Y(static_cast<int>(line) + 1),
                      m_twin.lines[line]);
        if (!m_twin.second.empty()) {
            CheckLine("group 2", m_pane.Data(2).Y(1), m_twin.second);
            CheckLine("x of group 2", m_pane.Data(2).X(), m_twin.x2);
        }
        CheckNumber("x low", m_pane.XAxis().ViewLow().Value(), m_twin.xLow);
        CheckNumber("x high", m_pane.XAxis().ViewHigh().Value(), m_twin.xHigh);
        CheckNumber("x data low", m_pane.XAxis().DataLow().Value(), m_twin.xDataLow);
        CheckNumber("x data high", m_pane.XAxis().DataHigh().Value(), m_twin.xDataHigh);
        for (CPaneAxis* axis : {&m_pane.YAxis(), &m_pane.Y2Axis()}) {
            CheckNumber("y low", axis->ViewLow().Value(), m_twin.yViewLow);
            CheckNumber("y high", axis->ViewHigh().Value(), m_twin.yViewHigh);
            CheckNumber("y data low", axis->DataLow().Value(), m_twin.yDataLow);
            CheckNumber("y data high", axis->DataHigh().Value(), m_twin.yDataHigh);
        }
        const bool right = m_pane.Window.AllSettings.AxisOnRight;
        const auto& labels = (right ? m_pane.Y2Axis() : m_pane.YAxis()).TickLabels().All();
        RC_ASSERT(labels.size() == m_twin.labels.size());
        for (std::size_t i = 0; i < labels.size(); ++i) {
            CheckNumber("label", labels[i].Value, m_twin.labels[i].first);
            RC_ASSERT(labels[i].Text == m_twin.labels[i].second);
        }
        RC_ASSERT(m_pane.Marker().Point() == m_twin.marker);
    }

private:
    void NewSymbol()
    {
        m_shape = MakeShape(m_random);
        m_pane.Series = CBarSeries();
        AddBars(m_pane.Series, m_shape, m_random,
                OneIn(m_random, 8) ? Between(m_random, 0, 3000) : Between(m_random, 0, 200));
        m_pane.Series.Greatest = static_cast<std::uint32_t>(Between(m_random, 0, 2000000000));
        DrawAt(m_pane.Series.Count());
    }
    int Capacity() const { return DisplayMaxPoints[static_cast<std::size_t>(m_pane.Window.Shown.ptsIndex)]; }
    void SetView(int first, int shown)
    {
        m_view = {first, shown, m_pane.Window.Shown.ptsIndex, m_pane.Window.Reset};
    }
    void DrawAt(int end)
    {
        const int shown = std::min(m_pane.Series.Count(), Capacity());
        const int first = std::clamp(end - shown, 0, m_pane.Series.Count() - shown);
        SetView(first, shown);
        m_pane.Draw(first, shown);
        m_twin.Draw(m_kind, m_pane.Series, m_pane.Window.AllSettings, m_view, m_states);
    }
    void Tick(int count)
    {
        if (m_twin.lines.empty())
            return; // the window updates no pane that it has not drawn
        AddBars(m_pane.Series, m_shape, m_random, count);
        m_pane.Update(count);
        SetView(m_pane.Window.Shown.first, m_pane.Window.Shown.shown);
        m_twin.Update(m_kind, m_pane.Series, m_pane.Window.AllSettings, m_view, m_states, count);
    }
    void MoveMarker()
    {
        const int point = OneIn(m_random, 3) ? NoPoint : Between(m_random, 1, 40);
        m_pane.Marker().SetPoint(point);
        m_twin.marker = point;
    }
    void CheckLine(const std::string& name, std::span<const double> shown,
                   const std::vector<double>& expected)
    {
        RC_ASSERT(shown.size() == expected.size());
        for (std::size_t i = 0; i < expected.size(); ++i)
            if (!SameBits(shown[i], expected[i]))
                Fail(name + " at point " + std::to_string(i + 1), shown[i], expected[i]);
    }
    void CheckNumber(const std::string& name, double shown, double expected)
    {
        if (!SameBits(shown, expected))
            Fail(name, shown, expected);
    }
    [[noreturn]] void Fail(const std::string& name, double shown, double expected)
    {
        std::ostringstream text;
        text.precision(17);
        text << name << ": shown " << shown << ", expected " << expected;
        RC_FAIL(text.str());
    }

    CStudyPane m_pane;
    int m_kind;
    plain::sPane m_twin;
    plain::sStates& m_states;
    CRandom& m_random;
    plain::sView m_view;
    sShape m_shape;
};

void CompareWithPlainDefinition(int kind)
{
    CRandom random(*rc::gen::resize(1000, rc::gen::arbitrary<unsigned>()));
    plain::sStates states;
    CTwins chart(kind, random, states);
    chart.Check();
    ForgetRunningStates();
    states = {};
    // A second chart of the process uses the same running states.
    CTwins other(kind, random, states);
    other.Check();
    const int steps = *rc::gen::inRange(1, 40);
    for (int step = 0; step < steps; ++step) {
        CTwins& next = OneIn(random, 4) ? other : chart;
        next.Act();
        next.Check();
    }
}

RC_GTEST_PROP(StudyEquivalence, RsiIsThePlainDefinition, ())
{
    CompareWithPlainDefinition(StudyRSI);
}
RC_GTEST_PROP(StudyEquivalence, MomentumIsThePlainDefinition, ())
{
    CompareWithPlainDefinition(StudyMomentum);
}
RC_GTEST_PROP(StudyEquivalence, RocIsThePlainDefinition, ())
{
    CompareWithPlainDefinition(StudyROC);
}
RC_GTEST_PROP(StudyEquivalence, ObvIsThePlainDefinition, ())
{
    CompareWithPlainDefinition(StudyOBV);
}
RC_GTEST_PROP(StudyEquivalence, MacdIsThePlainDefinition, ())
{
    CompareWithPlainDefinition(StudyMACD);
}
RC_GTEST_PROP(StudyEquivalence, StochasticsIsThePlainDefinition, ())
{
    CompareWithPlainDefinition(StudyStochastics);
}
RC_GTEST_PROP(StudyEquivalence, VolumeIsThePlainDefinition, ())
{
    CompareWithPlainDefinition(StudyVolume);
}
RC_GTEST_PROP(StudyEquivalence, MoneyFlowIsThePlainDefinition, ())
{
    CompareWithPlainDefinition(StudyMoneyFlow);
}
RC_GTEST_PROP(StudyEquivalence, MfiIsThePlainDefinition, ())
{
    CompareWithPlainDefinition(StudyMFI);
}
RC_GTEST_PROP(StudyEquivalence, AdxIsThePlainDefinition, ())
{
    CompareWithPlainDefinition(StudyADX);
}

} // namespace
} // namespace zantroq
