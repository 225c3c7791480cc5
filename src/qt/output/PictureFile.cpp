#include "qt/output/PictureFile.h"

#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>
#include <QSaveFile>

namespace zantroq {

namespace {

bool WriteWhole(QFileDevice& file, const QByteArray& bytes)
{
    return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size() && file.flush();
}

} // namespace

QString WritePictureFile(const QString& path, const QByteArray& bytes)
{
    const auto wrong = [&path](const QFileDevice& file) {
        return QString("%1: cannot be written (%2); choose another place")
            .arg(path, file.errorString().toLower());
    };
    const QFileInfo there(path);
    if (there.exists() && !there.isFile() && !there.isDir()) {
        // A pipe or a device is written to directly; it must never be replaced.
        QFile device(path);
        return WriteWhole(device, bytes) ? QString() : wrong(device);
    }
    QSaveFile file(path);
    file.setDirectWriteFallback(true); // in a folder where no file can be created
    return WriteWhole(file, bytes) && file.commit() ? QString() : wrong(file);
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
