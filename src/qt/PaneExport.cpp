#include "qt/PaneExport.h"

#include "qt/PanePainter.h"

#include <QFileInfo>
#include <QPageSize>
#include <QPainter>
#include <QPdfWriter>
#include <QSvgGenerator>

namespace zantroq {

bool CPrintPage::PaintPane(const CChart2D& pane, int left, int top, int width, int height)
{
    if (!m_painter.isActive())
        return false;
    CPanePainter(pane, m_family).PaintInto(m_painter, QRectF(left, top, width, height));
    return true;
}

namespace {

bool SaveSvg(const CChart2D& pane, const QString& path)
{
    QSvgGenerator svg;
    svg.setFileName(path);
    svg.setSize({pane.PixelWidth(), pane.PixelHeight()});
    svg.setViewBox(QRect(0, 0, pane.PixelWidth(), pane.PixelHeight()));
    QPainter painter;
    if (!painter.begin(&svg))
        return false;
    CPanePainter(pane).PaintInto(painter, QRectF(0, 0, pane.PixelWidth(), pane.PixelHeight()));
    return painter.end();
}

bool SavePdf(const CChart2D& pane, const QString& path)
{
    constexpr int Fine = 4; // units a pane pixel, for smooth curves
    QPdfWriter pdf(path);
    pdf.setResolution(72 * Fine);
    pdf.setPageSize(QPageSize(QSizeF(pane.PixelWidth(), pane.PixelHeight()), QPageSize::Point, {},
                              QPageSize::ExactMatch));
    pdf.setPageMargins(QMarginsF());
    QPainter painter;
    if (!painter.begin(&pdf))
        return false;
    CPanePainter(pane).PaintInto(painter, QRectF(0, 0, pane.PixelWidth() * Fine, pane.PixelHeight() * Fine));
    return painter.end();
}

} // namespace

bool SavePanePicture(const CChart2D& pane, const QString& path, double devicePixelRatio, QString& error)
{
    const QString ending = QFileInfo(path).suffix().toLower();
    bool written = false;
    if (ending == "png")
        written = PanePicture(pane, devicePixelRatio).save(path, "PNG");
    else if (ending == "svg")
        written = SaveSvg(pane, path);
    else if (ending == "pdf")
        written = SavePdf(pane, path);
    else if (ending == "json")
        written = pane.SaveToFile(path.toStdString());
    else
        error = QStringLiteral("%1: the ending is none of .png, .svg, .pdf and .json").arg(path);
    if (!written && error.isEmpty())
        error = QStringLiteral("%1: cannot be written").arg(path);
    return written;
}

} // namespace zantroq
