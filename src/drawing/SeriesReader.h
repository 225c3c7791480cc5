// Reads the series of a chart for the panes: single values, ranges of values, formatted prices, and dates and
// times of points as texts. One per chart window, on the window's thread. Each read takes the series' lock
// once, so that the worker can extend the series between two reads.
#pragma once

#include "drawing/InfoText.h"
#include "drawing/PriceSource.h"
#include "drawing/TimeTexts.h"
#include "market/ChartHistRequest.h"

#include <string>

namespace zantroq {

class CSeriesReader : public IPriceSource
{
public:
    void SetSeries(CChartHistRequest* request) { m_series = request; } // not owned; null: an empty series
    CChartHistRequest* Series() const { return m_series; }
    void SetDataType(int type) { m_dataType = type; }
    int GetDataType() const { return m_dataType; }

    // These return 0 for an index outside the series.
    double High(int index) const override;
    double Low(int index) const override;
    double Open(int index) const override;
    double Close(int index) const override;
    std::int64_t Volume(int index) const override;
    int Count() const override;
    void ReadHigh(int first, int count, double* out) const override;
    void ReadLow(int first, int count, double* out) const override;
    void ReadOpen(int first, int count, double* out) const override;
    void ReadClose(int first, int count, double* out) const override;
    void ReadVolume(int first, int count, std::int64_t* out) const override;

    std::uint32_t GreatestVolume() const override { return m_greatestVolume; }
    void SetGreatestVolume(std::uint32_t volume) { m_greatestVolume = volume; }

    sPriceWords PriceWords() const; // formats of this series' prices; plain without a series

    // An index below 1 counts as 1, one past the end as the last. Without points "1900/01/01" and "00:00:00".
    std::string GetDate(int index) const;
    std::string GetMinuteTime(int index) const;
    // The index is clamped to the series.
    std::string GetTime(int index, TimeDetail detail) const;
    // The index is clamped to 0 up to Count(), which means the last point. Without points the record is
    // unchanged.
    void GetPoint(int index, sHIST_DATA& point) const;
    sTIME_W_MILLISECONDS TimeAt(int index) const;

private:
    int PriceField(int barField) const; // ticks use one price for all four
    int VolumeField() const;
    double PriceAt(int field, int index) const;
    void ReadPrices(int field, int first, int count, double* out) const;
    int TextIndex(int index) const;

    CChartHistRequest* m_series = nullptr;
    int m_dataType = TickData;
    std::uint32_t m_greatestVolume = 0;
};

} // namespace zantroq
