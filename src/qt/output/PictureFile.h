// Files with pictures of a chart. Any thread.
#pragma once

#include <QByteArray>
#include <QSize>
#include <QString>

namespace zantroq {

// Replaces the file only when the new one is complete; a pipe or a device is written to directly. Returns an
// empty text, or a sentence that names the path, the reason and what to do.
QString WritePictureFile(const QString& path, const QByteArray& bytes);

// Removes the creation time from a PDF file, so that the same picture has the same bytes. The length of the
// file and the offsets in it do not change.
QByteArray WithoutMoment(QByteArray pdf);

// Sets the size of an SVG file in pixels, the unit of the picture; the toolkit writes it in millimetres. The
// rest of the file does not change.
QByteArray SizedInPixels(const QByteArray& svg, const QSize& size);

} // namespace zantroq
