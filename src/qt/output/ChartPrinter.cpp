#include "qt/output/ChartPrinter.h"

#include "printing/PrintedChart.h"
#include "qt/output/PictureFile.h"
#include "window/ChartDlg.h"

#include <QApplication>
#include <QBuffer>
#include <QDateTime>
#include <QFile>
#include <QPdfWriter>
#include <QPointer>
#include <QPrintDialog>
#include <QPrinter>
#include <QTemporaryDir>
#include <QWidget>

#include <algorithm>
#include <cmath>
#include <optional>
#include <utility>

namespace zantroq {

namespace {

// The heading is centred on a page with as many pixels per inch as it is points wide, so the page gets that
// resolution. Lines, areas and text do not get coarser.
int HeadingResolution(const QPageLayout& layout)
{
    return std::max(72, static_cast<int>(std::lround(layout.paintRect(QPageLayout::Point).width())));
}

class CDesktopDialog : public IPrintDialog
{
public:
    CDesktopDialog(QWidget* parent, const sPrintFonts& fonts, bool across)
        : m_parent(parent), m_fonts(fonts), m_focus(QApplication::focusWidget())
    {
        if (across)
            m_printer.setPageOrientation(QPageLayout::Landscape);
    }

    // Returns an empty text, or a sentence that says what went wrong after `pages` printed pages.
    QString Outcome(int pages)
    {
        if (!m_job)
            return {}; // cancelled
        if (m_path.isEmpty())
            return pages < m_job->Copies() || m_printer.printerState() == QPrinter::Error
                       ? QString("%1: the page could not be printed; look after the printer and print again")
                             .arg(m_printer.printerName())
                       : QString();
        QFile made(m_printer.outputFileName());
        if (pages < m_job->Copies() || !made.open(QIODevice::ReadOnly))
            return QString("%1: the page could not be made in the folder %2 (%3); make room there")
                .arg(m_path, m_folder->path(), m_folder->errorString().toLower());
        return WritePictureFile(m_path, made.readAll());
    }

    IPrintJob* Ask(int copies) override
    {
        m_printer.setCopyCount(copies);
        QPrintDialog dialog(&m_printer, m_parent);
        // The dialog must offer only the whole page.
        dialog.setOption(QAbstractPrintDialog::PrintSelection, false);
        dialog.setOption(QAbstractPrintDialog::PrintPageRange, false);
        dialog.setOption(QAbstractPrintDialog::PrintCurrentPage, false);
        dialog.setOption(QAbstractPrintDialog::PrintCollateCopies, false);
        if (dialog.exec() != QDialog::Accepted)
            return nullptr;
        const int wanted = m_printer.copyCount();
        m_printer.setCopyCount(1); // copies are separate documents
        m_printer.setResolution(HeadingResolution(m_printer.pageLayout()));
        m_path = m_printer.outputFileName();
        if (m_path.isEmpty())
            return &m_job.emplace(m_printer, wanted, CopiesTo::OwnDocuments, m_fonts);
        // The printer does not report errors of its file, so it first writes a temporary file.
        m_printer.setOutputFileName(m_folder.emplace().filePath("page.pdf"));
        return &m_job.emplace(m_printer, wanted, CopiesTo::OneFile, m_fonts);
    }

    void ReturnFocus() override
    {
        if (m_job)
            m_job->Finish();
        if (m_focus)
            m_focus->setFocus();
    }

private:
    QWidget* m_parent;
    sPrintFonts m_fonts;
    QPointer<QWidget> m_focus;
    std::optional<QTemporaryDir> m_folder; // folder of the temporary file
    QString m_path;                        // chosen file; empty: a printer
    QPrinter m_printer{QPrinter::HighResolution};
    std::optional<CPageJob> m_job; // destroyed before the printer
};

// A print dialog that is never shown and returns a given job.
class CNoDialog : public IPrintDialog
{
public:
    explicit CNoDialog(IPrintJob& job) : m_job(job) {}
    IPrintJob* Ask(int) override { return &m_job; }
    void ReturnFocus() override {}

private:
    IPrintJob& m_job;
};

} // namespace

sTIME_W_MILLISECONDS PrintTime()
{
    const QDateTime now = QDateTime::currentDateTime();
    const QDate date = now.date();
    const QTime time = now.time();
    return MakeTime({date.year(), date.month(), date.day(), time.hour(), time.minute(), time.second()});
}

CChartPrinter::CChartPrinter(IPrintedChart& chart, CChartPrinting::Clock clock, const sPrintFonts& fonts,
                             sPrintConveniences conveniences)
    : m_chart(chart), m_clock(std::move(clock)), m_fonts(fonts), m_conveniences(std::move(conveniences))
{
}

CChartPrinting CChartPrinter::Printing() const
{
    if (!m_conveniences.On)
        return CChartPrinting(m_chart, m_clock);
    return CChartPrinting(m_chart, m_clock,
                          {.PaperInk = true, .Notice = m_conveniences.Notice.toStdString()});
}

// Whether the chart fills paper better that lies across.
bool CChartPrinter::IsAcross() const
{
    if (!m_conveniences.On || m_chart.ShownPanes() == 0)
        return false;
    int height = 0;
    for (int pane = 0; pane < m_chart.ShownPanes(); ++pane)
        height += m_chart.ClientSize(pane).Height;
    return m_chart.ClientSize(0).Width > height;
}

QString CChartPrinter::PrintWithDialog(QWidget* parent)
{
    CDesktopDialog dialog(parent, m_fonts, IsAcross());
    const int pages = Printing().Run(dialog);
    return dialog.Outcome(pages);
}

QString CChartPrinter::PrintToPdf(const QString& path, const sPdfPaper& paper)
{
    QBuffer bytes;
    bytes.open(QIODevice::WriteOnly);
    QPdfWriter pdf(&bytes);
    pdf.setCreator("Zantroq Chart");
    QPageLayout layout = paper.Layout;
    if (IsAcross())
        layout.setOrientation(QPageLayout::Landscape);
    pdf.setPageLayout(layout);
    pdf.setResolution(HeadingResolution(pdf.pageLayout()));
    CPageJob job(pdf, paper.Copies, CopiesTo::OneFile, m_fonts);
    CNoDialog dialog(job);
    const int pages = Printing().Run(dialog);
    if (!job.Finish() || pages < paper.Copies)
        return QString("%1: the page could not be made; choose larger paper").arg(path);
    return WritePictureFile(path, bytes.data());
}

void PrintWithDialog(CChartDlg& window, QWidget* parent, const sPrintConveniences& conveniences)
{
    CPrintedChart chart(window);
    if (const QString wrong = CChartPrinter(chart, PrintTime, {}, conveniences).PrintWithDialog(parent);
        !wrong.isEmpty())
        window.Services().Box.Ask(wrong.toStdString(), "Print", BoxButtons::Ok, BoxIcon::Error);
}

QString PrintToPdf(CChartDlg& window, const QString& path, const sPrintConveniences& conveniences)
{
    CPrintedChart chart(window);
    return CChartPrinter(chart, PrintTime, {}, conveniences).PrintToPdf(path);
}

} // namespace zantroq
