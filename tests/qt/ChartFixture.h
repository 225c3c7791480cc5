// A chart control on a feed inside the test, with settings in memory and its own recording: 100 days, of
// which day n (from 1) has open n, high n + 2, low n - 1, close n + 1 and volume 1000 n.
#pragma once

#include "control/ChartBody.h"
#include "feed/server/FeedServer.h"
#include "market/ZantroPorts.h"
#include "qt/widgets/ChartView.h"
#include "replay/ReplayMessageBox.h"
#include "window/ChartDlg.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QTemporaryDir>
#include <QTest>

#include <gtest/gtest.h>

#include <cstdio>
#include <fstream>
#include <functional>

namespace zantroq::test {

inline bool PumpUntil(const std::function<bool()>& done, int milliseconds = 20'000)
{
    QElapsedTimer clock;
    clock.start();
    while (!done() && clock.elapsed() < milliseconds)
        QTest::qWait(5);
    return done();
}

class CChartFixture : public testing::Test
{
protected:
    static constexpr int Days = 100;

    void SetUp() override
    {
        WriteRecording(m_folder.filePath("TEST.daily.csv").toStdString());
        feed::sFEED_OPTIONS options;
        options.Folders.emplace_back(m_folder.path().toStdString());
        m_feed = std::make_unique<feed::CFeedServer>(options);
        std::string error;
        ASSERT_TRUE(m_feed->Start(error)) << error;
        MakeChart();
    }

    void MakeChart()
    {
        m_chart.reset();
        sChartCtrlSetup setup;
        setup.ChartKey = m_key;
        setup.FeedKey = MakePortKey(m_feed->LookupPort(), m_feed->Level1Port());
        setup.Box = &m_boxes;
        setup.Popups = m_popups;
        m_chart = CChartBody::MakeControl(nullptr, setup);
        Body().SetClientSize({700, 500});
    }

    // Draws daily bars of the recording, 30 displayed points, with the scroll bar at its limit: at 71 the
    // last point is at the right end, as it is at 70.
    void Draw()
    {
        Window().Services().Type.Select(DailyData);
        Window().OnDataTypeChanged(0);
        m_chart->SetStockSymbol("TEST");
        ASSERT_TRUE(PumpUntil([this] { return Window().CompleteAndDrawn(); }));
        while (Window().Range().ptsIndex > 0)
            Window().OnCommand(CommandZoomIn);
        Window().OnHScroll(ScrollCode::RightEnd, 0);
        ASSERT_EQ(Window().Range().shown, 30);
        ASSERT_EQ(Window().Range().last, Days - 1);
    }

    CChartBody& Body() { return CChartBody::Of(*m_chart); }
    CChartDlg& Window() { return Body().Window(); }
    CChartView& View() { return Body().View(); }

    QTemporaryDir m_folder;
    std::unique_ptr<feed::CFeedServer> m_feed;
    std::shared_ptr<ISettingsKey> m_key = MakeMemorySettingsKey();
    CReplayMessageBox m_boxes;
    std::unique_ptr<CChartCtrl> m_chart;
    bool m_popups = true;

private:
    static void WriteRecording(const std::string& path)
    {
        std::ofstream file(path);
        file << "date,open,high,low,close,volume,open_interest\n";
        for (int day = 1; day <= Days; ++day) {
            char date[16];
            std::snprintf(date, sizeof date, "2020-%02d-%02d", 1 + (day - 1) / 28, 1 + (day - 1) % 28);
            file << date << ',' << day << ',' << day + 2 << ',' << day - 1 << ',' << day + 1 << ','
                 << 1000 * day << ",0\n";
        }
    }
};

} // namespace zantroq::test
