#include "PlainStudy.h"

#include <algorithm>
#include <cmath>

namespace zantroq::plain {

namespace {

template<class T> T Or0(const std::vector<T>& v, long long i)
{
    if (i < 0)
        return 0;
    if (i >= static_cast<long long>(v.size()))
        return 0;
    return v[static_cast<std::size_t>(i)];
}

} // namespace

double CFormulas::H(long long i) const
{
    return Or0(series.HighPrices, i);
}
double CFormulas::L(long long i) const
{
    return Or0(series.LowPrices, i);
}
double CFormulas::C(long long i) const
{
    return Or0(series.ClosePrices, i);
}
long long CFormulas::V(long long i) const
{
    return Or0(series.Volumes, i);
}
double CFormulas::Typical(long long i) const
{
    return (C(i) + (L(i) + H(i))) / 3;
}

double CFormulas::Rsi(long long position)
{
    const long long p = P(StudyRSI), n = position - 1;
    if (p < 1)
        return -1;
    if (n > static_cast<long long>(series.ClosePrices.size()) || n < p)
        return -1;
    double avgGain, avgLoss;
    if (n - 1 == states.rsi.index) {
        const double d = C(n) - C(n - 1);
        double gain, loss;
        if (d > 0) {
            gain = d;
            loss = 0;
        } else {
            gain = 0;
            loss = -d;
        }
        const double k = 1.0 / p;
        avgGain = states.rsi.gain + (gain - states.rsi.gain) * k;
        avgLoss = states.rsi.loss + (loss - states.rsi.loss) * k;
        states.rsi.index = n;
        states.rsi.gain = avgGain;
        states.rsi.loss = avgLoss;
        return 100 - 100 / (avgGain / avgLoss + 1);
    }
    double gains = 0, losses = 0;
    for (long long j = 1; j <= p; ++j) {
        const double d = C(j) - C(j - 1);
        if (d > 0)
            gains += d;
        else
            losses += -d;
    }
    avgGain = gains / p;
    avgLoss = losses / p;
    if (!(p + 1 >= n)) {
        const double k = 1.0 / p;
        for (long long j = p + 1; j <= n; ++j) {
            const double d = C(j) - C(j - 1);
            double gain = 0, loss = 0;
            if (d > 0)
                gain = d;
            else
                loss = -d;
            avgGain = (gain * k + avgGain) - avgGain;
            avgLoss = (loss * k + avgLoss) - avgLoss;
        }
        states.rsi = {n, avgGain, avgLoss};
    }
    return 100 - 100 / (avgGain / avgLoss + 1);
}

double CFormulas::Momentum(long long i) const
{
    const long long p = P(StudyMomentum);
    return p <= i ? C(i) - C(i - p) : Hole;
}

double CFormulas::Roc(long long i) const
{
    const long long p = P(StudyROC);
    if (i >= p + 1 && C(i - p) != 0)
        return (C(i) - C(i - p)) / C(i - p) * 100;
    return Hole;
}

double CFormulas::Obv(long long i) const
{
    const long long p = P(StudyOBV);
    if (i < p)
        return Hole;
    double sum = 0;
    for (long long j = i - p; j <= i - 1; ++j) {
        if (C(j + 1) > C(j))
            sum += static_cast<double>(V(j + 1));
        else if (C(j + 1) < C(j))
            sum -= static_cast<double>(V(j + 1));
    }
    return sum;
}

void CFormulas::Macd(long long i, double& macd, double& signal)
{
    const long long s = settings.Studies.MacdShort, l = settings.Studies.MacdLong, g = P(StudyMACD);
    if (s < 1 || l < 1 || g < 1)
        return;
    const double kS = 2.0 / (s + 1), kL = 2.0 / (l + 1), kG = 2.0 / (g + 1);
    if (i - 1 == states.macd.index) {
        const double c = C(i);
        const double a = (c - states.macd.emaShort) * kS + states.macd.emaShort;
        const double b = (c - states.macd.emaLong) * kL + states.macd.emaLong;
        macd = a - b;
        signal = (macd - states.macd.signal) * kG + states.macd.signal;
        states.macd = {i, a, b, signal};
        return;
    }
    if (i < s - 1 || i < l - 1)
        return;
    double a = 0, b = 0;
    for (long long j = 0; j <= s - 1; ++j)
        a += C(j);
    a /= s;
    double sum = 0;
    for (long long j = 0; j <= l - 1; ++j) {
        sum += C(j);
        if (j >= s)
            a = (C(j) - a) * kS + a;
    }
    b = sum / l;
    macd = a - b;
    if (i > l) {
        double total = macd;
        for (long long j = l; j < l + g && j <= i; ++j) {
            a = (C(j) - a) * kS + a;
            b = (C(j) - b) * kL + b;
            macd = a - b;
            total += macd;
        }
        signal = total / g;
    }
    if (i >= l + g) {
        for (long long j = l + g; j <= i; ++j) {
            a = (C(j) - a) * kS + a;
            b = (C(j) - b) * kL + b;
            macd = a - b;
            signal = (macd - signal) * kG + signal;
        }
        states.macd = {i, a, b, signal};
    }
}

double CFormulas::Raw(long long i) const
{
    const long long p = P(StudyStochastics);
    if (i < p)
        return -1;
    double lowest = 1000000, highest = -1000000;
    for (long long j = i - p; j <= i; ++j) {
        if (L(j) < lowest)
            lowest = L(j);
        if (H(j) > highest)
            highest = H(j);
    }
    if (lowest == highest)
        return 50;
    return (C(i) - lowest) / (highest - lowest) * 100;
}

double CFormulas::FastD(long long i, double& k) const
{
    const long long p = P(StudyStochastics);
    if (2 * p > i) {
        k = Raw(i);
        return -1;
    }
    double sum = 0;
    for (long long j = i - p; j <= i - 1; ++j) {
        k = Raw(j);
        sum += k;
    }
    return sum / p;
}

double CFormulas::SlowD(long long i, double& k) const
{
    const long long p = P(StudyStochastics);
    double unused = 0;
    if (4 * p > i) {
        k = FastD(i, unused);
        return -1;
    }
    double sum = 0;
    for (long long j = i - p; j <= i - 1; ++j) {
        k = FastD(j, unused);
        sum += k;
    }
    return sum / p;
}

void CFormulas::Stochastic(long long i, double& k, double& d) const
{
    if (P(StudyStochastics) < 1)
        return;
    double resultK = -1;
    const double resultD = settings.Studies.StoFast ? FastD(i, resultK) : SlowD(i, resultK);
    if (!(resultD < 0)) {
        d = resultD;
        k = resultK;
    } else if (!(resultK < 0)) {
        k = resultK;
    }
}

bool CFormulas::MoneyFlow(long long i, long long period, double& pos, double& neg) const
{
    const long long start = i - period;
    if (start < 1 || period < 1)
        return false;
    pos = 0;
    neg = 0;
    for (long long j = start; j <= i; ++j) {
        if (Typical(j) > Typical(j - 1))
            pos += static_cast<double>(V(j)) * Typical(j);
        else if (Typical(j) < Typical(j - 1))
            neg += static_cast<double>(V(j)) * Typical(j);
    }
    pos /= period;
    neg /= period;
    return true;
}

double CFormulas::Mfi(long long i) const
{
    double pos, neg;
    if (!MoneyFlow(i, P(StudyMFI), pos, neg))
        return Hole;
    return ((pos - neg) * 50) / (neg + pos) + 50;
}

void CFormulas::Adx(long long i, double& plus, double& minus, double& adx)
{
    const long long p = P(StudyADX);
    if (p < 1 || i >= static_cast<long long>(series.ClosePrices.size()) + 2 || i < p)
        return;
    const double k = 1.0 / p;
    double tr = 0, up = 0, down = 0, average = 0;
    const auto trueRange = [&](long long j) {
        double widest = std::abs(H(j) - L(j));
        if (std::abs(C(j - 1) - H(j)) > widest)
            widest = std::abs(C(j - 1) - H(j));
        if (std::abs(C(j - 1) - L(j)) > widest)
            widest = std::abs(C(j - 1) - L(j));
        return widest;
    };
    const auto moves = [&](long long j, double& a, double& b) {
        const double x = std::abs(H(j) - H(j - 1)), y = std::abs(L(j) - L(j - 1));
        a = x;
        b = y;
        if (y < x)
            b = 0;
        if (x < y)
            a = 0;
        if (x == y)
            a = b = 0;
    };
    const auto indicators = [&] {
        plus = up * 100 / tr;
        minus = down * 100 / tr;
    };
    const auto step = [&](long long j) {
        double a, b;
        moves(j, a, b);
        tr = (trueRange(j) - tr) * k + tr;
        up = (a - up) * k + up;
        down = (b - down) * k + down;
        indicators();
    };
    const auto dx = [&] { return std::abs((plus - minus) * 100 / (minus + plus)); };

    long long j;
    if (i - 1 == states.adx.index) {
        tr = states.adx.tr;
        up = states.adx.plus;
        down = states.adx.minus;
        average = states.adx.adx;
        j = i;
    } else {
        for (long long m = 1; m <= p; ++m) {
            double a, b;
            moves(m, a, b);
            tr += trueRange(m);
            up += a;
            down += b;
        }
        tr /= p;
        up /= p;
        down /= p;
        indicators();
        if (i < 2 * p) {
            for (long long m = p + 1; m < i; ++m)
                step(m);
            return;
        }
        double sum = 0;
        for (long long m = p + 1; m <= 2 * p; ++m) {
            step(m);
            sum += dx();
        }
        average = sum / p;
        adx = average;
        if (i == 2 * p)
            return;
        j = 2 * p + 1;
    }
    for (; j <= i; ++j) {
        step(j);
        average = (dx() - average) * k + average;
    }
    adx = average;
    states.adx = {i, tr, up, down, average};
}

} // namespace zantroq::plain
