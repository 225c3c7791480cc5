// Random replies and random live traffic compared with slow, plain models.
#include "market/LineCutter.h"
#include "market/SeriesFixture.h"
#include "market/SlowHistoryModel.h"
#include "platform/parse/LeadingNumber.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <optional>
#include <rapidcheck/gtest.h>

using namespace zantroq;
using namespace zantroq::test;

namespace {

struct sTick
{
    std::string Time;
    double Last, Bid, Ask;
    std::uint32_t Size, Id;
    std::int64_t Total;
    char Basis;
    bool operator==(const sTick&) const = default;
};

std::vector<sTick> Ticks(const CChartHistRequest& request)
{
    std::vector<sTick> ticks;
    for (int i = 0; i < request.GetCount(0); ++i) {
        sHIST_POINT point;
        request.GetPoint(i, point);
        char milliseconds[8];
        std::snprintf(milliseconds, sizeof milliseconds, ".%03d", point.Time.Milliseconds);
        ticks.push_back({FormatTime(point.Time, "%Y-%m-%d %H:%M:%S") + milliseconds, point.Last, point.Bid,
                         point.Ask, point.LastSize, point.TickId, point.TotalVolume, point.Basis.at(0)});
    }
    return ticks;
}

std::string Digits(int value, int width)
{
    char text[16];
    std::snprintf(text, sizeof text, "%0*d", width, value);
    return text;
}

// Time stamps, some of which name days and times that do not exist.
rc::Gen<std::string> Stamp()
{
    return rc::gen::map(rc::gen::tuple(rc::gen::inRange(1, 14), rc::gen::inRange(0, 34),
                                       rc::gen::inRange(0, 26), rc::gen::inRange(0, 62),
                                       rc::gen::inRange(0, 1000)),
                        [](const std::tuple<int, int, int, int, int>& t) {
                            return "2014-" + Digits(std::get<0>(t), 2) + "-" + Digits(std::get<1>(t), 2) +
                                   " " + Digits(std::get<2>(t), 2) + ":" + Digits(std::get<3>(t), 2) +
                                   ":30." + Digits(std::get<4>(t), 3);
                        });
}

std::string NumberOrJunk()
{
    return *rc::gen::oneOf(
        rc::gen::map(rc::gen::inRange(0, 1000000), [](int v) { return std::to_string(v / 100.0); }),
        rc::gen::element<std::string>("", "x", "-5", "1e3", " 7.5y", "99999999999999", "."));
}

bool StampExists(const std::string& stamp)
{
    static constexpr int Lengths[] = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
    const int month = std::stoi(stamp.substr(5, 2)), day = std::stoi(stamp.substr(8, 2));
    return month <= 12 && day >= 1 && day <= Lengths[month - 1] && std::stoi(stamp.substr(11, 2)) < 24 &&
           std::stoi(stamp.substr(14, 2)) < 60;
}

std::uint32_t PlainUnsigned(const std::string& text)
{
    const long long value = std::strtoll(text.c_str(), nullptr, 10);
    return value > 4294967295LL ? 4294967295u : static_cast<std::uint32_t>(value);
}

// The points of a tick reply, line by line.
std::vector<sTick> PlainTicks(const std::vector<std::string>& lines, bool extended)
{
    std::vector<sTick> ticks;
    for (const std::string& line : lines) {
        const auto f = PlainSplit(line);
        if (f.size() < 9 || f[1].empty() || f[1][0] == '!' || f[1][0] == 'E')
            continue;
        const std::string basis = f[8].substr(0, 1);
        if (basis != "C" && !(extended && (basis == "E" || basis == "O")))
            continue;
        if (!StampExists(f[1]))
            continue;
        ticks.push_back({f[1], std::atof(f[2].c_str()), std::atof(f[5].c_str()), std::atof(f[6].c_str()),
                         PlainUnsigned(f[3]), PlainUnsigned(f[7]), std::atoll(f[4].c_str()), basis[0]});
    }
    return ticks;
}

void Deliver(CSeriesFixture& chart, const std::string& text, const std::function<std::size_t()>& nextCut)
{
    CLineCutter cutter(CLineCutter::LookupCapacity);
    for (std::size_t at = 0; at < text.size();) {
        const std::size_t size = std::min({nextCut(), text.size() - at, cutter.Room().size()});
        std::copy_n(text.data() + at, size, cutter.Room().data());
        at += size;
        cutter.Received(static_cast<int>(size), [&](std::string_view line) {
            try {
                chart.LineOfMany(std::string(line));
            } catch (const std::invalid_argument&) {
            }
        });
        chart.EndOfLines();
    }
}

} // namespace

