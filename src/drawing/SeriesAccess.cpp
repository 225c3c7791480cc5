// How the draw manager reads the series: which array a price or a volume comes from, and the texts of a
// point's time.
#include "drawing/HistChartDrawManager.h"
#include "drawing/TimeTexts.h"

#include <algorithm>

namespace zantroq {

int CHistChartDrawManager::PriceField(int barField) const
{
    return dataType == TickData ? FieldLast : barField;
}

int CHistChartDrawManager::VolumeField() const
{
    return dataType == TickData || dataType == MinuteData ? FieldSize : FieldTotalVolume;
}

double CHistChartDrawManager::PriceAt(int field, int index) const
{
    double price = 0;
    return series && series->CopyDoubles(field, index, 1, &price) == 1 ? price : 0.0;
}

double CHistChartDrawManager::High(int index) const
{
    return PriceAt(PriceField(FieldHigh), index);
}

double CHistChartDrawManager::Low(int index) const
{
    return PriceAt(PriceField(FieldLow), index);
}

double CHistChartDrawManager::Open(int index) const
{
    return PriceAt(PriceField(FieldOpen), index);
}

double CHistChartDrawManager::Close(int index) const
{
    return PriceAt(PriceField(FieldClose), index);
}

std::int64_t CHistChartDrawManager::Volume(int index) const
{
    std::int64_t volume = 0;
    return series && series->CopyIntegers(VolumeField(), index, 1, &volume) == 1 ? volume : 0;
}

int CHistChartDrawManager::Count() const
{
    return series ? series->GetCount(FieldTime) : 0;
}

void CHistChartDrawManager::ReadPrices(int field, int first, int count, double* out) const
{
    if (count <= 0)
        return;
    const int before = static_cast<int>(std::clamp<long long>(-static_cast<long long>(first), 0, count));
    std::fill_n(out, before, 0.0);
    int copied = before;
    if (series && before < count)
        copied += series->CopyDoubles(PriceField(field), first + before, count - before, out + before);
    std::fill(out + copied, out + count, 0.0);
}

void CHistChartDrawManager::ReadHigh(int first, int count, double* out) const
{
    ReadPrices(FieldHigh, first, count, out);
}

void CHistChartDrawManager::ReadLow(int first, int count, double* out) const
{
    ReadPrices(FieldLow, first, count, out);
}

void CHistChartDrawManager::ReadOpen(int first, int count, double* out) const
{
    ReadPrices(FieldOpen, first, count, out);
}

void CHistChartDrawManager::ReadClose(int first, int count, double* out) const
{
    ReadPrices(FieldClose, first, count, out);
}

void CHistChartDrawManager::ReadVolume(int first, int count, std::int64_t* out) const
{
    if (count <= 0)
        return;
    const int before = static_cast<int>(std::clamp<long long>(-static_cast<long long>(first), 0, count));
    std::fill_n(out, before, 0);
    int copied = before;
    if (series && before < count)
        copied += series->CopyIntegers(VolumeField(), first + before, count - before, out + before);
    std::fill(out + copied, out + count, 0);
}

void CHistChartDrawManager::GetPoint(int index, sHIST_DATA& point) const
{
    const int count = Count();
    if (count > 0)
        series->GetChartPoint(std::clamp(index, 0, count), point);
}

sTIME_W_MILLISECONDS CHistChartDrawManager::TimeAt(int index) const
{
    return series ? series->GetTimeAt(index) : sTIME_W_MILLISECONDS{DefaultPointTime, TimeValid, 0};
}

int CHistChartDrawManager::TextIndex(int index) const
{
    return std::min(std::max(index, 1), Count() - 1);
}

std::string CHistChartDrawManager::GetDate(int index) const
{
    return Count() == 0 ? NoDateText : PointDateText(TimeAt(TextIndex(index)));
}

std::string CHistChartDrawManager::GetMinuteTime(int index) const
{
    return Count() == 0 ? NoTimeText : MinuteTimeText(TimeAt(TextIndex(index)));
}

std::string CHistChartDrawManager::GetTime(int index, bool withMilliseconds) const
{
    const int count = Count();
    if (count == 0)
        return NoTimeText;
    return PointTimeText(TimeAt(std::clamp(index, 0, count - 1)), dataType, withMilliseconds);
}

} // namespace zantroq
