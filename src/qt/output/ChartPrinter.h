// The print command with this desktop's printers, and onto PDF files. Chart window's thread.
#pragma once

#include "printing/ChartPrinting.h"
#include "qt/output/PageJob.h"

#include <QPageLayout>
#include <QString>

class QWidget;

namespace zantroq {

class CChartDlg;

// Wall-clock time of this machine, where it stands.
sTIME_W_MILLISECONDS PrintTime();

struct sPdfPaper
{
    // A4 upright with margins of 10 mm.
    QPageLayout Layout{QPageSize(QPageSize::A4), QPageLayout::Portrait, QMarginsF(10, 10, 10, 10),
                       QPageLayout::Millimeter};
    int Copies = 1; // pages of the one file
};

class CChartPrinter
{
public:
    explicit CChartPrinter(IPrintedChart& chart, CChartPrinting::Clock clock = PrintTime,
                           const sPrintFonts& fonts = {});

    // The desktop's print dialog, then the printer or file chosen there. The dialog stands over the parent,
    // and the widget that had the keyboard gets it back. Empty, also when the dialog is cancelled, or one
    // sentence that says what is wrong and what to do. Whoever looks sees the old file or the new one.
    QString PrintWithDialog(QWidget* parent);

    // As if the dialog had been closed with OK on this file. Whoever looks sees the old file or the new one.
    // Empty, or one sentence that names the path and says what is wrong.
    QString PrintToPdf(const QString& path, const sPdfPaper& paper = {});

private:
    IPrintedChart& m_chart;
    CChartPrinting::Clock m_clock;
    sPrintFonts m_fonts;
};

// The print command of a chart window; what went wrong is told in a message box.
void PrintWithDialog(CChartDlg& window, QWidget* parent);
QString PrintToPdf(CChartDlg& window, const QString& path);

} // namespace zantroq
