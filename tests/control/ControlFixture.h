// Controls on a feed that answers each request for ticks with 30 ticks, except for the symbol SLOW; settings
// in memory.
#pragma once

#include "control/ChartBody.h"
#include "market/ManagerThreadHolder.h"
#include "qt/widgets/ChartView.h"
#include "replay/ReplayMessageBox.h"
#include "support/ScriptedFeed.h"
#include "window/ChartDlg.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QTest>

#include <gtest/gtest.h>

#include <cstdio>
#include <functional>
#include <memory>
#include <string>

namespace zantroq::test {

inline bool PumpUntil(const std::function<bool()>& done, int milliseconds = 30'000)
{
    QElapsedTimer clock;
    clock.start();
    while (!done() && clock.elapsed() < milliseconds)
        QTest::qWait(5);
    return done();
}

inline std::string ThirtyTicks(std::string_view command)
{
    if (!command.starts_with("HTX,") || command.starts_with("HTX,SLOW,"))
        return {};
    const std::string id(command.substr(command.rfind(',') + 1));
    std::string reply;
    for (int k = 0; k < 30; ++k) {
        char line[160];
        std::snprintf(line, sizeof line, "%s,2014-01-02 09:30:%02d.000,%d.25,100,%d,101.20,101.30,%d,C\r\n",
                      id.c_str(), k, 100 + k % 7, 5000 + k, k);
        reply += line;
    }
    return reply + id + ",!ENDMSG!,\r\n";
}

// A trade of the symbol as a level 1 line; `k` makes trades distinct.
inline std::string TradeLine(const std::string& symbol, int k)
{
    char line[200];
    std::snprintf(
        line, sizeof line,
        "Q,%s,9000,50,110,90,101,102,1,1,10:%02d:%02d.000,0,100,99,01/02/2014,105.5,14,%d,1,1,1,C,01\r\n",
        symbol.c_str(), k / 60, k % 60, 1000 + k);
    return line;
}

class CControlFixture : public testing::Test
{
protected:
    CControlFixture() { m_feed.Lookup.SetResponder(ThirtyTicks); }

    std::unique_ptr<CChartCtrl> Make(QWidget* parent = nullptr)
    {
        sChartCtrlSetup setup;
        setup.ChartKey = m_key;
        setup.FeedKey = m_feed.Key();
        setup.Box = &m_boxes;
        setup.Popups = false;
        return CChartBody::MakeControl(parent, setup);
    }
    static CChartDlg& Window(CChartCtrl& control) { return CChartBody::Of(control).Window(); }
    static bool AwaitDrawn(CChartCtrl& control)
    {
        return PumpUntil([&control] { return Window(control).CompleteAndDrawn(); });
    }
    static int Points(CChartCtrl& control) { return Window(control).Range().knownCount; }

    CScriptedFeed m_feed;
    std::shared_ptr<ISettingsKey> m_key = MakeMemorySettingsKey();
    CReplayMessageBox m_boxes;
};

} // namespace zantroq::test