RC_GTEST_PROP(HistoryReplyAgainstModel, AnyReplyCutAnywhereGivesTheModelsSeries, ())
{
    const bool extended = *rc::gen::arbitrary<bool>();
    CSeriesFixture whole(0), cut(0);
    whole.Request().SetExtendedTrades(extended);
    cut.Request().SetExtendedTrades(extended);
    std::vector<std::string> lines;
    const int count = *rc::gen::inRange(0, 40);
    for (int i = 0; i < count; ++i) {
        std::string line = "," + *Stamp();
        for (int field = 2; field < 8; ++field)
            line += ',' + NumberOrJunk();
        line += ',' + *rc::gen::element<std::string>("C", "C", "C", "E", "O", "b", "", "CE");
        if (*rc::gen::inRange(0, 8) == 0)
            line.resize(*rc::gen::inRange<std::size_t>(0, line.size())); // a line that lost its end
        lines.push_back(line);
    }
    std::string wholeText, cutText;
    for (const std::string& line : lines) {
        const std::string end = *rc::gen::element<std::string>("\n", "\r", "\r\n", "\r\n\r\n");
        wholeText += whole.Identifier(0) + line + end;
        cutText += cut.Identifier(0) + line + end;
    }
    Deliver(whole, wholeText, [&] { return wholeText.size(); });
    Deliver(cut, cutText, [&] { return *rc::gen::inRange<std::size_t>(1, 90); });
    RC_ASSERT(Ticks(cut.Request()) == Ticks(whole.Request()));
    std::vector<std::string> complete;
    for (const std::string& line : lines)
        if (PlainSplit(line).size() >= 2 && PlainSplit(line)[1].size() >= 19)
            complete.push_back(line);
    RC_ASSERT(Ticks(whole.Request()) == PlainTicks(complete, extended));
}

RC_GTEST_PROP(HistoryReplyAgainstModel, AnyReplyOfBarsCutAnywhereGivesTheModelsSeries, ())
{
    const int kind = *rc::gen::inRange(3, 10);
    const bool days = IsDayKind(kind);
    CSeriesFixture chart(kind);
    std::string text;
    struct sBar
    {
        std::string Time;
        double Open, High, Low, Close;
        std::int64_t Total;
        std::uint32_t Last;
        bool operator==(const sBar&) const = default;
    };
    std::vector<sBar> model;
    const int count = *rc::gen::inRange(0, 40);
    for (int i = 0; i < count; ++i) {
        std::string stamp = *Stamp();
        if (days)
            stamp.resize(*rc::gen::element<std::size_t>(10, 10, 19, 23));
        std::string line = stamp;
        for (int field = 2; field < 8; ++field)
            line += ',' + NumberOrJunk();
        if (*rc::gen::inRange(0, 8) == 0)
            line.resize(*rc::gen::inRange<std::size_t>(stamp.size(), line.size())); // it lost its end
        text += chart.Identifier(kind) + ',' + line + *rc::gen::element<std::string>("\n", "\r", "\r\n");
        const auto f = PlainSplit(line); // from field 1 on
        if (f.size() < 7 || !StampExists(days ? stamp.substr(0, 10) + " 00:00:00" : stamp))
            continue;
        const auto price = [&](std::size_t field) { return std::atof(f[field - 1].c_str()); };
        model.push_back({days ? stamp.substr(0, 10) + " 00:00:00" : stamp.substr(0, 19), price(4), price(2),
                         price(3), price(5), std::atoll(f[5].c_str()), PlainUnsigned(f[6])});
    }
    Deliver(chart, text, [&] { return *rc::gen::inRange<std::size_t>(1, 90); });
    RC_ASSERT(chart.Count() == static_cast<int>(model.size()));
    for (int i = 0; i < chart.Count(); ++i) {
        const sHIST_POINT point = chart.Point(i);
        const sBar bar{chart.TimeText(i),
                       point.Open,
                       point.High,
                       point.Low,
                       point.Close,
                       point.TotalVolume,
                       days ? point.OpenInterest : point.LastSize};
        RC_ASSERT(point.Time.Milliseconds == 0);
        RC_ASSERT(bar == model[static_cast<std::size_t>(i)]);
    }
}

