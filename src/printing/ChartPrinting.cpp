#include "printing/ChartPrinting.h"

#include "printing/PanePrintCopy.h"
#include "printing/PaperInk.h"

#include <utility>

namespace zantroq {

namespace {

constexpr const char* DocumentName = "Chart";
constexpr int FirstCopies = 1;

// Makes the window usable again, however printing ends.
class CBusyWindow
{
public:
    explicit CBusyWindow(IPrintedChart& chart) : m_chart(chart)
    {
        m_chart.SetStatusText("Loading...");
        m_chart.SetStatusText("Print ...");
        m_chart.EnableDrawChart(false);
    }
    ~CBusyWindow()
    {
        m_chart.SetStatusText("Ready");
        m_chart.EnableDrawChart(true);
    }
    CBusyWindow(const CBusyWindow&) = delete;
    CBusyWindow& operator=(const CBusyWindow&) = delete;

private:
    IPrintedChart& m_chart;
};

} // namespace

CChartPrinting::CChartPrinting(IPrintedChart& chart, Clock clock, sPrintManner manner)
    : m_chart(chart), m_clock(std::move(clock)), m_manner(std::move(manner))
{
}

int CChartPrinting::Run(IPrintDialog& dialog)
{
    int pages = 0;
    if (IPrintJob* const job = dialog.Ask(FirstCopies)) {
        const sPicture picture = CopyPanes();
        const CBusyWindow busy(m_chart);
        pages = PrintDocuments(*job, picture);
    }
    dialog.ReturnFocus();
    return pages;
}

CChartPrinting::sPicture CChartPrinting::CopyPanes() const
{
    sPicture picture;
    for (int pane = 0; pane < m_chart.ShownPanes(); ++pane) {
        picture.Sizes.push_back(m_chart.ClientSize(pane));
        picture.Panes.push_back(MakePanePrintCopy(m_chart.Pane(pane), picture.Sizes.back()));
        if (!m_manner.PaperInk)
            continue;
        TakePaperInk(*picture.Panes.back());
        if (!m_chart.NoteShown())
            picture.Panes.back()->PaneArea().PaneMarkers("x").SetShown(false);
    }
    return picture;
}

int CChartPrinting::PrintDocuments(IPrintJob& job, const sPicture& picture) const
{
    int pages = 0;
    bool goOn = true;
    for (int copy = 0; goOn && copy < job.Copies(); ++copy) {
        if (job.StartDocument(DocumentName)) {
            goOn = job.StartPage();
            if (goOn) {
                PrintPage(job, picture);
                job.EndPage();
                ++pages;
            }
        }
        job.EndDocument();
    }
    return pages;
}

void CChartPrinting::PrintPage(IPrintJob& job, const sPicture& picture) const
{
    const sPrintPage page = job.Page();
    const std::vector<sPageBox> boxes = PlacePanesOnPage(page, picture.Sizes);
    for (std::size_t pane = 0; pane < boxes.size(); ++pane) {
        const sPageBox& box = boxes[pane];
        picture.Panes[pane]->DrawToDevice(job.Device(), 3, 4, box.Left, box.Top, box.Width, box.Height);
    }
    std::string heading = HeadingText(m_chart.Symbol(), m_chart.Request(), m_clock());
    if (!m_manner.Notice.empty())
        heading += "\t\t" + m_manner.Notice;
    job.DrawHeading(PlaceHeading(heading, job.HeadingFont(), page.PixelsPerInchX));
}

} // namespace zantroq
