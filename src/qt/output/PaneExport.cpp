#include "qt/output/PaneExport.h"

#include "qt/output/PictureFile.h"
#include "qt/paint/PanePainter.h"
#include "scene/PaneFile.h"

#include <QBuffer>
#include <QFileInfo>
#include <QPageSize>
#include <QPainter>
#include <QPdfWriter>
#include <QSvgGenerator>

#include <cmath>

namespace zantroq {

bool CPrintPage::PaintPane(const CChart2D& pane, int left, int top, int width, int height)
{
    if (!m_painter.isActive())
        return false;
    CPanePainter(pane, m_family).PaintInto(m_painter, QRectF(left, top, width, height));
    return true;
}

namespace {

QByteArray SvgBytes(const CChart2D& pane, const QSize& size)
{
    QBuffer bytes;
    QSvgGenerator svg;
    svg.setOutputDevice(&bytes);
    svg.setSize(size);
    svg.setViewBox(QRect(QPoint(0, 0), size));
    QPainter painter(&svg);
    CPanePainter(pane).PaintInto(painter, QRectF(QPointF(0, 0), size));
    painter.end();
    return SizedInPixels(bytes.data(), size);
}

QByteArray PdfBytes(const CChart2D& pane, const QSize& size)
{
    constexpr int Fine = 4; // units per pane pixel, for smooth curves
    QBuffer bytes;
    bytes.open(QIODevice::WriteOnly);
    QPdfWriter pdf(&bytes);
    pdf.setCreator("Zantroq Chart");
    pdf.setResolution(72 * Fine);
    pdf.setPageSize(QPageSize(QSizeF(size), QPageSize::Point, {}, QPageSize::ExactMatch));
    pdf.setPageMargins(QMarginsF());
    QPainter painter(&pdf);
    CPanePainter(pane).PaintInto(painter, QRectF(QPointF(0, 0), size * Fine));
    painter.end();
    return WithoutMoment(bytes.data());
}

QByteArray PngBytes(const CChart2D& pane, double devicePixelRatio)
{
    QBuffer bytes;
    bytes.open(QIODevice::WriteOnly);
    QImage picture = PanePicture(pane, devicePixelRatio);
    picture.setDevicePixelRatio(1); // a file holds pixels
    return !picture.isNull() && picture.save(&bytes, "PNG") ? bytes.data() : QByteArray();
}

} // namespace

bool SavePanePicture(const CChart2D& pane, const QString& path, double devicePixelRatio, QString& error)
{
    const QString ending = QFileInfo(path).suffix().toLower();
    const QSize size(pane.PixelWidth(), pane.PixelHeight());
    QByteArray bytes;
    if (ending == "json") {
        bytes = QByteArray::fromStdString(PaneToText(pane) + "\n");
    } else if (ending != "png" && ending != "svg" && ending != "pdf") {
        error = QStringLiteral("%1: the ending is none of .png, .svg, .pdf and .json").arg(path);
        return false;
    } else if (size.isEmpty()) {
        error = QStringLiteral("%1: the pane is %2 by %3 pixels, too small for a picture; give it a size")
                    .arg(path)
                    .arg(size.width())
                    .arg(size.height());
        return false;
    } else {
        bytes = ending == "svg"   ? SvgBytes(pane, size)
                : ending == "pdf" ? PdfBytes(pane, size)
                                  : PngBytes(pane, devicePixelRatio);
    }
    if (bytes.isEmpty()) {
        error =
            QStringLiteral("%1: there is not enough memory for a picture of %2 x %3 pixels; make it smaller")
                .arg(path)
                .arg(std::llround(size.width() * devicePixelRatio))
                .arg(std::llround(size.height() * devicePixelRatio));
        return false;
    }
    const QString failure = WritePictureFile(path, bytes);
    if (!failure.isEmpty())
        error = failure;
    return failure.isEmpty();
}

} // namespace zantroq
