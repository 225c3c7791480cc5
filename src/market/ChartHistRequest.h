// One history request: its parameters, the series that its replies fill, and its state. The chart window's
// thread sets the parameters and reads the series; the worker thread appends points and amends the last one.
// DataLock guards both.
#pragma once

#include "market/ConditionArray.h"
#include "market/GrowableArray.h"
#include "market/HistoryRecords.h"
#include "market/SeriesBounds.h"
#include "market/SizeArray.h"
#include "market/TickBatch.h"
#include "platform/Lock.h"

#include <atomic>
#include <cstdint>
#include <string>

namespace zantroq {

// Numbers of the series' arrays. 0 and 1 both name the time array.
enum SeriesField : int
{
    FieldTime = 0,
    FieldTimeAlias = 1,
    FieldOpen = 2,
    FieldHigh = 3,
    FieldLow = 4,
    FieldClose = 5,
    FieldLast = 6,
    FieldBid = 7,
    FieldBidSize = 8,
    FieldAsk = 9,
    FieldAskSize = 10,
    FieldOpenInterest = 11,
    FieldSize = 12,
    FieldTotalVolume = 13,
    FieldTickId = 14,
    FieldBasis = 15,
    FieldConditions = 16,
    FieldCount = 17
};

class CChartHistRequest
{
public:
    CChartHistRequest();
    ~CChartHistRequest();
    CChartHistRequest(const CChartHistRequest&) = delete;
    CChartHistRequest& operator=(const CChartHistRequest&) = delete;

    // Identifies this request on the wire: 1 to 2147483647, never used twice in a process. Once its command
    // is sent, the worker finds the request by this number (RequestTable.h).
    std::int32_t Handle() const { return m_handle; }

    // Parameters. Setters take the lock. Getters return copies without taking it, so only the window's thread
    // may call them.
    void SetSymbol(std::string symbol);
    void SetDatapoints(std::int32_t count);
    void SetIntervalSeconds(std::int32_t seconds);
    void SetDays(std::int32_t days);
    void SetDataDirection(std::string direction);
    void SetBeginDate(std::string date);
    void SetBeginTime(std::string time);
    void SetBeginFilterTime(std::string time);
    void SetEndDate(std::string date);
    void SetEndTime(std::string time);
    void SetEndFilterTime(std::string time);
    // If the new kind fills other arrays than the old kind, the series is emptied.
    void SetRequestKind(std::int32_t kind);
    void SetNotifyWindow(void* window);
    std::string GetSymbol() const;
    std::int32_t GetDatapoints() const;
    std::int32_t GetIntervalSeconds() const;
    std::int32_t GetDays() const;
    std::string GetDataDirection() const;
    std::string GetBeginDate() const;
    std::string GetBeginTime() const;
    std::string GetBeginFilterTime() const;
    std::string GetEndDate() const;
    std::string GetEndTime() const;
    std::string GetEndFilterTime() const;
    std::int32_t GetRequestKind() const;

    // Flags: single reads and writes without the lock, any thread.
    void SetComplete(bool complete);
    bool IsComplete() const;
    void SetPriceFormat(std::int32_t code);
    std::int32_t GetPriceFormat() const { return PriceFormat; }
    void SetUseExchangeFormat(bool use);
    bool UsesExchangeFormat() const;
    void MarkDead();
    bool IsAlive() const { return Alive; }
    bool HasBidAskUpdates() const;
    void SetExtendedTrades(bool extended);
    bool HasExtendedTrades() const { return ExtendedTrades; }

    // The series. Every operation takes the lock itself. Any thread, unless a comment says otherwise.
    // Ignores a point outside the request's date and time bounds. Throws std::bad_alloc if memory is short.
    void AppendPoint(const sHIST_POINT& point);
    // The same for several ticks in order, under one lock. If memory is short, stores those that fit and
    // throws std::bad_alloc.
    void AppendTicks(const sTickBatch& ticks);
    // Replaces a point without checking the bounds. Throws std::invalid_argument for an index outside the
    // series.
    void UpdatePoint(int index, const sHIST_POINT& point);
    // Clamps the index to the series. Throws std::invalid_argument if the series is empty.
    void GetPoint(int index, sHIST_POINT& point) const;
    void GetChartPoint(int index, sHIST_DATA& point) const;
    // Throws std::invalid_argument for a field outside 0 to 16.
    int GetCount(int field) const;
    int GetLastIndex(int field) const;               // GetCount - 1
    sTIME_W_MILLISECONDS GetTimeAt(int index) const; // outside the series: 1 January 1980 12:00:00
    double GetLastAt(int index) const;               // this and the following getters: 0 outside the series
    std::int32_t GetSizeAt(int index) const;
    std::int64_t GetTotalVolumeAt(int index) const;
    double GetOpenAt(int index) const;
    double GetCloseAt(int index) const;
    double GetHighAt(int index) const;
    double GetLowAt(int index) const;
    // Removes the element from each of the sixteen arrays that is longer than `index`. Throws
    // std::invalid_argument for a negative index.
    void RemovePoint(int index);
    void ResetSeries();
    // Empties all arrays. Takes the lock, so a worker may append at the same time.
    void ClearSeries();

