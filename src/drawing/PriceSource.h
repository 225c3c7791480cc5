// What studies and the price pane read of a series. CSeriesReader implements it over the running request,
// tests over plain vectors. Single reads answer 0 outside the series and take the series' lock for one value;
// the bulk reads take it once.
#pragma once

#include <cstdint>

namespace zantroq {

class IPriceSource
{
public:
    virtual ~IPriceSource() = default;
    // On tick data all four are the trade price.
    virtual double High(int index) const = 0;
    virtual double Low(int index) const = 0;
    virtual double Open(int index) const = 0;
    virtual double Close(int index) const = 0;
    // Ticks and intervals: the 32-bit size, sign-extended. Daily, weekly, monthly: the 64-bit volume.
    virtual std::int64_t Volume(int index) const = 0;
    virtual int Count() const = 0;

    // The greatest volume that the price pane found when it last fitted its value axis; with a fixed axis
    // that is asked to fit again, the greatest of the whole series.
    virtual std::uint32_t GreatestVolume() const { return 0; }

    // Bulk reads of `count` elements from index `first`: out receives exactly count values, 0 where the
    // series has none (indices below 0 or past the end), so that they agree with the single reads.
    virtual void ReadHigh(int first, int count, double* out) const = 0;
    virtual void ReadLow(int first, int count, double* out) const = 0;
    virtual void ReadOpen(int first, int count, double* out) const = 0;
    virtual void ReadClose(int first, int count, double* out) const = 0;
    virtual void ReadVolume(int first, int count, std::int64_t* out) const = 0;
};

} // namespace zantroq