RC_GTEST_PROP(Level1AgainstModel, RandomTradesMakeTheModelsBars, ())
{
    const int seconds = *rc::gen::element(60, 300, 2700, 7200);
    const bool extended = *rc::gen::arbitrary<bool>();
    CSeriesFixture chart(3);
    chart.Request().SetIntervalSeconds(seconds);
    chart.Request().SetExtendedTrades(extended);
    chart.Complete();
    CPlainIntervals model(seconds, extended);
    int clock = *rc::gen::inRange(0, 86400);
    int day = 0;
    static const char* const Days[] = {"01/29/2014", "01/30/2014", "01/31/2014", "02/01/2014"};
    const int count = *rc::gen::inRange(0, 120);
    for (int i = 0; i < count; ++i) {
        clock += *rc::gen::element(0, 1, 30, 59, 600, 4000, -100);
        if (clock >= 86400 && day < 3)
            ++day;
        clock = (clock % 86400 + 86400) % 86400;
        const std::string time = CPlainIntervals::Clock(clock) + ".125";
        const double price = *rc::gen::inRange(100, 200) / 4.0;
        const int size = *rc::gen::inRange(0, 1000);
        const std::string contents = *rc::gen::element<std::string>("C", "C", "Cba", "E", "O", "ba", "");
        chart.Live(zantroq::test::Trade(Days[day], time, std::to_string(price), std::to_string(size),
                                        contents, std::to_string(i)));
        model.Trade(Days[day], time, price, size, i, contents);
    }
    RC_ASSERT(chart.Count() == static_cast<int>(model.Bars.size()));
    for (int i = 0; i < chart.Count(); ++i) {
        const sHIST_POINT point = chart.Point(i);
        const sPlainBar bar{FormatTime(point.Time, "%m/%d/%Y"),
                            FormatTime(point.Time, "%H:%M:%S"),
                            point.Open,
                            point.High,
                            point.Low,
                            point.Close,
                            point.LastSize,
                            point.TotalVolume};
        RC_ASSERT(bar == model.Bars[static_cast<std::size_t>(i)]);
    }
}

RC_GTEST_PROP(Level1AgainstModel, RandomTradesMakeTheModelsDays, ())
{
    const bool extended = *rc::gen::arbitrary<bool>();
    CSeriesFixture chart(6);
    chart.Request().SetExtendedTrades(extended);
    chart.Feed("2014-01-10,11,9,10,10.5,1000,3");
    chart.Complete();
    struct sDay
    {
        int Date;
        double Open, High, Low, Close;
        bool operator==(const sDay&) const = default;
    };
    std::vector<sDay> model{{10, 10, 11, 9, 10.5}};
    const int count = *rc::gen::inRange(0, 60);
    for (int i = 0; i < count; ++i) {
        const int date = *rc::gen::inRange(8, 31);
        const double price = *rc::gen::inRange(0, 40) / 2.0;
        const int high = *rc::gen::element(0, 30), low = *rc::gen::element(0, 5),
                  open = *rc::gen::element(0, 12);
        const std::string contents = *rc::gen::element<std::string>("C", "E", "Ob", "CE", "a");
        const std::string type = *rc::gen::element<std::string>("Q", "Q", "P", "T");
        chart.Live(zantroq::test::Trade("01/" + Digits(date, 2) + "/2014", "12:00:00.000",
                                        std::to_string(price), "1", contents)
                       .Set(0, type)
                       .Set(4, std::to_string(high))
                       .Set(5, std::to_string(low))
                       .Set(12, std::to_string(open)));
        const bool closing = contents.find('C') != std::string::npos;
        const bool later = date > model.back().Date;
        if (type == "T" || (type == "P" && !later) || contents == "a" || (!closing && !extended))
            continue;
        sDay bar = model.back();
        if (closing) {
            bar = {bar.Date, double(open), double(high), double(low), 0};
            if (open == 0 && high == 0 && low == 0 && price != 0)
                bar.Open = bar.High = bar.Low = price;
        } else {
            bar.High = std::max(bar.High, price);
            bar.Low = std::min(bar.Low, price);
        }
        bar.Close = price;
        if (later) {
            bar.Date = date;
            model.push_back(bar);
        } else {
            model.back() = bar;
        }
    }
    RC_ASSERT(chart.Count() == static_cast<int>(model.size()));
    for (int i = 0; i < chart.Count(); ++i) {
        const sHIST_POINT point = chart.Point(i);
        const sDay bar{TextToInt(FormatTime(point.Time, "%d")), point.Open, point.High, point.Low,
                       point.Close};
        RC_ASSERT(bar == model[static_cast<std::size_t>(i)]);
    }
}

