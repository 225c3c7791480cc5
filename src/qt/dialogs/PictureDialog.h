// Asks where a picture of the chart is to go. Chart window's thread.
#pragma once

#include <QString>

class QWidget;

namespace zantroq {

// The file that is proposed for a symbol's picture. A symbol may hold what no file name may.
QString PictureName(const QString& symbol);

// Modal. The kind chosen in the dialog gives the name its ending; a known ending that the user types counts
// more. The path of the file, which may exist if the user agreed; empty when cancelled. `folder` is where the
// dialog begins, and takes where it ended.
QString AskPicturePath(QWidget* parent, const QString& symbol, QString& folder);

} // namespace zantroq
