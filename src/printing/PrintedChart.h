// Implements the print command's interface for a chart window. Chart window's thread.
#pragma once

#include "printing/ChartPrinting.h"

namespace zantroq {

class CChartDlg;

class CPrintedChart : public IPrintedChart
{
public:
    explicit CPrintedChart(CChartDlg& window) : m_window(window) {} // not owned

    int ShownPanes() const override;
    const CChart2D& Pane(int pane) const override;
    sPaneSize ClientSize(int pane) const override;
    std::string Symbol() const override;
    const sRequestSettings& Request() const override;
    void SetStatusText(const std::string& text) override;
    void EnableDrawChart(bool enabled) override;
    bool NoteShown() const override;

private:
    CChartDlg& m_window;
};

} // namespace zantroq
