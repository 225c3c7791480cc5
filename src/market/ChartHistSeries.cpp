// The series of a request: appends, amends and reads its parallel arrays.
#include "market/ChartHistRequest.h"
#include "market/StoredFields.h"

#include <algorithm>
#include <cstring>
#include <stdexcept>
#include <type_traits>

namespace zantroq {

namespace {

constexpr int SeriesGrowStep = 10000;
constexpr double OutsideTime = 29221.5; // 1 January 1980 12:00:00

template<class Element, class Array>
constexpr bool IsArrayOf = std::is_same_v<Array, CGrowableArray<Element>>;

template<class Array>
constexpr bool HoldsIntegers =
    IsArrayOf<std::int32_t, Array> || IsArrayOf<std::int64_t, Array> || std::is_same_v<Array, CSizeArray>;

// A field of a point in the form that its array stores.
template<class Array, class Value> decltype(auto) ForArray(const Array&, const Value& value)
{
    if constexpr (IsArrayOf<char, Array>)
        return StoredBasis(value);
    else if constexpr (std::is_same_v<Value, std::uint32_t>)
        return StoredInteger(value);
    else
        return (value);
}

// The reverse of ForArray.
template<class Array, class Value> void TakeFrom(const Array& array, int index, Value& value)
{
    if constexpr (IsArrayOf<char, Array>)
        value.assign(1, array[index]);
    else if constexpr (std::is_same_v<Array, CConditionArray>)
        value = array.Get(index);
    else
        value = static_cast<Value>(array[index]);
}

template<class Array> auto ValueOrZero(const Array& array, int index)
{
    return index < 0 || index >= array.Count() ? decltype(array[0] + 0)(0) : array[index];
}

template<class T> void EmptyArray(CGrowableArray<T>& array)
{
    array.SetCount(0);
    array.SetGrowStep(SeriesGrowStep);
}

void EmptyArray(CSizeArray& array)
{
    array.Clear();
    array.SetGrowStep(SeriesGrowStep);
}

template<class... Arrays> void EmptyArrays(Arrays&... arrays)
{
    (EmptyArray(arrays), ...);
}

template<class... Arrays> void RemoveFrom(int index, Arrays&... arrays)
{
    ((arrays.Count() > index ? arrays.RemoveAt(index) : void()), ...);
}

// How many of `count` elements from `first` on exist.
int Overlap(int first, int count, int length)
{
    return first < 0 || count <= 0 || first >= length ? 0 : std::min(count, length - first);
}

template<class T> int CopyWidened(const CGrowableArray<T>& array, int first, int count, std::int64_t* out)
{
    const int copied = Overlap(first, count, array.Count());
    if (copied > 0)
        std::copy_n(array.Data() + first, copied, out);
    return copied;
}

int CopyWidened(const CSizeArray& array, int first, int count, std::int64_t* out)
{
    const int copied = Overlap(first, count, array.Count());
    for (int i = 0; i < copied; ++i)
        out[i] = array[first + i];
    return copied;
}

template<class T> int CopyPlain(const CGrowableArray<T>& array, int first, int count, T* out)
{
    const int copied = Overlap(first, count, array.Count());
    if (copied > 0)
        std::memcpy(out, array.Data() + first, static_cast<std::size_t>(copied) * sizeof(T));
    return copied;
}

[[noreturn]] void WrongField()
{
    throw std::invalid_argument("series field outside its range");
}

} // namespace

void CChartHistRequest::AppendPoint(const sHIST_POINT& point)
{
    CLockGuard guard(DataLock);
    if (Bounds.Admits(point.Time))
        Append(point);
}

// Each Append function makes room in all its arrays first, so that running out of memory leaves them equally
// long.
void CChartHistRequest::Append(const sHIST_POINT& point)
{
    const int kind = Kind;
    if (IsTickKind(kind))
        AppendTick(point);
    else if (IsIntervalKind(kind))
        AppendInterval(point);
    else if (IsDayKind(kind))
        AppendDay(point);
}

void CChartHistRequest::AppendInterval(const sHIST_POINT& point)
{
    PreparePrices();
    m_size.PrepareAdd();
    AppendPrices(point);
    m_size.AddPrepared(StoredInteger(point.LastSize));
}

void CChartHistRequest::AppendDay(const sHIST_POINT& point)
{
    PreparePrices();
    m_openInterest.PrepareAdd();
    AppendPrices(point);
    m_openInterest.AddPrepared(StoredInteger(point.OpenInterest));
}

void CChartHistRequest::PreparePrices()
{
    m_tickRoom = 0;
    PrepareAll(m_time, m_open, m_high, m_low, m_close, m_totalVolume);
}

void CChartHistRequest::AppendPrices(const sHIST_POINT& point)
{
    m_time.AddPrepared(point.Time);
    m_open.AddPrepared(point.Open);
    m_high.AddPrepared(point.High);
    m_low.AddPrepared(point.Low);
    m_close.AddPrepared(point.Close);
    m_totalVolume.AddPrepared(point.TotalVolume);
}

// Calls `call` for each array that the kind fills, with the field of the point that it stores.
template<class Series, class Point, class Call>
void CChartHistRequest::ForEachField(Series& series, int kind, Point& point, Call call)
{
    if (IsTickKind(kind)) {
        call(series.m_time, point.Time);
        call(series.m_last, point.Last);
        call(series.m_size, point.LastSize);
        call(series.m_bid, point.Bid);
        call(series.m_bidSize, point.BidSize);
        call(series.m_ask, point.Ask);
        call(series.m_askSize, point.AskSize);
        call(series.m_totalVolume, point.TotalVolume);
        call(series.m_tickId, point.TickId);
        call(series.m_basis, point.Basis);
        call(series.m_conditions, point.Conditions);
    } else if (IsIntervalKind(kind) || IsDayKind(kind)) {
        call(series.m_time, point.Time);
        call(series.m_open, point.Open);
        call(series.m_high, point.High);
        call(series.m_low, point.Low);
        call(series.m_close, point.Close);
        call(series.m_totalVolume, point.TotalVolume);
        if (IsIntervalKind(kind))
            call(series.m_size, point.LastSize);
        else
            call(series.m_openInterest, point.OpenInterest);
    }
}

void CChartHistRequest::UpdatePoint(int index, const sHIST_POINT& point)
{
    CLockGuard guard(DataLock);
    const int kind = Kind;
    // Checks all arrays first, so that a point is written either completely or not at all.
    ForEachField(*this, kind, point, [&](const auto& array, const auto&) { array.Check(index); });
    ForEachField(*this, kind, point,
                 [&](auto& array, const auto& value) { array.SetAt(index, ForArray(array, value)); });
}

// An empty series gives -1, which every array rejects.
int CChartHistRequest::ClampedIndex(int index) const
{
    return std::min(std::max(index, 0), m_time.LastIndex());
}

void CChartHistRequest::GetPoint(int index, sHIST_POINT& point) const
{
    CLockGuard guard(DataLock);
    const int at = ClampedIndex(index);
    ForEachField(*this, Kind, point, [&](const auto& array, auto& value) { TakeFrom(array, at, value); });
}

void CChartHistRequest::GetChartPoint(int index, sHIST_DATA& point) const
{
    CLockGuard guard(DataLock);
    const int kind = Kind;
    const int at = ClampedIndex(index);
    if (IsTickKind(kind)) {
        point.Time = m_time[at];
        point.Open = point.Close = point.High = point.Low = m_last[at];
        point.Volume = m_size[at];
        return;
    }
    if (!IsIntervalKind(kind) && !IsDayKind(kind))
        return;
    point.Time = m_time[at];
    point.Open = m_open[at];
    point.High = m_high[at];
    point.Low = m_low[at];
    point.Close = m_close[at];
    if (IsIntervalKind(kind))
        point.Volume = m_size[at];
}

// Returns `call` of the array with this number.
template<class Call> int CChartHistRequest::WithArray(int field, Call call) const
{
    switch (field) {
    case FieldTime:
    case FieldTimeAlias:
        return call(m_time);
    case FieldOpen:
        return call(m_open);
    case FieldHigh:
        return call(m_high);
    case FieldLow:
        return call(m_low);
    case FieldClose:
        return call(m_close);
    case FieldLast:
        return call(m_last);
    case FieldBid:
        return call(m_bid);
    case FieldBidSize:
        return call(m_bidSize);
    case FieldAsk:
        return call(m_ask);
    case FieldAskSize:
        return call(m_askSize);
    case FieldOpenInterest:
        return call(m_openInterest);
    case FieldSize:
        return call(m_size);
    case FieldTotalVolume:
        return call(m_totalVolume);
    case FieldTickId:
        return call(m_tickId);
    case FieldBasis:
        return call(m_basis);
    case FieldConditions:
        return call(m_conditions);
    default:
        WrongField();
    }
}

int CChartHistRequest::GetCount(int field) const
{
    CLockGuard guard(DataLock);
    return WithArray(field, [](const auto& array) { return array.Count(); });
}

int CChartHistRequest::GetLastIndex(int field) const
{
    return GetCount(field) - 1;
}

sTIME_W_MILLISECONDS CChartHistRequest::GetTimeAt(int index) const
{
    CLockGuard guard(DataLock);
    if (index < 0 || index >= m_time.Count())
        return {OutsideTime, TimeValid, 0};
    return m_time[index];
}

double CChartHistRequest::GetLastAt(int index) const
{
    CLockGuard guard(DataLock);
    return ValueOrZero(m_last, index);
}
std::int32_t CChartHistRequest::GetSizeAt(int index) const
{
    CLockGuard guard(DataLock);
    return ValueOrZero(m_size, index);
}
std::int64_t CChartHistRequest::GetTotalVolumeAt(int index) const
{
    CLockGuard guard(DataLock);
    return ValueOrZero(m_totalVolume, index);
}
double CChartHistRequest::GetOpenAt(int index) const
{
    CLockGuard guard(DataLock);
    return ValueOrZero(m_open, index);
}
double CChartHistRequest::GetCloseAt(int index) const
{
    CLockGuard guard(DataLock);
    return ValueOrZero(m_close, index);
}
double CChartHistRequest::GetHighAt(int index) const
{
    CLockGuard guard(DataLock);
    return ValueOrZero(m_high, index);
}
double CChartHistRequest::GetLowAt(int index) const
{
    CLockGuard guard(DataLock);
    return ValueOrZero(m_low, index);
}

void CChartHistRequest::RemovePoint(int index)
{
    if (index < 0)
        throw std::invalid_argument("point index below zero");
    CLockGuard guard(DataLock);
    RemoveFrom(index, m_time, m_open, m_high, m_low, m_close, m_last, m_bid, m_bidSize, m_ask, m_askSize,
               m_openInterest, m_size, m_totalVolume, m_tickId, m_basis, m_conditions);
}

void CChartHistRequest::Empty()
{
    m_tickRoom = 0;
    EmptyArrays(m_time, m_open, m_high, m_low, m_close, m_last, m_bid, m_bidSize, m_ask, m_askSize,
                m_openInterest, m_size, m_totalVolume, m_tickId, m_basis);
    m_conditions.Clear();
}

void CChartHistRequest::ResetSeries()
{
    CLockGuard guard(DataLock);
    Empty();
}

void CChartHistRequest::ClearSeries()
{
    CLockGuard guard(DataLock);
    Empty();
}

int CChartHistRequest::CopyDoubles(int field, int first, int count, double* out) const
{
    CLockGuard guard(DataLock);
    return WithArray(field, [&]<class Array>(const Array& array) -> int {
        if constexpr (IsArrayOf<double, Array>)
            return CopyPlain(array, first, count, out);
        else
            WrongField();
    });
}

int CChartHistRequest::CopyIntegers(int field, int first, int count, std::int64_t* out) const
{
    CLockGuard guard(DataLock);
    return WithArray(field, [&]<class Array>(const Array& array) -> int {
        if constexpr (HoldsIntegers<Array>)
            return CopyWidened(array, first, count, out);
        else
            WrongField();
    });
}

int CChartHistRequest::CopyTimes(int first, int count, sTIME_W_MILLISECONDS* out) const
{
    CLockGuard guard(DataLock);
    return CopyPlain(m_time, first, count, out);
}

} // namespace zantroq
