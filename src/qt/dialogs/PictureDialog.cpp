#include "qt/dialogs/PictureDialog.h"

#include <QDir>
#include <QFileDialog>
#include <QFileInfo>

#include <array>

namespace zantroq {
namespace {

struct sPictureKind
{
    const char* Filter;
    const char* Ending;
};

constexpr std::array<sPictureKind, 5> Kinds{{{"Picture (*.png)", "png"},
                                             {"Vector picture (*.svg)", "svg"},
                                             {"PDF (*.pdf)", "pdf"},
                                             {"State of the chart (*.json)", "json"},
                                             {"Shown values (*.csv)", "csv"}}};

QString EndingOf(const QString& filter)
{
    for (const sPictureKind& kind : Kinds)
        if (filter == kind.Filter)
            return kind.Ending;
    return Kinds.front().Ending;
}

bool HasKnownEnding(const QString& name)
{
    for (const sPictureKind& kind : Kinds)
        if (QFileInfo(name).suffix().compare(kind.Ending, Qt::CaseInsensitive) == 0)
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
    for (const sPictureKind& kind : Kinds)
        filters << kind.Filter;
    dialog.setNameFilters(filters);
    dialog.setDefaultSuffix(Kinds.front().Ending);
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
