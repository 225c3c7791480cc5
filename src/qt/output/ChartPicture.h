// A picture of a whole chart window without its controls: a heading, the panes at their positions, and the
// status line, in the client size of the window. The same drawing is used for pixels, vectors and pages.
// Chart window's thread.
#pragma once

#include <QImage>
#include <QSize>
#include <QString>

class QPainter;

namespace zantroq {

class CChartDlg;

struct sChartPicture
{
    const CChartDlg& Window;
    QSize Size;     // client size of the chart window, in pixels
    QString Notice; // shown in the heading where not empty
    // With the conveniences: neither a scroll mark nor a status line, panes in their convenient manner, and the
    // notice also in a comment line before the values on show.
    bool Conveniences = false;
};

// Returns a null image if memory is short.
QImage DrawChartPicture(const sChartPicture& picture, double devicePixelRatio);

// Writes the picture by the ending of the path, .png (at the ratio), .svg or .pdf, or for .json the window's
// state, or for .csv the values on show. The same window writes the same bytes. Empty, or one sentence that
// says what is wrong.
QString SaveChartPicture(const sChartPicture& picture, const QString& path, double devicePixelRatio);

} // namespace zantroq
