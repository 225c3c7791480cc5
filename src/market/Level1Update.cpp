#include "market/Level1Update.h"

#include "market/Level1Command.h"
#include "platform/parse/LeadingNumber.h"

#include <stdexcept>

namespace zantroq {

namespace {

constexpr int SecondsPerDay = 86400;

bool HasAny(std::string_view contents, std::string_view letters)
{
    return contents.find_first_of(letters) != std::string_view::npos;
}

// True for trades that every chart takes ("C") and, with `extendedTrades`, for extended and other trades.
bool IsTrade(std::string_view contents, bool extendedTrades)
{
    return HasAny(contents, "C") || (extendedTrades && HasAny(contents, "EO"));
}

int PartAt(std::string_view text, std::size_t at, std::size_t length)
{
    return at < text.size() ? TextToInt(text.substr(at, length)) : 0;
}

int SecondsOfDay(std::string_view timeText)
{
    return PartAt(timeText, 0, 2) * 3600 + PartAt(timeText, 3, 2) * 60 + PartAt(timeText, 6, 2);
}

int SecondsOfDay(const sCALENDAR_TIME& time)
{
    return time.Hour * 3600 + time.Minute * 60 + time.Second;
}

std::string JoinedTime(const Level1Fields& fields)
{
    std::string text(fields[Level1Date]);
    text += ' ';
    text += fields[Level1Time];
    return text;
}

sTIME_W_MILLISECONDS DateOf(std::string_view text)
{
    return MakeTime({PartAt(text, 6, 4), PartAt(text, 0, 2), PartAt(text, 3, 2), 0, 0, 0});
}

sTIME_W_MILLISECONDS TradeTime(std::string_view joined)
{
    const std::size_t size = joined.size();
    sTIME_W_MILLISECONDS time = ParseDate(joined.substr(0, size >= 4 ? size - 4 : 0));
    time.Milliseconds = static_cast<std::uint16_t>(TextToInt(joined.substr(size >= 3 ? size - 3 : 0)));
    return time;
}

void MergeTick(CChartHistRequest& request, const Level1Fields& fields)
{
    const std::string_view contents = fields[Level1Contents];
    sHIST_POINT point;
    point.Basis = contents;
    if (HasAny(contents, "CEO")) {
        point.Last = TextToDouble(fields[Level1Last]);
        point.LastSize = TextToUnsigned(fields[Level1Size]);
    }
    if (!IsTrade(contents, request.HasExtendedTrades()) &&
        !(request.HasBidAskUpdates() && HasAny(contents, "ba")))
        return;
    point.TotalVolume = TextToInt64(fields[Level1TotalVolume]);
    point.Bid = TextToDouble(fields[Level1Bid]);
    point.Ask = TextToDouble(fields[Level1Ask]);
    point.TickId = TextToUnsigned(fields[Level1TickId]);
    point.BidSize = TextToUnsigned(fields[Level1BidSize]);
    point.AskSize = TextToUnsigned(fields[Level1AskSize]);
    point.Time = TradeTime(JoinedTime(fields));
    request.AppendPoint(point);
}

// MMDDYYYY as one number. It decreases at a new year, which keeps a chart on its old bar; this is intended.
int DateDigits(std::string_view date)
{
    std::string digits;
    for (const char c : date)
        if (c != '/')
            digits += c;
    return TextToInt(digits);
}

// True if a trade opens a new bar. A bar is stamped with its end, so a trade in that second belongs to the
// next bar.
bool OpensBar(const sTIME_W_MILLISECONDS& lastBar, std::string_view tradeDate, int tradeSeconds)
{
    const std::string barDate = FormatTime(lastBar, "%m/%d/%Y");
    if (barDate == tradeDate) {
        sCALENDAR_TIME parts;
        VariantTimeToSystemTime(lastBar.Time, parts);
        return tradeSeconds >= SecondsOfDay(parts);
    }
    return DateDigits(tradeDate) > DateDigits(barDate);
}

sTIME_W_MILLISECONDS MidnightEnd(const Level1Fields& fields)
{
    std::string text = JoinedTime(fields);
    text.erase(text.find_last_not_of("tTbao") + 1);
    sTIME_W_MILLISECONDS time = ParseDate(text);
    if (time.Status == TimeValid)
        time.Time += 1;
    return time;
}

// The end of the interval that contains a trade. It keeps the date of the last bar, even for the first bar of
// a day, until an interval ends at midnight. Without a last bar, the date of the trade is used.
sTIME_W_MILLISECONDS BarEnd(const sTIME_W_MILLISECONDS* lastBar, const Level1Fields& fields, int end)
{
    if (end == SecondsPerDay)
        return MidnightEnd(fields);
    sCALENDAR_TIME parts;
    const sTIME_W_MILLISECONDS date = lastBar ? *lastBar : DateOf(fields[Level1Date]);
    if (date.Status != TimeValid || !VariantTimeToSystemTime(date.Time, parts))
        return {0, TimeInvalid, 0};
    parts.Hour = end / 3600;
    parts.Minute = end / 60 % 60;
    parts.Second = end % 60;
    return MakeTime(parts);
}

int IntervalEnd(int tradeSeconds, int intervalSeconds)
{
    if (intervalSeconds <= 0)
        throw std::invalid_argument("interval below one second");
    const std::int64_t end =
        (static_cast<std::int64_t>(tradeSeconds) / intervalSeconds + 1) * intervalSeconds;
    // No time of day exceeds midnight; the limit only prevents an overflow.
    return static_cast<int>(end > 2 * SecondsPerDay ? 2 * SecondsPerDay : end);
}

void Widen(sHIST_POINT& bar, double price)
{
    if (price > bar.High)
        bar.High = price;
    if (price < bar.Low)
        bar.Low = price;
}

void MergeInterval(CChartHistRequest& request, const Level1Fields& fields)
{
    if (!IsTrade(fields[Level1Contents], request.HasExtendedTrades()))
        return;
    sHIST_POINT point;
    const int last = request.GetLastIndex(FieldTime);
    const bool first = last < 0;
    if (!first)
        request.GetPoint(last, point);
    const double price = TextToDouble(fields[Level1Last]);
    const int tradeSeconds = SecondsOfDay(fields[Level1Time]);
    const std::uint32_t size = TextToUnsigned(fields[Level1Size]);
    const std::uint32_t totalVolume = TextToUnsigned(fields[Level1TotalVolume]);
    if (first || OpensBar(point.Time, fields[Level1Date], tradeSeconds)) {
        const int end = IntervalEnd(tradeSeconds, request.GetIntervalSeconds());
        point.Time = BarEnd(first ? nullptr : &point.Time, fields, end);
        point.Open = point.High = point.Low = point.Close = price;
        point.LastSize = size;
        point.TotalVolume = totalVolume;
        request.AppendPoint(point);
        return;
    }
    Widen(point, price);
    point.Close = price;
    point.LastSize += size;
    point.TotalVolume = totalVolume;
    request.UpdatePoint(last, point);
}

// Takes the day's values from the feed; a day without values starts at the trade's price.
void TakeDayValues(sHIST_POINT& point, const Level1Fields& fields, double price)
{
    point.High = TextToDouble(fields[Level1High]);
    point.Low = TextToDouble(fields[Level1Low]);
    point.Open = TextToDouble(fields[Level1Open]);
    if (point.High == 0 && point.Low == 0 && point.Open == 0 && price != 0)
        point.High = point.Low = point.Open = price;
}

void MergeDay(CChartHistRequest& request, char messageType, const Level1Fields& fields)
{
    const int last = request.GetLastIndex(FieldTime);
    if (last < 0)
        return;
    sHIST_POINT point;
    request.GetPoint(last, point);
    const sTIME_W_MILLISECONDS tradeDate = DateOf(fields[Level1Date]);
    const std::string_view contents = fields[Level1Contents];
    const bool newDay = IsAfter(tradeDate, point.Time);
    if (!IsTrade(contents, request.HasExtendedTrades()) || (messageType == 'P' && !newDay))
        return;
    const double price = TextToDouble(fields[Level1Last]);
    if (HasAny(contents, "C"))
        TakeDayValues(point, fields, price);
    else
        Widen(point, price);
    point.Close = price;
    point.TotalVolume = TextToInt64(fields[Level1TotalVolume]);
    point.OpenInterest = TextToUnsigned(fields[Level1OpenInterest]);
    if (newDay) {
        point.Time = tradeDate;
        request.AppendPoint(point);
    } else {
        request.UpdatePoint(last, point);
    }
}

} // namespace

void ApplyFundamental(CChartHistRequest& request, const Level1Fields& fields)
{
    if (request.UsesExchangeFormat())
        request.SetPriceFormat(TextToInt(fields[FundamentalFormat]));
    else
        request.SetPriceFormat(static_cast<std::int32_t>(
            static_cast<std::uint32_t>(TextToInt(fields[FundamentalPrecision])) + 10u));
}

void MergeUpdate(CChartHistRequest& request, char messageType, const Level1Fields& fields)
{
    const bool trade = messageType == 'Q', summary = messageType == 'P';
    if ((!trade && !summary) || !request.AcceptsUpdates())
        return;
    const int kind = request.GetRequestKind();
    if (trade && IsTickKind(kind))
        MergeTick(request, fields);
    else if (trade && IsIntervalKind(kind))
        MergeInterval(request, fields);
    else if (IsDayKind(kind))
        MergeDay(request, messageType, fields);
}

} // namespace zantroq