// Live lines of all types before and after the end of a reply: before it, only the newest counts.
RC_GTEST_PROP(Level1AgainstModel, RandomTradesAroundALoadMakeTheModelsTicks, ())
{
    const bool extended = *rc::gen::arbitrary<bool>();
    CSeriesFixture chart(0);
    chart.Request().SetExtendedTrades(extended);
    const int count = *rc::gen::inRange(0, 40), end = *rc::gen::inRange(0, count + 1);
    std::vector<sTick> model;
    struct sLive
    {
        sTick Tick;
        bool Counts;
    };
    std::optional<sLive> kept;
    for (int i = 0; i <= count; ++i) {
        if (i == end) {
            chart.Complete();
            if (kept && kept->Counts)
                model.push_back(kept->Tick);
        }
        if (i == count)
            break;
        const std::string contents = *rc::gen::element<std::string>("C", "Cba", "E", "bO", "ba", "", "v");
        const std::string type = *rc::gen::element<std::string>("Q", "Q", "Q", "P", "T", "F", "X");
        const std::string clock = CPlainIntervals::Clock(*rc::gen::inRange(0, 86400));
        const std::string date = *rc::gen::element<std::string>("01/02/2014", "02/28/2014");
        const int price = *rc::gen::inRange(0, 1000), size = *rc::gen::inRange(0, 1000);
        auto line = zantroq::test::Trade(date, clock + ".125", std::to_string(price / 8.0),
                                         std::to_string(size), contents, std::to_string(i));
        line.Set(0, type)
            .Set(6, std::to_string(price))
            .Set(7, std::to_string(size))
            .Set(17, std::to_string(i));
        if (type == "F")
            line.Set(22, std::string(18, ',')); // as long as such a line is
        chart.Live(line);
        if (type == "F")
            continue;
        const bool closing = contents.find('C') != std::string::npos;
        const bool other = contents.find_first_of("EO") != std::string::npos;
        const sLive live{{"2014-" + date.substr(0, 2) + "-" + date.substr(3, 2) + " " + clock + ".125",
                          price / 8.0, double(price), double(size), static_cast<std::uint32_t>(size),
                          static_cast<std::uint32_t>(i), i, contents.empty() ? '\0' : contents[0]},
                         type == "Q" && (closing || (extended && other))};
        if (i < end)
            kept = live;
        else if (live.Counts)
            model.push_back(live.Tick);
    }
    RC_ASSERT(Ticks(chart.Request()) == model);
}

RC_GTEST_PROP(RangeCheckAgainstModel, NumbersAdmitWhatTheTextsAdmit, ())
{
    const auto bound = [](const char* format, int width) {
        return *rc::gen::oneOf(rc::gen::just(std::string()),
                               rc::gen::element<std::string>("1", "x", "2014010", "20140105x"),
                               rc::gen::map(rc::gen::inRange(0, width == 8 ? 20 : 24), [=](int value) {
                                   char text[16];
                                   std::snprintf(text, sizeof text, format, value);
                                   return std::string(text);
                               }));
    };
    sSeriesBounds bounds;
    CSeriesBound* const all[] = {&bounds.BeginDate,       &bounds.EndDate, &bounds.BeginTime,
                                 &bounds.BeginFilterTime, &bounds.EndTime, &bounds.EndFilterTime};
    std::string texts[6];
    for (int i = 0; i < 6; ++i) {
        texts[i] = i < 2 ? bound("201401%02d", 8) : bound("%02d3000", 6);
        all[i]->Set(texts[i]);
    }
    bounds.Update();
    const sTIME_W_MILLISECONDS time =
        MakeTime({*rc::gen::element(2014, 2013, 150), 1, *rc::gen::inRange(1, 22), *rc::gen::inRange(0, 24),
                  30, *rc::gen::inRange(0, 2)});
    const std::string date = FormatTime(time, "%Y%m%d"), clock = FormatTime(time, "%H%M%S");
    const bool expected =
        !((!texts[0].empty() && date < texts[0]) || (!texts[1].empty() && date > texts[1]) ||
          (!texts[2].empty() && clock < texts[2]) || (!texts[3].empty() && clock < texts[3]) ||
          (!texts[4].empty() && clock > texts[4]) || (!texts[5].empty() && clock > texts[5]));
    RC_ASSERT(bounds.Admits(time) == expected);
}
