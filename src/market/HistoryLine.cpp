#include "market/HistoryLine.h"

#include "market/LineNumbers.h"
#include "market/TickNumbers.h"

#include <algorithm>
#include <stdexcept>

namespace zantroq {

namespace {

void RequireFields(const HistoryFields& fields, int count)
{
    if (fields.Count() < count)
        throw std::invalid_argument("line has too few fields");
}

const sHIST_POINT* IfValid(const sHIST_POINT& point)
{
    return point.Time.Status == TimeValid ? &point : nullptr;
}

} // namespace

bool ShowsBasis(char basis, bool extendedTrades)
{
    return basis == 'C' || (extendedTrades && (basis == 'E' || basis == 'O'));
}

int PriceFormatOf(std::string_view price)
{
    const std::size_t found = price.find('.');
    const int point = found == std::string_view::npos ? -1 : static_cast<int>(found);
    return std::max(static_cast<int>(price.size()) + 9 - point, 11);
}

void CHistoryLineParser::ParseTick(const HistoryFields& fields, bool extendedTrades, sTickBatch& ticks)
{
    RequireFields(fields, 9);
    const std::string_view basis = fields.At(8);
    if (basis.empty() || !ShowsBasis(basis.front(), extendedTrades))
        return;
    const auto at = static_cast<std::size_t>(ticks.Count);
    m_timestamp.ReadTick(fields.At(1), ticks.Time[at]);
    if (ticks.Time[at].Status != TimeValid)
        return;
    ReadTickNumbers(fields, ticks, at);
    ticks.Basis[at] = basis.front();
    ++ticks.Count;
}

const sHIST_POINT* CHistoryLineParser::ParseBar(int kind, const HistoryFields& fields)
{
    if (IsIntervalKind(kind))
        return ParseInterval(fields);
    if (IsDayKind(kind))
        return ParseDay(fields);
    return nullptr;
}

const sHIST_POINT* CHistoryLineParser::ParseInterval(const HistoryFields& fields)
{
    RequireFields(fields, 8);
    m_interval.LastSize = UnsignedField(fields, 7);
    m_timestamp.ReadInterval(fields.At(1), m_interval.Time);
    m_interval.High = PriceField(fields, 2);
    m_interval.Low = PriceField(fields, 3);
    m_interval.Open = PriceField(fields, 4);
    m_interval.Close = PriceField(fields, 5);
    m_interval.TotalVolume = IntegerField(fields, 6);
    return IfValid(m_interval);
}

const sHIST_POINT* CHistoryLineParser::ParseDay(const HistoryFields& fields)
{
    RequireFields(fields, 8);
    m_day.OpenInterest = UnsignedField(fields, 7);
    m_timestamp.ReadDay(fields.At(1), m_day.Time);
    m_day.High = PriceField(fields, 2);
    m_day.Low = PriceField(fields, 3);
    m_day.Open = PriceField(fields, 4);
    m_day.Close = PriceField(fields, 5);
    m_day.TotalVolume = IntegerField(fields, 6);
    return IfValid(m_day);
}

} // namespace zantroq
