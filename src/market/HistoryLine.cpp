#include "market/HistoryLine.h"

#include "market/StoredFields.h"
#include "platform/LeadingNumber.h"

#include <algorithm>
#include <stdexcept>

namespace zantroq {

namespace {

// The three read a field that the line is known to have.
double Price(const HistoryFields& fields, int field)
{
    return TextToDouble(fields.At(field), fields.Before(field));
}

std::uint32_t Unsigned(const HistoryFields& fields, int field)
{
    const std::string_view text = fields.At(field);
    std::uint64_t value = 0;
    if (PlainInteger(text, fields.Before(field), value) && value <= 0xFFFFFFFFu)
        return static_cast<std::uint32_t>(value);
    return TextToUnsigned(text);
}

std::int64_t Integer(const HistoryFields& fields, int field)
{
    const std::string_view text = fields.At(field);
    std::uint64_t value = 0;
    if (PlainInteger(text, fields.Before(field), value) && value <= 0x7FFFFFFFFFFFFFFFu)
        return static_cast<std::int64_t>(value);
    return TextToInt64(text);
}

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
    ticks.Last[at] = Price(fields, 2);
    ticks.Size[at] = StoredInteger(Unsigned(fields, 3));
    ticks.TotalVolume[at] = Integer(fields, 4);
    ticks.Bid[at] = Price(fields, 5);
    ticks.Ask[at] = Price(fields, 6);
    ticks.TickId[at] = StoredInteger(Unsigned(fields, 7));
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
    m_interval.LastSize = Unsigned(fields, 7);
    m_timestamp.ReadInterval(fields.At(1), m_interval.Time);
    m_interval.High = Price(fields, 2);
    m_interval.Low = Price(fields, 3);
    m_interval.Open = Price(fields, 4);
    m_interval.Close = Price(fields, 5);
    m_interval.TotalVolume = Integer(fields, 6);
    return IfValid(m_interval);
}

const sHIST_POINT* CHistoryLineParser::ParseDay(const HistoryFields& fields)
{
    RequireFields(fields, 8);
    m_day.OpenInterest = Unsigned(fields, 7);
    m_timestamp.ReadDay(fields.At(1), m_day.Time);
    m_day.High = Price(fields, 2);
    m_day.Low = Price(fields, 3);
    m_day.Open = Price(fields, 4);
    m_day.Close = Price(fields, 5);
    m_day.TotalVolume = Integer(fields, 6);
    return IfValid(m_day);
}

} // namespace zantroq
