// Files that hold pictures of a chart. Any thread.
#pragma once

#include <QByteArray>
#include <QString>

namespace zantroq {

// Writes a whole file: whoever looks sees the old one or the new one; a pipe or a device takes the bytes and
// stays what it is. Empty, or one sentence that names the path, why not, and what to do.
QString WritePictureFile(const QString& path, const QByteArray& bytes);

// A PDF file without the moment of its making, so that the same picture has the same bytes. The length of the
// file and the places in it stay.
QByteArray WithoutMoment(QByteArray pdf);

} // namespace zantroq
