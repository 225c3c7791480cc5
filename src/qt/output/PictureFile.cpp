#include "qt/output/PictureFile.h"

#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>
#include <QSaveFile>

#include <cerrno>
#include <cstring>

namespace zantroq {

namespace {

// Sets `cause` to the system's error number if the file opens but cannot be written.
bool WriteWhole(QFileDevice& file, const QByteArray& bytes, int& cause)
{
    cause = 0;
    if (!file.open(QIODevice::WriteOnly))
        return false;
    errno = 0;
    const bool written = file.write(bytes) == bytes.size() && file.flush();
    cause = written ? 0 : errno;
    return written;
}

// The toolkit reports a failed flush as an unknown error.
QString Reason(const QFileDevice& file, int cause)
{
    if (cause == ENOSPC || cause == EDQUOT)
        return "the disk is full";
    return cause != 0 ? QString::fromLocal8Bit(std::strerror(cause)).toLower() : file.errorString().toLower();
}

} // namespace

QString WritePictureFile(const QString& path, const QByteArray& bytes)
{
    int cause = 0;
    const auto wrong = [&path, &cause](const QFileDevice& file) {
        return QString("%1: cannot be written (%2); choose another place").arg(path, Reason(file, cause));
    };
    const QFileInfo there(path);
    if (there.exists() && !there.isFile() && !there.isDir()) {
        // A pipe or a device is written to directly; it must never be replaced.
        QFile device(path);
        return WriteWhole(device, bytes, cause) ? QString() : wrong(device);
    }
    QSaveFile file(path);
    file.setDirectWriteFallback(true); // in a folder where no file can be created
    return WriteWhole(file, bytes, cause) && file.commit() ? QString() : wrong(file);
}

QByteArray WithoutMoment(QByteArray pdf)
{
    const QByteArray mark = "/CreationDate (D:";
    const qsizetype at = pdf.indexOf(mark);
    if (at < 0)
        return pdf;
    const QByteArray moment = "20000101000000"; // a valid date
    const qsizetype first = at + mark.size();
    const qsizetype end = pdf.indexOf(')', first);
    if (end - first < moment.size())
        return pdf;
    pdf.replace(first, moment.size(), moment);
    // The time zone, if present, keeps its form.
    for (qsizetype place = first + moment.size(); place < end; ++place)
        if (pdf[place] >= '0' && pdf[place] <= '9')
            pdf[place] = '0';
        else if (pdf[place] == '-')
            pdf[place] = '+';
    return pdf;
}

QByteArray SizedInPixels(const QByteArray& svg, const QSize& size)
{
    QString text = QString::fromUtf8(svg);
    static const QRegularExpression millimetres("width=\"[0-9.]+mm\" height=\"[0-9.]+mm\"");
    const auto found = millimetres.match(text);
    if (found.hasMatch())
        text.replace(found.capturedStart(), found.capturedLength(),
                     QString("width=\"%1\" height=\"%2\"").arg(size.width()).arg(size.height()));
    return text.toUtf8();
}

} // namespace zantroq
