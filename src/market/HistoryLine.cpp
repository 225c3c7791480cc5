#include "market/HistoryLine.h"

#include "platform/NumberText.h"

#include <algorithm>

namespace zantroq {

namespace {

std::uint32_t ReadUnsigned(std::string_view text)
{
    std::uint64_t value = 0;
    if (PlainInteger(text, value) && value <= 0xFFFFFFFFu)
        return static_cast<std::uint32_t>(value);
    return TextToUnsigned(text);
}

std::int64_t ReadInt64(std::string_view text)
{
    std::uint64_t value = 0;
    if (PlainInteger(text, value) && value <= 0x7FFFFFFFFFFFFFFFu)
        return static_cast<std::int64_t>(value);
    return TextToInt64(text);
}

const sHIST_POINT* IfValid(const sHIST_POINT& point)
{
    return point.Time.Status == TimeValid ? &point : nullptr;
}

} // namespace

CHistoryLineParser::CHistoryLineParser()
{
    m_tick.Basis.assign(1, '\0');
}

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

const sHIST_POINT* CHistoryLineParser::Parse(int kind, const HistoryFields& fields, bool extendedTrades)
{
    if (IsTickKind(kind))
        return ParseTick(fields, extendedTrades);
    if (IsIntervalKind(kind))
        return ParseInterval(fields);
    if (IsDayKind(kind))
        return ParseDay(fields);
    return nullptr;
}

const sHIST_POINT* CHistoryLineParser::ParseTick(const HistoryFields& fields, bool extendedTrades)
{
    const std::string_view basis = fields[8];
    if (basis.empty() || !ShowsBasis(basis.front(), extendedTrades))
        return nullptr;
    m_tick.Time = m_timestamp.ReadTick(fields[1]);
    m_tick.Last = TextToDouble(fields[2]);
    m_tick.LastSize = ReadUnsigned(fields[3]);
    m_tick.TotalVolume = ReadInt64(fields[4]);
    m_tick.Bid = TextToDouble(fields[5]);
    m_tick.Ask = TextToDouble(fields[6]);
    m_tick.TickId = ReadUnsigned(fields[7]);
    m_tick.Basis.front() = basis.front();
    return IfValid(m_tick);
}

const sHIST_POINT* CHistoryLineParser::ParseInterval(const HistoryFields& fields)
{
    m_interval.LastSize = ReadUnsigned(fields[7]);
    m_interval.Time = m_timestamp.ReadInterval(fields[1]);
    m_interval.High = TextToDouble(fields[2]);
    m_interval.Low = TextToDouble(fields[3]);
    m_interval.Open = TextToDouble(fields[4]);
    m_interval.Close = TextToDouble(fields[5]);
    m_interval.TotalVolume = ReadInt64(fields[6]);
    return IfValid(m_interval);
}

const sHIST_POINT* CHistoryLineParser::ParseDay(const HistoryFields& fields)
{
    m_day.OpenInterest = ReadUnsigned(fields[7]);
    m_day.Time = m_timestamp.ReadDay(fields[1]);
    m_day.High = TextToDouble(fields[2]);
    m_day.Low = TextToDouble(fields[3]);
    m_day.Open = TextToDouble(fields[4]);
    m_day.Close = TextToDouble(fields[5]);
    m_day.TotalVolume = ReadInt64(fields[6]);
    return IfValid(m_day);
}

} // namespace zantroq
