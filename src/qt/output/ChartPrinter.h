// The print command for the desktop's printers and for PDF files. Chart window's thread.
#pragma once

#include "printing/ChartPrinting.h"
#include "qt/output/PageJob.h"

#include <QPageLayout>
#include <QString>

class QWidget;

namespace zantroq {

class CChartDlg;

// The local time of this machine.
sTIME_W_MILLISECONDS PrintTime();

struct sPdfPaper
{
    // A4, portrait, with margins of 10 mm.
    QPageLayout Layout{QPageSize(QPageSize::A4), QPageLayout::Portrait, QMarginsF(10, 10, 10, 10),
                       QPageLayout::Millimeter};
    int Copies = 1; // as further pages of the file
};

// What the programs of this project add to the plain page.
struct sPrintConveniences
{
    bool On = false; // colors for paper, and paper across for a chart that is wider than high
    QString Notice;  // in the heading while on
};

class CChartPrinter
{
public:
    explicit CChartPrinter(IPrintedChart& chart, CChartPrinting::Clock clock = PrintTime,
                           const sPrintFonts& fonts = {}, sPrintConveniences conveniences = {});

    // Opens the desktop's print dialog over `parent`, then prints to the chosen printer or file and returns
    // the focus to the widget that had it. A file is replaced only when it is complete. Returns an empty
    // text, also if the dialog is cancelled, or a sentence that says what is wrong and what to do.
    QString PrintWithDialog(QWidget* parent);

    // Prints to this file without a dialog. The file is replaced only when it is complete. Returns an empty
    // text, or a sentence that names the path and says what is wrong.
    QString PrintToPdf(const QString& path, const sPdfPaper& paper = {});

private:
    CChartPrinting Printing() const;
    bool IsAcross() const;

    IPrintedChart& m_chart;
    CChartPrinting::Clock m_clock;
    sPrintFonts m_fonts;
    sPrintConveniences m_conveniences;
};

// The print command of a chart window. PrintWithDialog reports errors in a message box; PrintToPdf returns an
// empty text or a sentence.
void PrintWithDialog(CChartDlg& window, QWidget* parent, const sPrintConveniences& conveniences = {});
QString PrintToPdf(CChartDlg& window, const QString& path, const sPrintConveniences& conveniences = {});

} // namespace zantroq
