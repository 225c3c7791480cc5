#include "qt/PictureFile.h"

#include <QFileInfo>
#include <QSaveFile>

namespace zantroq {
namespace {

} // namespace

QString WritePictureFile(const QString& path, const QByteArray& bytes)
{
    QSaveFile file(path);
    // A pipe or a device cannot be replaced; it is written to as it is.
    file.setDirectWriteFallback(true);
    if (file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size() && file.commit())
        return {};
    return QString("%1: cannot be written (%2); choose another place")
        .arg(path, file.errorString().toLower());
}

QByteArray WithoutMoment(QByteArray pdf)
{
    const QByteArray mark = "/CreationDate (D:";
    const qsizetype at = pdf.indexOf(mark);
    if (at < 0)
        return pdf;
    const QByteArray moment = "20000101000000"; // a date that is one
    const qsizetype first = at + mark.size();
    const qsizetype end = pdf.indexOf(')', first);
    if (end - first < moment.size())
        return pdf;
    pdf.replace(first, moment.size(), moment);
    // The zone, if one follows, keeps its shape.
    for (qsizetype place = first + moment.size(); place < end; ++place)
        if (pdf[place] >= '0' && pdf[place] <= '9')
            pdf[place] = '0';
        else if (pdf[place] == '-')
            pdf[place] = '+';
    return pdf;
}

} // namespace zantroq
