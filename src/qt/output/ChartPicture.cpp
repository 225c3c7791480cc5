#include "qt/output/ChartPicture.h"

#include "export/ChartSnapshot.h"
#include "export/ShownTable.h"
#include "qt/output/PictureFile.h"
#include "qt/paint/PanePainter.h"
#include "qt/widgets/BarFont.h"
#include "window/ChartDlg.h"
#include "window/PaneLayout.h"
#include "window/SavedFiles.h"

#include <QBuffer>
#include <QFileInfo>
#include <QPageSize>
#include <QPainter>
#include <QPdfWriter>
#include <QSvgGenerator>

#include <cmath>
#include <functional>
#include <new>

namespace zantroq {
namespace {

// Pictures are for documents, so their colors do not depend on the desktop.
const QColor Back(0xf3, 0xf4, 0xf6), Ink(0x22, 0x26, 0x2b), Faint(0x6a, 0x72, 0x7c), Rule(0xc9, 0xce, 0xd4),
    Warning(0xa6, 0x4b, 0x00);
constexpr int Padding = 8, FontSize = 13, SmallFontSize = 12;
constexpr int StatusHeight = 20;

using PaintPane = std::function<void(int pane, const QRect& rect)>;

PaneManner MannerOf(const sChartPicture& picture)
{
    return picture.Conveniences ? PaneManner::Convenient : PaneManner::Plain;
}

QFont TextFont(int size, bool bold)
{
    QFont font("DejaVu Sans");
    font.setStyleHint(QFont::SansSerif);
    font.setPixelSize(size);
    font.setBold(bold);
    return font;
}

int DrawText(QPainter& painter, const QRect& room, int size, bool bold, const QColor& color,
             const QString& text, Qt::Alignment side = Qt::AlignLeft)
{
    if (text.isEmpty() || room.width() <= 0)
        return 0;
    const QFont font = TextFont(size, bold);
    const QFontMetrics metrics(font);
    const QString shown = metrics.elidedText(text, Qt::ElideRight, room.width());
    painter.setFont(font);
    painter.setPen(color);
    const int width = metrics.horizontalAdvance(shown);
    const int left = side == Qt::AlignRight ? room.right() + 1 - width : room.left();
    painter.drawText(left, room.top() + (room.height() + metrics.ascent() - metrics.descent()) / 2, shown);
    return width;
}

void PaintHeading(QPainter& painter, const sChartPicture& picture, int height)
{
    const CChartDlg& window = picture.Window;
    QRect room(Padding, 0, picture.Size.width() - 2 * Padding, height);
    room.setLeft(
        room.left() + Padding +
        DrawText(painter, room, FontSize, true, Ink, QString::fromStdString(window.CurrentSymbol())));
    const int notice = DrawText(painter, room, SmallFontSize, true, Warning, picture.Notice, Qt::AlignRight);
    room.setRight(room.right() - notice - (notice > 0 ? Padding : 0));
    if (!window.CurrentSymbol().empty())
        DrawText(painter, room, SmallFontSize, false, Faint,
                 QString::fromStdString(window.Services().Top.Caption()));
}

void PaintStatus(QPainter& painter, const sChartPicture& picture)
{
    const int top = picture.Size.height() - StatusHeight;
    painter.fillRect(0, top, picture.Size.width(), 1, Rule);
    QRect room(Padding, top, picture.Size.width() - 2 * Padding, StatusHeight);
    const int right = DrawText(painter, room, SmallFontSize, false, Faint,
                               QString::fromStdString(picture.Window.StatusPart(2)), Qt::AlignRight);
    room.setRight(room.right() - right - Padding);
    DrawText(painter, room, SmallFontSize, false, Faint,
             QString::fromStdString(picture.Window.StatusPart(0)));
}

// Paints the position of the displayed range in the series, as the scroll bar shows it.
void PaintScrollMark(QPainter& painter, const sChartPicture& picture)
{
    const IScrollBar& bar = picture.Window.Services().Scroll;
    if (!picture.Window.ScrollBarVisible() || bar.Maximum() <= 0)
        return;
    const QRect track(Padding, picture.Size.height() - StatusHeight - 10, picture.Size.width() - 2 * Padding,
                      4);
    const double points = bar.Maximum() + 1;
    const int left = static_cast<int>(track.width() * (bar.Position() / points));
    const int width = std::max(6, static_cast<int>(track.width() * (bar.Page() / points)));
    painter.fillRect(track, Rule);
    painter.fillRect(QRect(track.left() + std::min(left, track.width() - width), track.top(), width, 4),
                     Faint);
}

void PaintPicture(QPainter& painter, const sChartPicture& picture, const PaintPane& paintPane)
{
    const CPaneLayout& layout = picture.Window.Layout();
    painter.fillRect(QRect(QPoint(0, 0), picture.Size), Back);
    PaintHeading(painter, picture, layout.TopOffset());
    for (int pane = 0; pane < picture.Window.ShownPanes(); ++pane) {
        const sPaneRect at = layout.PaneRect(pane);
        if (at.Width > 0 && at.Height > 0)
            paintPane(pane, QRect(at.Left, at.Top, at.Width, at.Height));
    }
    if (picture.Conveniences)
        return;
    PaintScrollMark(painter, picture);
    PaintStatus(painter, picture);
}

// Paints vectors with `fine` units of the painter per pixel.
void PaintVectors(QPainter& painter, const sChartPicture& picture, int fine)
{
    painter.scale(fine, fine);
    PaintPicture(painter, picture, [&](int pane, const QRect& rect) {
        painter.save();
        painter.resetTransform();
        CPanePainter pixels(picture.Window.Pane(pane));
        pixels.SetManner(MannerOf(picture));
        pixels.PaintInto(painter, QRectF(rect.left() * fine, rect.top() * fine, rect.width() * fine,
                                         rect.height() * fine));
        painter.restore();
    });
}

// Returns no bytes if the picture could not be drawn.
QByteArray SvgBytes(const sChartPicture& picture)
{
    QBuffer bytes;
    QSvgGenerator svg;
    svg.setOutputDevice(&bytes);
    svg.setSize(picture.Size);
    svg.setViewBox(QRect(QPoint(0, 0), picture.Size));
    svg.setTitle(QString::fromStdString(picture.Window.CurrentSymbol()));
    QPainter painter;
    if (!painter.begin(&svg))
        return {};
    PaintVectors(painter, picture, 1);
    painter.end();
    return SizedInPixels(bytes.data(), picture.Size);
}

QByteArray PdfBytes(const sChartPicture& picture)
{
    constexpr int Fine = 4;
    QBuffer bytes;
    bytes.open(QIODevice::WriteOnly);
    QPdfWriter pdf(&bytes);
    pdf.setCreator("Zantroq Chart");
    pdf.setTitle(QString::fromStdString(picture.Window.CurrentSymbol()));
    pdf.setResolution(72 * Fine);
    pdf.setPageSize(QPageSize(QSizeF(picture.Size), QPageSize::Point, {}, QPageSize::ExactMatch));
    pdf.setPageMargins(QMarginsF());
    QPainter painter;
    if (!painter.begin(&pdf))
        return {};
    PaintVectors(painter, picture, Fine);
    painter.end();
    return WithoutMoment(bytes.data());
}

QByteArray PngBytes(const sChartPicture& picture, double devicePixelRatio)
{
    QBuffer bytes;
    bytes.open(QIODevice::WriteOnly);
    const QImage image = DrawChartPicture(picture, devicePixelRatio);
    return !image.isNull() && image.save(&bytes, "PNG") ? bytes.data() : QByteArray();
}

QByteArray CsvBytes(const sChartPicture& picture)
{
    const QByteArray values = QByteArray::fromStdString(ShownValuesCsv(picture.Window));
    if (!picture.Conveniences || picture.Notice.isEmpty())
        return values;
    return "# " + picture.Notice.simplified().toUtf8() + '\n' + values;
}

QByteArray PictureBytes(const sChartPicture& picture, SavedFileKind kind, double devicePixelRatio)
{
    try {
        if (kind == SavedFileKind::Svg)
            return SvgBytes(picture);
        return kind == SavedFileKind::Pdf ? PdfBytes(picture) : PngBytes(picture, devicePixelRatio);
    } catch (const std::bad_alloc&) {
        return {};
    }
}

QImage DrawPixels(const sChartPicture& picture, double devicePixelRatio)
{
    QImage image(picture.Size * devicePixelRatio, QImage::Format_RGB32);
    if (image.isNull())
        return image;
    image.setDevicePixelRatio(devicePixelRatio);
    image.fill(Back);
    QPainter painter;
    if (!painter.begin(&image))
        return {};
    bool whole = true;
    PaintPicture(painter, picture, [&](int pane, const QRect& rect) {
        const QImage pixels = PanePicture(picture.Window.Pane(pane), devicePixelRatio, {}, MannerOf(picture));
        whole = whole && !pixels.isNull();
        painter.drawImage(rect.topLeft(), pixels);
    });
    painter.end();
    image.setDevicePixelRatio(1); // a file has plain pixels
    return whole ? image : QImage();
}

} // namespace

QImage DrawChartPicture(const sChartPicture& picture, double devicePixelRatio)
{
    try {
        return DrawPixels(picture, devicePixelRatio);
    } catch (const std::bad_alloc&) {
        return {};
    }
}

QString SaveChartPicture(const sChartPicture& picture, const QString& path, double devicePixelRatio)
{
    const auto kind = SavedFileKindOf(QFileInfo(path).suffix().toLower().toStdString());
    if (!kind)
        return QString("%1: the ending is not known; use %2")
            .arg(path, QString::fromStdString(EndingList(SavedFiles)));
    if (*kind == SavedFileKind::State)
        return WritePictureFile(path, QByteArray::fromStdString(ChartSnapshotText(picture.Window)));
    if (*kind == SavedFileKind::Values)
        return WritePictureFile(path, CsvBytes(picture));
    const QByteArray bytes = PictureBytes(picture, *kind, devicePixelRatio);
    const double ratio = *kind == SavedFileKind::Png ? devicePixelRatio : 1;
    if (bytes.isEmpty())
        return QString("%1: there is not enough memory for a picture of %2 x %3 pixels; make it smaller")
            .arg(path)
            .arg(std::llround(picture.Size.width() * ratio))
            .arg(std::llround(picture.Size.height() * ratio));
    return WritePictureFile(path, bytes);
}

} // namespace zantroq
