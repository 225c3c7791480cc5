#include "PlainStudy.h"

#include <algorithm>
#include <cmath>
#include <cstdio>

namespace zantroq::plain {

namespace {

int LinesOf(int kind)
{
    switch (kind) {
    case StudyRSI:
    case StudyMoneyFlow:
    case StudyMFI:
    case StudyADX:
        return 3;
    case StudyMomentum:
    case StudyOBV:
    case StudyMACD:
        return 2;
    case StudyStochastics:
        return 4;
    default:
        return 1;
    }
}

// The values of all lines at one index; `second` is the histogram. Values that the study does not set keep
// their previous value.
struct sPoint
{
    double y[4] = {Hole, Hole, Hole, Hole};
    double second = Hole;
};

void Calculate(int kind, CFormulas& formulas, const sStudySettings& s, long long index, sPoint& point)
{
    switch (kind) {
    case StudyRSI:
        point.y[1] = s.RsiUpperLevel;
        point.y[2] = s.RsiLowerLevel;
        point.y[0] = formulas.Rsi(index);
        if (point.y[0] < 0 || point.y[0] > 100)
            point.y[0] = Hole;
        break;
    case StudyMomentum:
        point.y[0] = formulas.Momentum(index);
        point.y[1] = 0;
        break;
    case StudyROC:
        point.y[0] = formulas.Roc(index);
        break;
    case StudyOBV:
        point.y[0] = formulas.Obv(index);
        point.y[1] = 0;
        break;
    case StudyMACD:
        formulas.Macd(index, point.y[0], point.y[1]);
        point.second = point.y[1] == Hole ? Hole : point.y[0] - point.y[1];
        break;
    case StudyStochastics:
        point.y[2] = s.StoUpperLevel;
        point.y[3] = s.StoLowerLevel;
        formulas.Stochastic(index, point.y[0], point.y[1]);
        break;
    case StudyMoneyFlow:
        if (formulas.MoneyFlow(index, s.Periods[StudyMoneyFlow], point.y[1], point.y[2]))
            point.y[0] = point.y[1] + point.y[2];
        break;
    case StudyMFI:
        point.y[0] = formulas.Mfi(index);
        point.y[1] = s.MfiUpperLevel;
        point.y[2] = s.MfiLowerLevel;
        break;
    case StudyADX:
        formulas.Adx(index, point.y[1], point.y[2], point.y[0]);
        break;
    }
}

std::string Printed(const char* format, int decimals, double value)
{
    char text[2000];
    std::snprintf(text, sizeof text, format, decimals, value);
    return text;
}

} // namespace

void sPane::StudyAxis(double max, double min)
{
    labels.clear();
    if (min > max)
        return;
    if (min == max) {
        if (max > 0)
            min = 0;
        else if (max == 0)
            max = 1;
        else
            max = 0;
    }
    const double margin = (max - min) * 0.015, top = max + margin, bottom = min - margin;
    if (!std::isfinite(top - bottom))
        return;
    const double raw = (top - bottom) / 4;
    double d = 1, multiplier;
    int e = 0;
    if (raw <= 1) {
        do {
            d /= 10;
            e -= 1;
        } while (!(raw >= d));
    } else {
        int last = 0;
        do {
            last = e;
            d *= 10;
            e += 1;
        } while (!(d >= raw));
        e = last;
        d /= 10;
    }
    const double r = raw / d;
    if (r < 1.41) {
        multiplier = 1;
    } else if (r < 2.24) {
        multiplier = 2;
    } else if (r < 3.36) {
        multiplier = 2.5;
        e -= 1;
    } else if (r < 7.07) {
        multiplier = 5;
    } else {
        multiplier = 1;
        e += 1;
        d *= 10;
    }
    const double step = d * multiplier, start = std::floor(bottom / step) * step;
    double unit = 1;
    std::string suffix;
    if (step >= 1000000000000.0) {
        suffix = "T";
        e -= 12;
        unit = 1000000000000.0;
    } else if (step >= 1000000000) {
        suffix = "B";
        e -= 9;
        unit = 1000000000;
    } else if (step >= 1000000) {
        suffix = "M";
        e -= 6;
        unit = 1000000;
    } else if (step >= 1000) {
        suffix = "K";
        e -= 3;
        unit = 1000;
    }
    const double limit = top - (top - start) * 0.04;
    for (double v = start; v < limit;) {
        if (std::fabs(v) < step * 0.5)
            v = 0;
        labels.emplace_back(v, Printed("%.*f", e < 0 ? -e : 0, v / unit) + suffix);
        if (v + step == v)
            break;
        v += step;
    }
    yViewHigh = top;
    yDataHigh = max;
    spacing = step;
    yViewLow = start;
    yDataLow = min;
}

void sPane::VolumeAxis(long long max)
{
    if (max < 10)
        max = 1000;
    const long long top = static_cast<long long>(max * 1.04), q = top / 3;
    long long t = 1, e = -1;
    while (t < q) {
        t *= 10;
        e += 1;
    }
    const long long decade = t / 10, r = q / decade;
    const long long step = r < 2 ? decade : r < 5 ? decade * 2 : decade * 5;
    yViewHigh = static_cast<double>(top);
    yDataHigh = static_cast<double>(max);
    yViewLow = yDataLow = 0;
    spacing = static_cast<double>(step);
    labels.clear();
    for (long long v = step; v <= max; v += step) {
        const std::string text = e < 3   ? std::to_string(v)
                                 : e < 6 ? std::to_string(v / 1000) + "K"
                                 : e < 9 ? std::to_string(v / 1000000) + "M"
                                         : std::to_string(v / 1000000000) + "B";
        labels.emplace_back(static_cast<double>(v), text);
    }
}

void sPane::FixedAxis(double high, double low)
{
    yViewHigh = yDataHigh = high;
    yViewLow = yDataLow = low;
    spacing = 25;
    labels = {{25, "25"}, {50, "50"}, {75, "75"}};
}

void sPane::Draw(int kind, const CBarSeries& series, const sChartSettings& settings, const sView& view,
                 sStates& states)
{
    if (view.shown == 0)
        return;
    xLow = xDataLow = 1;
    xDataHigh = view.shown;
    xHigh = view.shown + 0.5;
    x.clear();
    for (int k = 0; k < view.shown; ++k)
        x.push_back(k + 1);
    if (kind == StudyVolume) {
        DrawVolume(series, settings, view);
        return;
    }
    CFormulas formulas(series, settings, states);
    lines.assign(static_cast<std::size_t>(LinesOf(kind)), {});
    second.clear();
    for (int k = 0; k < view.shown; ++k) {
        sPoint point;
        const long long lag = kind == StudyMomentum ? 1 : 0;
        Calculate(kind, formulas, settings.Studies, view.first + k - lag, point);
        for (std::size_t line = 0; line < lines.size(); ++line)
            lines[line].push_back(point.y[line]);
        if (kind == StudyMACD)
            second.push_back(point.second);
    }
    if (kind == StudyMACD)
        x2 = x;

    double max, min;
    const auto look = [&](double value) {
        if (value == Hole)
            return;
        if (value > max)
            max = value;
        if (value < min)
            min = value;
    };
    switch (kind) {
    case StudyRSI:
    case StudyStochastics:
        FixedAxis(100, 0);
        return;
    case StudyMFI:
        FixedAxis(100.5, -0.5);
        return;
    case StudyMomentum:
        if (settings.FixedScale && !view.reset && series.ClosePrices.size() > 30)
            return;
        [[fallthrough]];
    case StudyROC:
    case StudyOBV:
        max = -100000000;
        min = 100000000;
        for (const double value : lines[0])
            look(value);
        break;
    case StudyMACD:
        max = min = 0;
        for (std::size_t k = 0; k < x.size(); ++k) {
            look(lines[0][k]);
            if (lines[1][k] != Hole) {
                look(lines[1][k]);
                look(second[k]);
            }
        }
        break;
    case StudyMoneyFlow:
        max = -1000000;
        min = 1000000;
        for (std::size_t k = 0; k < x.size(); ++k)
            if (lines[1][k] != Hole && lines[2][k] != Hole)
                for (const auto& line : lines)
                    look(line[k]);
        break;
    default:
        max = 0;
        min = 100;
        // ADX: an infinity does not affect the range that the other points need.
        for (std::size_t k = 0; k < x.size(); ++k)
            for (const auto& line : lines)
                if (!std::isinf(line[k]))
                    look(line[k]);
    }
    StudyAxis(max, min);
}

void sPane::Average(const CBarSeries& series, const sChartSettings& settings, const sView& view, int points,
                    int lessOne)
{
    const long long count = static_cast<long long>(series.Volumes.size());
    const long long p = settings.Studies.Periods[StudyVolume];
    const long long m = settings.Studies.VolumeAverageAllData ? count : std::min(p, count);
    average = 0;
    if (m > 0) {
        double sum = 0;
        for (long long j = count - m; j <= count - 1; ++j)
            sum += static_cast<double>(series.Volumes[static_cast<std::size_t>(j)]);
        average = static_cast<long long>(
            std::clamp((sum / static_cast<double>(m) + 0.5) / static_cast<double>(divisor), -2147483647.0,
                       2147483647.0));
    }
    if (!settings.Studies.ShowVolumeAverage)
        return;
    long long lo = 1, hi = points;
    if (!settings.Studies.VolumeAverageAllData) {
        lo = count + 2 - p - view.first - lessOne;
        hi = p - 1 + lo;
    }
    x2 = x;
    second.clear();
    for (int number = 1; number <= points; ++number)
        second.push_back(number >= lo && number <= hi ? static_cast<double>(average) : Hole);
}

void sPane::DrawVolume(const CBarSeries& series, const sChartSettings& settings, const sView& view)
{
    divisor = 1;
    long long max = 0;
    std::vector<long long> y;
    for (int i = 0; i < view.shown; ++i) {
        long long q = series.Volumes[static_cast<std::size_t>(view.first + i)] / divisor;
        while (q > 2147483647) {
            q /= 10;
            divisor *= 10;
            for (long long& earlier : y)
                earlier /= divisor;
            max /= divisor;
        }
        y.push_back(q);
        if (!settings.FixedScale || series.Volumes.size() <= 30)
            max = std::max(max, q);
        else if (view.reset)
            max = series.Greatest;
    }
    lines = {std::vector<double>(y.begin(), y.end())};
    VolumeAxis(max);
    Average(series, settings, view, view.shown, settings.Request.DataType == 1 ? 1 : 0);
}

// Returns the number of points after the update.
long long sPane::Shift(const sView& view, int n)
{
    const long long p = static_cast<long long>(x.size()),
                    cap = DisplayMaxPoints[static_cast<std::size_t>(view.ptsIndex)];
    long long points = p, left = static_cast<long long>(xLow);
    if (p + n > cap) {
        const long long drop = p + n - cap, keep = std::max(0LL, p - drop);
        const auto shift = [&](std::vector<double>& v) {
            if (v.empty())
                return;
            for (long long k = 0; k < keep; ++k)
                v[static_cast<std::size_t>(k)] = v[static_cast<std::size_t>(k + drop)];
        };
        shift(x);
        shift(x2);
        shift(second);
        for (auto& line : lines)
            shift(line);
        if (marker != NoMarker)
            marker -= static_cast<int>(drop);
        left += drop;
        if (n > drop)
            points = p - drop + n;
    } else {
        if (marker != NoMarker)
            marker -= n;
        points = p + n;
    }
    const long long right = left - 1 + points;
    xLow = xDataLow = static_cast<double>(left);
    xHigh = xDataHigh = static_cast<double>(right) + 0.5;
    const auto size = static_cast<std::size_t>(points);
    x.resize(size);
    for (auto& line : lines)
        line.resize(size);
    return points;
}

void sPane::Update(int kind, const CBarSeries& series, const sChartSettings& settings, const sView& view,
                   sStates& states, int n)
{
    if (lines.empty())
        return; // never drawn
    const long long points = Shift(view, n), count = static_cast<long long>(series.ClosePrices.size());
    if (kind == StudyVolume) {
        UpdateVolume(series, settings, view, n);
        return;
    }
    const auto size = static_cast<std::size_t>(points);
    if (kind == StudyMACD) {
        x2.resize(size);
        second.resize(size);
    }
    CFormulas formulas(series, settings, states);
    double max = yDataHigh, min = yDataLow;
    bool outside = false;
    sPoint point; // one for all points: what a point leaves alone is what the one before it left
    for (long long k = std::max(0LL, points - n); k < points; ++k) {
        const double running = xLow + static_cast<double>(k);
        const long long index =
            static_cast<long long>(running) + count - 1 - (static_cast<long long>(xLow) - 1 + points);
        if (kind == StudyStochastics || kind == StudyADX)
            point = sPoint();
        Calculate(kind, formulas, settings.Studies, index, point);
        const auto place = static_cast<std::size_t>(k);
        x[place] = running;
        for (std::size_t line = 0; line < lines.size(); ++line)
            lines[line][place] = point.y[line];
        std::vector<double> seen;
        if (kind == StudyMACD) {
            x2[place] = running;
            second[place] = point.second;
            seen = {point.y[0], point.y[1], point.second};
        } else if (kind == StudyMomentum || kind == StudyROC || kind == StudyOBV) {
            seen = {point.y[0]};
        } else if (kind == StudyMoneyFlow) {
            seen = {point.y[0], point.y[1], point.y[2]};
        }
        for (const double value : seen) {
            if (value != Hole && value > max) {
                max = value;
                outside = true;
            }
            if (value != Hole && value < min) {
                min = value;
                outside = true;
            }
        }
    }
    if (outside)
        StudyAxis(max, min);
}

void sPane::UpdateVolume(const CBarSeries& series, const sChartSettings& settings, const sView& view, int n)
{
    const long long points = static_cast<long long>(x.size()),
                    count = static_cast<long long>(series.Volumes.size());
    double largest = 0;
    for (long long k = points - 1; k >= std::max(0LL, points - n); --k) {
        const long long q = series.Volumes[static_cast<std::size_t>(count - points + k)] / divisor;
        x[static_cast<std::size_t>(k)] = xLow + static_cast<double>(k);
        lines[0][static_cast<std::size_t>(k)] = static_cast<double>(q);
        largest = std::max(largest, static_cast<double>(q));
    }
    VolumeAxis(static_cast<long long>(std::max(largest, yDataHigh)));
    Average(series, settings, view, static_cast<int>(points), 0);
}

} // namespace zantroq::plain
