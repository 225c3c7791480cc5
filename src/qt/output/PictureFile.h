// Files that hold pictures of a chart. Any thread.
#pragma once

#include <QByteArray>
#include <QSize>
#include <QString>

namespace zantroq {

// Writes a whole file: whoever looks sees the old one or the new one; a pipe or a device takes the bytes and
// stays what it is. Empty, or one sentence that names the path, why not, and what to do.
QString WritePictureFile(const QString& path, const QByteArray& bytes);

// A PDF file without the moment of its making, so that the same picture has the same bytes. The length of the
// file and the places in it stay.
QByteArray WithoutMoment(QByteArray pdf);

// An SVG file with its size in pixels, which is the picture's unit; the toolkit gives it in millimetres of
// its own reckoning. The file is otherwise as it was.
QByteArray SizedInPixels(const QByteArray& svg, const QSize& size);

} // namespace zantroq
