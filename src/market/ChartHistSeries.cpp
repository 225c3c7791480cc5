// The series of a request: appending, amending and reading its parallel arrays.
#include "market/ChartHistRequest.h"

#include <algorithm>
#include <cstring>
#include <stdexcept>

namespace zantroq {

namespace {

constexpr int SeriesGrowStep = 10000;
constexpr double OutsideTime = 29221.5; // 1 January 1980 12:00:00

char FirstCharacter(const std::string& text)
{
    return text.empty() ? '\0' : text.front();
}

std::int32_t Stored(std::uint32_t value)
{
    return static_cast<std::int32_t>(value);
}

std::uint32_t Loaded(std::int32_t value)
{
    return static_cast<std::uint32_t>(value);
}

template<class Array> auto ValueOrZero(const Array& array, int index)
{
    return index < 0 || index >= array.Count() ? decltype(array[0] + 0)(0) : array[index];
}

template<class... Arrays> void EmptyArrays(Arrays&... arrays)
{
    ((arrays.SetCount(0), arrays.SetGrowStep(SeriesGrowStep)), ...);
}

template<class... Arrays> void CheckIndex(int index, const Arrays&... arrays)
{
    (arrays.Check(index), ...);
}

template<class... Arrays> void PrepareArrays(Arrays&... arrays)
{
    (arrays.PrepareAdd(), ...);
}

// How many elements each of the arrays can take before the first of them must grow.
template<class... Arrays> int RoomIn(const Arrays&... arrays)
{
    return std::min({(arrays.Capacity() - arrays.Count())...});
}

template<class... Arrays> void RemoveFrom(int index, Arrays&... arrays)
{
    ((arrays.Count() > index ? arrays.RemoveAt(index) : void()), ...);
}

// How many of `count` elements from `first` exist.
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
    if (!Bounds.Admits(point.Time))
        return;
    const int kind = Kind.load(std::memory_order_relaxed);
    if (IsTickKind(kind))
        AppendTick(point);
    else if (IsIntervalKind(kind))
        AppendInterval(point);
    else if (IsDayKind(kind))
        AppendDay(point);
}

// Each of the three makes room in all its arrays first, so that running out of memory leaves them equally
// long.
void CChartHistRequest::AppendTick(const sHIST_POINT& point)
{
    if (m_tickRoom == 0)
        PrepareTicks();
    m_conditions.Add(point.Conditions);
    m_time.AddPrepared(point.Time);
    m_last.AddPrepared(point.Last);
    m_size.AddPrepared(Stored(point.LastSize));
    m_bid.AddPrepared(point.Bid);
    m_bidSize.AddPrepared(Stored(point.BidSize));
    m_ask.AddPrepared(point.Ask);
    m_askSize.AddPrepared(Stored(point.AskSize));
    m_totalVolume.AddPrepared(point.TotalVolume);
    m_tickId.AddPrepared(Stored(point.TickId));
    m_basis.AddPrepared(FirstCharacter(point.Basis));
    --m_tickRoom;
}

void CChartHistRequest::PrepareTicks()
{
    PrepareArrays(m_time, m_last, m_size, m_bid, m_bidSize, m_ask, m_askSize, m_totalVolume, m_tickId,
                  m_basis);
    m_tickRoom =
        RoomIn(m_time, m_last, m_size, m_bid, m_bidSize, m_ask, m_askSize, m_totalVolume, m_tickId, m_basis);
}

void CChartHistRequest::AppendInterval(const sHIST_POINT& point)
{
    PreparePrices();
    m_size.PrepareAdd();
    AppendPrices(point);
    m_size.AddPrepared(Stored(point.LastSize));
}

void CChartHistRequest::AppendDay(const sHIST_POINT& point)
{
    PreparePrices();
    m_openInterest.PrepareAdd();
    AppendPrices(point);
    m_openInterest.AddPrepared(Stored(point.OpenInterest));
}

void CChartHistRequest::PreparePrices()
{
    m_tickRoom = 0;
    PrepareArrays(m_time, m_open, m_high, m_low, m_close, m_totalVolume);
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

void CChartHistRequest::UpdatePoint(int index, const sHIST_POINT& point)
{
    CLockGuard guard(DataLock);
    const int kind = Kind;
    if (IsTickKind(kind)) {
        CheckIndex(index, m_time, m_last, m_size, m_bid, m_bidSize, m_ask, m_askSize, m_totalVolume, m_tickId,
                   m_basis, m_conditions);
        m_time.SetAt(index, point.Time);
        m_last.SetAt(index, point.Last);
        m_size.SetAt(index, Stored(point.LastSize));
        m_bid.SetAt(index, point.Bid);
        m_bidSize.SetAt(index, Stored(point.BidSize));
        m_ask.SetAt(index, point.Ask);
        m_askSize.SetAt(index, Stored(point.AskSize));
        m_totalVolume.SetAt(index, point.TotalVolume);
        m_tickId.SetAt(index, Stored(point.TickId));
        m_basis.SetAt(index, FirstCharacter(point.Basis));
        m_conditions.SetAt(index, point.Conditions);
        return;
    }
    if (!IsIntervalKind(kind) && !IsDayKind(kind))
        return;
    CheckIndex(index, m_time, m_open, m_high, m_low, m_close, m_totalVolume);
    if (IsIntervalKind(kind))
        m_size.SetAt(index, Stored(point.LastSize));
    else
        m_openInterest.SetAt(index, Stored(point.OpenInterest));
    m_time.SetAt(index, point.Time);
    m_open.SetAt(index, point.Open);
    m_high.SetAt(index, point.High);
    m_low.SetAt(index, point.Low);
    m_close.SetAt(index, point.Close);
    m_totalVolume.SetAt(index, point.TotalVolume);
}

// On an empty series the result is -1, which every array refuses.
int CChartHistRequest::ClampedIndex(int index) const
{
    return std::min(std::max(index, 0), m_time.LastIndex());
}

void CChartHistRequest::GetPoint(int index, sHIST_POINT& point) const
{
    CLockGuard guard(DataLock);
    const int kind = Kind;
    const int at = ClampedIndex(index);
    if (IsTickKind(kind)) {
        point.Time = m_time[at];
        point.Last = m_last[at];
        point.LastSize = Loaded(m_size[at]);
        point.Bid = m_bid[at];
        point.BidSize = Loaded(m_bidSize[at]);
        point.Ask = m_ask[at];
        point.AskSize = Loaded(m_askSize[at]);
        point.TotalVolume = m_totalVolume[at];
        point.TickId = Loaded(m_tickId[at]);
        point.Basis.assign(1, m_basis[at]);
        point.Conditions = m_conditions.Get(at);
        return;
    }
    if (!IsIntervalKind(kind) && !IsDayKind(kind))
        return;
    point.Time = m_time[at];
    point.Open = m_open[at];
    point.High = m_high[at];
    point.Low = m_low[at];
    point.Close = m_close[at];
    point.TotalVolume = m_totalVolume[at];
    if (IsIntervalKind(kind))
        point.LastSize = Loaded(m_size[at]);
    else
        point.OpenInterest = Loaded(m_openInterest[at]);
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

int CChartHistRequest::GetCount(int field) const
{
    CLockGuard guard(DataLock);
    switch (field) {
    case FieldTime:
    case FieldTimeAlias:
        return m_time.Count();
    case FieldOpen:
        return m_open.Count();
    case FieldHigh:
        return m_high.Count();
    case FieldLow:
        return m_low.Count();
    case FieldClose:
        return m_close.Count();
    case FieldLast:
        return m_last.Count();
    case FieldBid:
        return m_bid.Count();
    case FieldBidSize:
        return m_bidSize.Count();
    case FieldAsk:
        return m_ask.Count();
    case FieldAskSize:
        return m_askSize.Count();
    case FieldOpenInterest:
        return m_openInterest.Count();
    case FieldSize:
        return m_size.Count();
    case FieldTotalVolume:
        return m_totalVolume.Count();
    case FieldTickId:
        return m_tickId.Count();
    case FieldBasis:
        return m_basis.Count();
    case FieldConditions:
        return m_conditions.Count();
    default:
        WrongField();
    }
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
    switch (field) {
    case FieldOpen:
        return CopyPlain(m_open, first, count, out);
    case FieldHigh:
        return CopyPlain(m_high, first, count, out);
    case FieldLow:
        return CopyPlain(m_low, first, count, out);
    case FieldClose:
        return CopyPlain(m_close, first, count, out);
    case FieldLast:
        return CopyPlain(m_last, first, count, out);
    case FieldBid:
        return CopyPlain(m_bid, first, count, out);
    case FieldAsk:
        return CopyPlain(m_ask, first, count, out);
    default:
        WrongField();
    }
}

int CChartHistRequest::CopyIntegers(int field, int first, int count, std::int64_t* out) const
{
    CLockGuard guard(DataLock);
    switch (field) {
    case FieldBidSize:
        return CopyWidened(m_bidSize, first, count, out);
    case FieldAskSize:
        return CopyWidened(m_askSize, first, count, out);
    case FieldOpenInterest:
        return CopyWidened(m_openInterest, first, count, out);
    case FieldSize:
        return CopyWidened(m_size, first, count, out);
    case FieldTotalVolume:
        return CopyWidened(m_totalVolume, first, count, out);
    case FieldTickId:
        return CopyWidened(m_tickId, first, count, out);
    default:
        WrongField();
    }
}

int CChartHistRequest::CopyTimes(int first, int count, sTIME_W_MILLISECONDS* out) const
{
    CLockGuard guard(DataLock);
    return CopyPlain(m_time, first, count, out);
}

} // namespace zantroq
