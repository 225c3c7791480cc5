// zantroq-chart with a replay script and a feed scripted by the test.
#pragma once

#include "Programs.h"

#include "support/ScriptedFeed.h"

#include <nlohmann/json.hpp>

#include <cstdio>
#include <functional>
#include <string>
#include <thread>

namespace zantroq::test {

using nlohmann::json;

// The identifier of a command, which every line of its reply begins with.
inline std::string RequestId(std::string_view command)
{
    return std::string(command.substr(command.rfind(',') + 1));
}

// Day k of a reply, from 0: open 100 + k % 10, high 2 above it, low 1 below it, close 1 above it.
inline std::string DayLine(const std::string& id, int k)
{
    const int open = 100 + k % 10;
    char text[160];
    std::snprintf(text, sizeof text, "%s,2014-%02d-%02d,%d.00,%d.00,%d.00,%d.00,%d,0\r\n", id.c_str(),
                  1 + k / 28, 1 + k % 28, open + 2, open - 1, open, open + 1, 1000 + k);
    return text;
}

// Tick k, from 0: price 100.25 + k % 7, k seconds after half past nine; every fifth without a size.
inline std::string TickLine(const std::string& id, int k)
{
    char text[160];
    std::snprintf(text, sizeof text, "%s,2014-01-02 09:%02d:%02d.000,%d.25,%d,%d,101.20,101.30,%d,C\r\n",
                  id.c_str(), 30 + k / 60, k % 60, 100 + k % 7, k % 5 == 0 ? 0 : 1500, 5000 + k, k);
    return text;
}

inline std::string MinuteLine(const std::string& id, int k)
{
    char text[160];
    std::snprintf(text, sizeof text, "%s,2014-01-02 %02d:%02d:00,%d.00,%d.00,%d.00,%d.00,%d,50\r\n",
                  id.c_str(), 10 + k / 60, k % 60, 102 + k % 10, 99 + k % 10, 100 + k % 10, 101 + k % 10,
                  5000 + k);
    return text;
}

inline std::string TradeLine(const std::string& symbol, int k)
{
    char text[200];
    std::snprintf(
        text, sizeof text,
        "Q,%s,9000,50,110,90,101,102,1,1,10:%02d:%02d.000,0,100,99,01/02/2014,105.5,14,%d,1,1,1,C,01\r\n",
        symbol.c_str(), k / 60, k % 60, 1000 + k);
    return text;
}

class CScriptedChart : public CPrograms
{
protected:
    using Line = std::string (*)(const std::string& id, int k);

    void SetUp() override
    {
        const QString key = "Software\\Zantro\\Quovex\\Startup";
        Set("LookupPort", QString::number(m_scripted.Lookup.Port()), key);
        Set("Level1Port", QString::number(m_scripted.Level1.Port()), key);
    }

    // Sets the answer to each history command: `points` lines and, with `end`, the end line.
    void Serve(int points, Line line, bool end = true)
    {
        m_scripted.Lookup.SetResponder([points, line, end](std::string_view command) {
            if (command.size() < 4 || command[0] != 'H' || command[3] != ',')
                return std::string();
            const std::string id = RequestId(command);
            std::string reply;
            for (int k = 0; k < points; ++k)
                reply += line(id, k);
            return end ? reply + id + ",!ENDMSG!,\r\n" : reply;
        });
    }

    sRun Play(const std::string& script, const QStringList& words = {})
    {
        Write("script.txt", script);
        return Chart(QStringList({"--replay", "script.txt"}) + words);
    }
    // Runs a script, which must end normally, and returns the last state that it wrote.
    json After(const std::string& script, const QStringList& words = {})
    {
        const sRun run = Play(script + "\nsnapshot end.json\n", words);
        EXPECT_EQ(run.ExitCode, 0) << run.Err;
        return State("end.json");
    }
    json State(const QString& name) const
    {
        const QByteArray bytes = Bytes(name);
        EXPECT_FALSE(bytes.isEmpty()) << name.toStdString();
        return bytes.isEmpty() ? json() : json::parse(bytes.toStdString());
    }

    void Set(const QString& name, const QString& value, const QString& key = {})
    {
        const QStringList words = key.isEmpty() ? QStringList() : QStringList{"--key", key};
        EXPECT_EQ(Settings(words + QStringList{"set", name, value}).ExitCode, 0);
    }
    // A stored value of the chart, or "(missing)".
    std::string Stored(const QString& name)
    {
        const sRun run = Settings({"get", name});
        return run.ExitCode == 0 ? run.Out.substr(0, run.Out.size() - 1) : "(missing)";
    }

    CScriptedFeed m_scripted;
};

// The pixel of a point in its pane: the area between the margins shows the range of the axes.
inline std::string PixelOf(const json& pane, double x, double y)
{
    const json &plot = pane.at("plot"), &axes = pane.at("axes");
    const json& value = axes.at("y").at("shown").get<bool>() ? axes.at("y") : axes.at("y2");
    const double left = plot.at("left"), top = plot.at("top");
    const double width = pane.at("rect").at(2).get<double>() - left - plot.at("right").get<double>();
    const double height = pane.at("rect").at(3).get<double>() - top - plot.at("bottom").get<double>();
    const double low = axes.at("x").at("viewLow"), high = axes.at("x").at("viewHigh");
    const double bottom = value.at("viewLow"), ceiling = value.at("viewHigh");
    return std::to_string(static_cast<int>(left + (x - low) / (high - low) * width)) + " " +
           std::to_string(static_cast<int>(top + (ceiling - y) / (ceiling - bottom) * height));
}

} // namespace zantroq::test
