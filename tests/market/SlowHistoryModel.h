// A slow, plain model of history replies and live updates with strings and streams, written independently of
// the code that it checks.
#pragma once

#include "market/HistoryRecords.h"

#include <cstdlib>
#include <sstream>
#include <string>
#include <vector>

namespace zantroq::test {

inline std::vector<std::string> PlainSplit(const std::string& line)
{
    std::vector<std::string> fields(1);
    for (const char c : line) {
        if (c == ',')
            fields.emplace_back();
        else
            fields.back() += c;
    }
    return fields;
}

struct sPlainBar
{
    std::string Date, Time; // MM/DD/YYYY, HH:MM:SS
    double Open = 0, High = 0, Low = 0, Close = 0;
    long long Volume = 0, Total = 0;
    bool operator==(const sPlainBar&) const = default;
};

// An interval chart with live trades; times are texts and whole seconds.
class CPlainIntervals
{
public:
    CPlainIntervals(int seconds, bool extended) : m_seconds(seconds), m_extended(extended) {}
    std::vector<sPlainBar> Bars;

    static int Seconds(const std::string& time)
    {
        return std::atoi(time.substr(0, 2).c_str()) * 3600 + std::atoi(time.substr(3, 2).c_str()) * 60 +
               std::atoi(time.substr(6, 2).c_str());
    }
    static std::string Clock(int seconds)
    {
        char text[40];
        std::snprintf(text, sizeof text, "%02d:%02d:%02d", seconds / 3600, seconds / 60 % 60, seconds % 60);
        return text;
    }
    static long Digits(const std::string& date)
    {
        return std::atol((date.substr(0, 2) + date.substr(3, 2) + date.substr(6)).c_str());
    }

    void Trade(const std::string& date, const std::string& time, double price, long long size,
               long long total, const std::string& contents)
    {
        const bool normal = contents.find('C') != std::string::npos;
        const bool other = contents.find('E') != std::string::npos || contents.find('O') != std::string::npos;
        if (!normal && !(m_extended && other))
            return;
        const int seconds = Seconds(time);
        bool fresh = Bars.empty();
        if (!fresh) {
            const sPlainBar& last = Bars.back();
            fresh = last.Date == date ? seconds >= Seconds(last.Time) : Digits(date) > Digits(last.Date);
        }
        if (fresh) {
            const int end = (seconds / m_seconds + 1) * m_seconds;
            sPlainBar bar;
            bar.Open = bar.High = bar.Low = bar.Close = price;
            bar.Volume = size;
            bar.Total = total;
            if (end == 86400) {
                bar.Date = NextDay(date);
                bar.Time = time.substr(0, 8);
            } else {
                bar.Date = Bars.empty() ? date : Bars.back().Date;
                bar.Time = Clock(end);
            }
            Bars.push_back(bar);
            return;
        }
        sPlainBar& bar = Bars.back();
        bar.High = price > bar.High ? price : bar.High;
        bar.Low = price < bar.Low ? price : bar.Low;
        bar.Close = price;
        bar.Volume += size;
        bar.Total = total;
    }

    // The dates of the test run from 29 January to 3 February 2014.
    static std::string NextDay(const std::string& date)
    {
        const int month = std::atoi(date.substr(0, 2).c_str()), day = std::atoi(date.substr(3, 2).c_str());
        char text[40];
        if (month == 1 && day == 31)
            return "02/01/2014";
        std::snprintf(text, sizeof text, "%02d/%02d/2014", month, day + 1);
        return text;
    }

private:
    int m_seconds;
    bool m_extended;
};

} // namespace zantroq::test
