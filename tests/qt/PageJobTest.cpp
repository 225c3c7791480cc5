#include "qt/output/PageJob.h"

#include <QFile>
#include <QPrinter>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace zantroq {
namespace {

const sPrintFonts Fonts{"DejaVu Serif", "DejaVu Sans"};

struct sPdfPrinter
{
    sPdfPrinter()
    {
        Printer.setOutputFormat(QPrinter::PdfFormat);
        Printer.setOutputFileName(Path());
        Printer.setResolution(539);
    }
    QString Path() const { return Folder.filePath("page.pdf"); }
    QByteArray Bytes() const
    {
        QFile file(Path());
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }
    long Pages() const { return Bytes().count("/Type /Page\n"); }

    QTemporaryDir Folder;
    QPrinter Printer{QPrinter::HighResolution};
};

void PrintTwice(CPageJob& job)
{
    for (int copy = 0; copy < 2; ++copy) {
        ASSERT_TRUE(job.StartDocument("Chart"));
        ASSERT_TRUE(job.StartPage());
        job.DrawHeading(PlaceHeading("MSFT Daily\t\tnow", job.HeadingFont(), job.Page().PixelsPerInchX));
        job.EndPage();
        job.EndDocument();
    }
}

TEST(PageJob, CopiesOntoAFileAreItsPages)
{
    sPdfPrinter pdf;
    CPageJob job(pdf.Printer, 2, CopiesTo::OneFile, Fonts);
    PrintTwice(job);
    EXPECT_TRUE(job.Finish());
    EXPECT_EQ(pdf.Pages(), 2);
    EXPECT_TRUE(pdf.Bytes().startsWith("%PDF-"));
}

TEST(PageJob, CopiesOntoAPrinterAreDocumentsOfTheirOwn)
{
    sPdfPrinter pdf; // replaces a printer: the second document begins anew
    CPageJob job(pdf.Printer, 2, CopiesTo::OwnDocuments, Fonts);
    PrintTwice(job);
    EXPECT_EQ(pdf.Pages(), 1);
    EXPECT_EQ(pdf.Printer.docName(), "Chart");
    EXPECT_FALSE(job.Finish()); // nothing is left open
}

TEST(PageJob, ThePageIsWhatThePrinterCanPrintOn)
{
    sPdfPrinter pdf;
    CPageJob job(pdf.Printer, 1, CopiesTo::OneFile, Fonts);
    ASSERT_TRUE(job.StartDocument("Chart"));
    const sPrintPage page = job.Page();
    const QRect room = pdf.Printer.pageLayout().paintRectPixels(539);
    EXPECT_EQ(page.Width, room.width());
    EXPECT_EQ(page.Height, room.height());
    EXPECT_EQ(page.PixelsPerInchX, 539);
    EXPECT_EQ(page.PixelsPerInchY, 539);
    job.Finish();
}

TEST(PageJob, ADocumentThatCannotStartIsToldAndMayBeEnded)
{
    sPdfPrinter pdf;
    pdf.Printer.setOutputFileName("/no-such-folder/page.pdf");
    CPageJob job(pdf.Printer, 1, CopiesTo::OwnDocuments, Fonts);
    EXPECT_FALSE(job.StartDocument("Chart"));
    job.EndDocument();
    EXPECT_FALSE(job.Finish());
}

TEST(HeadingFont, IsTenPointsHighInTwentiethsOfAPoint)
{
    const CHeadingFont font("DejaVu Serif");
    EXPECT_EQ(font.Font().pixelSize(), 200);
    EXPECT_GT(font.Ascent(), 150);
    EXPECT_GT(font.LineHeight(), 200);
    EXPECT_GT(font.Width("MSFT Daily"), 5 * font.AverageWidth());
    EXPECT_EQ(font.Width(""), 0);
}

} // namespace
} // namespace zantroq
