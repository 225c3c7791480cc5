// A printer, its dialog and a chart in memory, which record all calls in one list.
#pragma once

#include "printing/ChartPrinting.h"

#include <array>
#include <deque>
#include <string>
#include <vector>

namespace zantroq::test {

using PrintLog = std::vector<std::string>;

struct sFakeHeadingFont : IHeadingFont
{
    int Character = 100, Average = 90;
    int Width(std::string_view text) const override { return Character * static_cast<int>(text.size()); }
    int AverageWidth() const override { return Average; }
};

struct sFakePrintJob : IPrintJob, IPrintDevice
{
    explicit sFakePrintJob(PrintLog& log) : Log(log) {}

    struct sDrawn
    {
        sPageBox Box;
        ColorValue Background;
        const CChart2D* Pane;
        ColorValue Text;
        bool MarkerShown;
    };

    PrintLog& Log;
    int CopiesAsked = 1;
    std::deque<bool> DocumentAnswers, PageAnswers; // true if the list is empty
    sPrintPage Paper{4800, 6600, 600, 600};
    sFakeHeadingFont Font;
    std::vector<sDrawn> Drawn;
    std::vector<sHeading> Headings;

    static bool Next(std::deque<bool>& answers)
    {
        if (answers.empty())
            return true;
        const bool answer = answers.front();
        answers.pop_front();
        return answer;
    }

    int Copies() const override { return CopiesAsked; }
    bool StartDocument(const std::string& name) override
    {
        Log.push_back("document " + name);
        return Next(DocumentAnswers);
    }
    bool StartPage() override
    {
        Log.push_back("page");
        return Next(PageAnswers);
    }
    sPrintPage Page() const override { return Paper; }
    IPrintDevice& Device() override { return *this; }
    const IHeadingFont& HeadingFont() const override { return Font; }
    void DrawHeading(const sHeading& heading) override
    {
        Log.push_back("heading");
        Headings.push_back(heading);
    }
    void EndPage() override { Log.push_back("end page"); }
    void EndDocument() override { Log.push_back("end document"); }
    bool PaintPane(const CChart2D& pane, int left, int top, int width, int height) override
    {
        Log.push_back("pane");
        Drawn.push_back({{left, top, width, height},
                         pane.PaneInterior().Background(),
                         &pane,
                         pane.PaneInterior().Foreground(),
                         pane.PaneArea().Marker().Shown()});
        return true;
    }
};

struct sFakePrintDialog : IPrintDialog
{
    sFakePrintDialog(PrintLog& log, IPrintJob* job) : Log(log), Job(job) {}
    PrintLog& Log;
    IPrintJob* Job; // null: the user cancels
    IPrintJob* Ask(int copies) override
    {
        Log.push_back("ask " + std::to_string(copies));
        return Job;
    }
    void ReturnFocus() override { Log.push_back("focus"); }
};

struct sFakePrintedChart : IPrintedChart
{
    explicit sFakePrintedChart(PrintLog& log) : Log(log)
    {
        for (CChart2D& pane : Panes) {
            pane.PaneInterior().SetBackground(0x000000);
            pane.PaneArea().AreaBox().Width().SetValue(800);
            pane.PaneArea().AreaBox().Height().SetValue(200);
        }
    }

    PrintLog& Log;
    int Shown = 2;
    std::array<CChart2D, 3> Panes;
    std::array<sPaneSize, 3> Sizes{{{800, 300}, {800, 100}, {800, 100}}};
    sRequestSettings Settings;
    bool Note = false;

    int ShownPanes() const override { return Shown; }
    const CChart2D& Pane(int pane) const override { return Panes.at(static_cast<std::size_t>(pane)); }
    sPaneSize ClientSize(int pane) const override { return Sizes.at(static_cast<std::size_t>(pane)); }
    std::string Symbol() const override { return "MSFT"; }
    const sRequestSettings& Request() const override { return Settings; }
    bool NoteShown() const override { return Note; }
    void SetStatusText(const std::string& text) override { Log.push_back("status " + text); }
    void EnableDrawChart(bool enabled) override { Log.push_back(enabled ? "enable draw" : "disable draw"); }
};

} // namespace zantroq::test
