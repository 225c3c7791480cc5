// The top pane: price bars, moving averages, bands, its x labels and value axis. Recomputed from the series at each draw.
#pragma once

#include "drawing/BaseChart.h"
#include "market/HistoryRecords.h"

#include <array>
#include <cstdint>
#include <string>

namespace zantroq {

class CHistChartDrawManager;

class CPriceChart : public CBaseChart
{
};

class CHistPriceChart : public CPriceChart
{
public:
    virtual void SetupSeries();
    virtual void SetChartType();
    virtual void SetTitle(const std::string& text);
    virtual std::array<std::string, 8> GetInfo() const;
    virtual void BuildXLabels();
    virtual int DataCount() const { return Count(); }
    virtual double Close(int index) const;
    virtual double High(int index) const;
    virtual double Low(int index) const;
    virtual std::int32_t Volume(int index) const; // cut to 32 bits
    virtual int Count() const;

    void SetUp();                 // at the start of a chart: labels, margins, axes, colours
    void Draw(int position);      // the whole draw
    void UpdateLastPoint();       // a live change of the last bar
    void RefreshTitle();
    void SetYScale(double high, double low);

    std::uint32_t maxVolume = 0;
    std::int32_t priceDigits = 1;
    CHistChartDrawManager* manager = nullptr; // not owned
};

} // namespace zantroq
