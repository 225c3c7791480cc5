// A whole chart window with a desktop in memory and a feed that answers when the test says so.
#pragma once

#include "WindowFakes.h"

#include "studies/StudyFactory.h"
#include "support/UnreliableKey.h"
#include "window/ChartDlg.h"
#include "window/ContextMenus.h"

namespace zantroq::test {

struct sChartFixture
{
    explicit sChartFixture(bool initialise = true, bool fakeTrends = false)
    {
        Setup.Dialogs = &Dialogs;
        if (fakeTrends)
            Setup.Trends = &Trends;
        if (initialise)
            Start();
    }
    void Start()
    {
        Window = std::make_unique<CChartDlg>(Setup);
        Window->Initialise();
    }
    void Type(const std::string& symbol)
    {
        Desktop.Symbol.Edit = symbol;
        Desktop.Symbol.Selected = -1;
        Window->OnSymbolChanged();
    }
    // Requests a chart and answers with daily or tick points whose closes count up from 100.
    void Chart(const std::string& symbol, int points)
    {
        Type(symbol);
        Window->OnCommand(CommandDrawChart);
        Reply(points);
        Tick();
    }
    void Reply(int points)
    {
        Append(points);
        Feed.Sent->SetComplete(true);
    }
    void Append(int points)
    {
        for (int k = 0; k < points; ++k) {
            const int n = Window->Series()->GetCount(FieldTime);
            sHIST_POINT point;
            point.Time.Time = 41641.0 + n;
            point.Last = point.Close = point.Open = 100 + n % 10;
            point.High = point.Close + 1;
            point.Low = point.Close - 1;
            point.LastSize = 10;
            point.TotalVolume = 1000;
            Window->Series()->AppendPoint(point);
        }
    }
    void Tick() { Window->OnTimer(ProgressTimer); }
    std::string Status() const { return Window->StatusPart(0); }
    bool DrawEnabled() const { return Desktop.Commands.IsEnabled(CommandDrawChart); }

    struct sDialogs : IWindowDialogs
    {
        std::optional<std::string> Symbol;
        bool HasSymbolSearch() const override { return true; }
        void OpenSymbolSearch(SymbolChosen done) override
        {
            if (Symbol)
                done(*Symbol);
        }
    };

    sFakeDesktop Desktop;
    sFakeFeed Feed;
    sFakeTrends Trends;
    sDialogs Dialogs;
    CStudyFactory Studies;
    std::unique_ptr<sUnreliableKey> Key = std::make_unique<sUnreliableKey>();
    sChartDlgSetup Setup{Desktop.Services(), *Key, Feed, &Studies};
    std::unique_ptr<CChartDlg> Window;
};

// The daily or interval data type stored before the window starts.
inline std::unique_ptr<sChartFixture> ChartOf(int dataType, bool fakeTrends = false)
{
    auto chart = std::make_unique<sChartFixture>(false, fakeTrends);
    chart->Key->Write("RequestDataType", std::to_string(dataType));
    chart->Start();
    return chart;
}

} // namespace zantroq::test
