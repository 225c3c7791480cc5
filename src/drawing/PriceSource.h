// Read access to a series for studies and the price pane. CSeriesReader implements it over the current
// request, tests over plain vectors. A single read returns 0 outside the series and takes the series' lock
// for one value; a bulk read takes it once. Chart window's thread.
#pragma once

#include <cstdint>

namespace zantroq {

class IPriceSource
{
public:
    virtual ~IPriceSource() = default;
    // On tick data, all four return the price of the trade.
    virtual double High(int index) const = 0;
    virtual double Low(int index) const = 0;
    virtual double Open(int index) const = 0;
    virtual double Close(int index) const = 0;
    // Ticks and intervals: the 32-bit size, sign-extended. Daily, weekly, monthly: the 64-bit volume.
    virtual std::int64_t Volume(int index) const = 0;
    virtual int Count() const = 0;

    // The largest volume found when the price pane last fitted its value axis; for a fixed axis that is
    // fitted again, the largest of the whole series.
    virtual std::uint32_t GreatestVolume() const { return 0; }

    // Bulk reads of `count` elements from index `first` on. `out` receives exactly `count` values, 0 for
    // indices outside the series, like the single reads.
    virtual void ReadHigh(int first, int count, double* out) const = 0;
    virtual void ReadLow(int first, int count, double* out) const = 0;
    virtual void ReadOpen(int first, int count, double* out) const = 0;
    virtual void ReadClose(int first, int count, double* out) const = 0;
    virtual void ReadVolume(int first, int count, std::int64_t* out) const = 0;
};

} // namespace zantroq
