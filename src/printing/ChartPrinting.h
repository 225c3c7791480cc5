// The print command: a page with the displayed panes stacked under a heading, once for each copy. Prints
// copies of the panes made when the dialog was closed. Chart window's thread.
#pragma once

#include "printing/PrintHeading.h"
#include "printing/PrintLayout.h"
#include "scene/Chart2D.h"

#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace zantroq {

// A printer or a file, as returned by the print dialog.
class IPrintJob
{
public:
    virtual ~IPrintJob() = default;
    virtual int Copies() const = 0;
    virtual bool StartDocument(const std::string& name) = 0;
    virtual bool StartPage() = 0;
    // The size of the started page.
    virtual sPrintPage Page() const = 0;
    virtual IPrintDevice& Device() = 0;
    virtual const IHeadingFont& HeadingFont() const = 0;
    virtual void DrawHeading(const sHeading& heading) = 0; // at the top of the page
    virtual void EndPage() = 0;
    virtual void EndDocument() = 0; // also if the document did not start
};

class IPrintDialog
{
public:
    virtual ~IPrintDialog() = default;
    // Modal; `copies` is the initial number of copies. Null if the user cancels. The job lives as long as the
    // dialog.
    virtual IPrintJob* Ask(int copies) = 0;
    virtual void ReturnFocus() = 0; // to the widget that had the focus before
};

// The interface of the chart window for the command. Pane 0 is the price pane, pane k study k.
class IPrintedChart
{
public:
    virtual ~IPrintedChart() = default;
    virtual int ShownPanes() const = 0; // hidden panes are not printed
    virtual const CChart2D& Pane(int pane) const = 0;
    virtual sPaneSize ClientSize(int pane) const = 0;
    virtual std::string Symbol() const = 0;
    virtual const sRequestSettings& Request() const = 0;
    virtual void SetStatusText(const std::string& text) = 0;
    virtual void EnableDrawChart(bool enabled) = 0;
    virtual bool NoteShown() const { return false; } // the readout at a point that was clicked
};

// How a page differs from what the panes show.
struct sPrintManner
{
    bool PaperInk = false; // colors for paper, and a marker only where a point was clicked
    std::string Notice;    // such as that the market is simulated; in the heading where not empty
};

class CChartPrinting
{
public:
    using Clock = std::function<sTIME_W_MILLISECONDS()>; // wall-clock time

    CChartPrinting(IPrintedChart& chart, Clock clock, sPrintManner manner = {});

    // Runs the command from the dialog to the return of the focus. If a document does not start, its copy is
    // omitted; if a page does not start, printing ends. Returns the number of printed pages.
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
    sPrintManner m_manner;
};

} // namespace zantroq
