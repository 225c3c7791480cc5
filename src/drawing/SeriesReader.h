// Reads the series of a chart for the panes: single values, whole stretches at once, prices as words, and the
// dates and times of points as texts. One per chart window, on its thread. Each read takes the series' lock
// once, so the worker can go on filling the series between two reads.
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

    // An index outside the series gives 0.
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

    sPriceWords PriceWords() const; // how prices of this series are written; plain without a series

    // An index below 1 reads as 1, an index past the end as the last. Without any point "1900/01/01" and
    // "00:00:00".
    std::string GetDate(int index) const;
    std::string GetMinuteTime(int index) const;
    // An index outside the series reads as the nearer end.
    std::string GetTime(int index, TimeDetail detail) const;
    // The index is held between 0 and Count(), which reads as the last. Without any point the record keeps
    // its values.
    void GetPoint(int index, sHIST_DATA& point) const;
    sTIME_W_MILLISECONDS TimeAt(int index) const;

private:
    int PriceField(int barField) const; // ticks have one price for all four
    int VolumeField() const;
    double PriceAt(int field, int index) const;
    void ReadPrices(int field, int first, int count, double* out) const;
    int TextIndex(int index) const;

    CChartHistRequest* m_series = nullptr;
    int m_dataType = TickData;
    std::uint32_t m_greatestVolume = 0;
};

} // namespace zantroq
