#include "drawing/SeriesReader.h"

#include <algorithm>

namespace zantroq {

int CSeriesReader::PriceField(int barField) const
{
    return m_dataType == TickData ? FieldLast : barField;
}

int CSeriesReader::VolumeField() const
{
    return m_dataType == TickData || m_dataType == MinuteData ? FieldSize : FieldTotalVolume;
}

double CSeriesReader::PriceAt(int field, int index) const
{
    double price = 0;
    return m_series && m_series->CopyDoubles(field, index, 1, &price) == 1 ? price : 0.0;
}

double CSeriesReader::High(int index) const
{
    return PriceAt(PriceField(FieldHigh), index);
}

double CSeriesReader::Low(int index) const
{
    return PriceAt(PriceField(FieldLow), index);
}

double CSeriesReader::Open(int index) const
{
    return PriceAt(PriceField(FieldOpen), index);
}

double CSeriesReader::Close(int index) const
{
    return PriceAt(PriceField(FieldClose), index);
}

std::int64_t CSeriesReader::Volume(int index) const
{
    std::int64_t volume = 0;
    return m_series && m_series->CopyIntegers(VolumeField(), index, 1, &volume) == 1 ? volume : 0;
}

int CSeriesReader::Count() const
{
    return m_series ? m_series->GetCount(FieldTime) : 0;
}

void CSeriesReader::ReadPrices(int field, int first, int count, double* out) const
{
    if (count <= 0)
        return;
    const int before = static_cast<int>(std::clamp<long long>(-static_cast<long long>(first), 0, count));
    std::fill_n(out, before, 0.0);
    int copied = before;
    if (m_series && before < count)
        copied += m_series->CopyDoubles(PriceField(field), first + before, count - before, out + before);
    std::fill(out + copied, out + count, 0.0);
}

void CSeriesReader::ReadHigh(int first, int count, double* out) const
{
    ReadPrices(FieldHigh, first, count, out);
}

void CSeriesReader::ReadLow(int first, int count, double* out) const
{
    ReadPrices(FieldLow, first, count, out);
}

void CSeriesReader::ReadOpen(int first, int count, double* out) const
{
    ReadPrices(FieldOpen, first, count, out);
}

void CSeriesReader::ReadClose(int first, int count, double* out) const
{
    ReadPrices(FieldClose, first, count, out);
}

void CSeriesReader::ReadVolume(int first, int count, std::int64_t* out) const
{
    if (count <= 0)
        return;
    const int before = static_cast<int>(std::clamp<long long>(-static_cast<long long>(first), 0, count));
    std::fill_n(out, before, 0);
    int copied = before;
    if (m_series && before < count)
        copied += m_series->CopyIntegers(VolumeField(), first + before, count - before, out + before);
    std::fill(out + copied, out + count, 0);
}

sPriceWords CSeriesReader::PriceWords() const
{
    return {ShippedPriceFormatter(), m_series ? m_series->GetPriceFormat() : 0};
}

void CSeriesReader::GetPoint(int index, sHIST_DATA& point) const
{
    const int count = Count();
    if (count > 0)
        m_series->GetChartPoint(std::clamp(index, 0, count), point);
}

sTIME_W_MILLISECONDS CSeriesReader::TimeAt(int index) const
{
    return m_series ? m_series->GetTimeAt(index) : sTIME_W_MILLISECONDS{DefaultPointTime, TimeValid, 0};
}

int CSeriesReader::TextIndex(int index) const
{
    return std::min(std::max(index, 1), Count() - 1);
}

std::string CSeriesReader::GetDate(int index) const
{
    return Count() == 0 ? NoDateText : PointDateText(TimeAt(TextIndex(index)));
}

std::string CSeriesReader::GetMinuteTime(int index) const
{
    return Count() == 0 ? NoTimeText : MinuteTimeText(TimeAt(TextIndex(index)));
}

std::string CSeriesReader::GetTime(int index, TimeDetail detail) const
{
    const int count = Count();
    if (count == 0)
        return NoTimeText;
    return PointTimeText(TimeAt(std::clamp(index, 0, count - 1)), m_dataType, detail);
}

} // namespace zantroq
