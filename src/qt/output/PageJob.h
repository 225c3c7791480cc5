// A print job on any of the toolkit's page devices: a printer, or a PDF file. Chart window's thread.
#pragma once

#include "printing/ChartPrinting.h"
#include "qt/output/PaneExport.h"

#include <QFont>
#include <QPagedPaintDevice>
#include <QPainter>
#include <QString>

namespace zantroq {

// Texts of a page. Empty: what the desktop has in the usual order.
struct sPrintFonts
{
    QString Heading, Panes;
};

// Serif text in heading units.
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
    OwnDocuments, // each copy is a document of its own, as a printer takes them
    OneFile       // all copies are pages of one file, which a document each would overwrite
};

class CPageJob : public IPrintJob
{
public:
    // The device is not owned. A painter on it lives from the first document to the last, or to Finish.
    CPageJob(QPagedPaintDevice& device, int copies, CopiesTo to, const sPrintFonts& fonts);

    bool Finish(); // ends a file; false when there is none

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
    bool m_atFirstPage = false; // the painter's own beginning began a page
};

} // namespace zantroq
