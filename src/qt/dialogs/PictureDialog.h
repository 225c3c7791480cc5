// The file dialog for a picture of the chart. Chart window's thread.
#pragma once

#include <QString>

class QWidget;

namespace zantroq {

// The proposed file name for a symbol's picture, without characters that file names must not contain.
QString PictureName(const QString& symbol);

// Modal. Returns the path of the file, which may exist if the user agreed; empty if cancelled. The selected
// kind gives the name its ending unless the user typed a known ending. The dialog starts in `folder` and sets
// it to the folder of the chosen file.
QString AskPicturePath(QWidget* parent, const QString& symbol, QString& folder);

} // namespace zantroq
