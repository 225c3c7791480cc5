#include "qt/dialogs/PictureDialog.h"

#include "window/SavedFiles.h"

#include <QDir>
#include <QFileDialog>
#include <QFileInfo>

namespace zantroq {
namespace {

QString EndingText(const sSavedFileRow& file)
{
    return QString::fromUtf8(file.Ending.data(), static_cast<qsizetype>(file.Ending.size()));
}

QString FilterText(const sSavedFileRow& file)
{
    return QString("%1 (*.%2)").arg(file.Description, EndingText(file));
}

QString EndingOf(const QString& filter)
{
    for (const sSavedFileRow& file : SavedFiles)
        if (filter == FilterText(file))
            return EndingText(file);
    return EndingText(SavedFiles.front());
}

bool HasKnownEnding(const QString& name)
{
    for (const sSavedFileRow& file : SavedFiles)
        if (QFileInfo(name).suffix().compare(EndingText(file), Qt::CaseInsensitive) == 0)
            return true;
    return false;
}

// A symbol may contain a dot, so only a known ending counts as one.
QString WithEnding(const QString& name, const QString& ending)
{
    const QString bare = HasKnownEnding(name) ? name.left(name.lastIndexOf('.')) : name;
    return bare + '.' + ending;
}

} // namespace

QString PictureName(const QString& symbol)
{
    QString name = symbol.isEmpty() ? "chart" : symbol;
    for (QChar& c : name)
        if (QString("/\\:*?\"<>|").contains(c) || c < ' ')
            c = '-';
    if (name.startsWith('.')) // avoids a hidden file
        name[0] = '-';
    return name + ".png";
}

QString AskPicturePath(QWidget* parent, const QString& symbol, QString& folder)
{
    QFileDialog dialog(parent, "Save picture", folder.isEmpty() ? QDir::currentPath() : folder);
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setFileMode(QFileDialog::AnyFile);
    QStringList filters;
    for (const sSavedFileRow& file : SavedFiles)
        filters << FilterText(file);
    dialog.setNameFilters(filters);
    dialog.setDefaultSuffix(EndingText(SavedFiles.front()));
    dialog.selectFile(PictureName(symbol));
    QObject::connect(&dialog, &QFileDialog::filterSelected, &dialog, [&dialog](const QString& filter) {
        const QStringList chosen = dialog.selectedFiles();
        dialog.setDefaultSuffix(EndingOf(filter));
        if (!chosen.isEmpty())
            dialog.selectFile(WithEnding(QFileInfo(chosen.front()).fileName(), EndingOf(filter)));
    });
    if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty())
        return {};
    folder = dialog.directory().absolutePath();
    const QString path = dialog.selectedFiles().front();
    return HasKnownEnding(path) ? path : WithEnding(path, EndingOf(dialog.selectedNameFilter()));
}

} // namespace zantroq