    // Bulk reads copy up to `count` elements from `first` on under one lock and return the number copied: 0
    // if `first` is negative or past the end. CopyDoubles reads fields 2 to 7 and 9; CopyIntegers fields 8
    // and 10 to 14, sign-extended; CopyTimes field 0.
    int CopyDoubles(int field, int first, int count, double* out) const;
    int CopyIntegers(int field, int first, int count, std::int64_t* out) const;
    int CopyTimes(int first, int count, sTIME_W_MILLISECONDS* out) const;

    // True if live trades may extend or amend the series: a request with an end bound takes none, nor does a
    // weekly or monthly one. Takes the lock, so the worker may call it too.
    bool AcceptsUpdates() const;

private:
    // Append functions for the sets of arrays that grow together. Each first makes room in all its arrays;
    // the stores after that cannot fail.
    void Append(const sHIST_POINT& point) REQUIRES(DataLock);
    void AppendTick(const sHIST_POINT& point) REQUIRES(DataLock);
    void AppendTickRun(const sTickBatch& ticks, int first, int count) REQUIRES(DataLock);
    void AppendInterval(const sHIST_POINT& point) REQUIRES(DataLock);
    void AppendDay(const sHIST_POINT& point) REQUIRES(DataLock);
    void AppendPrices(const sHIST_POINT& point) REQUIRES(DataLock);
    void PrepareTicks() REQUIRES(DataLock);
    void PreparePrices() REQUIRES(DataLock);
    template<class Series, class Point, class Call>
    static void ForEachField(Series& series, int kind, Point& point, Call call) NO_THREAD_SAFETY_ANALYSIS;
    template<class Call> int WithArray(int field, Call call) const REQUIRES(DataLock);
    int ClampedIndex(int index) const REQUIRES(DataLock);
    void Empty() REQUIRES(DataLock);
    void SetText(std::string& member, std::string text);
    void SetBound(CSeriesBound& bound, std::string text);

    const std::int32_t m_handle;

    // Written by the window's thread with the lock; read by that thread without it and by the worker with it.
    std::string Symbol GUARDED_BY(DataLock);
    std::string DataDirection GUARDED_BY(DataLock) = "0";
    sSeriesBounds Bounds GUARDED_BY(DataLock);
    void* NotifyWindow GUARDED_BY(DataLock) = nullptr; // stored for the window, not used here

    // Single numbers and flags, read and written by both threads.
    std::atomic<std::int32_t> Datapoints{0}, IntervalSeconds{0}, Days{0}, Kind{NoRequestKind};
    std::atomic<std::int32_t> PriceFormat{14}; // 10 + number of decimals, or a code of the feed
    std::atomic<bool> Complete{false}, UseExchangeFormat{false}, Alive{true}, ExtendedTrades{false};
    // True lets bid and ask updates pass the live filter. Always false at present.
    std::atomic<bool> BidAskUpdates{false};

    // Guards the parameters and the series; held for one operation at a time.
    mutable CLock DataLock;

    CGrowableArray<sTIME_W_MILLISECONDS> m_time GUARDED_BY(DataLock);
    CGrowableArray<double> m_open GUARDED_BY(DataLock), m_high GUARDED_BY(DataLock),
        m_low GUARDED_BY(DataLock), m_close GUARDED_BY(DataLock), m_last GUARDED_BY(DataLock),
        m_bid GUARDED_BY(DataLock), m_ask GUARDED_BY(DataLock);
    CSizeArray m_bidSize GUARDED_BY(DataLock), m_askSize GUARDED_BY(DataLock);
    CGrowableArray<std::int32_t>
        m_openInterest GUARDED_BY(DataLock), m_size GUARDED_BY(DataLock), m_tickId GUARDED_BY(DataLock);
    CGrowableArray<std::int64_t> m_totalVolume GUARDED_BY(DataLock);
    CGrowableArray<char> m_basis GUARDED_BY(DataLock);
    CConditionArray m_conditions GUARDED_BY(DataLock);
    // At least this many ticks fit into all their arrays, so that one comparison replaces one per array. 0:
    // not known.
    int m_tickRoom GUARDED_BY(DataLock) = 0;
};

} // namespace zantroq
