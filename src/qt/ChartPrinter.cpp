#include "qt/ChartPrinter.h"

#include "window/PrintedChart.h"

#include <QApplication>
#include <QDateTime>
#include <QPdfWriter>
#include <QPointer>
#include <QPrintDialog>
#include <QPrinter>
#include <QSaveFile>
#include <QWidget>

#include <algorithm>
#include <cmath>
#include <optional>
#include <utility>

namespace zantroq {

namespace {

// The heading is centred on a page that has as many pixels an inch as it is points wide, so the page gets
// that resolution. Everything on it is lines, areas and text, which do not get coarser by it.
int HeadingResolution(const QPageLayout& layout)
{
    return std::max(72, static_cast<int>(std::lround(layout.paintRect(QPageLayout::Point).width())));
}

class CDesktopDialog : public IPrintDialog
{
public:
    CDesktopDialog(QWidget* parent, const sPrintFonts& fonts)
        : m_parent(parent), m_fonts(fonts), m_focus(QApplication::focusWidget())
    {
    }

    IPrintJob* Ask(int copies) override
    {
        m_printer.setCopyCount(copies);
        QPrintDialog dialog(&m_printer, m_parent);
        // One page, all of it.
        dialog.setOption(QAbstractPrintDialog::PrintSelection, false);
        dialog.setOption(QAbstractPrintDialog::PrintPageRange, false);
        dialog.setOption(QAbstractPrintDialog::PrintCurrentPage, false);
        dialog.setOption(QAbstractPrintDialog::PrintCollateCopies, false);
        if (dialog.exec() != QDialog::Accepted)
            return nullptr;
        const int wanted = m_printer.copyCount();
        m_printer.setCopyCount(1); // the copies are documents of their own
        m_printer.setResolution(HeadingResolution(m_printer.pageLayout()));
        const bool file =
            m_printer.outputFormat() == QPrinter::PdfFormat || !m_printer.outputFileName().isEmpty();
        return &m_job.emplace(m_printer, wanted, file ? CopiesTo::OneFile : CopiesTo::OwnDocuments, m_fonts);
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
    QPrinter m_printer{QPrinter::HighResolution};
    std::optional<CPageJob> m_job; // ends before the printer does
};

// A dialog that nobody sees: its answer is known.
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

CChartPrinter::CChartPrinter(IPrintedChart& chart, CChartPrinting::Clock clock, const sPrintFonts& fonts)
    : m_chart(chart), m_clock(std::move(clock)), m_fonts(fonts)
{
}

void CChartPrinter::PrintWithDialog(QWidget* parent)
{
    CDesktopDialog dialog(parent, m_fonts);
    CChartPrinting(m_chart, m_clock).Run(dialog);
}

QString CChartPrinter::PrintToPdf(const QString& path, const sPdfPaper& paper)
{
    QSaveFile file(path);
    // A pipe or a device cannot be replaced; it is written to as it is.
    file.setDirectWriteFallback(true);
    const auto wrong = [&] {
        return QString("%1: cannot be written (%2); choose another place")
            .arg(path, file.errorString().toLower());
    };
    if (!file.open(QIODevice::WriteOnly))
        return wrong();
    QPdfWriter pdf(&file);
    pdf.setCreator("Zantroq Chart");
    pdf.setPageLayout(paper.Layout);
    pdf.setResolution(HeadingResolution(pdf.pageLayout()));
    CPageJob job(pdf, paper.Copies, CopiesTo::OneFile, m_fonts);
    CNoDialog dialog(job);
    const int pages = CChartPrinting(m_chart, m_clock).Run(dialog);
    if (!job.Finish() || pages < paper.Copies || file.error() != QFileDevice::NoError || !file.commit())
        return wrong();
    return {};
}

void PrintWithDialog(CChartDlg& window, QWidget* parent)
{
    CPrintedChart chart(window);
    CChartPrinter(chart).PrintWithDialog(parent);
}

QString PrintToPdf(CChartDlg& window, const QString& path)
{
    CPrintedChart chart(window);
    return CChartPrinter(chart).PrintToPdf(path);
}

} // namespace zantroq
