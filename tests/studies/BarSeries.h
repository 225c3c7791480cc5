// A price series over plain vectors, and ways to create one.
#pragma once

#include "drawing/PriceSource.h"

#include <cstdint>
#include <initializer_list>
#include <vector>

namespace zantroq {

class CBarSeries : public IPriceSource
{
public:
    std::vector<double> HighPrices, LowPrices, OpenPrices, ClosePrices;
    std::vector<std::int64_t> Volumes;
    std::uint32_t Greatest = 0;

    void Add(double open, double high, double low, double close, std::int64_t volume)
    {
        OpenPrices.push_back(open);
        HighPrices.push_back(high);
        LowPrices.push_back(low);
        ClosePrices.push_back(close);
        Volumes.push_back(volume);
    }
    void AddTick(double price, std::int64_t size = 100) { Add(price, price, price, price, size); }
    static CBarSeries OfCloses(std::initializer_list<double> closes)
    {
        CBarSeries series;
        for (const double close : closes)
            series.AddTick(close);
        return series;
    }

    double High(int index) const override { return At(HighPrices, index); }
    double Low(int index) const override { return At(LowPrices, index); }
    double Open(int index) const override { return At(OpenPrices, index); }
    double Close(int index) const override { return At(ClosePrices, index); }
    std::int64_t Volume(int index) const override { return At(Volumes, index); }
    int Count() const override { return static_cast<int>(ClosePrices.size()); }
    void ReadHigh(int first, int count, double* out) const override { Read(HighPrices, first, count, out); }
    void ReadLow(int first, int count, double* out) const override { Read(LowPrices, first, count, out); }
    void ReadOpen(int first, int count, double* out) const override { Read(OpenPrices, first, count, out); }
    void ReadClose(int first, int count, double* out) const override { Read(ClosePrices, first, count, out); }
    void ReadVolume(int first, int count, std::int64_t* out) const override
    {
        Read(Volumes, first, count, out);
    }
    std::uint32_t GreatestVolume() const override { return Greatest; }

private:
    template<class T> static T At(const std::vector<T>& values, std::int64_t index)
    {
        return index < 0 || index >= static_cast<std::int64_t>(values.size())
                   ? T{}
                   : values[static_cast<std::size_t>(index)];
    }
    template<class T> static void Read(const std::vector<T>& values, int first, int count, T* out)
    {
        for (int i = 0; i < count; ++i)
            out[i] = At(values, std::int64_t{first} + i);
    }
};

} // namespace zantroq
