// The print command: one page with the displayed panes stacked under a heading, as often as copies were asked
// for. What is printed are copies of the panes made when the dialog was closed. Chart window's thread.
#pragma once

#include "printing/PrintHeading.h"
#include "printing/PrintLayout.h"
#include "scene/Chart2D.h"

#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace zantroq {

// A printer, or a file that stands for one, as the print dialog hands it over.
class IPrintJob
{
public:
    virtual ~IPrintJob() = default;
    virtual int Copies() const = 0;
    virtual bool StartDocument(const std::string& name) = 0;
    virtual bool StartPage() = 0;
    // Of the page that was started.
    virtual sPrintPage Page() const = 0;
    virtual IPrintDevice& Device() = 0;
    virtual const IHeadingFont& HeadingFont() const = 0;
    virtual void DrawHeading(const sHeading& heading) = 0; // its top is the page's
    virtual void EndPage() = 0;
    virtual void EndDocument() = 0; // also for one that did not start
};

class IPrintDialog
{
public:
    virtual ~IPrintDialog() = default;
    // Modal; begins with that number of copies. Null when the user cancels. The job lives as long as the
    // dialog.
    virtual IPrintJob* Ask(int copies) = 0;
    virtual void ReturnFocus() = 0; // to who had the keyboard before
};

// What the command needs of the chart window. Pane 0 is the price pane, pane k study k.
class IPrintedChart
{
public:
    virtual ~IPrintedChart() = default;
    virtual int ShownPanes() const = 0; // hidden ones are not printed
    virtual const CChart2D& Pane(int pane) const = 0;
    virtual sPaneSize ClientSize(int pane) const = 0;
    virtual std::string Symbol() const = 0;
    virtual const sRequestSettings& Request() const = 0;
    virtual void SetStatusText(const std::string& text) = 0;
    virtual void EnableDrawChart(bool enabled) = 0;
};

class CChartPrinting
{
public:
    using Clock = std::function<sTIME_W_MILLISECONDS()>; // wall-clock time

    CChartPrinting(IPrintedChart& chart, Clock clock);

    // The whole command, from the dialog to the focus that returns. A document that does not start costs its
    // copy; a page that does not start ends the loop. The number of pages printed.
    int Run(IPrintDialog& dialog);

private:
    struct sPicture
    {
        std::vector<std::unique_ptr<CChart2D>> Panes;
        std::vector<sPaneSize> Sizes;
    };

    sPicture CopyPanes() const;
    int PrintDocuments(IPrintJob& job, const sPicture& picture) const;
    void PrintPage(IPrintJob& job, const sPicture& picture) const;

    IPrintedChart& m_chart;
    Clock m_clock;
};

} // namespace zantroq
