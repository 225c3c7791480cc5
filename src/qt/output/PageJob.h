// A print job on a page device of the toolkit: a printer or a PDF file. Chart window's thread.
#pragma once

#include "printing/ChartPrinting.h"
#include "qt/output/PaneExport.h"

#include <QFont>
#include <QPagedPaintDevice>
#include <QPainter>
#include <QString>

namespace zantroq {

// Font families of a page. Empty: the first that the desktop has of the usual ones.
struct sPrintFonts
{
    QString Heading, Panes;
};

// A serif font, measured in heading units.
class CHeadingFont : public IHeadingFont
{
public:
    explicit CHeadingFont(const QString& family);
    int Width(std::string_view text) const override;
    int AverageWidth() const override;
    int Ascent() const;
    int LineHeight() const;
    const QFont& Font() const { return m_font; }

private:
    QFont m_font;
};

enum class CopiesTo
{
    OwnDocuments, // each copy is a separate document, as printers expect
    OneFile       // all copies are pages of one file, because separate documents would overwrite it
};

class CPageJob : public IPrintJob
{
public:
    // The device is not owned. A painter is active on it from the first document to the last, or to Finish.
    CPageJob(QPagedPaintDevice& device, int copies, CopiesTo to, const sPrintFonts& fonts);

    bool Finish(); // completes a file; false if there is none

    int Copies() const override { return m_copies; }
    bool StartDocument(const std::string& name) override;
    bool StartPage() override;
    sPrintPage Page() const override;
    IPrintDevice& Device() override { return m_page; }
    const IHeadingFont& HeadingFont() const override { return m_font; }
    void DrawHeading(const sHeading& heading) override;
    void EndPage() override {}
    void EndDocument() override;

private:
    QPagedPaintDevice& m_device;
    const int m_copies;
    const CopiesTo m_to;
    QPainter m_painter;
    CPrintPage m_page;
    CHeadingFont m_font;
    bool m_atFirstPage = false; // starting the painter has already started a page
};

} // namespace zantroq
