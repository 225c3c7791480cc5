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
    QString Notice; // shown in the heading unless empty
    // With the conveniences: neither a scroll mark nor a status line, panes in their convenient manner, and the
    // notice also in a comment line before the values on show.
    bool Conveniences = false;
};

// Returns a null image if memory is short.
QImage DrawChartPicture(const sChartPicture& picture, double devicePixelRatio);

// Writes a file of the kind given by its ending: .png (with `devicePixelRatio`), .svg, .pdf, .json for the
// window's state, or .csv for the displayed values. The same window gives the same bytes. Returns an empty
// text, or a sentence that says what is wrong.
QString SaveChartPicture(const sChartPicture& picture, const QString& path, double devicePixelRatio);

} // namespace zantroq
