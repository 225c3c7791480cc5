#include "qt/PictureFile.h"

#include <QFileInfo>
#include <QSaveFile>

namespace zantroq {
namespace {

// Digits and hexadecimal letters between two marks become zeros, wherever the marks stand.
void ZeroBetween(QByteArray& text, const QByteArray& opening, const QByteArray& closing)
{
    for (qsizetype at = text.indexOf(opening); at >= 0; at = text.indexOf(opening, at)) {
        at += opening.size();
        const qsizetype end = text.indexOf(closing, at);
        for (; at < end; ++at)
            if (QByteArray("123456789abcdefABCDEF").contains(text[at]))
                text[at] = '0';
    }
}

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
    ZeroBetween(pdf, "/CreationDate (", ")");
    ZeroBetween(pdf, "/ID [", "]");
    ZeroBetween(pdf, "<xmp:CreateDate>", "<");
    ZeroBetween(pdf, "<xmp:ModifyDate>", "<");
    ZeroBetween(pdf, "<xmp:MetadataDate>", "<");
    ZeroBetween(pdf, "xmp:CreateDate=\"", "\"");
    ZeroBetween(pdf, "xmp:ModifyDate=\"", "\"");
    ZeroBetween(pdf, "xmp:MetadataDate=\"", "\"");
    ZeroBetween(pdf, "uuid:", "\"");
    return pdf;
}

} // namespace zantroq
