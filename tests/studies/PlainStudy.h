// The slow plain definition of the ten study panes, computed point by point and from scratch wherever the
// definition is, without code of the panes: it stores a pane as plain vectors. Tests compare the panes with
// it bit for bit.
#pragma once

#include "BarSeries.h"

#include "settings/ChartSettings.h"

#include <string>
#include <utility>
#include <vector>

namespace zantroq::plain {

inline constexpr double Hole = 1e+308;
inline constexpr int NoMarker = -1000000;

struct sRsi
{
    long long index = -10;
    double gain = 0, loss = 0;
};
struct sMacd
{
    long long index = -10;
    double emaShort = 0, emaLong = 0, signal = 0;
};
struct sAdx
{
    long long index = -10;
    double tr = 0, plus = 0, minus = 0, adx = 0;
};
struct sStates
{
    sRsi rsi;
    sMacd macd;
    sAdx adx;
};

struct sView
{
    int first = 0, shown = 0, ptsIndex = 3;
    bool reset = false;
};

// The formulas at one index.
class CFormulas
{
public:
    CFormulas(const CBarSeries& bars, const sChartSettings& all, sStates& running)
        : series(bars), settings(all), states(running)
    {
    }
    double Rsi(long long position);
    double Momentum(long long i) const;
    double Roc(long long i) const;
    double Obv(long long i) const;
    void Macd(long long i, double& macd, double& signal);
    double Raw(long long i) const;
    double FastD(long long i, double& k) const;
    double SlowD(long long i, double& k) const;
    void Stochastic(long long i, double& k, double& d) const;
    bool MoneyFlow(long long i, long long period, double& pos, double& neg) const;
    double Mfi(long long i) const;
    void Adx(long long i, double& plus, double& minus, double& adx);

private:
    long long P(int kind) const { return settings.Studies.Periods[static_cast<std::size_t>(kind)]; }
    double H(long long i) const;
    double L(long long i) const;
    double C(long long i) const;
    long long V(long long i) const;
    double Typical(long long i) const;
    const CBarSeries& series;
    const sChartSettings& settings;
    sStates& states;
};

// The pane as plain numbers.
struct sPane
{
    std::vector<double> x, x2;              // of group 1 and 2
    std::vector<std::vector<double>> lines; // group 1
    std::vector<double> second;             // group 2's series, where the study has one
    double xLow = 0, xHigh = 0, xDataLow = 0, xDataHigh = 0;
    double yViewLow = 1, yViewHigh = 2, yDataLow = 1, yDataHigh = 2, spacing = 0;
    std::vector<std::pair<double, std::string>> labels;
    int marker = NoMarker;
    long long divisor = 1, average = 0;

    void Draw(int kind, const CBarSeries& series, const sChartSettings& settings, const sView& view,
              sStates& states);
    void Update(int kind, const CBarSeries& series, const sChartSettings& settings, const sView& view,
                sStates& states, int n);

private:
    void StudyAxis(double max, double min);
    void VolumeAxis(long long max);
    void FixedAxis(double high, double low);
    void DrawVolume(const CBarSeries& series, const sChartSettings& settings, const sView& view);
    void UpdateVolume(const CBarSeries& series, const sChartSettings& settings, const sView& view, int n);
    void Average(const CBarSeries& series, const sChartSettings& settings, const sView& view, int points,
                 int lessOne);
    long long Shift(const sView& view, int n);
};

} // namespace zantroq::plain
